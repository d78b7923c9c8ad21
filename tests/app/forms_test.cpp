#include "ui/forms.h"

#include <gtest/gtest.h>

#include <QAbstractScrollArea>
#include <QComboBox>
#include <QLabel>
#include <QTabBar>
#include <algorithm>
#include <set>
#include <string>

#include "app/windows.h"
#include "panel/form1.h"
#include "panel/form7.h"
#include "tests/support/desktop/desktop_fixture.h"
#include "ui/views/window_view.h"

namespace gsm {
namespace {

// Parts that Qt makes for widgets of its own.
bool isPartOfAnother(const QWidget& widget) {
  const QWidget* parent = widget.parentWidget();
  return qobject_cast<const QAbstractScrollArea*>(parent) != nullptr ||
         qobject_cast<const QComboBox*>(parent) != nullptr ||
         qobject_cast<const QTabBar*>(parent) != nullptr ||
         (parent != nullptr && widget.objectName().startsWith("qt_"));
}

// What is only there for the eye, with nothing that a handler could refer to.
bool isDecoration(const QWidget& widget) {
  return widget.objectName().isEmpty() || widget.objectName().startsWith("deco");
}

class FormsTest : public DesktopTest {
 protected:
  FormsTest() { screen_.bind(platform().windows); }

  // The windows of the panel that have a form.
  std::vector<Window*> windows() {
    std::vector<Window*> found;
    for (const std::string& name : ui::formNames()) {
      if (Window* window = windowNamed(platform(), name)) found.push_back(window);
    }
    return found;
  }

