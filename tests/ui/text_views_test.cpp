#include <QAccessible>
#include <QClipboard>
#include <QGuiApplication>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QStyle>

#include "controls/controls.h"
#include "tests/support/desktop/desktop_fixture.h"

namespace gsm {
namespace {

class TextWindow : public Window {
 public:
  using Window::Window;
  TextBox Text1{*this, "Text1", {.Text = "first"}};
  TextBox Text2{*this, "Text2", {.MaxLength = 4, .Masked = true}};
  TextBox Text3{*this, "Text3", {.MaxLength = 10, .MultiLine = true}};
};

int digitsOnly(int key) {
  return (key >= '0' && key <= '9') || key == TextBox::kBackspace ? key : 0;
}

class TextViewsTest : public FormTest {
 protected:
  TextViewsTest() { bind(window_); }

  TextWindow window_{platform(), "TextWindow"};
  QLineEdit& line_ = put<QLineEdit>("Text1");
  QLineEdit& code_ = put<QLineEdit>("Text2");
  QPlainTextEdit& lines_ = put<QPlainTextEdit>("Text3");
};

TEST_F(TextViewsTest, ShowTheTextBothWays) {
  EXPECT_EQ(line_.text(), "first");
  window_.Text1.Text = "caf\xE9";
  EXPECT_EQ(line_.text(), QString::fromUtf8("café"));
  type(line_, "s");
  settle();
  EXPECT_EQ(window_.Text1.Text.peek(), "caf\xE9s");
}

TEST_F(TextViewsTest, TypingRaisesChangeAfterTheKeysOwnEvent) {
  int changes = 0;
  window_.Text1.Change = [&] { ++changes; };
  type(line_, "x");
  EXPECT_EQ(changes, 0);
  settle();
  EXPECT_EQ(changes, 1);
}

TEST_F(TextViewsTest, KeysTypedWhileAHandlerWaitsAreKept) {
  window_.Text1.Text = "";
  window_.Text1.Change = [&] {
    if (window_.Text1.Text.peek() != "a") return;
    type(line_, "b");
    settle();
    type(line_, "c");
  };
  type(line_, "a");
  settle();
  EXPECT_EQ(line_.text(), "abc");
  EXPECT_EQ(window_.Text1.Text.peek(), "abc");
}

TEST_F(TextViewsTest, WhatAHandlerAssignsWinsOverWhatIsShown) {
  window_.Text1.Change = [&] {
    if (window_.Text1.Text.peek() != "done") window_.Text1.Text = "done";
  };
  type(line_, "x");
  settle();
  EXPECT_EQ(line_.text(), "done");
}

TEST_F(TextViewsTest, ACharacterThatTheCodePageLacksShowsAsAQuestionMark) {
  window_.Text1.Text = "";
  type(line_, QString::fromUtf8("ж"));
  settle();
  EXPECT_EQ(window_.Text1.Text.peek(), "?");
  EXPECT_EQ(line_.text(), "?");
  line_.selectAll();
  type(line_, QString::fromUtf8("ж"));
  settle();
  EXPECT_EQ(line_.text(), "?") << "though the text of the box is the same";
}

TEST_F(TextViewsTest, APastedLineBreakEndsALine) {
  window_.Text1.Text = "";
  QGuiApplication::clipboard()->setText("1\t2\rATD112;\r");
  line_.paste();
  settle();
  EXPECT_EQ(window_.Text1.Text.peek(), "12");
  EXPECT_EQ(line_.text(), "12");
  QGuiApplication::clipboard()->setText("\rATD112;\r");
  line_.end(false);
  line_.paste();
  settle();
  EXPECT_EQ(window_.Text1.Text.peek(), "12");
  EXPECT_EQ(line_.text(), "12") << "though the text of the box is the same";
}

TEST_F(TextViewsTest, AMaskedBoxShowsNoCharacters) {
  EXPECT_EQ(code_.echoMode(), QLineEdit::Password);
  EXPECT_EQ(line_.echoMode(), QLineEdit::Normal);
}

TEST_F(TextViewsTest, AMaskedBoxShowsAsterisks) {
  EXPECT_EQ(code_.style()->styleHint(QStyle::SH_LineEdit_PasswordCharacter, nullptr, &code_), '*');
}

TEST_F(TextViewsTest, ABoxShowsWhatItsControlHoldsOfAPaste) {
  line_.setText("1\rATD112;\r");
  settle();
  EXPECT_EQ(line_.text().toStdString(), window_.Text1.Text.peek());
}

TEST_F(TextViewsTest, ABoxTakesWhatAssistiveTechnologyPutsIn) {
  for (QWidget* widget : {static_cast<QWidget*>(&line_), static_cast<QWidget*>(&lines_)}) {
    QAccessible::queryAccessibleInterface(widget)->setText(QAccessible::Value, "+3363998");
  }
  settle();
  EXPECT_EQ(window_.Text1.Text.peek(), "+3363998");
  EXPECT_EQ(window_.Text3.Text.peek(), "+3363998");
}

TEST_F(TextViewsTest, WhatThePanelShowsIsNoEditByTheUser) {
  int changes = 0;
  window_.Text1.Change = [&] { ++changes; };
  window_.Text1.Text = "second";
  window_.Text1.MaxLength = 3;
  settle();
  EXPECT_EQ(changes, 1) << "the assignment's own";
  EXPECT_EQ(window_.Text1.Text.peek(), "second");
}

TEST_F(TextViewsTest, ABoxTakesNoMoreThanItsLimit) {
  type(code_, "123456");
  settle();
  EXPECT_EQ(code_.text(), "1234");
  EXPECT_EQ(window_.Text2.Text.peek(), "1234");
  window_.Text2.MaxLength = 0;
  type(code_, "56");
  settle();
  EXPECT_EQ(window_.Text2.Text.peek(), "123456");
}

TEST_F(TextViewsTest, AKeyFilterSeesTypedKeys) {
  window_.Text1.Text = "";
  window_.Text1.KeyPress = digitsOnly;
  type(line_, "a1b2");
  settle();
  EXPECT_EQ(line_.text(), "12");
  press(line_, Qt::Key_Backspace, "\b");
  settle();
  EXPECT_EQ(window_.Text1.Text.peek(), "1");
}

TEST_F(TextViewsTest, AKeyFilterMayPutAnotherCharacterInPlace) {
  window_.Text1.Text = "";
  window_.Text1.KeyPress = [](int key) { return key == 'a' ? 'A' : key; };
  type(line_, "ab");
  settle();
  EXPECT_EQ(line_.text(), "Ab");
  EXPECT_EQ(window_.Text1.Text.peek(), "Ab");
}

TEST_F(TextViewsTest, AKeyFilterDoesntSeeKeysThatMoveOrCommand) {
  std::string seen;
  window_.Text1.KeyPress = [&](int key) {
    seen += static_cast<char>(key);
    return key;
  };
  press(line_, Qt::Key_Tab, "\t");
  press(line_, Qt::Key_Left);
  press(line_, Qt::Key_Delete, "\x7F");
  press(line_, Qt::Key_A, "\x01", Qt::ControlModifier);
  press(line_, Qt::Key_7, "7");
  EXPECT_EQ(seen, "7");
}

TEST_F(TextViewsTest, SeveralLinesEndInCarriageReturnAndLineFeed) {
  window_.Text3.Text = "a\r\nb";
  EXPECT_EQ(lines_.toPlainText(), "a\nb");
  lines_.moveCursor(QTextCursor::End);
  press(lines_, Qt::Key_Return, "\r");
  type(lines_, "c");
  settle();
  EXPECT_EQ(window_.Text3.Text.peek(), "a\r\nb\r\nc");
  EXPECT_EQ(lines_.toPlainText(), "a\nb\nc");
}

TEST_F(TextViewsTest, SeveralLinesAreCutToTheLimitToo) {
  lines_.setPlainText("0123456789abc");
  settle();
  EXPECT_EQ(window_.Text3.Text.peek(), "0123456789");
  EXPECT_EQ(lines_.toPlainText(), "0123456789");
  lines_.moveCursor(QTextCursor::End);
  type(lines_, "x");
  settle();
  EXPECT_EQ(lines_.toPlainText(), "0123456789") << "though the text of the box is the same";
}

TEST_F(TextViewsTest, ATextBeyondALimitThatFellIsNotCutByAnEdit) {
  window_.Text3.Text = "0123456789";
  window_.Text3.MaxLength = 4;
  EXPECT_EQ(lines_.toPlainText(), "0123456789");
  lines_.moveCursor(QTextCursor::Start);
  type(lines_, "x");
  settle();
  EXPECT_EQ(lines_.toPlainText(), "0123456789");
  press(lines_, Qt::Key_Delete);
  settle();
  EXPECT_EQ(lines_.toPlainText(), "123456789");
  EXPECT_EQ(window_.Text3.Text.peek(), "123456789");
}

TEST_F(TextViewsTest, TheCaretStaysWhereAFullBoxRefusesAKey) {
  window_.Text3.Text = "ab\r\ncdefgh";
  lines_.moveCursor(QTextCursor::End);
  lines_.moveCursor(QTextCursor::PreviousCharacter);
  type(lines_, "xyz");
  settle();
  EXPECT_EQ(lines_.toPlainText(), "ab\ncdefgh");
  EXPECT_EQ(lines_.textCursor().position(), 8);
  EXPECT_EQ(window_.Text3.SelStart.peek(), 9);
}

TEST_F(TextViewsTest, ShowingATextIsNoTyping) {
  int changes = 0;
  window_.Text3.Text = "";
  window_.Text3.Change = [&] { ++changes; };
  window_.Text3.Text = "x";
  settle();
  EXPECT_EQ(changes, 1) << "the assignment's own change";
}

TEST_F(TextViewsTest, MarkupStandsAsItIs) {
  window_.Text3.Text = "<b>x</b>";
  EXPECT_EQ(lines_.toPlainText(), "<b>x</b>");
}

TEST_F(TextViewsTest, EveryByteThatIsNoControlComesThroughALineUnharmed) {
  std::string all;
  for (int byte = 32; byte < 256; ++byte) {
    if (byte != 127) all += static_cast<char>(byte);
  }
  window_.Text1.Text = all;
  line_.end(false);
  type(line_, "!");
  settle();
  EXPECT_EQ(window_.Text1.Text.peek(), all + "!");
}

}  // namespace
}  // namespace gsm
