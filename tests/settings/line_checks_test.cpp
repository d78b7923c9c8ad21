#include <gtest/gtest.h>

#include <algorithm>

#include "tests/settings/line_settings_test.h"

namespace gsm {
namespace {

struct CheckRow {
  std::string name;
  std::vector<int> options;  // of the group; none for the rate
  std::string message;
};

// In the order in which they are made.
const std::vector<CheckRow> kChecks = {
    {"Format", {1, 2, 3, 4, 5, 6, 7}, "Framing Format Cannot Be Blank"},
    {"Parity", {8, 9, 10, 11, 12}, "Parity Cannot Be Blank"},
    {"FlowToTheHost", {13, 14, 15, 16}, "DCE-DTE Control Cannot Be Blank"},
    {"FlowToTheModem", {17, 18, 19}, "DTE-DCE Control Cannot Be Blank"},
    {"Rate", {}, "Select IPR Correctly"},
    {"DataSetReady", {20, 21}, "Error:Set DSR Signal"},
    {"Carrier", {22, 23}, "Error:Set DCD Signal"},
    {"TerminalReady", {24, 25, 26}, "Error:Set DTR Signal"},
    {"Echo", {27, 28}, "Error:Enable/Disable Echo"},
};

class LineCheck : public LineSettingsTest, public ::testing::WithParamInterface<CheckRow> {
 protected:
  void SetUp() override {
    LineSettingsTest::SetUp();
    form().Label1.Caption = "before";
    leaveInTranscript("old");
  }
  OptionButton& option(int number) { return *options()[static_cast<std::size_t>(number - 1)]; }
  void fillIn(const CheckRow& check) {
    if (check.options.empty()) {
      form().Combo1.userEdit("9600");
    } else {
      click(option(check.options.front()));
    }
  }
  bool isThis(const CheckRow& check) { return check.name == GetParam().name; }

