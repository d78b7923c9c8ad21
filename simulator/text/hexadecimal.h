#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace gsm::simulator {

// The bytes as two digits each, in upper case.
std::string toHexadecimal(std::string_view bytes);

// The bytes that the digits spell, in either case; nothing for an odd number of digits or anything
// else among them.
std::optional<std::string> fromHexadecimal(std::string_view digits);

}  // namespace gsm::simulator
