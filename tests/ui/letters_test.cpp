#include "ui/views/letters.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <cstdlib>
#include <string>

#include "controls/controls.h"
#include "tests/support/desktop/desktop_fixture.h"
#include "ui/views/look.h"

namespace gsm {
namespace {

// A desktop whose letters change.
class LettersTest : public FormTest {
 protected:
  ~LettersTest() override {
    QApplication::setFont(usual_);
    takeDesktopsLetters();
  }

  static void choose(int points) {
    QFont font = QApplication::font();
    font.setPointSize(points);
    QApplication::setFont(font);
    takeDesktopsLetters();
  }

  static int pointsOf(QWidget& widget) {
    widget.ensurePolished();
    return widget.font().pointSize();
  }

  Window window_{platform(), "AnyWindow", {}};

 private:
  const QFont usual_ = QApplication::font();
};

TEST_F(LettersTest, AreThoseOfTheStyleSheetOnMostDesktops) {
  for (const int points : {8, 9, 10, 11}) {
    choose(points);
    EXPECT_EQ(growthOfLetters(), 1) << points;
    EXPECT_EQ(pointsOf(put<QLabel>("Label1")), 10) << points;
  }
}

TEST_F(LettersTest, AreTheDesktopsWhereThoseAreLarge) {
  choose(20);
  auto& status = put<QLabel>("Label2");
  status.setProperty("role", "status");
  EXPECT_EQ(pointsOf(put<QLabel>("Label1")), 20);
  EXPECT_EQ(pointsOf(status), 22);
}

// On a desktop that the surroundings say the letters of.
TEST_F(LettersTest, AreThoseThatTheDesktopSays) {
  const char* points = std::getenv("GSM_DESKTOP_LETTERS");
  if (points == nullptr) GTEST_SKIP() << "nobody says";
  EXPECT_EQ(QApplication::font().pointSize(), std::stoi(points));
  EXPECT_EQ(pointsOf(put<QLabel>("Label1")), std::stoi(points));
}

TEST_F(LettersTest, GrowWithTheSignsOnKeysAndTheRoomAboveGroups) {
  const QString sheet =
      "a { font-size: 10pt; padding: 4px } b { font-size: 22px; margin-top: 28px }";
  EXPECT_EQ(grownWithLetters(sheet, 1), sheet);
  EXPECT_EQ(grownWithLetters(sheet, 1.5),
            "a { font-size: 15pt; padding: 4px } b { font-size: 33px; margin-top: 42px }");
}

TEST_F(LettersTest, TakeWhatTheFormFixesWithThem) {
  auto& label = put<QLabel>("Label1");
  label.setMinimumSize(0, 24);
  label.setMaximumSize(QWIDGETSIZE_MAX, 24);
  auto& button = put<QPushButton>("Command1");
  button.setIconSize({16, 16});
  form().resize(200, 100);
  auto* grid = new QGridLayout(&form());
  grid->setColumnMinimumWidth(0, 60);
  growWithLetters(form(), 1.5);
  EXPECT_EQ(label.minimumSize(), QSize(0, 36));
  EXPECT_EQ(label.maximumSize(), QSize(QWIDGETSIZE_MAX, 36));
  EXPECT_EQ(button.iconSize(), QSize(24, 24));
  EXPECT_EQ(grid->columnMinimumWidth(0), 90);
  EXPECT_EQ(form().size(), QSize(300, 150));
}

TEST_F(LettersTest, GrowOnEveryWindow) {
  choose(20);
  form().setMinimumSize(100, 50);
  bind(window_);
  EXPECT_EQ(form().minimumSize(), QSize(200, 100));
}

}  // namespace
}  // namespace gsm
