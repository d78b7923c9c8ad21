#pragma once

#include <string>
#include <vector>

#include "module/form16.h"
#include "module/form17.h"
#include "panel/form1.h"
#include "tests/support/modem_bytes.h"
#include "tests/support/routing_test.h"
#include "tests/support/rows.h"

namespace gsm {

using Texts = std::vector<std::string>;

/// The window of the maker's own features over an open port with a scripted modem.
class MakersFeaturesTest : public RoutingTest {
 protected:
  static constexpr const char* kWaiting = "Wait..Checking Status";

  /// Shows the window, and lets no time pass.
  void beginLoad() {
    inPanel([this] { form().Show(); });
    run(0);
  }
  /// Shows the window with a modem that says nothing, and lets its reading end.
  void openWindow() {
    beginLoad();
    settle();
    sent();
  }
  /// The user presses a button, and what follows ends.
  void press(CommandButton& button) {
    click(button);
    settle();
  }
  void pick(ComboBox& combo, int index) {
    inPanel([&combo, index] { combo.userSelect(index); });
    run(0);
  }
  void typeInto(ComboBox& combo, const std::string& text) {
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

  /// A box without a title of its own has come up.
  void expectBox(const std::string& text) {
    const auto shown = machine().boxes.takeShown();
    ASSERT_EQ(shown.size(), 1U);
    EXPECT_EQ(shown[0].text, text);
    EXPECT_EQ(shown[0].title, "GSM-APPLICATION");
    EXPECT_EQ(shown[0].icon, BoxIcon::none);
  }
  /// No handler waits, no box came up, and the program goes on.
  void expectAtRest() {
    EXPECT_EQ(waiting(), 0);
    EXPECT_EQ(boxes(), Texts{});
    EXPECT_FALSE(ended());
  }

  Form16& menu() { return panel().form16; }
  Form17& form() { return panel().form17; }
  std::string caption(const Label& label) { return label.Caption.peek(); }
  std::string indicators() { return caption(form().Label14); }
  /// The frames of the pages that are on view.
  Texts pages() {
    Texts shown;
    for (const Frame* page : {&form().Frame1, &form().Frame5, &form().Frame6, &form().Frame9}) {
      if (page->Visible.peek()) shown.push_back(page->name());
    }
    return shown;
  }
};

/// How a change ends on a status label, by what the modem says.
struct OutcomeRow {
  std::string name;
  std::string reply;
  std::string shown;
};

}  // namespace gsm
