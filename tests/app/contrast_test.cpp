// Every text that is there to be read stands out from its ground, in each state that it may be in.
// What is out of reach is left out, as usual: that it is pale says so. What is marked in a box is
// not looked at; it has the colours of a picked row.

#include <gtest/gtest.h>

#include <QApplication>
#include <QComboBox>
#include <QGroupBox>
#include <QHoverEvent>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMessageBox>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollArea>
#include <QSignalBlocker>
#include <QTabBar>
#include <algorithm>
#include <array>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "panel/form1.h"
#include "tests/app/form_pages.h"
#include "tests/support/desktop/colour_contrast.h"
#include "ui/views/look.h"
#include "ui/views/screen_text.h"

namespace gsm {
namespace {

constexpr double kOfText = 4.5;
constexpr int kScale = 2;  // so that strokes have pixels of the ink alone, and not of its edge

// Writes `text` onto a widget of a kind that has one; false for the others. Nobody hears of it.
bool write(QWidget& widget, const QString& text) {
  const QSignalBlocker quiet(widget);
  if (auto* label = qobject_cast<QLabel*>(&widget)) {
    label->setText(text);
  } else if (auto* button = qobject_cast<QAbstractButton*>(&widget)) {
    button->setText(text);
  } else if (auto* box = qobject_cast<QGroupBox*>(&widget)) {
    box->setTitle(text);
  } else if (auto* line = qobject_cast<QLineEdit*>(&widget)) {
    line->setText(text.trimmed());  // even a blank has its asterisk
    line->home(false);              // where the cursor is, it is with every text
  } else if (auto* lines = qobject_cast<QPlainTextEdit*>(&widget)) {
    lines->setPlainText(text);
  } else if (auto* list = qobject_cast<QListWidget*>(&widget)) {
    for (int row = list->count(); row < 2; ++row) list->addItem(text);
    for (int row = 0; row < list->count(); ++row) list->item(row)->setText(text);
  } else if (auto* combo = qobject_cast<QComboBox*>(&widget)) {
    if (combo->count() == 0) combo->addItem(text);
    combo->setCurrentIndex(0);
    combo->setItemText(0, text);
    if (combo->isEditable()) write(*combo->lineEdit(), text);
  } else {
    return false;
  }
  return true;
}

// What a user's doings make of a widget.
struct State {
  const char* name = "";
  bool isFocused = false;
  bool isHovered = false;
  bool isPressed = false;
  bool isBusy = false;
};

constexpr std::array<State, 5> kStates = {{
    {.name = "at rest"},
    {.name = "with the focus", .isFocused = true},
    {.name = "under the pointer", .isHovered = true},
    {.name = "pressed", .isPressed = true},
    {.name = "busy", .isBusy = true},
}};

// Only buttons look otherwise while they are pressed, and only what takes the focus with it.
bool canBe(const QWidget& widget, const State& state) {
  if (state.isPressed) return qobject_cast<const QPushButton*>(&widget) != nullptr;
  return !state.isFocused || (widget.focusPolicy() != Qt::NoFocus && widget.isEnabled());
}

constexpr QPoint kBeside(-1, -1);

// Buttons and what has parts want to know where it is.
void pointAt(QWidget& widget, const QPoint& place) {
  widget.setAttribute(Qt::WA_UnderMouse, widget.rect().contains(place));
  const QPoint onScreen = widget.mapToGlobal(place);
  QMouseEvent move(QEvent::MouseMove, place, onScreen, Qt::NoButton, Qt::NoButton, Qt::NoModifier);
  QApplication::sendEvent(&widget, &move);
  QHoverEvent hover(QEvent::HoverMove, place, onScreen, place);
  QApplication::sendEvent(&widget, &hover);
}

void put(QWidget& widget, const State& state) {
  if (state.isFocused) widget.setFocus();
  if (!state.isFocused) widget.clearFocus();
  pointAt(widget, state.isHovered ? widget.rect().center() : kBeside);
  auto* button = qobject_cast<QPushButton*>(&widget);
  if (button != nullptr) button->setDown(state.isPressed);
  const bool wasBusy = widget.property("busy").isValid();
  if (state.isBusy == wasBusy) return;
  widget.setProperty("busy", state.isBusy ? QVariant(true) : QVariant());
  polishAnew(widget);
}

// As large as it has to be for all of its pages to be on view.
void giveRoom(QWidget& form) {
  for (auto* area : form.findChildren<QScrollArea*>()) {
    area->setMinimumHeight(area->widget()->sizeHint().height());
  }
}

class ContrastTest : public FormPagesTest {
 protected:
  // The contrast of what is written on `widget`, an m as wide as its room; of what is in `place` of
  // it, where that is given.
  static double measured(QWidget& widget, const QRect& place) {
    write(widget, "M");
    layOut();
    const QImage written = pictureOf(widget, kScale);
    write(widget, " ");
    const QImage blank = pictureOf(widget, kScale);
    write(widget, "M");
    const QRect part(place.topLeft() * kScale, place.size() * kScale);
    return mostContrast(written.copy(part), blank.copy(part));
  }
  static double measured(QWidget& widget) { return measured(widget, widget.rect()); }

