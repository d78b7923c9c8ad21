#include "platform/clock.h"

#include <array>
#include <cstdio>

namespace gsm {
namespace {

template <class... Fields>
std::string formatted(const char* format, Fields... fields) {
  std::array<char, 40> text{};
  std::snprintf(text.data(), text.size(), format, fields...);
  return text.data();
}

}  // namespace

std::string LocalTime::date() const { return formatted("%02d/%02d/%04d", day, month, year); }

std::string LocalTime::timeOfDay() const {
  return formatted("%02d:%02d:%02d", hour, minute, second);
}

}  // namespace gsm