  void expectRefused() {
    save();
    const auto shown = machine().boxes.takeShown();
    ASSERT_EQ(shown.size(), 1U);
    EXPECT_EQ(shown[0].text, GetParam().message);
    EXPECT_EQ(shown[0].title, "GSM");
    EXPECT_EQ(shown[0].icon, BoxIcon::none);
    EXPECT_EQ(sent(), Texts{});
    EXPECT_EQ(status(), "before");
    EXPECT_EQ(transcript(), "old");
    EXPECT_EQ(speedShown(), "before");
    EXPECT_EQ(framingShown(), "before");
    expectAtRest();
  }
};

TEST_P(LineCheck, IsToldWhenThatAloneIsMissing) {
  for (const CheckRow& check : kChecks) {
    if (!isThis(check)) fillIn(check);
  }
  expectRefused();
}

TEST_P(LineCheck, IsToldInFrontOfAllThatCome) {
  for (const CheckRow& check : kChecks) {
    if (isThis(check)) break;
    fillIn(check);
  }
  expectRefused();
}

TEST_P(LineCheck, PassesWithAnyOptionOfTheGroup) {
  for (const CheckRow& check : kChecks) fillIn(check);
  for (const int number : GetParam().options) {
    click(option(number));
    save();
    EXPECT_EQ(boxes(), Texts{}) << number;
    EXPECT_EQ(sent().size(), 8U) << number;
  }
}

INSTANTIATE_TEST_SUITE_P(Of, LineCheck, ::testing::ValuesIn(kChecks), RowName());

class LineChecks : public LineSettingsTest {};

TEST_F(LineChecks, AreMadeWithThePortClosedToo) {
  closePort();
  save();
  EXPECT_EQ(boxes(), Texts{"Framing Format Cannot Be Blank"});
}

TEST_F(LineChecks, TakeBlanksForARate) {
  fillIn();
  form().Combo1.userEdit(" ");
  save();
  EXPECT_EQ(boxes(), Texts{});
  EXPECT_EQ(sent()[0], "AT+IPR= \r");
}

// Nothing guards the window below a box: what comes meanwhile is done.
TEST_F(LineChecks, LetTheModemSpeakWhileTheirBoxIsUp) {
  machine().boxes.setAnswer(HeadlessBoxes::Answer::hold);
  press();
  route(unsolicited("+CSQ: 29,0"));
  EXPECT_EQ(signal(), "29,0");
  leaveInTranscript("later");
  EXPECT_TRUE(machine().boxes.answerTop());
  settle();
  EXPECT_EQ(transcript(), "later");
  EXPECT_EQ(sent(), Texts{});
}

struct CodeRow {
  std::string name;
  int option;
  std::size_t step;  // from 0
  std::string command;
};
class LineCode : public LineSettingsTest, public ::testing::WithParamInterface<CodeRow> {};

TEST_P(LineCode, IsSentForItsOption) {
  fillIn();
  click(*options()[static_cast<std::size_t>(GetParam().option - 1)]);
  save();
  Texts expected = kLineCommands;
  expected[GetParam().step] = GetParam().command;
  EXPECT_EQ(commands(), expected);
  expectAtRest();
}

INSTANTIATE_TEST_SUITE_P(
    Framing, LineCode,
    ::testing::Values(CodeRow{"AutoDetect", 1, 1, "AT+ICF=0,4"},
                      CodeRow{"Eight2", 2, 1, "AT+ICF=1,4"},
                      CodeRow{"EightParity", 3, 1, "AT+ICF=2,4"},
                      CodeRow{"Eight1", 4, 1, "AT+ICF=3,4"}, CodeRow{"Seven2", 5, 1, "AT+ICF=4,4"},
                      CodeRow{"SevenParity", 6, 1, "AT+ICF=5,4"},
                      CodeRow{"Seven1", 7, 1, "AT+ICF=6,4"}, CodeRow{"Odd", 8, 1, "AT+ICF=3,0"},
                      CodeRow{"Even", 9, 1, "AT+ICF=3,1"}, CodeRow{"Mark", 10, 1, "AT+ICF=3,2"},
                      CodeRow{"Space", 11, 1, "AT+ICF=3,3"}, CodeRow{"None", 12, 1, "AT+ICF=3,4"}),
    RowName());

INSTANTIATE_TEST_SUITE_P(FlowControl, LineCode,
                         ::testing::Values(CodeRow{"NoneToTheHost", 13, 2, "AT+IFC=0,2"},
                                           CodeRow{"LocalToTheHost", 14, 2, "AT+IFC=1,2"},
                                           CodeRow{"LineToTheHost", 15, 2, "AT+IFC=2,2"},
                                           CodeRow{"GlobalToTheHost", 16, 2, "AT+IFC=3,2"},
                                           CodeRow{"NoneToTheModem", 17, 2, "AT+IFC=2,0"},
                                           CodeRow{"CharactersToTheModem", 18, 2, "AT+IFC=2,1"},
                                           CodeRow{"LineToTheModem", 19, 2, "AT+IFC=2,2"}),
                         RowName());

INSTANTIATE_TEST_SUITE_P(Signals, LineCode,
                         ::testing::Values(CodeRow{"DataSetAlwaysReady", 20, 5, "AT&S0"},
                                           CodeRow{"DataSetReadyInDataMode", 21, 5, "AT&S1"},
                                           CodeRow{"CarrierAlwaysOn", 22, 3, "AT&C0"},
                                           CodeRow{"CarrierOfTheRemoteModem", 23, 3, "AT&C1"},
                                           CodeRow{"TerminalIgnored", 24, 4, "AT&D0"},
                                           CodeRow{"TerminalSwitches", 25, 4, "AT&D1"},
                                           CodeRow{"TerminalClearsTheCall", 26, 4, "AT&D2"},
                                           CodeRow{"EchoOff", 27, 6, "ATE0"},
                                           CodeRow{"EchoOn", 28, 6, "ATE1"}),
                         RowName());

}  // namespace
}  // namespace gsm
