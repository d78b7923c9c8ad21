#pragma once

#include <array>
#include <string>
#include <string_view>

namespace gsm {

// Inside the panel a character is a byte of Windows-1252; screens, databases and JSON want Unicode.

/// The Unicode character of each byte. The five bytes that the code page leaves open stand for the
/// control characters of the same number, so that every byte comes back as it was.
const std::array<char16_t, 256>& windows1252();

/// The byte for a Unicode character, "?" when the code page lacks it.
char toWindows1252(char32_t character);

/// The capital of a letter, accented or not; any other character as it is. The sharp s, the micro
/// sign and the florin have none in the code page.
char capital(char character);

std::string toUtf8(std::string_view windows1252Text);

/// What isn't UTF-8 becomes "?", byte by byte.
std::string fromUtf8(std::string_view utf8);

}  // namespace gsm
