#include "tests/support/window_design.h"

#include <gtest/gtest.h>

#include "modem/form7.h"
#include "panel/form1.h"
#include "tests/sms/message_window_test.h"

namespace gsm {
namespace {

class MessageWindow : public MessageWindowTest {
 protected:
  void state(int windowState) {
    inPanel([this, windowState] { window().userState(windowState); });
    run(0);
  }
};

TEST_F(MessageWindow, HasItsDesignWithEachLoad) {
  for (int load = 0; load < 2; ++load) {
    EXPECT_EQ(window().Caption.peek(), "GSM-Short Message Service");
    EXPECT_EQ(describe(window()), (Texts{"Combo1: drop-down list in Frame3",
                                         "Combo2: editable combo hidden in Frame2",
                                         "Command1: button 'Send' in Frame2",
                                         "Command2: button 'Save' in Frame2",
                                         "Command3: button 'Read' in Frame3",
                                         "Command4: button 'Delete' in Frame3",
                                         "Command5: button 'Select Outbox Msg' in Frame2",
                                         "Command6: button 'PhoneBook' in Frame1",
                                         "Command7: button 'Clear' in Frame2",
                                         "Command8: button 'OK' in Frame4",
                                         "Command9: button 'OK' in Frame5",
                                         "Data1: data control",
                                         "Frame1: frame",
                                         "Frame2: frame 'Write Message' in Frame1",
                                         "Frame3: frame 'Read Message' in Frame1",
                                         "Frame4: frame 'Cell BroadCast' in Frame1",
                                         "Frame5: frame 'Status Report' in Frame1",
                                         "Label1: label 'Number' in Frame2",
                                         "Label2: label 'Message' in Frame2",
                                         "Label3: label 'Service Center Address' hidden in Frame1",
                                         "Label4: label in Frame1",
                                         "Label5: label 'Msg Header (Max 20)' in Frame2",
                                         "Label6: label in Frame5",
                                         "Label7: label '<<Signal>>' in Frame1",
                                         "List1: list box in Frame1",
                                         "Option1: option 'Enable' in Frame4",
                                         "Option2: option 'Disable' in Frame4",
                                         "Option3: option 'Enable' in Frame5",
                                         "Option4: option 'Disable' in Frame5",
                                         "Text1: text box in Frame2",
                                         "Text2: text box of lines of 160 in Frame2",
                                         "Text3: text box of lines in Frame3",
                                         "Text4: text box hidden in Frame1",
                                         "Text5: text box of 20 in Frame2"}));
    for (OptionButton* option :
         {&window().Option1, &window().Option2, &window().Option3, &window().Option4}) {
      EXPECT_FALSE(option->Value.peek());
    }
    compose("112", "text", "header");
    window().Label4.Caption = "note";
    window().Label6.Caption = "reports";
    window().Text3.Text = "read";
    window().Option1.Value = true;
    window().Option3.Value = true;
    click(window().Command5);
    close();
    open();
  }
}

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

TEST_F(MessageWindow, TakesTheStatusWindowAlongExceptWhenItIsMaximised) {
  state(WindowState::minimised);
  EXPECT_EQ(panel().form7.WindowState.peek(), WindowState::minimised);
  state(WindowState::maximised);
  EXPECT_EQ(panel().form7.WindowState.peek(), WindowState::minimised);
  state(WindowState::normal);
  EXPECT_EQ(panel().form7.WindowState.peek(), WindowState::normal);
  state(WindowState::maximised);
  EXPECT_EQ(panel().form7.WindowState.peek(), WindowState::normal);
}

TEST_F(MessageWindow, BringsTheMainWindowBackWhenItIsClosed) {
  inPanel([this] { form1().Hide(); });
  run(0);
  form1().Label5.Caption = "status";
  close();
  EXPECT_TRUE(form1().Visible.peek());
  EXPECT_FALSE(window().isLoaded());
  EXPECT_EQ(form1().Label5.Caption.peek(), "status");
  EXPECT_EQ(sent(), Texts{});
}

TEST_F(MessageWindow, AsksForTheSignal) {
  press(window().Label7);
  EXPECT_EQ(sent(), (Texts{"AT\r"}));
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
  ASSERT_FALSE(window().Combo2.Visible.peek());
  press(window().Command5);
  EXPECT_TRUE(window().Combo2.Visible.peek());
  EXPECT_EQ(sent(), Texts{});
  press(window().Command5);
  EXPECT_TRUE(window().Combo2.Visible.peek());
}

// The header and what it leaves of a message's length.
class HeaderLimit : public MessageWindowTest {
 protected:
  int room() { return window().Text2.MaxLength.peek(); }
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
  inPanel([this] { window().Text2.userEdit("x" + std::string(158, 't'), 1); });
  run(0);
  EXPECT_EQ(message(), std::string(158, 't'));
  inPanel([this] { window().Text2.userEdit(std::string(139, 't'), 1); });
  run(0);
  type(window().Text2, "uv");
  EXPECT_EQ(message(), std::string(139, 't') + "u");
}

}  // namespace
}  // namespace gsm
