#pragma once

#include <functional>

#include "platform/clock.h"
#include "platform/message_boxes.h"
#include "platform/program.h"
#include "platform/runtime_failure.h"

namespace gsm {

/// The handlers that have begun and not ended. A handler that waits lets events run, so handlers
/// stand on one another on the native stack.
class HandlerStack {
 public:
  /// At this depth the serial control holds its receive event back, so that a modem that never
  /// stops talking can't run the program out of stack.
  static constexpr int kDeepest = 200;
  /// When the stack has been so deep for so long it is stuck: each line of a device that says one
  /// now and then keeps all handlers underneath waiting, and they would wait for minutes.
  static constexpr int kDeep = 16;
  static constexpr Duration kLong = std::chrono::seconds(10);

  HandlerStack(const Clock& clock, MessageBoxes& boxes, Program& program)
      : clock_(clock), boxes_(boxes), program_(program) {
    makeWantOfMemoryAFailure();
  }

  /// Runs `handler` to its end. A run-time failure that it doesn't trap is shown in a box and ends
  /// the program. Want of memory is such a failure.
  void run(const std::function<void()>& handler);

  int depth() const { return depth_; }
  bool isFull() const { return depth_ >= kDeepest; }
  bool isStuck() const { return depth_ >= kDeep && clock_.now() - deepSince_ >= kLong; }

  /// Called each time that the stack has shrunk, and is full or stuck no more.
  void onRelief(std::function<void()> relief) { relief_ = std::move(relief); }

 private:
  class Frame;

  const Clock& clock_;
  MessageBoxes& boxes_;
  Program& program_;
  int depth_ = 0;
  Instant deepSince_{0};  // when the stack last grew to kDeep
  std::function<void()> relief_;
};

}  // namespace gsm
