#include "platform/qt/qt_message_boxes.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <functional>
#include <memory>
#include <string>

#include "tests/support/desktop/desktop_fixture.h"

namespace gsm {
namespace {

using namespace std::chrono_literals;

// Shows boxes, and lets a user act as soon as one is up.
class QtMessageBoxesTest : public DesktopTest {
 protected:
  static QMessageBox* box() {
    return qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
  }
  static void pressOk() { box()->button(QMessageBox::Ok)->click(); }

  // Runs `act`, once, when a box is up.
  void whenUp(std::function<void()> act) {
    user_ = loop().every(5ms, [this, act = std::move(act)] {
      if (box() == nullptr || !box()->isVisible()) return;
      user_.reset();
      act();
    });
  }

  MessageBoxes& boxes() { return platform().boxes; }

  std::unique_ptr<Repetition> user_;
};

TEST_F(QtMessageBoxesTest, ShowTextTitleAndOkAlone) {
  whenUp([] {
    EXPECT_EQ(box()->text(), "No Comm Ports Present");
    EXPECT_EQ(box()->windowTitle(), "GSM");
    EXPECT_EQ(box()->icon(), QMessageBox::NoIcon);
    EXPECT_EQ(box()->standardButtons(), QMessageBox::Ok);
    pressOk();
  });
  boxes().show("No Comm Ports Present", "GSM");
}

TEST_F(QtMessageBoxesTest, ShowTheCriticalIconAndTheProgramsTitle) {
  whenUp([] {
    EXPECT_EQ(box()->icon(), QMessageBox::Critical);
    EXPECT_EQ(box()->windowTitle(), "GSM-APPLICATION");
    pressOk();
  });
  boxes().show("text", MessageBoxes::kDefaultTitle, BoxIcon::critical);
}

TEST_F(QtMessageBoxesTest, TakeNoTextForMarkup) {
  whenUp([] {
    EXPECT_EQ(box()->textFormat(), Qt::PlainText);
    EXPECT_EQ(box()->text(), "<b>&x</b>");
    pressOk();
  });
  boxes().show("<b>&x</b>");
}

TEST_F(QtMessageBoxesTest, AreUpUntilTheUserPressesOk) {
  EXPECT_FALSE(boxes().isUp());
  whenUp([this] {
    EXPECT_TRUE(boxes().isUp());
    pressOk();
  });
  boxes().show("text");
  EXPECT_FALSE(boxes().isUp());
}

TEST_F(QtMessageBoxesTest, LetEventsRunUnderneath) {
  int ticks = 0;
  const auto timer = loop().every(5ms, [&] {
    if (++ticks == 5) pressOk();
  });
  boxes().show("text");
  EXPECT_GE(ticks, 5);
}

TEST_F(QtMessageBoxesTest, NestWhenAnEventUnderneathShowsAnother) {
  std::string order;
  whenUp([&] {
    whenUp([&] {
      EXPECT_EQ(box()->text(), "inner");
      pressOk();
    });
    boxes().show("inner");
    order += "inner ";
    EXPECT_TRUE(boxes().isUp());
    pressOk();
  });
  boxes().show("outer");
  order += "outer";
  EXPECT_EQ(order, "inner outer");
}

// A handler that runs on top of the box keeps `show` from returning, and not the user from the
// windows.
TEST_F(QtMessageBoxesTest, AreDownAsSoonAsTheyHaveGoneFromTheScreen) {
  whenUp([this] {
    pressOk();
    EXPECT_FALSE(boxes().isUp()) << "while the handler on top still runs";
    settle();
    EXPECT_FALSE(boxes().isUp());
  });
  boxes().show("text");
  EXPECT_FALSE(boxes().isUp());
}

TEST_F(QtMessageBoxesTest, KeepTheOuterOneUpWhenTheInnerOneHasGone) {
  whenUp([&] {
    whenUp([&] {
      pressOk();
      EXPECT_TRUE(boxes().isUp()) << "the outer one is on view";
    });
    boxes().show("inner");
    pressOk();
    EXPECT_FALSE(boxes().isUp());
  });
  boxes().show("outer");
}

TEST_F(QtMessageBoxesTest, ShowNoBusyPointerWhileTheyWaitForTheirUser) {
  QApplication::setOverrideCursor(Qt::BusyCursor);
  whenUp([] {
    EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::ArrowCursor);
    pressOk();
    EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::BusyCursor);
  });
  boxes().show("text");
  QApplication::restoreOverrideCursor();
  EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

}  // namespace
}  // namespace gsm
