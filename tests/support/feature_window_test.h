#pragma once

#include <string>
#include <vector>

#include "panel/form1.h"
#include "tests/support/modem_bytes.h"
#include "tests/support/routing_test.h"
#include "tests/support/rows.h"

namespace gsm {

using Texts = std::vector<std::string>;

/// One of the windows that a button of the panel opens, over an open port with a scripted modem,
/// and what a user does to any of them.
class FeatureWindowTest : public RoutingTest {
 protected:
  virtual Window& window() = 0;

  /// Shows the window, and lets no time pass.
  void beginLoad();
  /// Shows the window, and lets its reads end.
  void openWindow();
  void closeWindow();
  void closePort();

  /// The user clicks, and what follows ends.
  template <class Clickable>
  void press(Clickable& control) {
    click(control);
    settle();
  }
  void pick(ComboBox& combo, int index);
  /// The user types `text` in the place of what stood there.
  template <class Box>
  void fill(Box& box, const std::string& text) {
    act([&box, text] {
      box.userErase();
      box.userType(text);
    });
  }
  /// The user does something; no time passes.
  void act(const std::function<void()>& deed);

  /// A handler of the panel assigns something; no time passes.
  void assign(const std::function<void()>& assignment);

  /// The modem answers `command` without its echo.
  void replyWithoutEcho(const std::string& command, const std::string& text);

  void expectBox(const std::string& text, const std::string& title = "GSM");
  /// No handler waits, no box came up, and the program goes on.
  void expectAtRest();

  std::string caption(const Label& label) { return label.Caption.peek(); }
  /// Those of `parts` that are on view, by their names.
  Texts shownOf(const std::vector<const Control*>& parts);
};

}  // namespace gsm
