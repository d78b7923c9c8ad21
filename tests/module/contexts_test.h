#pragma once

#include <string>

#include "module/form19.h"
#include "tests/module/read_write_window_test.h"

namespace gsm {

inline constexpr const char* kInternet = "+CGDCONT: 1,\"IP\",\"internet\",,0,0";

/// A reply of several lines of information and its result.
inline std::string lines(const Texts& each) {
  std::string all;
  for (const std::string& line : each) all += (all.empty() ? "" : "\r\n") + line;
  return information(all);
}

/// The window of the packet contexts.
class ContextsTest : public ReadWriteWindowTest {
 protected:
  Window& window() override { return form(); }
  Form19& form() { return panel().form19; }

  /// The window loads, with `answer` to its query.
  void load(const std::string& answer) {
    reply("AT+CGDCONT?", answer);
    openWindow();
  }

  /// The boxes of the grid that are on view, a line for each row that has any: "1|IP|internet".
  Texts grid() {
    Form19& window = form();
    const TextBox* const boxes[] = {&window.Text2,  &window.Text3,  &window.Text4,  &window.Text5,
                                    &window.Text6,  &window.Text7,  &window.Text8,  &window.Text9,
                                    &window.Text10, &window.Text11, &window.Text12, &window.Text13};
    Texts rows;
    for (std::size_t row = 0; row < 4; ++row) {
      std::string text;
      for (std::size_t i = 3 * row; i < 3 * row + 3; ++i) {
        const std::string content = boxes[i]->Text.peek();
        text +=
            (i % 3 == 0 ? "" : "|") + (boxes[i]->Visible.peek() ? content : "(" + content + ")");
      }
      if (text != "()|()|()") rows.push_back(text);
    }
    return rows;
  }
  bool hasHeadings() {
    const bool shown = form().Label2.Visible.peek();
    EXPECT_EQ(form().Label6.Visible.peek(), shown);
    EXPECT_EQ(form().Label7.Visible.peek(), shown);
    return shown;
  }
  std::string line() { return form().Label1.Caption.peek(); }
};

}  // namespace gsm
