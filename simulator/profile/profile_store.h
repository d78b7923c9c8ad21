#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace gsm::simulator {

// The modem's non-volatile memory, as text.
class ProfileStore {
 public:
  virtual ~ProfileStore() = default;

  // What was saved last; nothing when nothing was, or when it can't be read back.
  virtual std::optional<std::string> load() = 0;

  // Replaces what was saved. False when it couldn't.
  virtual bool save(std::string_view text) = 0;
};

// A memory that lasts as long as the object.
class MemoryProfileStore final : public ProfileStore {
 public:
  std::optional<std::string> load() override { return text_; }
  bool save(std::string_view text) override {
    text_ = text;
    return true;
  }

 private:
  std::optional<std::string> text_;
};

}  // namespace gsm::simulator
