#include "ui/views/going_on.h"

#include <QApplication>
#include <QPushButton>

#include "controls/controls.h"
#include "tests/support/desktop/desktop_fixture.h"

namespace gsm {
namespace {

bool isBusy() {
  const QCursor* pointer = QApplication::overrideCursor();
  return pointer != nullptr && pointer->shape() == Qt::BusyCursor;
}

class GoingOnWindow : public Window {
 public:
  using Window::Window;
  CommandButton Command1{*this, "Command1"};
  std::function<void()> atUnload = [] {};

 protected:
  void Form_Unload() override { atUnload(); }
};

class GoingOnTest : public FormTest {
 protected:
  GoingOnTest() { bind(window_); }

  bool looksPressed() const { return button_.property(GoingOn::kProperty).isValid(); }

  GoingOnWindow window_{platform(), "GoingOnWindow"};
  QPushButton& button_ = put<QPushButton>("Command1");
};

TEST_F(GoingOnTest, WhileAClicksHandlerRunsThePointerIsBusyAndTheButtonLooksPressed) {
  bool seen = false;
  window_.Command1.Click = [&] { seen = isBusy() && looksPressed(); };
  click(button_);
  EXPECT_FALSE(isBusy()) << "the handler hasn't begun";
  settle();
  EXPECT_TRUE(seen);
  EXPECT_FALSE(isBusy());
  EXPECT_FALSE(looksPressed());
}

TEST_F(GoingOnTest, UntilTheLastOfSeveralHandlersHasEnded) {
  int running = 0;
  bool stillPressed = false;
  window_.Command1.Click = [&] {
    if (++running > 1) return;
    click(button_);
    settle();
    stillPressed = isBusy() && looksPressed();
  };
  click(button_);
  settle();
  EXPECT_EQ(running, 2);
  EXPECT_TRUE(stillPressed);
  EXPECT_FALSE(looksPressed());
}

TEST_F(GoingOnTest, AHandlerThatNoClickBeganShowsNothing) {
  bool seen = true;
  platform().handlers.run([&] { seen = isBusy(); });
  EXPECT_FALSE(seen);
}

TEST_F(GoingOnTest, ARequestToCloseShowsAtOnceThatItWasTaken) {
  bool busyMeanwhile = false;
  window_.atUnload = [&] { busyMeanwhile = isBusy(); };
  form().close();
  auto* veil = form().findChild<QWidget*>("decoVeil");
  ASSERT_NE(veil, nullptr) << "before the panel has heard of it";
  EXPECT_TRUE(veil->isVisible());
  EXPECT_TRUE(veil->testAttribute(Qt::WA_TransparentForMouseEvents));
  settle();
  EXPECT_TRUE(busyMeanwhile);
  EXPECT_FALSE(isBusy());
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_EQ(form().findChild<QWidget*>("decoVeil"), nullptr);
}

class AskingWindow : public Window {
 public:
  using Window::Window;
};

TEST_F(GoingOnTest, ThePointerIsntBusyWhileAWindowAsksTheUser) {
  AskingWindow question(platform(), "Question", {.Asks = true});
  Binder screen(loop());
  screen.bind(question, std::make_unique<QWidget>());
  BusyPointer pointer;
  pointer.begin();
  EXPECT_TRUE(isBusy());
  pointer.ask(&question);
  EXPECT_FALSE(isBusy());
  pointer.begin();  // the answer's handler
  EXPECT_TRUE(isBusy());
  pointer.answered(&question);
  EXPECT_TRUE(isBusy());
  pointer.end();
  EXPECT_TRUE(isBusy()) << "the one that has asked goes on";
  pointer.end();
  EXPECT_FALSE(isBusy());
}

TEST_F(GoingOnTest, AQuestionOutlivesWhatAskedIt) {
  const int question = 0;
  BusyPointer pointer;
  pointer.begin();
  pointer.ask(&question);
  pointer.end();
  pointer.begin();
  EXPECT_TRUE(isBusy());
  pointer.end();
}

}  // namespace
}  // namespace gsm
