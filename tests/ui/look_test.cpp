// The look is light on every desktop. scripts/check-desktops runs this on dark ones too.

#include "ui/views/look.h"

#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QIcon>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QPalette>
#include <QPushButton>
#include <QToolTip>
#include <algorithm>
#include <array>
#include <map>
#include <memory>

#include "tests/support/desktop/colour_contrast.h"
#include "tests/support/desktop/desktop_fixture.h"

namespace gsm {
namespace {

double contrastOf(const QColor& one, const QColor& other) {
  return contrast(one.rgb(), other.rgb());
}

constexpr double kReadable = 4.5;
constexpr double kLight = 17;  // of the 21 that white has to black

struct Pair {
  QPalette::ColorRole ink;
  QPalette::ColorRole ground;
};
constexpr std::array kPairs = {
    Pair{QPalette::WindowText, QPalette::Window}, Pair{QPalette::Text, QPalette::Base},
    Pair{QPalette::Text, QPalette::AlternateBase}, Pair{QPalette::ButtonText, QPalette::Button},
    Pair{QPalette::ToolTipText, QPalette::ToolTipBase}};

class LookTest : public DesktopTest {
 protected:
  // What is mostly there is the ground; of the rest there is something that can be read on it.
  static void expectReadable(QWidget& widget) {
    const QImage picture = widget.grab().toImage();
    std::map<QRgb, int> colours;
    for (int y = 0; y < picture.height(); ++y) {
      for (int x = 0; x < picture.width(); ++x) ++colours[picture.pixel(x, y)];
    }
    const QColor ground =
        std::max_element(colours.begin(), colours.end(), [](auto& one, auto& two) {
          return one.second < two.second;
        })->first;
    double best = 0;
    for (const auto& [colour, times] : colours) best = std::max(best, contrastOf(colour, ground));
    EXPECT_GE(contrastOf(ground, Qt::black), kLight) << ground.name().toStdString();
    EXPECT_GE(best, kReadable);
  }
};

TEST_F(LookTest, PalettesAreLightForWhateverQtMakes) {
  for (const char* kind :
       {"QWidget", "QLabel", "QPushButton", "QComboBox", "QLineEdit", "QListView", "QMenu",
        "QMessageBox", "QMessageBoxLabel", "QTabBar", "QToolTip"}) {
    const QPalette palette = QApplication::palette(kind);
    for (const Pair& pair : kPairs) {
      for (const auto group : {QPalette::Active, QPalette::Inactive}) {
        const QColor ground = palette.color(group, pair.ground);
        EXPECT_GE(contrastOf(ground, Qt::black), kLight) << kind << " " << pair.ground;
        EXPECT_GE(contrastOf(palette.color(group, pair.ink), ground), kReadable)
            << kind << " " << pair.ink;
      }
    }
    EXPECT_GE(
        contrastOf(palette.color(QPalette::HighlightedText), palette.color(QPalette::Highlight)),
        kReadable)
        << kind;
  }
}

// A dark program may have set what the desktop would have.
TEST_F(LookTest, IsTheSameWhateverColoursWereThereBefore) {
  const QPalette light = QApplication::palette();
  const QPalette dark(Qt::black);
  QApplication::setPalette(dark);
  QApplication::setPalette(dark, "QMenu");
  QToolTip::setPalette(dark);
  dressApplication();
  EXPECT_EQ(QApplication::palette(), light);
  EXPECT_EQ(QApplication::palette("QMenu"), light);
  EXPECT_EQ(QToolTip::palette(), light);
}

TEST_F(LookTest, AMessageBoxIsReadable) {
  QMessageBox box(QMessageBox::Critical, "GSM", "No Modem Device Found", QMessageBox::Ok);
  box.show();
  settle();
  expectReadable(box);
  expectReadable(*box.button(QMessageBox::Ok));
}

TEST_F(LookTest, TheMenuOfAFieldIsReadable) {
  QLineEdit field("+33639981201");
  const std::unique_ptr<QMenu> menu(field.createStandardContextMenu());
  menu->ensurePolished();
  menu->resize(menu->sizeHint());
  expectReadable(*menu);
}

TEST_F(LookTest, TheListOfAComboIsReadable) {
  QComboBox combo;
  for (int entry = 0; entry < 5; ++entry) combo.addItem("9600");
  combo.setCurrentIndex(-1);
  combo.show();
  combo.showPopup();
  settle();
  expectReadable(*combo.view());
  combo.hidePopup();
}

TEST_F(LookTest, ATipIsReadable) {
  QWidget window;
  window.resize(200, 100);
  window.show();
  QToolTip::showText(window.mapToGlobal(QPoint(10, 10)), "held by 812 (minicom)", &window);
  QWidget* tip = nullptr;
  for (QWidget* each : QApplication::topLevelWidgets()) {
    if (each->inherits("QTipLabel") && each->isVisible()) tip = each;
  }
  ASSERT_NE(tip, nullptr);
  expectReadable(*tip);
  QToolTip::hideText();
}

// Desktops show the icon small in a list and large in a menu, at three times the scale too.
TEST_F(LookTest, TheIconIsSharpInEverySize) {
  const QIcon icon(":/icons/gsm-application.svg");
  for (const int size : {16, 22, 48, 256}) {
    const QPixmap drawn = icon.pixmap(QSize(size, size), 3);
    EXPECT_EQ(drawn.size(), QSize(3 * size, 3 * size));
    EXPECT_NE(drawn.toImage(), icon.pixmap(QSize(size, size), 1).scaled(drawn.size()).toImage());
  }
}

}  // namespace
}  // namespace gsm
