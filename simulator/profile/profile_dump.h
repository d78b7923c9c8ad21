#pragma once

#include <string>

#include "simulator/profile/profile.h"

namespace gsm::simulator {

// The four lines with which AT&V and ATI4 show a profile, separated by line ends, with no blank
// after their colons.
std::string dumped(const Profile& profile);

// An S register's value as the modem writes it: three digits.
std::string registerText(int value);

}  // namespace gsm::simulator