  Windows windows_{platform()};
  Panel& panel_ = windows_.panel;
  Binder screen_{loop()};
};

TEST_F(FormsTest, EveryFormIsAWindows) {
  for (const std::string& name : ui::formNames()) {
    EXPECT_NE(windowNamed(platform(), name), nullptr) << name;
  }
}

// That its kind fits is the binder's to say, in a message that fails the test.
TEST_F(FormsTest, EveryControlButTheUnseenHasAWidget) {
  for (const Window* window : windows()) {
    for (const Control* control : window->controls()) {
      EXPECT_EQ(screen_.widget(*control) == nullptr, control->isUnseen())
          << window->name() << "." << control->fullName();
    }
  }
}

TEST_F(FormsTest, EveryWidgetIsAControls) {
  for (const Window* window : windows()) {
    std::set<QString> names;
    for (const Control* control : window->controls()) names.insert(widgetName(*control));
    for (const QWidget* widget : screen_.widget(*window)->findChildren<QWidget*>()) {
      if (isDecoration(*widget) || isPartOfAnother(*widget)) continue;
      EXPECT_TRUE(names.contains(widget->objectName()))
          << window->name() << "." << widget->objectName().toStdString();
    }
  }
}

TEST_F(FormsTest, NoTwoWidgetsShareAName) {
  for (const Window* window : windows()) {
    std::set<QString> names;
    for (const QWidget* widget : screen_.widget(*window)->findChildren<QWidget*>()) {
      if (widget->objectName().isEmpty() || isPartOfAnother(*widget)) continue;
      EXPECT_TRUE(names.insert(widget->objectName()).second)
          << window->name() << "." << widget->objectName().toStdString();
    }
  }
}

// A frame hides and disables what is in it: widgets and controls must agree on what that is.
TEST_F(FormsTest, FramesHoldWhatTheControlsSay) {
  for (const Window* window : windows()) {
    for (const Control* control : window->controls()) {
      const QWidget* widget = screen_.widget(*control);
      if (widget == nullptr) continue;
      for (const Control* frame : window->controls()) {
        const QWidget* frameWidget = screen_.widget(*frame);
        if (dynamic_cast<const Frame*>(frame) == nullptr || frameWidget == nullptr ||
            frame == control) {
          continue;
        }
        bool isInside = false;
        for (const Control* part = control->container(); part != nullptr;
             part = part->container()) {
          isInside = isInside || part == frame;
        }
        EXPECT_EQ(frameWidget->isAncestorOf(widget), isInside)
            << window->name() << ": " << control->fullName() << " in " << frame->fullName();
      }
    }
  }
}

TEST_F(FormsTest, EveryPictureCanBeDrawn) {
  for (const Window* window : windows()) {
    for (const Control* control : window->controls()) {
      if (dynamic_cast<const Picture*>(control) == nullptr) continue;
      QWidget* widget = screen_.widget(*control);
      ASSERT_NE(widget, nullptr) << window->name() << "." << control->fullName();
      EXPECT_FALSE(widget->grab().isNull());
    }
  }
}

TEST_F(FormsTest, EveryWindowComesUpAndGoes) {
  for (Window* window : windows()) {
    QWidget* widget = screen_.widget(*window);
    EXPECT_FALSE(widget->isVisible()) << window->name();
    widget->show();
    EXPECT_FALSE(widget->grab().isNull());
    widget->hide();
  }
}

// A screen of 1366 x 768 at one and a half times the scale, less the window's frame and a task bar.
TEST_F(FormsTest, EveryWindowFitsASmallScreen) {
  const QSize room(1366 * 2 / 3, 768 * 2 / 3 - 64);
  for (Window* window : windows()) {
    QWidget* widget = screen_.widget(*window);
    widget->ensurePolished();
    const QSize least = widget->minimumSizeHint().expandedTo(widget->minimumSize());
    EXPECT_LE(least.width(), room.width()) << window->name();
    EXPECT_LE(least.height(), room.height()) << window->name();
  }
}

TEST_F(FormsTest, WindowsWithoutATitleHaveANameAllTheSame) {
  for (const char* name : {"Form10", "Form11", "Form20"}) {
    const QWidget* widget = screen_.widget(*windowNamed(platform(), name));
    EXPECT_EQ(widget->windowTitle(), " ") << name;
    EXPECT_NE(widget->accessibleName(), "") << name;
  }
}

TEST_F(FormsTest, EveryComboHasAName) {
  for (Window* window : windows()) {
    for (const QComboBox* combo : screen_.widget(*window)->findChildren<QComboBox*>()) {
      EXPECT_NE(combo->accessibleName(), "")
          << window->name() << "." << combo->objectName().toStdString();
    }
  }
}

TEST_F(FormsTest, WhatADecorationNamesIsThere) {
  for (Window* window : windows()) {
    QWidget* form = screen_.widget(*window);
    for (const QWidget* widget : form->findChildren<QWidget*>()) {
      for (const char* property : {"insteadOf", "valueOf", "opens"}) {
        const QString name = widget->property(property).toString();
        EXPECT_TRUE(name.isEmpty() || form->findChild<QWidget*>(name) != nullptr)
            << window->name() << ": " << property << " " << name.toStdString();
      }
    }
  }
}

// Each press of a button on these windows may bring up a row above another button.
TEST_F(FormsTest, WhatComesUpLeavesAllElseWhereItIs) {
  struct Row {
    const char* window;
    const char* comesUp;
    const char* below;
  };
  for (const Row& row : {Row{.window = "Form6", .comesUp = "Combo3", .below = "Command5"},
                         Row{.window = "Form18", .comesUp = "Text1", .below = "Command1"},
                         Row{.window = "Form19", .comesUp = "Text2", .below = "Text5"}}) {
    QWidget* form = screen_.widget(*windowNamed(platform(), row.window));
    const QWidget* below = form->findChild<QWidget*>(row.below);
    for (QWidget* each = form->findChild<QWidget*>(row.below); each != form;
         each = each->parentWidget()) {
      each->show();
    }
    auto* comesUp = form->findChild<QWidget*>(row.comesUp);
    comesUp->hide();
    form->show();
    const QRect place(below->mapTo(form, QPoint()), below->size());
    comesUp->show();
    settle();
    EXPECT_EQ(QRect(below->mapTo(form, QPoint()), below->size()), place) << row.window;
    form->hide();
  }
}

// The tiles can't be reached by pointer, key or mnemonic while the log stands in their place.
TEST_F(FormsTest, TheLogStandsInThePlaceOfTheTiles) {
  Form1& form1 = panel_.form1;
  platform().handlers.run([&] { form1.Show(); });
  const auto isOnView = [this](const Control& control) {
    return screen_.widget(control)->isVisible();
  };
  for (const CommandButton* tile :
       {&form1.Command1, &form1.Command2, &form1.Command3, &form1.Command4, &form1.Command5,
        &form1.Command6, &form1.Command10, &form1.Command11, &form1.Command12}) {
    form1.Frame5.Visible = true;
    EXPECT_FALSE(isOnView(*tile)) << tile->name();
    form1.Frame5.Visible = false;
    EXPECT_TRUE(isOnView(*tile)) << tile->name();
  }
  EXPECT_FALSE(isOnView(form1.List1));
  EXPECT_TRUE(isOnView(form1.Command7));
}

TEST_F(FormsTest, WhereThereIsNoPortTheHeaderSaysSo) {
  Form1& form1 = panel_.form1;
  platform().handlers.run([&] { form1.Show(); });
  settle();
  const auto* line = screen_.widget(form1)->findChild<QLabel*>("decoNoPort");
  ASSERT_NE(line, nullptr);
  EXPECT_TRUE(line->isVisible());
  EXPECT_EQ(line->text(), "No port. Choose one under Port Settings->");
  form1.Label1.Caption = "Open";
  settle();
  EXPECT_FALSE(line->isVisible());
}

// The place of a bar is drawn pale; the fifth bar is never shown and has none.
TEST_F(FormsTest, TheBarThatIsNeverShownHasNoPlaceDrawn) {
  const QWidget* form = screen_.widget(panel_.form7);
  EXPECT_EQ(form->findChild<QWidget*>("decoBar4")->property("role").toString(), "barPlace");
  EXPECT_FALSE(form->findChild<QWidget*>("decoBar5")->property("role").isValid());
}

}  // namespace
}  // namespace gsm
