#include "simulator/dialogue/text_prompt.h"

#include <algorithm>
#include <utility>

namespace gsm::simulator {

namespace {

constexpr const char* kPrompt = "\r\n> ";
constexpr char kEnd = '\x1A';
constexpr std::string_view kStops = "\r\x1A\x1B";

// What is longer than any message is cut here, and is too long all the same.
constexpr std::size_t kMostText = 4096;

}  // namespace

void TextPrompt::open(Taker taker) {
  taker_ = std::move(taker);
  text_.clear();
  sendPrompt([this] {
    open_ = true;
    if (opened_) opened_();
  });
}

// A carriage return belongs to the text and gets another prompt for the line after it.
std::size_t TextPrompt::take(std::string_view bytes) {
  const std::size_t stop = std::min(bytes.find_first_of(kStops), bytes.size());
  const bool stopped = stop < bytes.size();
  const bool lineEnds = stopped && bytes[stop] == '\r';
  const std::string piece(bytes.substr(0, lineEnds ? stop + 1 : stop));
  for (const char byte : piece) edit(byte);
  if (settings_.profile.echo != 0 && !piece.empty()) transmitter_.send(Source::kEcho, piece);
  if (lineEnds) sendPrompt({});
  if (stopped && !lineEnds) close(bytes[stop] == kEnd ? std::optional(text_) : std::nullopt);
  return stopped ? stop + 1 : stop;
}

void TextPrompt::sendPrompt(std::function<void()> sent) {
  transmitter_.send(Source::kReply, silent_ ? "" : kPrompt, std::move(sent));
}

void TextPrompt::edit(char byte) {
  // Some hosts end their commands with a line feed, too, which doesn't begin a text.
  if (byte == '\n' && text_.empty()) return;
  if (byte == '\b') {
    if (!text_.empty()) text_.pop_back();
  } else if (text_.size() < kMostText) {
    text_ += byte;
  }
}

void TextPrompt::close(std::optional<std::string> text) {
  open_ = false;
  if (const auto taker = std::exchange(taker_, nullptr)) taker(std::move(text));
}

}  // namespace gsm::simulator
