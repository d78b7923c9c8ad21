#include "panel/feature_window.h"

#include "panel/form1.h"
#include "panel/form7.h"
#include "panel/panel.h"

namespace gsm {

FeatureWindow::FeatureWindow(Panel& panel, std::string name, WindowDesign design, OnClose onClose)
    : Window(panel.platform, std::move(name), std::move(design)),
      panel_(panel),
      onClose_(onClose) {}

Conversation& FeatureWindow::modem() { return panel_.form1.modem; }

void FeatureWindow::Form_Resize() { followWith(panel_.form7, WindowState); }

void FeatureWindow::Form_Unload() {
  panel_.form1.Show();
  Hide();
  if (onClose_ == OnClose::emptiesStatus) panel_.form1.Label5.Caption = "";
}

void followWith(Window& follower, int windowState) {
  if (windowState != WindowState::maximised) follower.WindowState = windowState;
}

}  // namespace gsm
