#pragma once

#include <string>
#include <vector>

#include "link/conversation.h"
#include "sms/form8.h"
#include "tests/support/phone_book_test.h"

namespace gsm {

inline constexpr const char* kPrompt = "\r\n> ";
inline constexpr const char* kEnd = "\x1A";  // of a message

/// The message window on view, an empty phone book, and a scripted modem on the open port.
class MessageWindowTest : public PhoneBookTest {
 protected:
  void SetUp() override {
    PhoneBookTest::SetUp();
    open();
  }

  /// The window is shown, and its loading ends.
  void open() {
    inPanel([this] { window().Show(); });
    settle();
    sent();
  }
  /// The user closes it.
  void close() {
    inPanel([this] { window().userClose(); });
    run(0);
  }
  /// From now on what leaves the line is no event, which would be waited for: a wait takes as long
  /// as it says.
  void stopSendEvents() { form1().MSComm1.SThreshold = 0; }
  void closePort() {
    inPanel([this] { form1().MSComm1.PortOpen = false; });
    run(0);
  }

  /// The user types `keys` into `box`.
  void type(TextBox& box, const std::string& keys) {
    inPanel([&box, keys] { box.userType(keys); });
    run(0);
  }
  /// The user picks the item `text` of `list`.
  void choose(ListControl& list, const std::string& text) {
    inPanel([&list, text] {
      const auto& items = list.List.peek();
      list.userSelect(
          static_cast<int>(std::find(items.begin(), items.end(), text) - items.begin()));
    });
    run(0);
  }
  /// The user clicks, and all that follows happens.
  template <class Clickable>
  void press(Clickable& control) {
    click(control);
    settle();
  }

  /// A message to `number` stands in the boxes.
  void compose(const std::string& number, const std::string& text, const std::string& header = "") {
    window().Text1.Text = number;
    window().Text5.Text = header;
    window().Text2.Text = text;
  }
  /// The modem prompts for a message to 12345.
  void answerWithPrompt(const std::string& command = "AT+CMGS=12345") {
    world().modem.add(
        {.write = command + "\r", .replies = {{{ModemScript::kDefaultDelay, kPrompt}}}});
  }
  /// The modem echoes the body `text` and says `reply`, `after` seconds later.
  void answerBody(const std::string& text, const std::string& reply, double after = 0.5) {
    world().modem.add({.write = text + kEnd, .replies = {{{fromSeconds(after), reply}}}});
  }

  /// The handlers have ended, and no box came up.
  void expectAtRest() {
    EXPECT_EQ(waiting(), 0);
    EXPECT_EQ(boxes(), Texts{});
    EXPECT_FALSE(ended());
  }
  /// Exactly one box has come up, with the window's title.
  void expectBox(const std::string& text) {
    const auto shown = machine().boxes.takeShown();
    ASSERT_EQ(shown.size(), 1U);
    EXPECT_EQ(shown[0].text, text);
    EXPECT_EQ(shown[0].title, "GSM");
  }

  Form8& window() { return panel().form8; }
  std::string note() { return window().Label4.Caption.peek(); }
  std::string reports() { return window().Label6.Caption.peek(); }
  std::string number() { return window().Text1.Text.peek(); }
  std::string message() { return window().Text2.Text.peek(); }
  std::string header() { return window().Text5.Text.peek(); }
  std::string messageRead() { return window().Text3.Text.peek(); }
  std::string centre() { return window().Text4.Text.peek(); }
  Texts names() { return window().List1.List.peek(); }
};

}  // namespace gsm
