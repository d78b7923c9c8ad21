#pragma once

#include <string>
#include <vector>

#include "platform/event_loop.h"
#include "platform/message_boxes.h"

namespace gsm {

/// Message boxes without a screen: written down, and answered at once or left up.
class HeadlessBoxes : public MessageBoxes {
 public:
  struct Shown {
    Instant at;
    std::string text;
    std::string title;
    BoxIcon icon;
  };
  enum class Answer { automatic, hold };

  HeadlessBoxes(const Clock& clock, EventLoop& loop) : clock_(clock), loop_(loop) {}

  void show(const std::string& text, const std::string& title, BoxIcon icon) override;
  bool isUp() const override { return !up_.empty(); }

  /// How boxes go from now on.
  void setAnswer(Answer answer) { answer_ = answer; }

  /// The user presses OK in the box on top. False when no box is up.
  bool answerTop();

  /// The boxes shown since the last call.
  std::vector<Shown> takeShown();

 private:
  const Clock& clock_;
  EventLoop& loop_;
  Answer answer_ = Answer::automatic;
  std::vector<Shown> shown_;
  std::vector<int> up_;  // the boxes on view, each by its number, the top one last
  int nextBox_ = 0;
};

}  // namespace gsm
