#include <gtest/gtest.h>

#include "panel/form7.h"
#include "tests/settings/line_settings_test.h"
#include "tests/support/healthy_modem_test.h"
#include "tests/support/property_watch.h"

namespace gsm {
namespace {

// The window itself: how it comes up, what its groups are, how it is left.
class LineSettings : public LineSettingsTest {};

TEST_F(LineSettings, ComeUpEmptyWithTheTenRatesAndAskTheModemNothing) {
  EXPECT_EQ(form().Combo1.List.peek(), (Texts{"300", "600", "1200", "2400", "4800", "9600", "19200",
                                              "38400", "57600", "115200"}));
  EXPECT_EQ(form().Combo1.ListIndex.peek(), -1);
  EXPECT_EQ(form().Combo1.Text.peek(), "");
  EXPECT_EQ(set(), std::vector<int>{});
  EXPECT_EQ(status(), "");
  EXPECT_EQ(form().Caption.peek(), "GSM-Modem Settings");
  EXPECT_EQ(sent(), Texts{});
  expectAtRest();
}

TEST_F(LineSettings, LoadedOverAFilledListFillItAnew) {
  fillIn();
  inPanel([this] { form().userClose(); });
  run(0);
  openWindow();
  EXPECT_EQ(form().Combo1.List.peek().size(), 10U);
  EXPECT_EQ(form().Combo1.Text.peek(), "");
  EXPECT_EQ(set(), std::vector<int>{});
}

TEST_F(LineSettings, AreOneGroupForEachFrame) {
  const std::vector<std::pair<int, int>> groups = {{1, 7},   {8, 12},  {13, 16}, {17, 19},
                                                   {20, 21}, {22, 23}, {24, 26}, {27, 28}};
  std::vector<int> expected;
  for (const auto& [first, last] : groups) {
    expected.push_back(0);
    for (int number = first; number <= last; ++number) {
      click(*options()[static_cast<std::size_t>(number - 1)]);
      expected.back() = number;
      EXPECT_EQ(set(), expected) << number;
    }
  }
}

TEST_F(LineSettings, ClosedBringTheMainWindowBackAndSendNothing) {
  fillIn();
  inPanel([this] {
    form1().Label5.Caption = "as it was";
    form1().Hide();
  });
  run(0);
  inPanel([this] { form().userClose(); });
  settle();
  EXPECT_TRUE(form1().Visible.peek());
  EXPECT_FALSE(form().Visible.peek());
  EXPECT_FALSE(form().isLoaded());
  EXPECT_EQ(form1().Label5.Caption.peek(), "as it was");
  EXPECT_EQ(sent(), Texts{});
  expectAtRest();
}

TEST_F(LineSettings, ClosedBringTheMainWindowBackBeforeTheyGo) {
  inPanel([this] { form1().Hide(); });
  run(0);
  bool mainWasUp = false;
  const PropertyWatch watch(form(), [&](PropertyId property) {
    if (property == PropertyId::Visible) mainWasUp = form1().Visible.peek();
  });
  closeWindow();
  EXPECT_TRUE(mainWasUp);
}

TEST_F(LineSettings, TakeTheStatusWindowAlongWhenMinimised) {
  form().userState(WindowState::minimised);
  run(0);
  EXPECT_EQ(panel().form7.WindowState.peek(), WindowState::minimised);
  form().userState(WindowState::normal);
  run(0);
  EXPECT_EQ(panel().form7.WindowState.peek(), WindowState::normal);
}

struct FramingRow {
  std::string name;
  std::string framing;
  std::string parity;
  std::string shown;
};
class FramingChoice : public LineSettingsTest, public ::testing::WithParamInterface<FramingRow> {};

TEST_P(FramingChoice, IsToldInWords) {
  inPanel([this] { form().ShowFramingChoice(GetParam().framing, GetParam().parity); });
  run(0);
  EXPECT_EQ(framingShown(), GetParam().shown);
}

INSTANTIATE_TEST_SUITE_P(
    Of, FramingChoice,
    ::testing::Values(
        FramingRow{"AutoDetectHasThePrefixTwice", "0", "0",
                   "Character Framing:Character Framing:Auto Detect Parity:Odd"},
        FramingRow{"Eight2", "1", "1", "Character Framing:8 Data,2 Stop Parity:Even"},
        FramingRow{"EightParity", "2", "2", "Character Framing:8 Data,1 Parity,1 Stop Parity:Mark"},
        FramingRow{"Eight1", "3", "3", "Character Framing:8 Data,1 Stop Parity:Space"},
        FramingRow{"Seven2", "4", "4", "Character Framing:7 Data,2 Stop Parity:None"},
        FramingRow{"SevenParity", "5", "0", "Character Framing:7 Data,1 Parity,1 Stop Parity:Odd"},
        FramingRow{"Seven1", "6", "4", "Character Framing:7 Data,1 Stop Parity:None"},
        FramingRow{"UnknownFraming", "7", "4", "Character Framing: Parity:None"},
        FramingRow{"UnknownParity", "3", "5", "Character Framing:8 Data,1 Stop "},
        FramingRow{"NothingKnown", "", "x", "Character Framing: "}),
    RowName());

// The main window's button opens the window over what it has read of the profile.
class OpenedLineSettings : public HealthyModemTest {
 protected:
  Form15& form() { return panel().form15; }
  void open() {
    click(form1().Command11);
    settle();
    sent();
  }
  std::string askedFor() {
    click(form().Command1);
    settle();
    EXPECT_EQ(sent(), Texts{});
    const Texts shown = boxes();
    return shown.size() == 1 ? shown[0] : "";
  }
};

TEST_F(OpenedLineSettings, AskForTheTwoGroupsThatNothingPresets) {
  startUnlocked();
  open();
  close(form());
  open();
  EXPECT_FALSE(form().Option27.Value.peek());
  EXPECT_FALSE(form().Option28.Value.peek());
  EXPECT_EQ(askedFor(), "Error:Set DSR Signal");
  click(form().Option20);
  EXPECT_EQ(askedFor(), "Error:Enable/Disable Echo");
  click(form().Option28);
  click(form().Command1);
  settle();
  EXPECT_EQ(sent(), (Texts{"AT+IPR=115200\r", "AT+ICF=3,4\r", "AT+IFC=2,2\r", "AT&C1\r", "AT&D1\r",
                           "AT&S0\r", "ATE1\r", "AT&W\r"}));
}

TEST_F(OpenedLineSettings, AfterAStartStillHoldWhatTheStartHasRead) {
  startUnlocked();
  open();
  EXPECT_TRUE(form().Option28.Value.peek());
  EXPECT_FALSE(form().Option20.Value.peek());
  EXPECT_FALSE(form().Option21.Value.peek());
}

TEST_F(OpenedLineSettings, SelectTheRateOfTheProfileInTheList) {
  startUnlocked();
  open();
  EXPECT_EQ(form().Combo1.Text.peek(), "115200");
  EXPECT_EQ(form().Combo1.ListIndex.peek(), 9);
}

}  // namespace
}  // namespace gsm
