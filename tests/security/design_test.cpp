#include <gtest/gtest.h>

#include "modem/form7.h"
#include "tests/security/security_test.h"
#include "tests/support/window_design.h"

namespace gsm {
namespace {

class SecurityDesign : public SecurityTest {};

TEST_F(SecurityDesign, OfTheWindowAndItsControls) {
  EXPECT_EQ(form().Caption.peek(), "GSM-SECURITY");
  const Texts expected = {
      "Command10: button 'Refresh' in Frame1",
      "Command11: button '<Signal>' in Frame1",
      "Command1: button 'OK' hidden in Frame2",
      "Command2: button 'Change Status' in Frame2",
      "Command3: button 'OK' hidden in Frame2",
      "Command4: button 'Change Status' in Frame3",
      "Command5: button 'OK' hidden in Frame3",
      "Command6: button 'OK' hidden in Frame3",
      "Command7: button 'Change Status' in Frame4",
      "Command8: button 'OK' hidden in Frame4",
      "Command9: button 'OK' hidden in Frame4",
      "Frame1: frame",
      "Frame2: frame in Frame1",
      "Frame3: frame hidden in Frame1",
      "Frame4: frame hidden in Frame1",
      "Label10: label in Frame4",
      "Label11: label 'Password(8 Digit)' hidden in Frame4",
      "Label12: label 'Old Password' hidden in Frame4",
      "Label13: label 'New Password' hidden in Frame4",
      "Label1: label in Frame1",
      "Label2: label in Frame2",
      "Label3: label ' Password(8Digit)' hidden in Frame2",
      "Label4: label 'Old Password' hidden in Frame2",
      "Label5: label 'New Password' hidden in Frame2",
      "Label6: label in Frame3",
      "Label7: label 'Enter Password' hidden in Frame3",
      "Label8: label 'Old Password' hidden in Frame3",
      "Label9: label 'New Password' hidden in Frame3",
      "Option1: option 'LOCK PHONE' hidden in Frame2",
      "Option2: option 'UNLOCK PHONE' hidden in Frame2",
      "Option3: option 'Change Password' hidden in Frame2",
      "Option4: option 'ACTIVATE PIN' hidden in Frame3",
      "Option5: option 'DEACTIVATE PIN' hidden in Frame3",
      "Option6: option 'Change Password' hidden in Frame3",
      "Option7: option 'Network Lock' hidden in Frame4",
      "Option8: option 'Network Unlock' hidden in Frame4",
      "Option9: option 'Change Password' hidden in Frame4",
      "TabStrip1: tabs 'PHONE' 'SIM PIN' 'NETWORK' in Frame1",
      "Text1: text box of 8 masked hidden in Frame2",
      "Text2: text box of 8 masked hidden in Frame2",
      "Text3: text box of 8 masked hidden in Frame2",
      "Text4: text box of 8 masked hidden in Frame3",
      "Text5: text box of 8 masked hidden in Frame3",
      "Text6: text box of 8 masked hidden in Frame3",
      "Text7: text box of 8 masked hidden in Frame4",
      "Text8: text box of 8 masked hidden in Frame4",
      "Text9: text box of 8 masked hidden in Frame4",
  };
  EXPECT_EQ(describe(form()), expected);
}

TEST_F(SecurityDesign, APasswordsBoxTakesEightCharactersOfAnyKind) {
  openWindow();
  press(form().Command2);
  inPanel([this] { form().Text1.userType("a \"1,2\x80 x"); });
  run(0);
  EXPECT_EQ(form().Text1.Text.peek(), "a \"1,2\x80 ");
  inPanel([this] { form().Text1.userEdit("0123456789", 10); });
  run(0);
  EXPECT_EQ(form().Text1.Text.peek(), "01234567");
}

TEST_F(SecurityDesign, EachPagesOptionsExcludeOneAnotherAndNoOthers) {
  openWindow();
  setAll(true);
  for (OptionButton* option :
       {&form().Option1, &form().Option3, &form().Option4, &form().Option5, &form().Option9}) {
    inPanel([option] { option->Value = true; });
    run(0);
  }
  Texts set;
  for (const OptionButton* option :
       {&form().Option1, &form().Option2, &form().Option3, &form().Option4, &form().Option5,
        &form().Option6, &form().Option7, &form().Option8, &form().Option9}) {
    if (option->Value.peek()) set.push_back(option->name());
  }
  EXPECT_EQ(set, (Texts{"Option3", "Option5", "Option9"}));
}

TEST_F(SecurityDesign, SignalAsksForTheSignal) {
  openWindow();
  click(form().Command11);
  EXPECT_TRUE(panel().form7.Visible.peek());
  EXPECT_EQ(sent(), Texts{"AT\r"});
}

TEST_F(SecurityDesign, MinimisingAndRestoringTheWindowTakesTheStatusWindowAlong) {
  openWindow();
  const auto setState = [this](int state) {
    inPanel([this, state] { form().userState(state); });
    run(0);
    return panel().form7.WindowState.peek();
  };
  EXPECT_EQ(setState(WindowState::minimised), WindowState::minimised);
  EXPECT_EQ(setState(WindowState::maximised), WindowState::minimised);
  EXPECT_EQ(setState(WindowState::normal), WindowState::normal);
}

TEST_F(SecurityDesign, ClosingTheWindowLeavesTheStatusLineAndBringsTheMainWindowBack) {
  openWindow();
  inPanel([this] {
    form1().Hide();
    form1().Label5.Caption = "as it was";
  });
  run(0);
  closeWindow();
  EXPECT_EQ(caption(form1().Label5), "as it was");
  EXPECT_TRUE(form1().Visible.peek());
  EXPECT_FALSE(form().Visible.peek());
  EXPECT_FALSE(form().isLoaded());
}

}  // namespace
}  // namespace gsm
