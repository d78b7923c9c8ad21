#pragma once

#include <string>

namespace gsm {

/// The program's settings store: named values in sections. The program writes it for other
/// programs and for people; it never reads it back.
class SettingsStore {
 public:
  virtual ~SettingsStore() = default;

  /// Keeps `value` under `key` of `section`. Throws a `RuntimeFailure` when it can't be kept.
  virtual void save(const std::string& section, const std::string& key,
                    const std::string& value) = 0;
};

}  // namespace gsm
