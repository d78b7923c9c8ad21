#include <QGroupBox>
#include <QPushButton>
#include <QRadioButton>

#include "controls/controls.h"
#include "tests/support/desktop/desktop_fixture.h"

namespace gsm {
namespace {

class ButtonWindow : public Window {
 public:
  using Window::Window;
  CommandButton Command1{*this, "Command1", {.Caption = "&Exit"}};
  Frame fraOne{*this, "fraOne"};
  Frame fraTwo{*this, "fraTwo"};
  ControlArray<OptionButton> optOne{
      *this,
      "optOne",
      {{.Caption = "E&ven", .In = &fraOne}, {.Caption = "Odd", .In = &fraOne, .Value = true}}};
  OptionButton optTwo{*this, "optTwo", {.Caption = "None", .In = &fraTwo}};
};

class ButtonViewsTest : public FormTest {
 protected:
  ButtonViewsTest() { bind(window_); }

  ButtonWindow window_{platform(), "ButtonWindow"};
  QPushButton& button_ = put<QPushButton>("Command1");
  QGroupBox& one_ = put<QGroupBox>("fraOne");
  QGroupBox& two_ = put<QGroupBox>("fraTwo");
  QRadioButton& even_ = put<QRadioButton>("optOne_0", &one_);
  QRadioButton& odd_ = put<QRadioButton>("optOne_1", &one_);
  QRadioButton& other_ = put<QRadioButton>("optTwo", &two_);
};

TEST_F(ButtonViewsTest, AButtonShowsItsCaptionWithTheMnemonic) {
  EXPECT_EQ(button_.text(), "&Exit");
  EXPECT_FALSE(button_.shortcut().isEmpty());
  window_.Command1.Caption = "Stop";
  EXPECT_EQ(button_.text(), "Stop");
}

TEST_F(ButtonViewsTest, AButtonShowsItsBackColour) {
  window_.Command1.BackColor = 0xC0C0FF;  // a light red, with red in the low byte
  EXPECT_TRUE(button_.styleSheet().contains("background-color: #ffc0c0"));
  window_.Command1.BackColor = kButtonGrey;
  EXPECT_EQ(button_.styleSheet(), "");
}

TEST_F(ButtonViewsTest, AClickIsQueuedAndNotRunInPlace) {
  int clicks = 0;
  window_.Command1.Click = [&] { ++clicks; };
  click(button_);
  EXPECT_EQ(clicks, 0);
  settle();
  EXPECT_EQ(clicks, 1);
}

TEST_F(ButtonViewsTest, EnterPressesTheButtonThatHasTheFocus) {
  int clicks = 0;
  window_.Command1.Click = [&] { ++clicks; };
  press(button_, Qt::Key_Return);
  settle();
  EXPECT_EQ(clicks, 1);
}

TEST_F(ButtonViewsTest, AHandlerThatWaitsCanBeClickedAgain) {
  int running = 0;
  int most = 0;
  window_.Command1.Click = [&] {
    most = std::max(most, ++running);
    if (running == 1) {
      click(button_);
      settle();
    }
    --running;
  };
  click(button_);
  settle();
  EXPECT_EQ(most, 2);
}

TEST_F(ButtonViewsTest, TheTabKeyEntersAGroupAtTheOptionThatIsSet) {
  EXPECT_FALSE(even_.focusPolicy() & Qt::TabFocus);
  EXPECT_TRUE(odd_.focusPolicy() & Qt::TabFocus);
  EXPECT_TRUE(other_.focusPolicy() & Qt::TabFocus) << "one that has none set";
  window_.optOne[0].Value = true;
  EXPECT_TRUE(even_.focusPolicy() & Qt::TabFocus);
  EXPECT_FALSE(odd_.focusPolicy() & Qt::TabFocus);
}

TEST_F(ButtonViewsTest, OptionsOfAFrameExcludeOneAnother) {
  EXPECT_TRUE(odd_.isChecked());
  window_.optOne[0].Value = true;
  EXPECT_TRUE(even_.isChecked());
  EXPECT_FALSE(odd_.isChecked());
}

TEST_F(ButtonViewsTest, OptionsOfOtherFramesAreLeftAlone) {
  window_.optTwo.Value = true;
  EXPECT_TRUE(other_.isChecked());
  EXPECT_TRUE(odd_.isChecked());
}

TEST_F(ButtonViewsTest, AGroupMayHaveNoneSet) {
  window_.optOne[1].Value = false;
  EXPECT_FALSE(even_.isChecked());
  EXPECT_FALSE(odd_.isChecked());
}

TEST_F(ButtonViewsTest, TheUserChoosesAnOption) {
  int clicks = 0;
  window_.optOne[0].Click = [&] { ++clicks; };
  even_.click();
  EXPECT_FALSE(window_.optOne[0].Value.peek());
  settle();
  EXPECT_TRUE(window_.optOne[0].Value.peek());
  EXPECT_FALSE(window_.optOne[1].Value.peek());
  EXPECT_EQ(clicks, 1);
}

TEST_F(ButtonViewsTest, ShowingAnOptionIsNoClick) {
  int clicks = 0;
  window_.optOne[0].Click = [&] { ++clicks; };
  window_.optOne[0].Value = true;
  settle();
  EXPECT_EQ(clicks, 1) << "the assignment's own click";
}

TEST_F(ButtonViewsTest, AChoiceThatThePanelDoesntTakeIsUndone) {
  even_.click();
  window_.fraOne.Enabled = false;
  settle();
  EXPECT_FALSE(window_.optOne[0].Value.peek());
  EXPECT_FALSE(even_.isChecked());
  EXPECT_TRUE(odd_.isChecked());
}

TEST_F(ButtonViewsTest, OptionsInADisabledFrameAreOutOfReach) {
  window_.fraOne.Enabled = false;
  EXPECT_FALSE(even_.isEnabled());
  window_.fraOne.Enabled = true;
  EXPECT_TRUE(even_.isEnabled());
}

}  // namespace
}  // namespace gsm
