#include "fuzz/player/transcript_watch.h"

namespace gsm {

TranscriptWatch::TranscriptWatch(HeadlessLine& line, Transcript& transcript)
    : line_(line), transcript_(transcript), expected_(transcript.Text.peek()) {
  line_.watch([this](std::string_view bytes) { arrived(bytes); });
  transcript_.attach(this);
}

TranscriptWatch::~TranscriptWatch() {
  transcript_.attach(nullptr);
  line_.watch({});
}

void TranscriptWatch::arrived(std::string_view bytes) {
  if (waiting().empty()) arrived_.clear();
  arrived_ += bytes;
  opening_ = line_.openings();
}

std::string_view TranscriptWatch::waiting() const {
  const bool stillOpen = line_.isOpen() && line_.openings() == opening_;
  return stillOpen ? std::string_view(arrived_) : std::string_view();
}

// The text has been cleared, or all that waits has been put after it, or nothing (an event of the
// line that brings no bytes routes the text as it stands).
void TranscriptWatch::changed(PropertyId property) {
  if (property != PropertyId::Text) return;
  const std::string_view text = transcript_.Text.peek();
  if (text.empty()) {
    expected_.clear();
    return;
  }
  const bool kept = text.starts_with(expected_);
  const std::string_view added = kept ? text.substr(expected_.size()) : text;
  if (!kept) {
    problem_ = "the transcript has lost something without being cleared";
  } else if (!added.empty() && added != waiting()) {
    problem_ = "the transcript has taken '" + std::string(added) + "' in when '" +
               std::string(waiting()) + "' had come";
  }
  if (!added.empty()) arrived_.clear();
  if (!kept) expected_.clear();
  expected_ += added;
}

std::string TranscriptWatch::problem() const {
  if (!problem_.empty()) return problem_;
  return transcript_.Text.peek() == expected_ ? "" : "the transcript has changed unseen";
}

std::string TranscriptWatch::problemAtRest() const {
  if (waiting().empty()) return {};
  return std::to_string(waiting().size()) + " bytes that came never got into the transcript";
}

}  // namespace gsm