  static std::vector<QWidget*> textsOn(QWidget& form) {
    std::vector<QWidget*> texts;
    for (QWidget* widget : form.findChildren<QWidget*>()) {
      const bool isPart = widget->objectName().isEmpty() || widget->objectName().startsWith("qt_");
      const bool isPicture = widget->property("picture").isValid();
      if (widget->isVisible() && !isPart && !isPicture) texts.push_back(widget);
    }
    return texts;
  }
};

TEST_F(ContrastTest, BlackOnWhiteHasTheMostThereIs) {
  EXPECT_NEAR(contrast(qRgb(0, 0, 0), qRgb(255, 255, 255)), 21, 0.01);
  EXPECT_NEAR(contrast(qRgb(0x77, 0x77, 0x77), qRgb(255, 255, 255)), 4.48, 0.01);
  EXPECT_NEAR(contrast(qRgb(9, 9, 9), qRgb(9, 9, 9)), 1, 0.01);
}

TEST_F(ContrastTest, OfEveryText) {
  int seen = 0;
  forEachPage([&](QWidget& form, const std::vector<QWidget*>&) {
    giveRoom(form);
    for (QWidget* widget : textsOn(form)) {
      for (const State& state : kStates) {
        if (!canBe(*widget, state) || !write(*widget, "M")) continue;
        put(*widget, state);
        EXPECT_GE(measured(*widget), kOfText) << nameOf(*widget) << " " << state.name;
        ++seen;
      }
      put(*widget, kStates[0]);
    }
  });
  EXPECT_GT(seen, 1000);
}

// Tabs have no other ground than the strip's, so the picture of a tab's words will do.
TEST_F(ContrastTest, OfEveryTab) {
  int seen = 0;
  forEachPage([&](QWidget& form, const std::vector<QWidget*>&) {
    for (auto* strip : form.findChildren<QTabBar*>()) {
      const QSignalBlocker quiet(strip);
      for (int tab = 0; tab < strip->count(); ++tab) {
        constexpr QMargins kAroundWords{14, 6, 14, 8};
        const QRect words = strip->tabRect(tab).marginsRemoved(kAroundWords);
        const auto look = [&](const char* state) {
          const QImage picture =
              pictureOf(form, words.translated(strip->mapTo(&form, QPoint())), kScale);
          QImage ground(picture.size(), picture.format());
          ground.fill(picture.pixel(0, 0));
          EXPECT_GE(mostContrast(picture, ground), kOfText)
              << nameOf(*strip) << " " << tab << " " << state;
          ++seen;
        };
        strip->clearFocus();
        strip->setCurrentIndex((tab + 1) % strip->count());
        look("one of the others");
        pointAt(*strip, words.center());
        look("under the pointer");
        pointAt(*strip, kBeside);
        strip->setCurrentIndex(tab);
        look("on view");
        strip->setFocus();
        look("with the focus");
      }
    }
  });
  EXPECT_GT(seen, 0);
}

TEST_F(ContrastTest, OfEveryRow) {
  forEachPage([](QWidget& form, const std::vector<QWidget*>&) {
    for (auto* list : form.findChildren<QListWidget*>()) {
      if (!list->isVisible()) continue;
      const QSignalBlocker quiet(list);
      write(*list, "M");
      layOut();
      const QRect row = list->visualItemRect(list->item(0)).translated(list->viewport()->pos());
      pointAt(*list->viewport(), list->visualItemRect(list->item(0)).center());
      EXPECT_GE(measured(*list, row), kOfText) << nameOf(*list) << " under the pointer";
      pointAt(*list->viewport(), kBeside);
      list->setCurrentRow(0);
      for (const bool isFocused : {false, true}) {
        put(*list, {.isFocused = isFocused});
        EXPECT_GE(measured(*list, row), kOfText) << nameOf(*list) << " picked " << isFocused;
      }
      list->clearSelection();
    }
  });
}

// The header's badge has a colour for each state of the port.
TEST_F(ContrastTest, OfTheBadge) {
  QWidget& form = *screen_.widget(panel_.form1);
  form.show();
  auto& badge = dynamic_cast<QLabel&>(*screen_.widget(panel_.form1.Label1));
  for (const bool isGone : {false, true}) {
    badge.setText("Open");
    badge.setProperty("gone", isGone);
    polishAnew(badge);
    EXPECT_GE(measured(badge), kOfText) << isGone;
  }
}

// Marks that the panel itself puts: on a button, and on words of success and of failure.
TEST_F(ContrastTest, OfWhatThePanelColours) {
  constexpr int kNews = 0xC0C0FF;
  QWidget& form = *screen_.widget(panel_.form1);
  form.show();
  QWidget& button = *screen_.widget(panel_.form1.Command3);
  screen_.widget(panel_.form1.Frame5)->hide();
  button.setEnabled(true);
  showColour(button, {}, "background-color", kNews, kButtonGrey);
  EXPECT_GE(measured(button), kOfText);
  for (const int words : {0x400000, 0x0000C0}) {
    QWidget& label = *screen_.widget(panel_.form1.Label9);
    showColour(label, {}, "color", words, kBlack);
    EXPECT_GE(measured(label), kOfText) << words;
  }
}

using Pictures = std::vector<std::pair<std::string, QImage>>;

Pictures ofWhatIsNoForm() {
  QLineEdit line("a line");
  QComboBox combo;
  combo.addItems({"one", "two"});
  QMessageBox box;
  box.setText("a message");
  const std::unique_ptr<QMenu> menu(line.createStandardContextMenu());
  Pictures taken;
  for (QWidget* widget : {static_cast<QWidget*>(combo.view()), static_cast<QWidget*>(&box),
                          static_cast<QWidget*>(menu.get())}) {
    widget->resize(widget->sizeHint());
    taken.emplace_back(widget->metaObject()->className(), widget->grab().toImage());
  }
  return taken;
}

// The colours are the program's own under every theme of the desktop.
TEST_F(ContrastTest, ADarkDesktopChangesNothing) {
  const auto pictures = [this] {
    Pictures taken = ofWhatIsNoForm();
    forEachPage([&](QWidget& form, const std::vector<QWidget*>&) {
      taken.emplace_back(form.objectName().toStdString(), pictureOf(form, form.rect(), kScale));
    });
    return taken;
  };
  const Pictures usual = pictures();
  QApplication::setPalette(QPalette(QColor(0x20, 0x20, 0x20)));
  dressApplication();
  const Pictures dark = pictures();
  // Qt draws the edges of letters otherwise by a hair once others have been on view. What takes a
  // dark desktop's colours differs by far more: its ground is 16 to 1 from this one's.
  constexpr double kHair = 2;
  ASSERT_EQ(dark.size(), usual.size());
  for (std::size_t page = 0; page < usual.size(); ++page) {
    ASSERT_EQ(dark[page].second.size(), usual[page].second.size()) << usual[page].first;
    EXPECT_LT(mostContrast(dark[page].second, usual[page].second), kHair) << usual[page].first;
  }
}

}  // namespace
}  // namespace gsm
