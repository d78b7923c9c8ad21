#pragma once

#include <string>

#include "module/form18.h"
#include "tests/module/read_write_window_test.h"

namespace gsm {

inline const std::string kActive = "1,\"160060C01F\",3,1";

/// The window of the SIM toolkit.
class ToolkitTest : public ReadWriteWindowTest {
 protected:
  Window& window() override { return form(); }
  Form18& form() { return panel().form18; }

  /// The window loads, with `answer` to its query.
  void load(const std::string& answer) {
    reply("AT+STSF?", answer);
    openWindow();
  }
  void loadActive() { load(information("+STSF: " + kActive)); }

  /// The three lines of the status, a hidden one in brackets.
  Texts status() {
    Texts lines;
    for (const Label* label : {&form().Label2, &form().Label3, &form().Label4}) {
      const std::string text = label->Caption.peek();
      lines.push_back(label->Visible.peek() ? text : "(" + text + ")");
    }
    return lines;
  }
  std::string line() { return status()[0]; }
  std::string mode() { return form().Combo1.Text.peek(); }
  bool wantsReset() { return form().Label6.Visible.peek(); }
  bool asksForConfiguration() {
    EXPECT_EQ(form().Text1.Visible.peek(), form().Label5.Visible.peek());
    return form().Text1.Visible.peek();
  }
};

enum Mode { deActivate = 0, activate = 1, configure = 2 };

}  // namespace gsm
