#pragma once

#include "platform/message_boxes.h"

namespace gsm {

/// Message boxes on the screen. While one is up, Qt's own loop for it delivers the panel's events.
class QtMessageBoxes : public MessageBoxes {
 public:
  void show(const std::string& text, const std::string& title = kDefaultTitle,
            BoxIcon icon = BoxIcon::none) override;

  /// Only while a box is on the screen: `show` may return much later, when the handlers have ended
  /// that run on top of it, and the user goes on with the windows meanwhile.
  bool isUp() const override { return up_ > 0; }

 private:
  class OnView;

  int up_ = 0;  // events that run under a box may show another one
};

}  // namespace gsm
