#pragma once

#include <string>

namespace gsm {

// What a modem says, byte for byte. With the echo on, the command and its carriage return stand in
// front of a reply.

inline constexpr const char* kOk = "\r\nOK\r\n";
inline constexpr const char* kError = "\r\nERROR\r\n";
inline constexpr const char* kImeiReply = "\r\n012345678901234\r\n\r\nOK\r\n";

/// A reply of one line of information and its result.
inline std::string information(const std::string& line) { return "\r\n" + line + "\r\n\r\nOK\r\n"; }

/// A line that comes unasked.
inline std::string unsolicited(const std::string& line) { return "\r\n" + line + "\r\n"; }

}  // namespace gsm
