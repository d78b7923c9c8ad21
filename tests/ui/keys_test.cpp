// Keys that act on a window from wherever the focus is.

#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTest>

#include "controls/controls.h"
#include "tests/support/desktop/desktop_fixture.h"

namespace gsm {
namespace {

class KeyWindow : public Window {
 public:
  using Window::Window;
  CommandButton cmdOk{*this, "cmdOk", {.Default = true}};
  CommandButton cmdCancel{*this, "cmdCancel", {.Cancel = true}};
  CommandButton cmdBack{*this, "cmdBack", {.Key = Control::kBackspaceKey}};
  Picture Image5{*this, "Image5", {.Key = '5'}};
  Label Label4{*this, "Label4", {.Caption = "X", .Key = '*'}};
  TextBox Text1{*this, "Text1"};
  ListBox List1{*this, "List1"};
};

class KeysTest : public FormTest {
 protected:
  KeysTest() {
    key_.setProperty("role", "key");
    key_.setFocusPolicy(Qt::StrongFocus);
    key_.setGeometry(0, 50, 40, 40);
    star_.setProperty("role", "key");
    star_.setFocusPolicy(Qt::StrongFocus);
    star_.setGeometry(50, 50, 40, 40);
    bind(window_);
    window_.cmdOk.Click = [this] { story_ += "ok "; };
    window_.cmdCancel.Click = [this] { story_ += "cancel "; };
    window_.cmdBack.Click = [this] { story_ += "back "; };
    window_.Image5.Click = [this] { story_ += "5 "; };
    window_.Label4.Click = [this] { story_ += "* "; };
    form().activateWindow();
    list_.setFocus();
    settle();
  }

  // By way of the window system, so that shortcuts see the key as well.
  std::string pressed(Qt::Key key, QWidget& focus) {
    story_.clear();
    focus.setFocus();
    QTest::keyClick(form().windowHandle(), key);
    settle();
    return story_;
  }

  KeyWindow window_{platform(), "KeyWindow"};
  QPushButton& ok_ = put<QPushButton>("cmdOk");
  QPushButton& cancel_ = put<QPushButton>("cmdCancel");
  QPushButton& back_ = put<QPushButton>("cmdBack");
  QLabel& key_ = put<QLabel>("Image5");
  QLabel& star_ = put<QLabel>("Label4");
  QLineEdit& line_ = put<QLineEdit>("Text1");
  QListWidget& list_ = put<QListWidget>("List1");
  std::string story_;
};

TEST_F(KeysTest, EnterPressesTheDefaultButton) {
  EXPECT_EQ(pressed(Qt::Key_Return, line_), "ok ");
  EXPECT_EQ(pressed(Qt::Key_Enter, list_), "ok ");
  EXPECT_EQ(pressed(Qt::Key_Return, cancel_), "cancel ")
      << "a button that has the focus comes first";
}

TEST_F(KeysTest, EscapePressesTheCancelButton) {
  EXPECT_EQ(pressed(Qt::Key_Escape, line_), "cancel ");
  EXPECT_EQ(pressed(Qt::Key_Escape, ok_), "cancel ");
}

TEST_F(KeysTest, AButtonThatIsDisabledIsntPressed) {
  window_.cmdOk.Enabled = false;
  EXPECT_EQ(pressed(Qt::Key_Return, line_), "");
}

TEST_F(KeysTest, AKeyClicksItsControl) {
  EXPECT_EQ(pressed(Qt::Key_5, list_), "5 ");
  EXPECT_EQ(pressed(Qt::Key_Asterisk, ok_), "* ");
  EXPECT_EQ(pressed(Qt::Key_Backspace, key_), "back ");
}

TEST_F(KeysTest, AKeyThatABoxTakesIsItsOwn) {
  EXPECT_EQ(pressed(Qt::Key_5, line_), "");
  EXPECT_EQ(window_.Text1.Text.peek(), "5");
  EXPECT_EQ(pressed(Qt::Key_Backspace, line_), "");
  EXPECT_EQ(window_.Text1.Text.peek(), "");
}

TEST_F(KeysTest, ArrowsMoveWithinThePad) {
  pressed(Qt::Key_Right, key_);
  EXPECT_TRUE(star_.hasFocus());
  pressed(Qt::Key_Right, star_);
  EXPECT_TRUE(star_.hasFocus()) << "there is none beyond";
  pressed(Qt::Key_Left, star_);
  EXPECT_TRUE(key_.hasFocus());
  pressed(Qt::Key_Down, key_);
  EXPECT_TRUE(key_.hasFocus());
}

}  // namespace
}  // namespace gsm
