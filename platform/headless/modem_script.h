#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/headless/headless_line.h"

namespace gsm {

/// A modem that answers by rules: a write that fits one gets that rule's reply.
class ModemScript : public LineModem {
 public:
  struct Chunk {
    Duration after;  // after the write
    std::string text;
  };
  /// One reply: its chunks, each at its own time.
  using Reply = std::vector<Chunk>;

  static constexpr Duration kDefaultDelay = std::chrono::milliseconds(50);

  struct Rule {
    enum class Fit { whole, beginning };
    Fit fit = Fit::whole;
    std::string write;
    std::vector<Reply> replies;  // used in turn, the last for ever after
    bool echo = true;            // the write stands in front of the first chunk
  };

  ModemScript(VirtualTime& time, HeadlessLine& line) : time_(time), line_(line) {}

  /// Of several rules that fit a write, the newest counts.
  void add(Rule rule);
  /// What answers a write that no rule fits; without it: silence, not even an echo.
  void setOtherwise(Rule rule);
  void forget();

  /// The speed at which the modem listens; at others it hears nothing.
  void setSpeed(int baud) { speed_ = baud; }

  void hear(std::string_view bytes, int baud) override;

 private:
  struct Running {
    Rule rule;
    std::size_t used = 0;
  };

  static bool fits(const Rule& rule, std::string_view write);
  void answer(Running& running, std::string_view write);

  VirtualTime& time_;
  HeadlessLine& line_;
  int speed_ = 9600;
  std::vector<Running> rules_;
  std::optional<Running> otherwise_;
};

}  // namespace gsm
