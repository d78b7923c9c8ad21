#include "fuzz/player/end_watch.h"

#include <algorithm>

namespace gsm {

// A box that is held says why long before its handler goes on.
bool EndWatch::told() {
  const auto writes = world_.machine.line.takeWrites();
  const bool switchedOff = std::any_of(
      writes.begin(), writes.end(),
      [](const HeadlessLine::Write& write) { return write.text.starts_with("AT+CPOF"); });
  const bool boxed = !world_.machine.boxes.takeShown().empty();
  return switchedOff || boxed;
}

std::string EndWatch::look() {
  told_ = told() || told_;
  if (world_.machine.time.hasEnded()) {
    if (world_.handlers().depth() != 0) return "the program has ended with handlers on the stack";
    if (!asked_ && !told_) return "the program has ended for no reason that anyone was told";
    return {};
  }
  if (world_.handlers().depth() == 0) {
    if (asked_) return "the program goes on although the user has asked for its end";
    told_ = false;
  }
  return {};
}

}  // namespace gsm
