// What assistive technology and the keys alone make of the forms.

#include <QAccessible>
#include <QApplication>
#include <QImage>
#include <QLabel>
#include <QLayout>
#include <QRadioButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QTabBar>
#include <algorithm>
#include <functional>
#include <memory>
#include <set>

#include "tests/app/form_pages.h"
#include "tests/support/desktop/colour_contrast.h"
#include "ui/forms.h"

namespace gsm {
namespace {

using Widgets = std::vector<QWidget*>;

QAccessibleInterface& told(QWidget& widget) {
  return *QAccessible::queryAccessibleInterface(&widget);
}

std::vector<QRadioButton*> groupOf(const QRadioButton& option) {
  const auto all =
      option.parentWidget()->findChildren<QRadioButton*>(QString(), Qt::FindDirectChildrenOnly);
  return {all.begin(), all.end()};
}

// The stops of the Tab key, until they come round again; at each it calls `look`.
Widgets tabStops(
    QWidget& form, const std::function<void(QWidget&)>& look = [](QWidget&) {}) {
  Widgets stops;
  constexpr std::size_t kTooMany = 200;
  form.setFocus();
  press(form, Qt::Key_Tab);
  if (QApplication::focusWidget() == &form) return {};
  while (stops.size() < kTooMany) {
    QWidget* at = QApplication::focusWidget();
    if (at == nullptr || std::find(stops.begin(), stops.end(), at) != stops.end()) break;
    stops.push_back(at);
    look(*at);
    press(*at, Qt::Key_Tab);
  }
  return stops;
}

// An item of a layout, with the stops in it.
struct Block {
  QRect place;
  Widgets stops;
};

// What lies by columns then lies by rows.
QRect turned(const QRect& place) {
  return {place.top(), place.left(), place.height(), place.width()};
}

// By rows from the top, and within a row from the left.
Widgets byRows(std::vector<Block> blocks) {
  std::sort(blocks.begin(), blocks.end(),
            [](const Block& a, const Block& b) { return a.place.top() < b.place.top(); });
  for (auto row = blocks.begin(); row != blocks.end();) {
    const int bottom = row->place.bottom();
    const auto next = std::find_if(
        row, blocks.end(), [&](const Block& each) { return each.place.center().y() > bottom; });
    std::stable_sort(
        row, next, [](const Block& a, const Block& b) { return a.place.left() < b.place.left(); });
    row = next;
  }
  Widgets all;
  for (const Block& block : blocks) all.insert(all.end(), block.stops.begin(), block.stops.end());
  return all;
}

Widgets inReadingOrder(QLayoutItem& item, const Widgets& stops);

Widgets inReadingOrder(QLayout& layout, const Widgets& stops) {
  std::vector<Block> blocks;
  for (int each = 0; each < layout.count(); ++each) {
    QLayoutItem& item = *layout.itemAt(each);
    blocks.push_back({item.geometry(), inReadingOrder(item, stops)});
  }
  std::erase_if(blocks, [](const Block& block) { return block.stops.empty(); });
  if (layout.property("byColumns").toBool()) {
    for (Block& block : blocks) block.place = turned(block.place);
  }
  return byRows(std::move(blocks));
}

Widgets inReadingOrder(QWidget& widget, const Widgets& stops) {
  if (std::find(stops.begin(), stops.end(), &widget) != stops.end()) return {&widget};
  if (auto* area = qobject_cast<QScrollArea*>(&widget)) {
    return inReadingOrder(*area->widget(), stops);
  }
  return widget.layout() == nullptr ? Widgets() : inReadingOrder(*widget.layout(), stops);
}

Widgets inReadingOrder(QLayoutItem& item, const Widgets& stops) {
  if (item.layout() != nullptr) return inReadingOrder(*item.layout(), stops);
  return item.widget() == nullptr ? Widgets() : inReadingOrder(*item.widget(), stops);
}

// The Tab key goes in a circle, and it is a window's to say where it begins.
Widgets beginningAt(QWidget* first, Widgets stops) {
  const auto found = std::find(stops.begin(), stops.end(), first);
  std::rotate(stops.begin(), found, stops.end());
  return stops;
}

// What the arrow keys reach from an option on. Nobody hears of what they choose.
Widgets optionsFrom(QRadioButton& first) {
  const auto group = groupOf(first);
  std::vector<std::unique_ptr<QSignalBlocker>> quiet;
  for (QRadioButton* each : group) quiet.push_back(std::make_unique<QSignalBlocker>(each));
  Widgets reached = {&first};
  for (std::size_t at = 0; at < reached.size(); ++at) {
    for (const auto arrow : {Qt::Key_Down, Qt::Key_Right, Qt::Key_Up, Qt::Key_Left}) {
      reached[at]->setFocus();
      press(*reached[at], arrow);
      QWidget* next = QApplication::focusWidget();
      if (std::find(reached.begin(), reached.end(), next) == reached.end()) reached.push_back(next);
    }
  }
  return reached;
}

using ReachTest = FormPagesTest;

TEST_F(ReachTest, EveryWindowHasAName) {
  for (const std::string& name : ui::formNames()) {
    if (name == "frmSettings") continue;  // its title tells what it is doing, once it does
    QWidget& form = *screen_.widget(*windowNamed(platform(), name));
    EXPECT_NE(told(form).text(QAccessible::Name).trimmed(), "") << name;
  }
}

TEST_F(ReachTest, EveryUsableControlHasARoleANameAndAState) {
  int seen = 0;
  forEachPage([&](QWidget&, const Widgets& usable) {
    for (QWidget* widget : usable) {
      const QAccessibleInterface& each = told(*widget);
      const std::set<QAccessible::Role> rolesOfNothing = {
          QAccessible::NoRole, QAccessible::Client, QAccessible::StaticText, QAccessible::Graphic};
      EXPECT_FALSE(rolesOfNothing.contains(each.role())) << nameOf(*widget);
      EXPECT_NE(each.text(QAccessible::Name).trimmed(), "") << nameOf(*widget);
      const QAccessible::State state = each.state();
      EXPECT_TRUE(each.isValid() && !state.invalid && !state.invisible && !state.disabled)
          << nameOf(*widget);
      EXPECT_TRUE(state.focusable) << nameOf(*widget);
      EXPECT_EQ(state.checkable, qobject_cast<QRadioButton*>(widget) != nullptr) << nameOf(*widget);
      ++seen;
    }
  });
  EXPECT_GT(seen, 200);
}

// To what has no words on it Qt gives those of the frame around it, which may hold several.
TEST_F(ReachTest, EveryFieldHasANameOfItsOwn) {
  int seen = 0;
  forEachPage([&](QWidget&, const Widgets& usable) {
    for (const QWidget* widget : usable) {
      const bool hasWords = qobject_cast<const QAbstractButton*>(widget) != nullptr ||
                            qobject_cast<const QLabel*>(widget) != nullptr ||
                            qobject_cast<const QTabBar*>(widget) != nullptr;
      if (hasWords) continue;
      EXPECT_NE(widget->accessibleName().trimmed(), "") << nameOf(*widget);
      ++seen;
    }
  });
  EXPECT_GT(seen, 30);
}

TEST_F(ReachTest, EveryTabHasAName) {
  forEachPage([](QWidget&, const Widgets& usable) {
    for (QWidget* widget : usable) {
      const auto* strip = qobject_cast<QTabBar*>(widget);
      for (int tab = 0; strip != nullptr && tab < strip->count(); ++tab) {
        const QAccessibleInterface* each = told(*widget).child(tab);
        ASSERT_NE(each, nullptr) << nameOf(*widget);
        EXPECT_EQ(each->role(), QAccessible::PageTab);
        EXPECT_NE(each->text(QAccessible::Name), "") << nameOf(*widget);
      }
    }
  });
}

// Into a group of options leads one stop, and the arrows lead on.
TEST_F(ReachTest, KeysAloneReachEveryUsableControl) {
  forEachPage([](QWidget& form, const Widgets& usable) {
    const Widgets stops = tabStops(form);
    std::set<const QWidget*> reached(stops.begin(), stops.end());
    for (QWidget* stop : stops) {
      auto* option = qobject_cast<QRadioButton*>(stop);
      if (option == nullptr) continue;
      const Widgets options = optionsFrom(*option);
      reached.insert(options.begin(), options.end());
    }
    for (const QWidget* widget : usable) {
      EXPECT_TRUE(reached.contains(widget)) << nameOf(*widget);
    }
    for (const QWidget* stop : stops) {
      EXPECT_NE(std::find(usable.begin(), usable.end(), stop), usable.end())
          << nameOf(*stop) << " is a stop and nothing to use";
    }
  });
}

TEST_F(ReachTest, TheTabKeyFollowsTheReadingOrder) {
  forEachPage([](QWidget& form, const Widgets&) {
    const Widgets stops = tabStops(form);
    const Widgets read = inReadingOrder(form, stops);
    ASSERT_EQ(stops.size(), read.size()) << form.objectName().toStdString();
    if (stops.empty()) return;
    const Widgets wanted = beginningAt(stops.front(), read);
    const auto [stop, other] = std::mismatch(stops.begin(), stops.end(), wanted.begin());
    if (stop == stops.end()) return;
    std::string order;
    for (const QWidget* each : wanted) order += " " + each->objectName().toStdString();
    ADD_FAILURE() << nameOf(**stop) << " comes before " << nameOf(**other) << ":" << order;
  });
}

// A mark that only differs by a shade can't be told by everybody, nor can one of a few dots: a line
// along the lesser side is the least.
TEST_F(ReachTest, TheFocusIsVisibleEverywhere) {
  static constexpr double kOfAMark = 3;
  forEachPage([](QWidget& form, const Widgets&) {
    for (QWidget* stop : tabStops(form)) {
      stop->setFocus(Qt::TabFocusReason);
      const QImage with = pictureOf(*stop);
      stop->clearFocus();
      EXPECT_GE(pixelsOfContrast(kOfAMark, with, pictureOf(*stop)),
                std::min(stop->width(), stop->height()))
          << nameOf(*stop);
    }
  });
}

// On a screen that can't hold all of a form, what gets the focus comes on view.
TEST_F(ReachTest, WhatHasTheFocusIsOnView) {
  forEachPage([](QWidget& form, const Widgets&) {
    constexpr QSize kSmallScreen(910, 448);
    form.resize(form.size().boundedTo(kSmallScreen));
    layOut();
    tabStops(form, [](QWidget& stop) {
      EXPECT_EQ(stop.visibleRegion().boundingRect(), stop.rect()) << nameOf(stop);
    });
  });
}

// The pages have been left at their far end.
TEST_F(ReachTest, WhatTheTabKeyComesToFromOutsideIsOnView) {
  int seen = 0;
  forEachPage([&](QWidget& form, const Widgets&) {
    constexpr QSize kNarrow(910, 240);
    const auto* area = form.findChild<QScrollArea*>();
    if (area == nullptr) return;
    form.resize(kNarrow.expandedTo(form.minimumSizeHint()));
    layOut();
    area->verticalScrollBar()->setValue(area->verticalScrollBar()->maximum());
    const bool hasMoved = area->verticalScrollBar()->value() > 0;
    tabStops(form, [&](QWidget& stop) {
      EXPECT_EQ(stop.visibleRegion().boundingRect(), stop.rect()) << nameOf(stop);
      seen += hasMoved && area->isAncestorOf(&stop) ? 1 : 0;
    });
  });
  EXPECT_GT(seen, 0);
}

}  // namespace
}  // namespace gsm
