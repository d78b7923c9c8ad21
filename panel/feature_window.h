#pragma once

#include "controls/window.h"

namespace gsm {

class Conversation;
struct Panel;

/// A window that a button of the main window opens in its own place: the status window follows it
/// when it is minimised and restored, and closing it brings the main window back.
class FeatureWindow : public Window {
 protected:
  /// Whether closing also empties the main window's status line, on which "Please Wait" stood.
  enum class OnClose { keepsStatus, emptiesStatus };

  FeatureWindow(Panel& panel, std::string name, WindowDesign design,
                OnClose onClose = OnClose::keepsStatus);

  void Form_Resize() override;
  void Form_Unload() override;

  /// The talk with the modem.
  Conversation& modem();

  Panel& panel_;

 private:
  const OnClose onClose_;
};

/// Passes a window's minimised or normal state on to the status window; maximised is not passed on.
void followWith(Window& follower, int windowState);

}  // namespace gsm
