#pragma once

#include <string>
#include <string_view>
#include <utility>

#include "simulator/card/sim_card.h"

namespace gsm::simulator {

// A lock of the modem itself, with a password of eight digits.
class DeviceLock {
 public:
  explicit DeviceLock(std::string password) : password_(std::move(password)) {}

  bool isOn() const { return on_; }

  // Asks for no password when the lock is on, or off, already.
  CodeCheck turn(bool on, std::string_view password);

  // Asks for none, too, while the lock is off.
  CodeCheck changePassword(std::string_view password, std::string_view changed);

  // By hand, whatever the password.
  void force(bool on) { on_ = on; }

 private:
  std::string password_;
  bool on_ = false;
};

// There is but one card and one network here, so that neither lock ever keeps the modem from its
// work.
struct Locks {
  DeviceLock phone{"12345678"};
  DeviceLock network{"87654321"};
};

}  // namespace gsm::simulator
