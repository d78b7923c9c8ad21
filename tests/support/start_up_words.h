#pragma once

namespace gsm {

// What a start-up writes into the log and on the status line.
inline constexpr const char* kWelcome =
    "                      Welcome To Ormalin Telecom Application";
inline constexpr const char* kNothingFound = "No Modem Device Found.Set The Comm Ports";

}  // namespace gsm
