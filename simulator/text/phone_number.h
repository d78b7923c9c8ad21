#pragma once

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>

#include "simulator/text/text.h"

namespace gsm::simulator {

// The types of a phone number, as commands and notices give them after it.
inline constexpr int kInternationalNumber = 145;  // starts with a plus
inline constexpr int kPlainNumber = 129;

constexpr int typeOfNumber(std::string_view number) {
  return number.starts_with('+') ? kInternationalNumber : kPlainNumber;
}

// How many characters of a number count towards its length: all but the plus.
constexpr std::size_t lengthOfNumber(std::string_view number) {
  return number.size() - (number.starts_with('+') ? 1 : 0);
}

// True for digits, stars and hashes, one or more, after a plus or alone.
inline bool isPhoneNumber(std::string_view text) {
  if (text.starts_with('+')) text.remove_prefix(1);
  return !text.empty() && std::all_of(text.begin(), text.end(),
                                      [](char c) { return isDigit(c) || c == '*' || c == '#'; });
}

// The number in quotes with its type: "\"+33639981201\",145". A hidden number is empty.
inline std::string numberFields(std::string_view number) {
  return quoted(number) + "," + std::to_string(typeOfNumber(number));
}

}  // namespace gsm::simulator
