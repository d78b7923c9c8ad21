#include "simulator/card/locks.h"

#include <algorithm>

#include "simulator/text/text.h"

namespace gsm::simulator {

namespace {

constexpr std::size_t kPasswordSize = 8;

}  // namespace

CodeCheck DeviceLock::turn(bool on, std::string_view password) {
  if (on_ == on) return CodeCheck::kNotAsked;
  if (password != password_) return CodeCheck::kWrong;
  on_ = on;
  return CodeCheck::kAccepted;
}

CodeCheck DeviceLock::changePassword(std::string_view password, std::string_view changed) {
  if (!on_) return CodeCheck::kNotAsked;
  const bool formed =
      changed.size() == kPasswordSize && std::all_of(changed.begin(), changed.end(), isDigit);
  if (password != password_ || !formed) return CodeCheck::kWrong;
  password_ = changed;
  return CodeCheck::kAccepted;
}

}  // namespace gsm::simulator
