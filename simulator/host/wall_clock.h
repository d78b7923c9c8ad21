#pragma once

#include <ctime>
#include <string>

namespace gsm::pty {

// `time` in this place's time zone as a network gives it: "26/01/31,18:22:11+04", the zone being in
// quarters of an hour.
std::string networkTime(std::time_t time);

// The present time, likewise.
inline std::string networkTimeNow() { return networkTime(std::time(nullptr)); }

}  // namespace gsm::pty
