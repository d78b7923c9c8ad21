// Every text that is there to be read stands out from its ground, in each state that it may be in.
// What is out of reach is left out, as usual: that it is pale says so.

#include <gtest/gtest.h>

#include <QApplication>
#include <QComboBox>
#include <QGroupBox>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPainter>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalBlocker>
#include <QTabBar>
#include <algorithm>
#include <array>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "panel/form1.h"
#include "tests/app/colour_contrast.h"
#include "tests/app/form_pages.h"
#include "ui/views/look.h"
#include "ui/views/screen_text.h"

namespace gsm {
namespace {

constexpr double kOfText = 4.5;
constexpr int kScale = 3;  // so that strokes have pixels of the ink alone

// A part of a form's picture, taken larger than life.
QImage pictureOf(QWidget& form, const QRect& place) {
  QImage picture(place.size() * kScale, QImage::Format_RGB32);
  picture.setDevicePixelRatio(kScale);
  QPainter painter(&picture);
  form.render(&painter, QPoint(), QRegion(place));
  return picture;
}

QRect placeOf(const QWidget& widget) {
  return {widget.mapTo(widget.window(), QPoint()), widget.size()};
}

// Of the ink, where strokes are full: edges are mixed with the ground.
double contrastOf(const QImage& written, const QImage& blank) {
  double most = 0;
  for (int y = 0; y < written.height(); ++y) {
    for (int x = 0; x < written.width(); ++x) {
      if (written.pixel(x, y) == blank.pixel(x, y)) continue;
      most = std::max(most, contrast(written.pixel(x, y), blank.pixel(x, y)));
    }
  }
  return most;
}

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
  } else if (auto* lines = qobject_cast<QPlainTextEdit*>(&widget)) {
    lines->setPlainText(text);
  } else if (auto* list = qobject_cast<QListWidget*>(&widget)) {
    for (int row = list->count(); row < 2; ++row) list->addItem(text);
    for (int row = 0; row < list->count(); ++row) list->item(row)->setText(text);
  } else if (auto* combo = qobject_cast<QComboBox*>(&widget)) {
    if (combo->count() == 0) combo->addItem(text);
    combo->setCurrentIndex(0);
    combo->setItemText(0, text);
    if (combo->isEditable()) combo->setEditText(text);
  } else {
    return false;
  }
  return true;
}

// What a user's doings make of a widget.
struct State {
  const char* name;
  bool isHovered = false;
  bool isPressed = false;
  bool isBusy = false;
};

constexpr std::array<State, 4> kStates = {{
    {.name = "at rest"},
    {.name = "under the pointer", .isHovered = true},
    {.name = "pressed", .isPressed = true},
    {.name = "busy", .isBusy = true},
}};

void put(QWidget& widget, const State& state) {
  widget.setAttribute(Qt::WA_UnderMouse, state.isHovered);
  auto* button = qobject_cast<QPushButton*>(&widget);
  if (button != nullptr) button->setDown(state.isPressed);
  widget.setProperty("busy", state.isBusy ? QVariant(true) : QVariant());
  polishAnew(widget);
}

class ContrastTest : public FormPagesTest {
 protected:
  // The contrast of what is written on `widget`, an m as wide as its room.
  static double measured(QWidget& widget) {
    write(widget, "M");
    settleLayout(widget);
    const QImage written = pictureOf(*widget.window(), placeOf(widget));
    write(widget, " ");
    const QImage blank = pictureOf(*widget.window(), placeOf(widget));
    write(widget, "M");
    return contrastOf(written, blank);
  }

  static void settleLayout(QWidget& widget) {
    widget.updateGeometry();
    QApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
  }

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
    constexpr QSize kRoomForAll(1600, 1400);
    form.resize(kRoomForAll);
    settle();
    for (QWidget* widget : textsOn(form)) {
      for (const State& state : kStates) {
        put(*widget, state);
        if (!write(*widget, "M")) continue;
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
  forEachPage([&](QWidget&, const std::vector<QWidget*>& usable) {
    for (QWidget* widget : usable) {
      auto* strip = qobject_cast<QTabBar*>(widget);
      if (strip == nullptr) continue;
      const QSignalBlocker quiet(strip);
      for (int tab = 0; tab < strip->count(); ++tab) {
        constexpr QMargins kAroundWords{14, 6, 14, 8};
        const QRect words = strip->tabRect(tab).marginsRemoved(kAroundWords);
        for (const int chosen : {tab, (tab + 1) % strip->count()}) {
          strip->setCurrentIndex(chosen);
          const QImage picture =
              pictureOf(*strip->window(), words.translated(placeOf(*strip).topLeft()));
          const QImage ground(picture.size(), picture.format());
          QImage plain = ground;
          plain.fill(picture.pixel(0, 0));
          EXPECT_GE(contrastOf(picture, plain), kOfText) << nameOf(*strip) << " " << tab;
          ++seen;
        }
      }
    }
  });
  EXPECT_GT(seen, 0);
}

TEST_F(ContrastTest, OfWhatIsPicked) {
  forEachPage([](QWidget& form, const std::vector<QWidget*>&) {
    for (auto* list : form.findChildren<QListWidget*>()) {
      if (!list->isVisible()) continue;
      write(*list, "M");
      const QSignalBlocker quiet(list);
      list->setCurrentRow(0);
      EXPECT_GE(measured(*list), kOfText) << nameOf(*list);
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

// The colours are the program's own under every theme of the desktop.
TEST_F(ContrastTest, ADarkDesktopChangesNothing) {
  const auto pictures = [this] {
    std::vector<std::pair<std::string, QImage>> taken;
    forEachPage([&](QWidget& form, const std::vector<QWidget*>&) {
      taken.emplace_back(form.objectName().toStdString(), pictureOf(form, form.rect()));
    });
    return taken;
  };
  const auto usual = pictures();
  QApplication::setPalette(QPalette(QColor(0x20, 0x20, 0x20)));
  dressApplication();
  const auto dark = pictures();
  ASSERT_EQ(dark.size(), usual.size());
  for (std::size_t page = 0; page < usual.size(); ++page) {
    EXPECT_TRUE(dark[page] == usual[page]) << usual[page].first;
  }
}

}  // namespace
}  // namespace gsm
