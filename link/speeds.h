#pragma once

#include <array>

namespace gsm {

/// The speeds at which the modem may be found, in baud as texts, from the slowest up.
inline constexpr std::array kSpeeds = {"300",  "600",   "1200",  "2400",  "4800",
                                       "9600", "19200", "38400", "57600", "115200"};

}  // namespace gsm
