#include "ui/views/form_order.h"

#include <QApplication>
#include <QPushButton>
#include <QScreen>
#include <list>

#include "controls/controls.h"
#include "tests/support/desktop/desktop_fixture.h"

namespace gsm {
namespace {

class EmptyWindow : public Window {
 public:
  using Window::Window;
  CommandButton Command1{*this, "Command1"};
};

// Several windows of a program, each on a form of 300 to 200.
class FormOrderTest : public DesktopTest {
 protected:
  EmptyWindow& add(const char* name, WindowDesign design = {}) {
    EmptyWindow& window = windows_.emplace_back(platform(), name, std::move(design));
    auto form = std::make_unique<QWidget>();
    form->resize(300, 200);
    auto* button = new QPushButton(form.get());
    button->setObjectName("Command1");
    screen_.bind(window, std::move(form));
    return window;
  }
  QWidget& form(const Window& window) { return *screen_.widget(window); }
  void show(Window& window) {
    window.Show();
    settle();
  }

  std::list<EmptyWindow> windows_;
  Binder screen_{loop()};
};

TEST_F(FormOrderTest, AWindowComesUpAgainWhereTheUserLeftIt) {
  EmptyWindow& window = add("One");
  show(window);
  form(window).move(140, 90);
  window.Hide();
  form(window).move(0, 0);
  show(window);
  EXPECT_EQ(form(window).pos(), QPoint(140, 90));
}

TEST_F(FormOrderTest, AWindowThatWasLeftOnAScreenThatHasGoneComesUpOnThisOne) {
  EmptyWindow& window = add("One");
  show(window);
  form(window).move(20'000, 90);
  window.Hide();
  show(window);
  EXPECT_TRUE(form(window).screen()->availableGeometry().contains(form(window).pos()));
}

TEST_F(FormOrderTest, AWindowStandsAtFirstOverTheOneThatWasActive) {
  EmptyWindow& first = add("First");
  EmptyWindow& second = add("Second");
  show(first);
  form(first).move(200, 150);
  form(second).resize(100, 50);
  show(second);
  const QPoint off = form(second).frameGeometry().center() - form(first).frameGeometry().center();
  EXPECT_LE(off.manhattanLength(), 4);
}

TEST_F(FormOrderTest, AWindowIsNoLargerThanTheScreen) {
  EmptyWindow& window = add("One");
  form(window).resize(5000, 4000);
  show(window);
  const QSize room = form(window).screen()->availableGeometry().size();
  EXPECT_LE(form(window).frameGeometry().width(), room.width());
  EXPECT_LE(form(window).frameGeometry().height(), room.height());
}

TEST_F(FormOrderTest, TheWindowBeforeGetsTheKeyboardBack) {
  EmptyWindow& first = add("First");
  EmptyWindow& prompt = add("Prompt");
  show(first);
  show(prompt);
  EXPECT_TRUE(form(prompt).isActiveWindow());
  prompt.Hide();
  settle();
  EXPECT_TRUE(form(first).isActiveWindow());
}

TEST_F(FormOrderTest, ANoticeTakesNoClickAndNoKeyboard) {
  EmptyWindow& first = add("First");
  EmptyWindow& notice = add("Notice", {.Quiet = true, .Notice = true});
  show(first);
  show(notice);
  const Qt::WindowFlags flags = form(notice).windowFlags();
  EXPECT_TRUE(flags.testFlag(Qt::WindowTransparentForInput));
  EXPECT_TRUE(flags.testFlag(Qt::WindowDoesNotAcceptFocus));
  EXPECT_TRUE(form(notice).isVisible());
}

// The keyboard of another program can't be had on this screen.
TEST_F(FormOrderTest, TheFirstWindowTakesTheKeyboardAndAQuietOneNever) {
  EmptyWindow& first = add("First");
  EmptyWindow& quiet = add("Quiet", {.Quiet = true});
  show(first);
  show(quiet);
  EXPECT_FALSE(form(first).testAttribute(Qt::WA_ShowWithoutActivating));
  EXPECT_TRUE(form(quiet).testAttribute(Qt::WA_ShowWithoutActivating));
}

TEST_F(FormOrderTest, AnEmptyCaptionIsNoTitle) {
  EmptyWindow& window = add("One");
  show(window);
  EXPECT_EQ(form(window).windowTitle(), " ") << "Qt puts the program's name for an empty one";
  EXPECT_EQ(form(window).windowIconText(), "GSM-APPLICATION") << "for the task bar";
}

TEST_F(FormOrderTest, AUsersClickBringsAMinimisedWindowUp) {
  EmptyWindow& first = add("First");
  EmptyWindow& status = add("Status", {.Quiet = true});
  show(first);
  show(status);
  status.WindowState = WindowState::minimised;
  show(status);
  EXPECT_TRUE(form(status).isMinimized()) << "what goes on by itself leaves it where it is";

  first.Command1.Click = [&] { status.Show(); };
  click(*screen_.widget(first.Command1));
  settle();
  EXPECT_FALSE(form(status).isMinimized());
  EXPECT_EQ(status.WindowState.peek(), WindowState::normal);
}

}  // namespace
}  // namespace gsm
