#include <gtest/gtest.h>

#include <array>
#include <utility>

#include "panel/form7.h"
#include "tests/security/security_test.h"

namespace gsm {
namespace {

// What the window and its boxes do by themselves.
class SecurityWindow : public SecurityTest {
 protected:
  void SetUp() override {
    SecurityTest::SetUp();
    openWindow();
  }
  int stateBeside(int state) {
    act([this, state] { form().userState(state); });
    return panel().form7.WindowState.peek();
  }
};

TEST_F(SecurityWindow, APasswordsBoxTakesEightCharactersOfAnyKind) {
  setAll(true);
  for (const auto& [tab, boxes] :
       {std::pair{phone, std::array{&form().Text1, &form().Text2, &form().Text3}},
        std::pair{simPin, std::array{&form().Text4, &form().Text5, &form().Text6}},
        std::pair{network, std::array{&form().Text7, &form().Text8, &form().Text9}}}) {
    turnTo(tab);
    setAll(true);
    for (TextBox* box : boxes) {
      fill(*box, "a \"1,2\x80 x");
      EXPECT_EQ(box->Text.peek(), "a \"1,2\x80 ") << box->name();
      act([box] { box->userEdit("0123456789", 10); });
      EXPECT_EQ(box->Text.peek(), "01234567") << box->name();
    }
  }
}

TEST_F(SecurityWindow, EachPagesOptionsExcludeOneAnotherAndNoOthers) {
  assign([this] {
    for (OptionButton* option :
         {&form().Option1, &form().Option3, &form().Option4, &form().Option5, &form().Option9}) {
      option->Value = true;
    }
  });
  Texts set;
  for (const OptionButton* option :
       {&form().Option1, &form().Option2, &form().Option3, &form().Option4, &form().Option5,
        &form().Option6, &form().Option7, &form().Option8, &form().Option9}) {
    if (option->Value.peek()) set.push_back(option->name());
  }
  EXPECT_EQ(set, (Texts{"Option3", "Option5", "Option9"}));
}

TEST_F(SecurityWindow, SignalAsksForTheSignal) {
  click(form().Command11);
  EXPECT_TRUE(panel().form7.Visible.peek());
  EXPECT_EQ(sent(), Texts{"AT\r"});
}

TEST_F(SecurityWindow, TakesTheStatusWindowAlongExceptWhenItIsMaximised) {
  EXPECT_EQ(stateBeside(WindowState::minimised), WindowState::minimised);
  EXPECT_EQ(stateBeside(WindowState::maximised), WindowState::minimised);
  EXPECT_EQ(stateBeside(WindowState::normal), WindowState::normal);
  EXPECT_EQ(stateBeside(WindowState::maximised), WindowState::normal);
}

TEST_F(SecurityWindow, BringsTheMainWindowBackWhenItIsClosedAndLeavesItsStatusLine) {
  assign([this] {
    form1().Hide();
    form1().Label5.Caption = "as it was";
  });
  closeWindow();
  EXPECT_EQ(caption(form1().Label5), "as it was");
  EXPECT_TRUE(form1().Visible.peek());
  EXPECT_FALSE(form().Visible.peek());
  EXPECT_FALSE(form().isLoaded());
}

TEST_F(SecurityWindow, ComesUpWithoutWhatChangesALock) {
  setAll(true);
  closeWindow();
  openWindow();
  EXPECT_EQ(shownIn(form().Frame2), (Texts{"Label2", "Command2"}));
  EXPECT_EQ(shownIn(form().Frame3), (Texts{"Label6", "Command4"}));
  EXPECT_EQ(shownIn(form().Frame4), (Texts{"Label10", "Command7"}));
}

}  // namespace
}  // namespace gsm
