#include "ui/forms.h"

#include <gtest/gtest.h>

#include <QAbstractScrollArea>
#include <QComboBox>
#include <QTabBar>
#include <algorithm>
#include <map>
#include <set>
#include <string>

#include "app/windows.h"
#include "controls/data_control.h"
#include "tests/support/desktop/desktop_fixture.h"
#include "ui/views/window_view.h"

namespace gsm {
namespace {

// Controls that the user never sees: places for data, and what has no looks.
const std::map<std::string, std::set<std::string>> kUnseen = {
    {"Form1", {"Text1", "Text2", "Text3", "Combo1", "Combo2", "Timer1", "Timer2"}},
    {"Form20", {"Timer1"}},
};

bool isUnseen(const Control& control) {
  const auto window = kUnseen.find(control.window().name());
  return (window != kUnseen.end() && window->second.contains(control.name())) ||
         dynamic_cast<const Timer*>(&control) != nullptr ||
         dynamic_cast<const DataControl*>(&control) != nullptr;
}

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
      EXPECT_EQ(screen_.widget(*control) == nullptr, isUnseen(*control))
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

}  // namespace
}  // namespace gsm
