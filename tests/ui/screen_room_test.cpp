#include "ui/views/screen_room.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QScreen>
#include <QScrollArea>

#include "controls/controls.h"
#include "tests/support/desktop/desktop_fixture.h"
#include "ui/views/focus_on_view.h"

namespace gsm {
namespace {

// A form with three fields in a row, 600 pixels wide at least, of which the second is hidden.
class ScreenRoomTest : public FormTest {
 protected:
  ScreenRoomTest() {
    auto* row = new QHBoxLayout(&form());
    for (QLineEdit* field : {&first_, &hidden_, &last_}) {
      field->setMinimumSize(280, 100);
      row->addWidget(field);
    }
    hidden_.hide();
    new FocusOnView(form());
  }

  bool isInSight(const QWidget& widget) {
    return form().rect().contains(QRect(widget.mapTo(&form(), QPoint()), widget.size()));
  }
  bool scrolls() { return form().findChild<QScrollArea*>() != nullptr; }

  Window window_{platform(), "AnyWindow", {}};
  TextBox text_{window_, "Text3"};
  QLineEdit& first_ = put<QLineEdit>("Text1");
  QLineEdit& hidden_ = put<QLineEdit>("Text2");
  QLineEdit& last_ = put<QLineEdit>("Text3");
};

TEST_F(ScreenRoomTest, WhatFitsStaysAsItIs) {
  fitInto(form(), {700, 200});
  EXPECT_FALSE(scrolls());
  EXPECT_EQ(last_.parentWidget(), &form());
}

TEST_F(ScreenRoomTest, WhatIsTooLargeScrollsWithinTheRoom) {
  const QSize room(400, 200);
  fitInto(form(), room);
  EXPECT_TRUE(scrolls());
  EXPECT_EQ(form().size().boundedTo(room), form().size());
  EXPECT_EQ(form().minimumSizeHint().boundedTo(room), form().minimumSizeHint());
  form().show();
  settle();
  EXPECT_EQ(form().size().boundedTo(room), form().size());
  EXPECT_FALSE(isInSight(last_));
}

TEST_F(ScreenRoomTest, WhatWasHiddenStaysSo) {
  fitInto(form(), {400, 200});
  form().show();
  EXPECT_TRUE(first_.isVisible());
  EXPECT_FALSE(hidden_.isVisible());
}

TEST_F(ScreenRoomTest, TheTabKeyBringsIntoSightWhatItComesTo) {
  fitInto(form(), {400, 200});
  form().show();
  settle();
  first_.setFocus();
  press(first_, Qt::Key_Tab);
  settle();
  EXPECT_TRUE(last_.hasFocus());
  EXPECT_TRUE(isInSight(last_));
  press(last_, Qt::Key_Tab);
  settle();
  EXPECT_TRUE(first_.hasFocus()) << "nothing but the fields takes the focus";
  EXPECT_TRUE(isInSight(first_));
}

TEST_F(ScreenRoomTest, SoDoesThePanelThatSetsTheFocus) {
  fitInto(form(), {400, 200});
  form().show();
  settle();
  last_.setFocus();
  settle();
  EXPECT_TRUE(isInSight(last_));
}

TEST_F(ScreenRoomTest, AFormOfAFixedSizeScrollsToo) {
  form().setFixedSize(800, 300);
  fitInto(form(), {400, 200});
  form().resize(400, 200);
  EXPECT_EQ(form().size(), QSize(400, 200));
  EXPECT_EQ(form().findChild<QScrollArea*>()->widget()->minimumSize(), QSize(800, 300));
}

TEST_F(ScreenRoomTest, OnceIsEnough) {
  fitInto(form(), {400, 200});
  fitInto(form(), {300, 100});
  EXPECT_EQ(form().findChildren<QScrollArea*>().size(), 1);
}

// The window shows what the panel shows, whether it scrolls or not.
TEST_F(ScreenRoomTest, AWindowIsFittedToItsScreen) {
  const QSize screen = QApplication::primaryScreen()->availableGeometry().size();
  last_.setMinimumWidth(screen.width());
  bind(window_);
  EXPECT_LE(form().width(), screen.width());
  EXPECT_TRUE(scrolls());
  text_.Text = "Registered";
  EXPECT_EQ(last_.text(), "Registered");
}

}  // namespace
}  // namespace gsm
