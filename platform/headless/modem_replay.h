#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/headless/headless_line.h"
#include "platform/secret_blots.h"

namespace gsm {

/// A modem that says again what a record tells that one said: reply for reply, in the record's cuts
/// and at its times behind each write.
class ModemReplay : public LineModem {
 public:
  struct Chunk {
    Duration after;  // behind the write
    std::string text;
  };
  /// A write and what came between it and the next.
  struct Exchange {
    std::string write;
    std::vector<Blot> blots;  // of the write: any text of any length fits there
    int baud = 9600;          // the speed of the host's side
    std::vector<Chunk> chunks;
  };
  /// How far it has got.
  struct Progress {
    std::size_t answered = 0;  // writes that the record had
    std::size_t strayed = 0;   // writes that it had not, and which went without an answer
    std::size_t left = 0;      // exchanges of the record that haven't come
  };

  /// A write that isn't the record's next may be one of so many that follow; what stands before it
  /// in the record is passed over.
  static constexpr std::size_t kFarthest = 8;

  /// `time` and `line` must outlive it.
  ModemReplay(VirtualTime& time, HeadlessLine& line, std::vector<Exchange> exchanges);

  void hear(std::string_view bytes, int baud) override;

  Progress progress() const;

 private:
  static bool fits(const Exchange& exchange, std::string_view bytes, int baud);

  VirtualTime& time_;
  HeadlessLine& line_;
  const std::vector<Exchange> exchanges_;
  std::size_t next_ = 0;
  std::size_t answered_ = 0;
  std::size_t strayed_ = 0;
};

}  // namespace gsm
