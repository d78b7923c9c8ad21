#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace gsm::simulator {

// The places of the character sets in what AT+CSCS lists.
inline constexpr int kHexadecimalSet = 3;

// A text of the card's as the host gets it with character set `set`: hexadecimal shows the codes of
// the GSM alphabet, two digits each, and any other set the text as it is.
std::string encoded(std::string_view text, int set);

// The text that the host means with `set`; nothing when its hexadecimal isn't.
std::optional<std::string> decoded(std::string_view text, int set);

// The codes of the GSM alphabet for a text in the factory's character set, one or two for each
// byte. A byte that the alphabet doesn't have is its own code.
std::string toGsmAlphabet(std::string_view text);

// The text that the codes spell, with a code that the factory's character set has no byte for as it
// is.
std::string fromGsmAlphabet(std::string_view codes);

}  // namespace gsm::simulator
