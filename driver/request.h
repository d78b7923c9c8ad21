#pragma once

#include <nlohmann/json.hpp>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include "platform/clock.h"

namespace gsm::driver {

using Json = nlohmann::ordered_json;

/// Why a request can't be carried out: it has changed nothing.
class BadRequest : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// The fields of one request. Every reader throws `BadRequest` with the field's name when a field
/// that is needed is missing or a field has a value of the wrong kind.
class Request {
 public:
  explicit Request(const Json& fields) : fields_(fields) {}

  bool has(const char* field) const;
  /// The field as it is; it must be there.
  const Json& raw(const char* field) const;

  /// A text, as Windows-1252.
  std::string text(const char* field) const;
  std::optional<std::string> optionalText(const char* field) const;
  int whole(const char* field) const;
  std::optional<int> optionalWhole(const char* field) const;
  bool flag(const char* field, bool otherwise) const;

  /// A span in seconds, not negative.
  Duration seconds(const char* field) const;
  Duration seconds(const char* field, Duration otherwise) const;

 private:
  const Json& fields_;
};

// The same readers for values that stand alone, such as members of a list.
std::string textOf(const Json& value, const char* field);
int wholeOf(const Json& value, const char* field);
Duration secondsOf(const Json& value, const char* field);

/// "2026-03-01 10:00:00".
LocalTime localTimeOf(const std::string& text);

}  // namespace gsm::driver
