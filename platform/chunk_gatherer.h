#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "platform/clock.h"
#include "platform/serial_settings.h"

namespace gsm {

/// Gathers what comes in on a real line into chunks: one ends when the line has been quiet for 3.5
/// characters, 20 ms at least, or when it has grown to 4 KiB. So a reply is one chunk at any speed,
/// though the machine hands it over in pieces.
class ChunkGatherer {
 public:
  static constexpr std::size_t kFull = 4096;  // bytes

  /// The line runs like this from now on.
  void setLine(const LineSettings& line);

  /// `bytes` have come in at `now`.
  void add(std::string_view bytes, Instant now);

  /// When the chunk ends unless more comes before; nothing when nothing has come.
  std::optional<Instant> end() const;

  /// Takes what has been gathered.
  std::string take();

 private:
  Duration quiet_{0};
  std::string bytes_;
  Instant lastCame_{0};
};

}  // namespace gsm
