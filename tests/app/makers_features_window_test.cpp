// What only the desktop shows of the window of the maker's own features.

#include <gtest/gtest.h>

#include <QLabel>
#include <string>

#include "app/windows.h"
#include "module/form17.h"
#include "tests/support/desktop/desktop_fixture.h"

namespace gsm {
namespace {

class MakersFeaturesWindow : public DesktopTest {
 protected:
  MakersFeaturesWindow() {
    screen_.bind(platform().windows);
    platform().handlers.run([this] { window().Show(); });
    settle();
  }

  Form17& window() { return windows_.panel.form17; }
  QWidget& widget(const Control& control) { return *screen_.widget(control); }
  QWidget& form() { return *screen_.widget(window()); }

  // As small as the window may be, the text stands in its label whole.
  void expectRoomFor(Label& label, const std::string& text) {
    platform().handlers.run([&] { label.Caption = text; });
    form().resize(form().minimumSizeHint());
    settle();
    const auto& shown = dynamic_cast<const QLabel&>(widget(label));
    EXPECT_GE(shown.height(), shown.heightForWidth(shown.width()))
        << label.name() << " is " << shown.width() << " wide";
  }

  Windows windows_{platform()};
  Binder screen_{loop()};
};

TEST_F(MakersFeaturesWindow, TheLongestWordsOfTheIndicatorsAreShownWhole) {
  expectRoomFor(window().Label14,
                "BatteryChargeLevel->5,   signal level-5,   service disabled,   Received New "
                "Message,   Call Received,   Roam Disabled,   SMS Not FULL");
}

TEST_F(MakersFeaturesWindow, TheLongestWordsOfALevelAreShownWhole) {
  expectRoomFor(window().Label5,
                "Indication that an Active,Held or Waiting Call Has Been Released by network or "
                "other Party");
}

TEST_F(MakersFeaturesWindow, AllPagesLieOnOnePlace) {
  struct Page {
    CommandButton& button;
    Frame& frame;
  };
  const Page pages[] = {{window().Command2, window().Frame5},
                        {window().Command3, window().Frame6},
                        {window().Command5, window().Frame9},
                        {window().Command1, window().Frame1}};
  const QSize size = form().size();
  const QPoint place = widget(window().Frame1).pos();
  for (const Page& page : pages) {
    // Over the closed port the reading ends at once.
    platform().handlers.run([&] { page.button.Click.raise(); });
    settle();
    EXPECT_TRUE(widget(page.frame).isVisible()) << page.frame.name();
    EXPECT_EQ(widget(page.frame).pos(), place) << page.frame.name();
    EXPECT_EQ(form().size(), size) << page.frame.name();
  }
}

}  // namespace
}  // namespace gsm
