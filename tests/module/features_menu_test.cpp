#include <gtest/gtest.h>

#include "module/form18.h"
#include "module/form19.h"
#include "panel/form7.h"
#include "tests/module/makers_features_test.h"
#include "tests/support/property_watch.h"

namespace gsm {
namespace {

class FeaturesMenu : public MakersFeaturesTest {
 protected:
  void SetUp() override {
    MakersFeaturesTest::SetUp();
    inPanel([this] {
      form1().Show();
      form1().Command12.Enabled = true;
      form1().Label1.Caption = "Open";
      form1().Frame5.Visible = false;
    });
    run(0);
    click(form1().Command12);
  }
  void closeMenu() {
    inPanel([this] { menu().userClose(); });
    run(0);
  }
};

TEST_F(FeaturesMenu, ComesUpInTheMainWindowsPlaceAndSendsNothing) {
  EXPECT_TRUE(menu().Visible.peek());
  EXPECT_FALSE(form1().Visible.peek());
  EXPECT_EQ(menu().Caption.peek(), "GSM-Others FeaTures");
  EXPECT_EQ(caption(menu().Label1), "");
  settle();
  EXPECT_EQ(sent(), Texts{});
}

TEST_F(FeaturesMenu, ClosingItBringsTheMainWindowBackWithItsStatusLine) {
  inPanel([this] { form1().Label5.Caption = "Please Wait..."; });
  run(0);
  closeMenu();
  EXPECT_TRUE(form1().Visible.peek());
  EXPECT_FALSE(menu().Visible.peek());
  EXPECT_FALSE(menu().isLoaded());
  EXPECT_EQ(caption(form1().Label5), "Please Wait...");
  settle();
  EXPECT_EQ(sent(), Texts{});
}

TEST_F(FeaturesMenu, TheMainWindowComesBackBeforeItGoes) {
  bool mainWasUp = false;
  const PropertyWatch watch(menu(), [&](PropertyId property) {
    if (property == PropertyId::Visible) mainWasUp = form1().Visible.peek();
  });
  closeMenu();
  EXPECT_TRUE(mainWasUp);
}

TEST_F(FeaturesMenu, MinimisingAndRestoringItTakesTheStatusWindowAlong) {
  const auto setState = [this](int state) {
    inPanel([this, state] { menu().userState(state); });
    run(0);
    return panel().form7.WindowState.peek();
  };
  EXPECT_EQ(setState(WindowState::minimised), WindowState::minimised);
  EXPECT_EQ(setState(WindowState::maximised), WindowState::minimised);
  EXPECT_EQ(setState(WindowState::normal), WindowState::normal);
  EXPECT_EQ(setState(WindowState::maximised), WindowState::normal);
}

TEST_F(FeaturesMenu, SaysPleaseWaitUntilTheMakersFeaturesHaveRead) {
  click(menu().Command1);
  EXPECT_EQ(caption(menu().Label1), "Please Wait");
  EXPECT_TRUE(menu().Visible.peek());
  EXPECT_FALSE(form().Visible.peek());
  EXPECT_EQ(sent(), Texts{"AT+CIND?\r"});
  run(1.99);
  EXPECT_EQ(caption(menu().Label1), "Please Wait");
  EXPECT_TRUE(menu().Visible.peek());
  run(0.02);
  EXPECT_EQ(caption(menu().Label1), "");
  EXPECT_FALSE(menu().Visible.peek());
  EXPECT_TRUE(menu().isLoaded());
  EXPECT_TRUE(form().Visible.peek());
  EXPECT_EQ(form().Caption.peek(), "GSM-Wavecom Features");
  expectAtRest();
}

// A window that the menu opens, and the title that it gives it.
struct OpenRow {
  std::string name;
  CommandButton Form16::*button;
  Window& (*window)(Panel& panel);
  std::string designed;
  std::string given;
};

class FeaturesMenuOpens : public FeaturesMenu, public ::testing::WithParamInterface<OpenRow> {
 protected:
  CommandButton& button() { return menu().*GetParam().button; }
  Window& window() { return GetParam().window(panel()); }
};

TEST_P(FeaturesMenuOpens, TheWindowThenGivesItsTitleThenHides) {
  Texts steps;
  const PropertyWatch ofLabel(menu().Label1, [&](PropertyId property) {
    if (property == PropertyId::Caption) steps.push_back(caption(menu().Label1));
  });
  const PropertyWatch ofMenu(menu(), [&](PropertyId property) {
    if (property == PropertyId::Visible) steps.emplace_back("the menu goes");
  });
  const PropertyWatch ofWindow(window(), [&](PropertyId property) {
    if (property == PropertyId::Visible) steps.push_back("comes as " + window().Caption.peek());
    if (property == PropertyId::Caption) steps.push_back("is " + window().Caption.peek());
  });
  press(button());
  Texts expected = {"Please Wait", "comes as " + GetParam().designed};
  if (!GetParam().given.empty()) expected.push_back("is " + GetParam().given);
  expected.insert(expected.end(), {"the menu goes", ""});
  EXPECT_EQ(steps, expected);
  EXPECT_TRUE(window().Visible.peek());
  EXPECT_FALSE(menu().Visible.peek());
  expectAtRest();
}

TEST_P(FeaturesMenuOpens, TheWindowThatBringsItBack) {
  press(button());
  inPanel([this] { window().userClose(); });
  settle();
  EXPECT_TRUE(menu().Visible.peek());
  EXPECT_FALSE(window().Visible.peek());
  EXPECT_FALSE(window().isLoaded());
  EXPECT_FALSE(form1().Visible.peek());
}

TEST_P(FeaturesMenuOpens, TheWindowAnewEachTime) {
  press(button());
  const Texts first = sent();
  inPanel([this] { window().userClose(); });
  settle();
  EXPECT_EQ(sent(), Texts{});
  press(button());
  EXPECT_EQ(sent(), first);
}

TEST_P(FeaturesMenuOpens, AWindowWhoseTitleStandsUntilItIsLoadedAnew) {
  const std::string title = GetParam().given.empty() ? GetParam().designed : GetParam().given;
  press(button());
  inPanel([this] { window().Hide(); });
  run(0);
  inPanel([this] { window().Show(); });
  settle();
  EXPECT_EQ(window().Caption.peek(), title);
  inPanel([this] { window().userClose(); });
  settle();
  inPanel([this] { window().Show(); });
  settle();
  EXPECT_EQ(window().Caption.peek(), GetParam().designed);
}

// The second press finds the window loaded, and shows it at once.
TEST_P(FeaturesMenuOpens, TheWindowOnceWhenItIsPressedTwice) {
  click(button());
  if (menu().Visible.peek()) click(button());
  EXPECT_TRUE(window().Visible.peek());
  EXPECT_FALSE(menu().Visible.peek());
  settle();
  EXPECT_TRUE(window().Visible.peek());
  EXPECT_EQ(caption(menu().Label1), "");
  EXPECT_LE(sent().size(), 1U);
  expectAtRest();
}

TEST_P(FeaturesMenuOpens, TheWindowOverAClosedPort) {
  closePort();
  press(button());
  EXPECT_TRUE(window().Visible.peek());
  EXPECT_FALSE(menu().Visible.peek());
  EXPECT_EQ(caption(menu().Label1), "");
  expectAtRest();
}

TEST_P(FeaturesMenuOpens, MinimisingAndRestoringTheWindowTakesTheStatusWindowAlong) {
  press(button());
  inPanel([this] { window().userState(WindowState::minimised); });
  run(0);
  EXPECT_EQ(panel().form7.WindowState.peek(), WindowState::minimised);
  inPanel([this] { window().userState(WindowState::normal); });
  run(0);
  EXPECT_EQ(panel().form7.WindowState.peek(), WindowState::normal);
}

INSTANTIATE_TEST_SUITE_P(
    Of, FeaturesMenuOpens,
    ::testing::Values(OpenRow{.name = "MakersFeatures",
                              .button = &Form16::Command1,
                              .window = [](Panel& panel) -> Window& { return panel.form17; },
                              .designed = "GSM-Wavecom Features",
                              .given = ""},
                      OpenRow{.name = "SimToolkit",
                              .button = &Form16::Command2,
                              .window = [](Panel& panel) -> Window& { return panel.form18; },
                              .designed = "GSM-SIM TOOl KIT SETTINGS",
                              .given = "GSM-SIM TOOLKIT Facility"},
                      OpenRow{.name = "PacketContexts",
                              .button = &Form16::Command3,
                              .window = [](Panel& panel) -> Window& { return panel.form19; },
                              .designed = "GSM-GPRS SETTINGS",
                              .given = "GSM-GPRS Configuration"}),
    RowName());

// It goes on opening: the menu is loaded anew by the handler's next word to it, and stays hidden.
TEST_F(FeaturesMenu, ClosedWhileAWindowReadsItOpensTheWindowBesideTheMainOne) {
  click(menu().Command1);
  run(0.5);
  closeMenu();
  EXPECT_FALSE(menu().isLoaded());
  EXPECT_TRUE(form1().Visible.peek());
  settle();
  EXPECT_TRUE(form().Visible.peek());
  EXPECT_FALSE(menu().Visible.peek());
  EXPECT_TRUE(menu().isLoaded());
  EXPECT_TRUE(form1().Visible.peek());
  expectAtRest();
}

}  // namespace
}  // namespace gsm
