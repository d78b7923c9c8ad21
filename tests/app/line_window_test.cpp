// What only the desktop shows of the line settings.

#include <gtest/gtest.h>

#include <QComboBox>
#include <QLabel>
#include <string>

#include "app/windows.h"
#include "settings/form15.h"
#include "tests/support/desktop/desktop_fixture.h"

namespace gsm {
namespace {

constexpr QSize kSmallScreen(1366 * 2 / 3, 768 * 2 / 3 - 64);

class LineWindowTest : public DesktopTest {
 protected:
  LineWindowTest() {
    screen_.bind(platform().windows);
    platform().handlers.run([this] { window().Show(); });
    settle();
  }

  Form15& window() { return panel_.form15; }
  QWidget& form() { return *screen_.widget(window()); }
  QWidget& widget(const Control& control) { return *screen_.widget(control); }

  Windows windows_{platform()};
  Panel& panel_ = windows_.panel;
  Binder screen_{loop()};
};

TEST_F(LineWindowTest, TheWordsOfSevenFailuresAreNeverCutOff) {
  window().Label1.Caption =
      " Changes UnsuccessFul-IPR  Changes UnsuccessFul-Character Framing "
      "Changes UnsuccessFul-DCE-DTE Flow ControlChanges UnsuccessFul-DCD signal"
      "Changes UnsuccessFul-DTR signalChanges UnsuccessFul-DSR signalChanges UnsuccessFul-ECHO";
  for (const QSize& size : {form().size(), kSmallScreen, form().minimumSize()}) {
    form().resize(size);
    settle();
    const auto& label = dynamic_cast<const QLabel&>(widget(window().Label1));
    EXPECT_TRUE(label.wordWrap());
    EXPECT_GE(label.height(), label.heightForWidth(label.width())) << size.width();
    EXPECT_TRUE(form().rect().contains(QRect(label.mapTo(&form(), QPoint()), label.size())));
  }
}

TEST_F(LineWindowTest, NoOptionIsCutOffWhereTheWindowHasRoom) {
  form().resize(kSmallScreen.width(), 600);
  settle();
  for (const Control* control : window().controls()) {
    if (dynamic_cast<const OptionButton*>(control) == nullptr) continue;
    const QWidget& option = widget(*control);
    EXPECT_GE(option.width(), option.sizeHint().width()) << control->name();
    EXPECT_GE(option.height(), option.sizeHint().height()) << control->name();
    EXPECT_EQ(option.visibleRegion().boundingRect(), option.rect()) << control->name();
  }
}

TEST_F(LineWindowTest, ARateIsTypedOrPicked) {
  auto& combo = dynamic_cast<QComboBox&>(widget(window().Combo1));
  EXPECT_EQ(combo.count(), 10);
  type(combo, "1234");
  settle();
  EXPECT_EQ(window().Combo1.Text.peek(), "1234");
}

TEST_F(LineWindowTest, TheRateHasTheFocusFirst) {
  EXPECT_EQ(form().focusWidget(), &widget(window().Combo1));
}

TEST_F(LineWindowTest, AnOptionThatIsChosenClearsItsOwnGroupAlone) {
  for (OptionButton* option : {&window().Option12, &window().Option13, &window().Option17}) {
    click(widget(*option), QPoint(8, 8));
    settle();
  }
  EXPECT_TRUE(window().Option12.Value.peek());
  EXPECT_TRUE(window().Option13.Value.peek());
  EXPECT_TRUE(window().Option17.Value.peek());
  click(widget(window().Option16), QPoint(8, 8));
  settle();
  EXPECT_FALSE(window().Option13.Value.peek());
  EXPECT_TRUE(window().Option17.Value.peek());
}

}  // namespace
}  // namespace gsm
