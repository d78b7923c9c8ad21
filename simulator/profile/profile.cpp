#include "simulator/profile/profile.h"

#include <algorithm>

#include "simulator/text/text.h"

namespace gsm::simulator {

namespace {

constexpr std::string_view kWindKey = "+WIND";

bool assign(StoredSettings& settings, std::string_view key, int value) {
  if (key == kWindKey) {
    settings.wind = value;
    return kWindRange.holds(value);
  }
  for (const ProfileField& field : kProfileFields) {
    if (field.key != key) continue;
    settings.profile.*field.member = value;
    return field.accepts(value);
  }
  return false;
}

}  // namespace

std::string Range::listing() const {
  if (least == most) return "(" + std::to_string(least) + ")";
  const bool pair = least + step == most;
  return "(" + std::to_string(least) + (pair ? "," : "-") + std::to_string(most) + ")";
}

std::string toText(const StoredSettings& settings) {
  std::string text;
  const auto write = [&text](std::string_view key, int value) {
    text.append(key).append("=").append(std::to_string(value)).append("\n");
  };
  for (const ProfileField& field : kProfileFields) {
    write(field.key, settings.profile.*field.member);
  }
  write(kWindKey, settings.wind);
  return text;
}

std::optional<StoredSettings> parseStoredSettings(std::string_view text) {
  StoredSettings settings;
  while (!text.empty()) {
    const std::size_t end = std::min(text.find('\n'), text.size());
    const std::string_view line = trimmed(text.substr(0, end));
    text.remove_prefix(std::min(end + 1, text.size()));
    if (line.empty()) continue;
    const std::size_t equals = line.find('=');
    if (equals == std::string_view::npos) return std::nullopt;
    const auto value = parseNumber<int>(line.substr(equals + 1));
    if (!value || !assign(settings, line.substr(0, equals), *value)) return std::nullopt;
  }
  return settings;
}

}  // namespace gsm::simulator
