#include "simulator/line/line_input.h"

#include <utility>

#include "simulator/text/text.h"

namespace gsm::simulator {

namespace {

// Where the text after the first "AT" starts; npos without one.
std::size_t bodyStart(const std::string& text) {
  for (std::size_t at = 0; at + 1 < text.size(); ++at) {
    if (upper(text[at]) == 'A' && upper(text[at + 1]) == 'T') return at + 2;
  }
  return std::string::npos;
}

}  // namespace

LineInput::Step LineInput::take(char byte) {
  if (byte == '\r') return Step::kLineEnded;
  if (byte == '\n' && text_.empty() && !overlong_) return Step::kIgnored;
  if (byte == '\b') {
    if (!text_.empty()) text_.pop_back();
  } else if (isControl(byte)) {
    // Escape, for one, which some hosts send to wake a modem.
  } else if (text_.size() == kLongest) {
    overlong_ = true;
  } else {
    text_ += byte;
  }
  return Step::kTaken;
}

LineInput::Line LineInput::takeLine() {
  const std::string text = std::exchange(text_, {});
  Line line{.overlong = std::exchange(overlong_, false)};
  const std::size_t start = bodyStart(text);
  line.isCommand = start != std::string::npos;
  if (line.isCommand) line.body = text.substr(start);
  return line;
}

}  // namespace gsm::simulator
