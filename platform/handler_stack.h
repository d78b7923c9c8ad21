#pragma once

#include <functional>

#include "platform/message_boxes.h"
#include "platform/program.h"

namespace gsm {

/// The handlers that have begun and not ended. A handler that waits lets events run, so handlers
/// stand on one another on the native stack.
class HandlerStack {
 public:
  /// At this depth the serial control holds its receive event back, so that a modem that never
  /// stops talking can't run the program out of stack.
  static constexpr int kDeepest = 200;

  HandlerStack(MessageBoxes& boxes, Program& program) : boxes_(boxes), program_(program) {}

  /// Runs `handler` to its end. A run-time failure that it doesn't trap is shown in a box and ends
  /// the program.
  void run(const std::function<void()>& handler);

  int depth() const { return depth_; }
  bool isFull() const { return depth_ >= kDeepest; }

  /// Called each time that the stack has shrunk from full.
  void onRelief(std::function<void()> relief) { relief_ = std::move(relief); }

 private:
  class Frame;

  MessageBoxes& boxes_;
  Program& program_;
  int depth_ = 0;
  std::function<void()> relief_;
};

}  // namespace gsm
