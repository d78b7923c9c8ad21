#pragma once

#include <string>
#include <vector>

#include "module/form16.h"
#include "panel/form1.h"
#include "panel/form7.h"
#include "tests/support/modem_bytes.h"
#include "tests/support/open_port_test.h"
#include "tests/support/rows.h"

namespace gsm {

using Texts = std::vector<std::string>;

/// One of the module's windows that read when they load, over an open port with a scripted modem.
class ReadWriteWindowTest : public OpenPortTest {
 protected:
  virtual Window& window() = 0;

  /// The window loads and comes up, and its read ends.
  void openWindow() {
    inPanel([this] { window().Show(); });
    settle();
    sent();
  }
  /// The window begins to load, and no time passes. It comes up at the end of it.
  void beginLoad() {
    inPanel([this] { window().Show(); });
    run(0);
  }
  /// The user opens it by a button of the menu, and its read ends.
  void openBy(CommandButton& button) {
    inPanel([this] { panel().form16.Show(); });
    run(0);
    click(button);
    settle();
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
  void type(TextBox& box, const std::string& text) {
    inPanel([&box, text] {
      box.userErase();
      box.userType(text);
    });
    run(0);
  }
  void closePort() {
    inPanel([this] { form1().MSComm1.PortOpen = false; });
    run(0);
  }
  void closeWindow() {
    inPanel([this] { window().userClose(); });
    run(0);
  }
  int minimisedLike(int state) {
    inPanel([this, state] { window().userState(state); });
    run(0);
    return panel().form7.WindowState.peek();
  }
  /// What is on the wire only once: `bytes` without an echo.
  void replyWithoutEcho(const std::string& command, const std::string& bytes) {
    world().modem.add({.write = command + "\r",
                       .replies = {{{ModemScript::kDefaultDelay, bytes}}},
                       .echo = false});
  }
  /// The modem answers `command` with the first `cut` bytes of its echo and `text`, and with the
  /// rest `restAfter` seconds later, if at all.
  void replyCut(const std::string& command, const std::string& text, int cut,
                double restAfter = 0) {
    const std::string whole = command + "\r" + text;
    const auto size = static_cast<std::size_t>(cut);
    std::vector<ModemScript::Chunk> chunks;
    if (size > 0) chunks.push_back({ModemScript::kDefaultDelay, whole.substr(0, size)});
    if (restAfter > 0 && size < whole.size()) {
      chunks.push_back({fromSeconds(restAfter), whole.substr(size)});
    }
    world().modem.add({.write = command + "\r", .replies = {chunks}, .echo = false});
  }

  void expectBox(const std::string& text, const std::string& title) {
    const auto shown = machine().boxes.takeShown();
    ASSERT_EQ(shown.size(), 1U);
    EXPECT_EQ(shown[0].text, text);
    EXPECT_EQ(shown[0].title, title);
    EXPECT_EQ(shown[0].icon, BoxIcon::none);
  }
  /// No handler waits, no box came up, and the program goes on.
  void expectAtRest() {
    EXPECT_EQ(waiting(), 0);
    EXPECT_EQ(boxes(), Texts{});
    EXPECT_FALSE(ended());
  }
};

}  // namespace gsm
