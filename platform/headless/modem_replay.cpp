#include "platform/headless/modem_replay.h"

#include <algorithm>
#include <utility>

namespace gsm {

ModemReplay::ModemReplay(VirtualTime& time, HeadlessLine& line, std::vector<Exchange> exchanges)
    : time_(time), line_(line), exchanges_(std::move(exchanges)) {}

bool ModemReplay::fits(const Exchange& exchange, std::string_view bytes, int baud) {
  const auto& [write, blots, speed, chunks] = exchange;
  if (baud != speed) return false;
  if (blots.empty()) return bytes == write;
  const std::string_view begin = std::string_view(write).substr(0, blots.front().first);
  const std::string_view end =
      std::string_view(write).substr(blots.back().first + blots.back().size);
  return bytes.size() >= begin.size() + end.size() && bytes.starts_with(begin) &&
         bytes.ends_with(end);
}

void ModemReplay::hear(std::string_view bytes, int baud) {
  const std::size_t end = std::min(next_ + kFarthest + 1, exchanges_.size());
  std::size_t found = next_;
  while (found < end && !fits(exchanges_[found], bytes, baud)) ++found;
  if (found >= end) {
    ++strayed_;
    return;
  }
  next_ = found + 1;
  ++answered_;
  for (const Chunk& chunk : exchanges_[found].chunks) {
    time_.after(chunk.after, [&line = line_, text = chunk.text] { line.arrive(text); });
  }
}

ModemReplay::Progress ModemReplay::progress() const {
  return {.answered = answered_, .strayed = strayed_, .left = exchanges_.size() - next_};
}

}  // namespace gsm
