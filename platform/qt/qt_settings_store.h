#pragma once

#include <filesystem>

#include "platform/settings_store.h"

namespace gsm {

/// The settings store as a file of sections with lines "key=value".
class QtSettingsStore : public SettingsStore {
 public:
  explicit QtSettingsStore(std::filesystem::path file);

  void save(const std::string& section, const std::string& key, const std::string& value) override;

 private:
  const std::filesystem::path file_;
};

}  // namespace gsm
