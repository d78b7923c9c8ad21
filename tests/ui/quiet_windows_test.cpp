// What comes up by itself while the user types. scripts/check-desktops runs this under Wayland,
// where the desktop and not the program says who has the keyboard.

#include "ui/views/quiet_windows.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QLineEdit>
#include <QPushButton>
#include <QWindow>
#include <chrono>
#include <list>
#include <memory>

#include "controls/window.h"
#include "tests/support/desktop/desktop_fixture.h"

namespace gsm {
namespace {

class QuietWindowsTest : public DesktopTest {
 protected:
  void SetUp() override {
    if (QGuiApplication::platformName() == "offscreen") GTEST_SKIP() << "there is no desktop";
    typedIn_.Show();
  }

  // A window with a button on its form.
  Window& add(const char* name, const WindowDesign& design) {
    Window& window = windows_.emplace_back(platform(), name, design);
    auto form = std::make_unique<QWidget>();
    form->resize(300, 200);
    auto* button = new QPushButton("Answer", form.get());
    QObject::connect(button, &QPushButton::pressed, [this] { ++presses_; });
    screen_.bind(window, std::move(form));
    return window;
  }
  QWidget& form(const Window& window) { return *screen_.widget(window); }

  bool hasKeyboard(const Window& window) {
    using std::chrono::seconds;
    return runUntil(
        loop(), [&] { return form(window).isActiveWindow(); }, seconds(3));
  }

  // Long enough for the desktop to give the keyboard to what has come up.
  void rest() {
    using std::chrono::milliseconds;
    runUntil(
        loop(), [] { return false; }, milliseconds(300));
  }

  int presses_ = 0;
  std::list<Window> windows_;
  Binder screen_{loop()};
  Window& typedIn_ = add("Form8", {});
};

TEST_F(QuietWindowsTest, TheKeyboardStaysWhereItIsWhenANoticeComes) {
  ASSERT_TRUE(hasKeyboard(typedIn_));
  Window& notice = add("Form11", {.Quiet = true, .Notice = true});
  notice.Show();
  rest();
  EXPECT_TRUE(form(notice).isVisible());
  EXPECT_TRUE(form(typedIn_).isActiveWindow());
}

TEST_F(QuietWindowsTest, ANoticeOutlivesTheOneBelowIt) {
  ASSERT_TRUE(hasKeyboard(typedIn_));
  Window& first = add("Form11", {.Quiet = true, .Notice = true});
  Window& second = add("Form20", {.Quiet = true, .Notice = true});
  first.Show();
  rest();
  second.Show();
  rest();
  first.Hide();
  rest();
  EXPECT_TRUE(form(second).isVisible());
  EXPECT_TRUE(form(second).windowHandle()->isExposed());
}

TEST_F(QuietWindowsTest, ANoticeIsStillThePanelsWhenItsWindowGoes) {
  ASSERT_TRUE(hasKeyboard(typedIn_));
  Window& notice = add("Form11", {.Quiet = true, .Notice = true});
  notice.Show();
  rest();
  typedIn_.Hide();
  rest();
  EXPECT_TRUE(notice.Visible.peek());
  EXPECT_TRUE(notice.isLoaded());
}

// A key that is meant for another window must not answer a call.
TEST_F(QuietWindowsTest, KeysPressNothingOnAWindowThatComesUpQuietly) {
  ASSERT_TRUE(hasKeyboard(typedIn_));
  form(typedIn_).findChild<QPushButton*>()->setEnabled(false);
  Window& call = add("Form5", {.Quiet = true, .Urgent = true});
  call.Show();
  rest();
  for (const auto key : {Qt::Key_Space, Qt::Key_Return}) {
    if (QWidget* focus = QApplication::focusWidget()) press(*focus, key);
  }
  EXPECT_EQ(presses_, 0);
}

}  // namespace
}  // namespace gsm
