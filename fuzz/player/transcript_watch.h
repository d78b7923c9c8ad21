#pragma once

#include <string>
#include <string_view>

#include "controls/view.h"
#include "link/transcript.h"
#include "platform/headless/headless_line.h"

namespace gsm {

/// Whether every byte that the program receives comes into the transcript, whole, once and in its
/// turn, and stays there until a handler clears it.
///
/// It keeps a transcript of its own from what reaches the port and holds each change of the
/// program's against it.
class TranscriptWatch : private View {
 public:
  /// Both must outlive it.
  TranscriptWatch(HeadlessLine& line, Transcript& transcript);
  ~TranscriptWatch() override;
  TranscriptWatch(const TranscriptWatch&) = delete;
  TranscriptWatch& operator=(const TranscriptWatch&) = delete;

  /// What has been wrong so far, or is between two steps; empty while all is well.
  std::string problem() const;

  /// What is wrong once the program has nothing left to do: bytes that nobody came for.
  std::string problemAtRest() const;

 private:
  void arrived(std::string_view bytes);
  void changed(PropertyId property) override;
  /// What has come in and isn't in the transcript yet. Closing the port drops it.
  std::string_view waiting() const;

  HeadlessLine& line_;
  Transcript& transcript_;
  std::string expected_;
  std::string arrived_;  // since the transcript last took what was there
  int opening_ = 0;      // of the port, in which it came
  std::string problem_;
};

}  // namespace gsm
