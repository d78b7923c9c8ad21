#pragma once

#include <string>
#include <vector>

#include "panel/form1.h"
#include "settings/form14.h"
#include "tests/support/modem_bytes.h"
#include "tests/support/open_port_test.h"
#include "tests/support/rows.h"

namespace gsm {

using Texts = std::vector<std::string>;

inline constexpr const char* kChecking = "Checking Current Value";

/// The window of data and fax over an open port with a scripted modem.
class DataTest : public OpenPortTest {
 protected:
  /// Shows the window, and lets no time pass.
  void beginLoad() {
    inPanel([this] { form().Show(); });
    run(0);
  }
  /// Shows the window with a modem that says nothing yet, and lets its read end.
  void openWindow() {
    beginLoad();
    settle();
    sent();
  }
  /// The user clicks, and what follows ends.
  template <class Clickable>
  void press(Clickable& control) {
    click(control);
    settle();
  }
  void pick(ComboBox& combo, int index) {
    inPanel([&combo, index] { combo.userSelect(index); });
    run(0);
  }
  void type(ComboBox& combo, const std::string& text) {
    inPanel([&combo, text] { combo.userEdit(text); });
    run(0);
  }
  void closePort() {
    inPanel([this] { form1().MSComm1.PortOpen = false; });
    run(0);
  }
  void closeWindow() {
    inPanel([this] { form().userClose(); });
    run(0);
  }
  /// The modem answers `command` without its echo.
  void replyWithoutEcho(const std::string& command, const std::string& text) {
    world().modem.add({.write = command + "\r",
                       .replies = {{{ModemScript::kDefaultDelay, text}}},
                       .echo = false});
  }

  /// No handler waits, no box came up, and the program goes on.
  void expectAtRest() {
    EXPECT_EQ(waiting(), 0);
    EXPECT_EQ(boxes(), Texts{});
    EXPECT_FALSE(ended());
  }

  Form14& form() { return panel().form14; }
  std::string caption(const Label& label) { return label.Caption.peek(); }
  std::string bearer() { return caption(form().Label1); }
  std::string modes() { return caption(form().Label4); }
  std::string fax() { return caption(form().Label5); }
  /// The pages on view.
  Texts pages() {
    Texts shown;
    for (const Frame* frame : {&form().Frame1, &form().Frame2, &form().Frame3}) {
      if (frame->Visible.peek()) shown.push_back(frame->name());
    }
    return shown;
  }
};

}  // namespace gsm
