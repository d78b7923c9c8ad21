#include "platform/serial_settings.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace gsm {
namespace {

template <class Value>
struct Word {
  std::string_view text;
  Value value;
};

constexpr std::array<Word<int>, 16> kSpeeds{{{"110", 110},
                                             {"300", 300},
                                             {"600", 600},
                                             {"1200", 1200},
                                             {"2400", 2400},
                                             {"4800", 4800},
                                             {"9600", 9600},
                                             {"14400", 14400},
                                             {"19200", 19200},
                                             {"28800", 28800},
                                             {"38400", 38400},
                                             {"56000", 56000},
                                             {"57600", 57600},
                                             {"115200", 115200},
                                             {"128000", 128000},
                                             {"256000", 256000}}};

constexpr std::array<Word<Parity>, 10> kParities{{{"N", Parity::none},
                                                  {"n", Parity::none},
                                                  {"E", Parity::even},
                                                  {"e", Parity::even},
                                                  {"O", Parity::odd},
                                                  {"o", Parity::odd},
                                                  {"M", Parity::mark},
                                                  {"m", Parity::mark},
                                                  {"S", Parity::space},
                                                  {"s", Parity::space}}};

constexpr std::array<Word<int>, 5> kDataBits{{{"4", 4}, {"5", 5}, {"6", 6}, {"7", 7}, {"8", 8}}};

constexpr std::array<Word<StopBits>, 3> kStopBits{
    {{"1", StopBits::one}, {"1.5", StopBits::oneAndHalf}, {"2", StopBits::two}}};

std::string_view trimmed(std::string_view text) {
  const auto first = text.find_first_not_of(' ');
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

// Takes the next field off `rest` and looks it up; nothing when no word equals it.
template <class Words>
auto nextField(std::string_view& rest, const Words& words)
    -> std::optional<decltype(words.front().value)> {
  const auto comma = rest.find(',');
  const std::string_view field = trimmed(rest.substr(0, comma));
  rest = comma == std::string_view::npos ? std::string_view{} : rest.substr(comma + 1);
  const auto word = std::find_if(words.begin(), words.end(),
                                 [&](const auto& candidate) { return candidate.text == field; });
  if (word == words.end()) return std::nullopt;
  return word->value;
}

}  // namespace

std::optional<LineSettings> parseLineSettings(std::string_view text) {
  if (std::count(text.begin(), text.end(), ',') != 3) return std::nullopt;
  const auto baud = nextField(text, kSpeeds);
  const auto parity = nextField(text, kParities);
  const auto dataBits = nextField(text, kDataBits);
  const auto stopBits = nextField(text, kStopBits);
  if (!baud || !parity || !dataBits || !stopBits) return std::nullopt;
  return LineSettings{*baud, *parity, *dataBits, *stopBits};
}

}  // namespace gsm
