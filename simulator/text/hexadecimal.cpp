#include "simulator/text/hexadecimal.h"

#include <charconv>
#include <system_error>

namespace gsm::simulator {

std::string toHexadecimal(std::string_view bytes) {
  constexpr std::string_view kDigits = "0123456789ABCDEF";
  std::string digits;
  for (const char byte : bytes) {
    digits += kDigits[static_cast<unsigned char>(byte) / 16];
    digits += kDigits[static_cast<unsigned char>(byte) % 16];
  }
  return digits;
}

std::optional<std::string> fromHexadecimal(std::string_view digits) {
  std::string bytes;
  for (; digits.size() >= 2; digits.remove_prefix(2)) {
    unsigned char byte = 0;
    const auto [stop, failure] = std::from_chars(digits.data(), digits.data() + 2, byte, 16);
    if (failure != std::errc() || stop != digits.data() + 2) return std::nullopt;
    bytes += static_cast<char>(byte);
  }
  return digits.empty() ? std::optional(bytes) : std::nullopt;
}

}  // namespace gsm::simulator
