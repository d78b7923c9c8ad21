#pragma once

#include <optional>
#include <string_view>

namespace gsm {

enum class Parity { none, even, odd, mark, space };
enum class StopBits { one, oneAndHalf, two };
enum class Handshaking { none = 0, xonXoff = 1, rts = 2, both = 3 };

/// How a serial line runs.
struct LineSettings {
  int baud = 9600;
  Parity parity = Parity::none;
  int dataBits = 8;
  StopBits stopBits = StopBits::one;

  bool operator==(const LineSettings&) const = default;
};

/// Reads a settings text such as "9600,n,8,1": speed, parity (E, M, N, O or S in either case), data
/// bits (4 to 8) and stop bits (1, 1.5 or 2), separated by commas. Nothing when the text isn't of
/// that form or names a value that no line can have.
std::optional<LineSettings> parseLineSettings(std::string_view text);

}  // namespace gsm
