// What only the desktop shows of the call window and the call prompt.

#include <gtest/gtest.h>

#include <QFontMetrics>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <set>
#include <string>

#include "app/windows.h"
#include "phonebook/form3.h"
#include "phonebook/form5.h"
#include "platform/sqlite/phone_book_file.h"
#include "tests/support/desktop/desktop_fixture.h"

namespace gsm {
namespace {

class CallWindowTest : public DesktopTest {
 protected:
  CallWindowTest() {
    createPhoneBook(folder().path() / "phonebook.mdb");
    screen_.bind(platform().windows);
    platform().handlers.run([this] { calls().Show(); });
    settle();
  }

  Form3& calls() { return panel_.form3; }
  QWidget& widget(const Control& control) { return *screen_.widget(control); }

  // The widgets at which the Tab key stops, by their names.
  std::set<QString> tabStops() {
    std::set<QString> names;
    QWidget* first = screen_.widget(calls());
    QWidget* each = first;
    do {
      each = each->nextInFocusChain();
      if (each->isVisible() && each->isEnabled() && (each->focusPolicy() & Qt::TabFocus) != 0) {
        names.insert(each->objectName());
      }
    } while (each != first);
    return names;
  }

  Windows windows_{platform()};
  Panel& panel_ = windows_.panel;
  Binder screen_{loop()};
};

TEST_F(CallWindowTest, TheTabKeyReachesEachKeyOfThePad) {
  const std::set<QString> stops = tabStops();
  for (const Picture& key : calls().Image) {
    const QString name = widget(key).objectName();
    EXPECT_TRUE(stops.contains(name)) << name.toStdString();
  }
  for (const Control* control : std::initializer_list<const Control*>{
           &calls().Label2, &calls().Label4, &calls().Command1, &calls().Command4,
           &calls().Command6, &calls().Command7, &calls().Command8, &calls().Label1, &calls().List1,
           &calls().Command2, &calls().Command3, &calls().Command5}) {
    EXPECT_TRUE(stops.contains(QString::fromStdString(control->name()))) << control->fullName();
  }
}

TEST_F(CallWindowTest, TheSpaceBarPressesAKey) {
  for (const Picture& key : calls().Image) {
    press(widget(key), Qt::Key_Space);
    settle();
  }
  press(widget(calls().Label4), Qt::Key_Space);
  press(widget(calls().Label2), Qt::Key_Space);
  settle();
  EXPECT_EQ(calls().Text1.Text.peek(), "0123456789*#");
}

TEST_F(CallWindowTest, TheKeysOfADigitShowAPictureOfIt) {
  for (const Picture& key : calls().Image) {
    EXPECT_EQ(widget(key).property("picture").toString(),
              QString(":/icons/key-%1.svg").arg(key.index()));
  }
}

TEST_F(CallWindowTest, TheRowsOfTheBookStandInAFaceOfOneWidth) {
  QWidget& list = widget(calls().List1);
  list.ensurePolished();
  const QFontMetrics face(list.font());
  EXPECT_EQ(face.horizontalAdvance("iiii"), face.horizontalAdvance("WWWW"));
}

TEST_F(CallWindowTest, PicturesForButtonsHaveTheirTips) {
  EXPECT_EQ(widget(calls().Command1).toolTip(), "Dial");
  EXPECT_EQ(widget(calls().Command4).toolTip(), "HangUp");
  EXPECT_EQ(widget(calls().Command6).toolTip(), "Backspace");
}

TEST_F(CallWindowTest, ALongNumberShowsItsEndInTheDialBox) {
  const std::string number(30, '7');
  calls().Text1.Text = number;
  auto* box = qobject_cast<QLineEdit*>(screen_.widget(calls().Text1));
  EXPECT_EQ(box->text().toStdString(), number);
  EXPECT_EQ(box->cursorPosition(), 30);
}

TEST_F(CallWindowTest, ThePromptComesUpWithoutTakingTheKeyboard) {
  platform().handlers.run([this] {
    panel_.form5.Show();
    panel_.form5.Label1.Caption = "Call Received From  <b>O'Neil & Co</b>";
  });
  settle();
  const QWidget* prompt = screen_.widget(panel_.form5);
  EXPECT_TRUE(prompt->isVisible());
  EXPECT_TRUE(prompt->testAttribute(Qt::WA_ShowWithoutActivating));
  auto* who = qobject_cast<QLabel*>(screen_.widget(panel_.form5.Label1));
  EXPECT_EQ(who->text(), "Call Received From  <b>O'Neil & Co</b>");
  EXPECT_EQ(who->textFormat(), Qt::PlainText);
}

}  // namespace
}  // namespace gsm
