#include "driver/request.h"

#include <chrono>
#include <cstdio>
#include <limits>

#include "platform/code_page.h"

namespace gsm::driver {
namespace {

BadRequest wrong(const char* field, const char* wanted) {
  return BadRequest(std::string("field '") + field + "' must be " + wanted);
}

}  // namespace

std::string textOf(const Json& value, const char* field) {
  if (!value.is_string()) throw wrong(field, "a text");
  return fromUtf8(value.get<std::string>());
}

int wholeOf(const Json& value, const char* field) {
  using Limits = std::numeric_limits<int>;
  const bool fits = value.is_number_integer() && value.get<double>() >= Limits::min() &&
                    value.get<double>() <= Limits::max();
  if (!fits) throw wrong(field, "a whole number");
  return value.get<int>();
}

Duration secondsOf(const Json& value, const char* field) {
  constexpr double kThirtyYears = 1e9;
  if (!value.is_number() || !(value.get<double>() >= 0) || value.get<double>() > kThirtyYears) {
    throw wrong(field, "a number of seconds from 0 to 1e9");
  }
  return fromSeconds(value.get<double>());
}

LocalTime localTimeOf(const std::string& text) {
  LocalTime time{};
  int length = 0;
  const int fields = std::sscanf(text.c_str(), "%4d-%2d-%2d %2d:%2d:%2d%n", &time.year, &time.month,
                                 &time.day, &time.hour, &time.minute, &time.second, &length);
  const auto inRange = [](int value, int low, int high) { return value >= low && value <= high; };
  bool valid = fields == 6 && static_cast<std::size_t>(length) == text.size() &&
               inRange(time.year, 1, 9999) && inRange(time.month, 1, 12) &&
               inRange(time.day, 1, 31) && inRange(time.hour, 0, 23) &&
               inRange(time.minute, 0, 59) && inRange(time.second, 0, 59);
  if (valid) {
    const std::chrono::year_month_day date{std::chrono::year(time.year),
                                           std::chrono::month(static_cast<unsigned>(time.month)),
                                           std::chrono::day(static_cast<unsigned>(time.day))};
    valid = date.ok();
  }
  if (!valid) throw wrong("now", "a time such as \"2026-03-01 10:00:00\"");
  return time;
}

bool Request::has(const char* field) const { return fields_.contains(field); }

const Json& Request::raw(const char* field) const {
  if (!has(field)) throw BadRequest(std::string("field '") + field + "' is missing");
  return fields_.at(field);
}

std::string Request::text(const char* field) const { return textOf(raw(field), field); }

std::optional<std::string> Request::optionalText(const char* field) const {
  return has(field) ? std::optional(text(field)) : std::nullopt;
}

int Request::whole(const char* field) const { return wholeOf(raw(field), field); }

std::optional<int> Request::optionalWhole(const char* field) const {
  return has(field) ? std::optional(whole(field)) : std::nullopt;
}

bool Request::flag(const char* field, bool otherwise) const {
  if (!has(field)) return otherwise;
  if (!raw(field).is_boolean()) throw wrong(field, "true or false");
  return raw(field).get<bool>();
}

Duration Request::seconds(const char* field) const { return secondsOf(raw(field), field); }

Duration Request::seconds(const char* field, Duration otherwise) const {
  return has(field) ? seconds(field) : otherwise;
}

}  // namespace gsm::driver
