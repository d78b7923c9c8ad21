#pragma once

#include <filesystem>

#include "platform/settings_store.h"

namespace gsm {

/// The settings store as a file of sections with lines "key=value", in UTF-8. The file is replaced
/// as a whole at each change.
class IniSettingsStore : public SettingsStore {
 public:
  explicit IniSettingsStore(std::filesystem::path file);

  void save(const std::string& section, const std::string& key, const std::string& value) override;

 private:
  const std::filesystem::path file_;
};

}  // namespace gsm
