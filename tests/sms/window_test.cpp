#include <gtest/gtest.h>

#include "panel/form1.h"
#include "panel/form7.h"
#include "tests/sms/message_window_test.h"

namespace gsm {
namespace {

// What the window does by itself, and the buttons that only prepare it.
class MessageWindow : public MessageWindowTest {
 protected:
  int stateBeside(int state) {
    inPanel([this, state] { window().userState(state); });
    run(0);
    return panel().form7.WindowState.peek();
  }
};

TEST_F(MessageWindow, OffersTheEntriesOneToTwelveInBothLists) {
  const Texts entries{"1", "2", "3", "4", "5", "6", "7", "8", "9", "10", "11", "12"};
  EXPECT_EQ(window().Combo1.List.peek(), entries);
  EXPECT_EQ(window().Combo2.List.peek(), entries);
  EXPECT_EQ(window().Combo1.Text.peek() + window().Combo2.Text.peek(), "");
}

TEST_F(MessageWindow, LoadsWithoutAWordToTheModem) {
  close();
  inPanel([this] { window().Show(); });
  settle();
  EXPECT_EQ(sent(), Texts{});
}

TEST_F(MessageWindow, ComesUpAsNewEachTime) {
  compose("112", "text", "header");
  window().Label4.Caption = "note";
  window().Label6.Caption = "reports";
  window().Text3.Text = "read";
  for (OptionButton* option : {&window().Option1, &window().Option3}) option->Value = true;
  layEntries({{"1", "112", "HELP"}});
  press(window().Command6);
  click(window().Command5);
  close();
  open();
  EXPECT_EQ(number() + header() + message() + messageRead() + note() + reports(), "");
  EXPECT_EQ(window().Text2.MaxLength.peek(), 160);
  EXPECT_EQ(names(), Texts{});
  for (const OptionButton* option :
       {&window().Option1, &window().Option2, &window().Option3, &window().Option4}) {
    EXPECT_FALSE(option->Value.peek()) << option->name();
  }
  for (const Control* hidden :
       std::initializer_list<const Control*>{&window().Combo2, &window().Label3, &window().Text4}) {
    EXPECT_FALSE(hidden->Visible.peek()) << hidden->name();
  }
}

TEST_F(MessageWindow, TakesTheStatusWindowAlongExceptWhenItIsMaximised) {
  EXPECT_EQ(stateBeside(WindowState::minimised), WindowState::minimised);
  EXPECT_EQ(stateBeside(WindowState::maximised), WindowState::minimised);
  EXPECT_EQ(stateBeside(WindowState::normal), WindowState::normal);
  EXPECT_EQ(stateBeside(WindowState::maximised), WindowState::normal);
}

TEST_F(MessageWindow, BringsTheMainWindowBackWhenItIsClosedAndLeavesItsStatusLine) {
  inPanel([this] { form1().Hide(); });
  run(0);
  form1().Label5.Caption = "status";
  close();
  EXPECT_TRUE(form1().Visible.peek());
  EXPECT_FALSE(window().Visible.peek());
  EXPECT_FALSE(window().isLoaded());
  EXPECT_EQ(form1().Label5.Caption.peek(), "status");
  EXPECT_EQ(sent(), Texts{});
}

TEST_F(MessageWindow, AsksForTheSignal) {
  press(window().Label7);
  EXPECT_EQ(sent(), Texts{"AT\r"});
  EXPECT_TRUE(panel().form7.Visible.peek());
}

TEST_F(MessageWindow, ClearEmptiesNumberAndMessageAlone) {
  compose("112", "text", "header");
  window().Label4.Caption = "note";
  window().Text3.Text = "read";
  click(window().Command5);
  press(window().Command7);
  EXPECT_EQ(number() + message(), "");
  EXPECT_EQ(header(), "header");
  EXPECT_EQ(note(), "note");
  EXPECT_EQ(messageRead(), "read");
  EXPECT_TRUE(window().Combo2.Visible.peek());
  EXPECT_EQ(sent(), Texts{});
}

TEST_F(MessageWindow, ShowsTheStoredMessagesToChooseOneOf) {
  EXPECT_FALSE(window().Combo2.Visible.peek());
  press(window().Command5);
  EXPECT_TRUE(window().Combo2.Visible.peek());
  press(window().Command5);
  EXPECT_TRUE(window().Combo2.Visible.peek());
  EXPECT_EQ(sent(), Texts{});
}

// The header and what it leaves of a message's length.
class HeaderLimit : public MessageWindowTest {
 protected:
  int room() { return window().Text2.MaxLength.peek(); }
  void edit(const std::string& text) {
    inPanel([this, text] { window().Text2.userEdit(text, 1); });
    run(0);
  }
};

TEST_F(HeaderLimit, FollowsTheHeadersLength) {
  EXPECT_EQ(room(), 160);
  type(window().Text5, "a");
  EXPECT_EQ(room(), 159);
  type(window().Text5, "bc ");
  EXPECT_EQ(room(), 156) << "blanks count, though they won't be sent";
  type(window().Text5, "\b");
  EXPECT_EQ(room(), 157);
  window().Text5.Text = std::string(20, 'h');
  EXPECT_EQ(room(), 140);
  window().Text5.Text = "";
  EXPECT_EQ(room(), 160);
}

TEST_F(HeaderLimit, OfTwentyCharactersLeavesRoomForAHundredAndForty) {
  type(window().Text5, std::string(25, 'h'));
  EXPECT_EQ(header(), std::string(20, 'h'));
  type(window().Text2, std::string(170, 't'));
  EXPECT_EQ(message(), std::string(140, 't'));
  inPanel([this] { window().Text5.userErase(); });
  type(window().Text2, std::string(30, 'u'));
  EXPECT_EQ(message(), std::string(140, 't') + std::string(20, 'u'));
}

TEST_F(HeaderLimit, CutsNothingThatStandsThere) {
  type(window().Text2, std::string(160, 't'));
  type(window().Text5, std::string(20, 'h'));
  EXPECT_EQ(message(), std::string(160, 't'));
  type(window().Text2, "u");
  EXPECT_EQ(message(), std::string(160, 't'));
  type(window().Text2, "\b\b");
  EXPECT_EQ(message(), std::string(158, 't'));
  edit("x" + std::string(158, 't'));
  EXPECT_EQ(message(), std::string(158, 't'));
  edit(std::string(139, 't'));
  type(window().Text2, "uv");
  EXPECT_EQ(message(), std::string(139, 't') + "u");
}

}  // namespace
}  // namespace gsm
