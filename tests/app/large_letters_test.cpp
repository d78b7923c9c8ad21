// All that is on the windows, in the letters of a desktop whose user needs large ones and on a
// screen that is small for them. CTest runs this at three times the scale too.

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QScrollArea>
#include <QTabBar>
#include <string>

#include "app/windows.h"
#include "controls/controls.h"
#include "platform/qt/text_codec.h"
#include "tests/support/desktop/desktop_fixture.h"
#include "ui/forms.h"
#include "ui/views/letters.h"
#include "ui/views/look.h"
#include "ui/views/screen_room.h"
#include "ui/views/window_view.h"

namespace gsm {
namespace {

bool showsWords(const QWidget& widget) {
  if (const auto* label = qobject_cast<const QLabel*>(&widget)) return !label->text().isEmpty();
  if (const auto* group = qobject_cast<const QGroupBox*>(&widget)) return !group->title().isEmpty();
  return qobject_cast<const QAbstractButton*>(&widget) != nullptr ||
         qobject_cast<const QLineEdit*>(&widget) != nullptr ||
         qobject_cast<const QComboBox*>(&widget) != nullptr ||
         qobject_cast<const QTabBar*>(&widget) != nullptr;
}

// A combo would like room for more letters than the few that its entries have.
bool isAsWideAsItsForm(const QWidget& widget) {
  return qobject_cast<const QComboBox*>(&widget) != nullptr ||
         qobject_cast<const QComboBox*>(widget.parentWidget()) != nullptr;
}

// With the points of the desktop's letters.
class LargeLettersTest : public DesktopTest, public ::testing::WithParamInterface<int> {
 protected:
  LargeLettersTest() {
    QFont large = usual_;
    large.setPointSize(GetParam());
    QApplication::setFont(large);
    takeDesktopsLetters();
  }
  ~LargeLettersTest() override {
    QApplication::setFont(usual_);
    takeDesktopsLetters();
  }

  // Calls `look` with each form, on which is all that may ever be on view.
  template <class Look>
  void forEachForm(const Look& look) {
    for (const std::string& name : ui::formNames()) {
      SCOPED_TRACE(name);
      QWidget form;
      ui::buildForm(name, &form);
      addTabs(form, *windowNamed(platform(), name));
      growWithLetters(form, growthOfLetters());
      for (QWidget* each : form.findChildren<QWidget*>()) {
        if (!each->objectName().startsWith("Scroll")) each->show();  // a tab bar's own buttons
      }
      form.ensurePolished();
      look(form);
    }
  }

  void layOut(QWidget& form, const QSize& size) {
    form.resize(size);
    form.show();
    settle();
  }

  // Scrolls whatever scrolls around it, from the inside out; whether it then lies on the form.
  static bool comesIntoSight(QWidget& widget, const QWidget& form) {
    for (QWidget* around = widget.parentWidget(); around != nullptr && around != &form;
         around = around->parentWidget()) {
      if (auto* scroller = qobject_cast<QScrollArea*>(around)) {
        scroller->ensureWidgetVisible(&widget, 0, 0);
      }
    }
    const QRect place(widget.mapTo(&form, QPoint()), widget.size());
    return form.rect().intersects(place) && !widget.visibleRegion().isEmpty();
  }

 private:
  static void addTabs(QWidget& form, const Window& window) {
    for (const Control* control : window.controls()) {
      const auto* strip = dynamic_cast<const TabStrip*>(control);
      if (strip == nullptr) continue;
      auto* bar = form.findChild<QTabBar*>(widgetName(*control));
      for (const std::string& tab : strip->tabs()) bar->addTab(toQt(tab));
    }
  }

  const QFont usual_ = QApplication::font();
  Windows windows_{platform()};
};

TEST_P(LargeLettersTest, NothingIsCutOffOnAnyForm) {
  forEachForm([this](QWidget& form) {
    layOut(form, form.minimumSizeHint());
    for (const QWidget* each : form.findChildren<QWidget*>()) {
      if (!each->isVisible() || !showsWords(*each)) continue;
      const QSize needed = each->minimumSizeHint();
      EXPECT_LE(needed.height(), each->height()) << each->objectName().toStdString();
      if (isAsWideAsItsForm(*each)) continue;
      EXPECT_LE(needed.width(), each->width()) << each->objectName().toStdString();
    }
  });
}

// Three times the scale on a screen of 1920 x 1080, less the window's frame and a task bar.
TEST_P(LargeLettersTest, NothingIsOutOfReachOnASmallScreen) {
  const QSize room(1920 / 3, 1080 / 3 - 64);
  forEachForm([&](QWidget& form) {
    fitInto(form, room);
    layOut(form, room);
    EXPECT_EQ(form.size().boundedTo(room), form.size());
    for (QWidget* each : form.findChildren<QWidget*>()) {
      const bool isUsed = each->focusPolicy() != Qt::NoFocus && each->isVisible();
      if (!isUsed || qobject_cast<QScrollArea*>(each) != nullptr) continue;
      EXPECT_TRUE(comesIntoSight(*each, form)) << each->objectName().toStdString();
    }
  });
}

INSTANTIATE_TEST_SUITE_P(OfPoints, LargeLettersTest, ::testing::Values(10, 13, 16, 20),
                         ::testing::PrintToStringParamName());

}  // namespace
}  // namespace gsm
