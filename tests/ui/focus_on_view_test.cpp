#include "ui/views/focus_on_view.h"

#include <QApplication>
#include <QComboBox>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>

#include "controls/controls.h"
#include "tests/support/desktop/desktop_fixture.h"

namespace gsm {
namespace {

class ScrolledWindow : public Window {
 public:
  using Window::Window;
};

// A button above pages of which little is on view: two options far apart, and a box.
class FocusOnViewTest : public FormTest {
 protected:
  FocusOnViewTest() {
    constexpr QSize kLittle(300, 180);
    auto* page = new QVBoxLayout(&content_);
    for (QWidget* widget : std::initializer_list<QWidget*>{&one_, &other_, &box_}) {
      page->addWidget(widget);
      page->addSpacing(kLittle.height());
    }
    box_.setEditable(true);
    area_.setFocusPolicy(Qt::NoFocus);
    area_.setWidgetResizable(true);
    area_.setWidget(&content_);
    auto* root = new QVBoxLayout(&form());
    root->addWidget(&above_);
    root->addWidget(&area_);
    form().resize(kLittle);
    bind(window_);
  }

  static bool isOnView(const QWidget& widget) {
    return widget.visibleRegion().boundingRect() == widget.rect();
  }
  void leaveAtTheEnd() {
    area_.verticalScrollBar()->setValue(area_.verticalScrollBar()->maximum());
  }

  ScrolledWindow window_{platform(), "ScrolledWindow"};
  QPushButton& above_ = put<QPushButton>("Command1");
  QScrollArea& area_ = put<QScrollArea>("decoPages");
  QWidget& content_ = *new QWidget;
  QRadioButton& one_ = put<QRadioButton>("Option1", &content_);
  QRadioButton& other_ = put<QRadioButton>("Option2", &content_);
  QComboBox& box_ = put<QComboBox>("Combo1", &content_);
};

TEST_F(FocusOnViewTest, WhatTheTabKeyComesToFromBesideThePages) {
  one_.setChecked(true);
  above_.setFocus();
  leaveAtTheEnd();
  ASSERT_FALSE(isOnView(one_));
  press(above_, Qt::Key_Tab);
  ASSERT_EQ(QApplication::focusWidget(), &one_);
  EXPECT_TRUE(isOnView(one_));
}

TEST_F(FocusOnViewTest, WhatAnArrowComesTo) {
  one_.setFocus();
  ASSERT_FALSE(isOnView(other_));
  press(one_, Qt::Key_Down);
  ASSERT_EQ(QApplication::focusWidget(), &other_);
  EXPECT_TRUE(isOnView(other_));
}

// Of which there is enough on view to see the cursor.
TEST_F(FocusOnViewTest, AllOfABoxThatTakesTyping) {
  constexpr int kCutOff = 5;
  other_.setChecked(true);
  other_.setFocus();
  area_.verticalScrollBar()->setValue(box_.geometry().bottom() - kCutOff -
                                      area_.viewport()->height());
  ASSERT_FALSE(box_.visibleRegion().isEmpty());
  ASSERT_FALSE(isOnView(box_));
  press(other_, Qt::Key_Tab);
  ASSERT_EQ(QApplication::focusWidget(), &box_);
  EXPECT_TRUE(isOnView(box_));
}

// Or else what is pressed would go from under the pointer.
TEST_F(FocusOnViewTest, NothingMovesForTheMouse) {
  leaveAtTheEnd();
  const int at = area_.verticalScrollBar()->value();
  one_.setFocus(Qt::MouseFocusReason);
  EXPECT_EQ(area_.verticalScrollBar()->value(), at);
  EXPECT_GT(at, 0);
}

}  // namespace
}  // namespace gsm
