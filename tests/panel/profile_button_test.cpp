#include <gtest/gtest.h>

#include "panel/form1.h"
#include "settings/form15.h"
#include "tests/support/healthy_modem_test.h"

namespace gsm {
namespace {

// "Modem Setting->": the modem's profile selects the options of the settings window.
class ProfileButton : public HealthyModemTest {
 protected:
  // Opens the port beside the initialisation, so that nothing is selected before.
  void SetUp() override {
    start({.now = {2026, 3, 1, 0, 0, 0}});
    settle();
    inPanel([this] {
      form1().MSComm1.CommPort = 3;
      form1().MSComm1.PortOpen = true;
      form1().Command11.Enabled = true;
    });
    run(0);
  }

  void press() {
    click(form1().Command11);
    settle();
  }

  // The numbers of the options that are set.
  std::vector<int> set() {
    Form15& form = panel().form15;
    const std::pair<int, OptionButton*> all[] = {
        {1, &form.Option1},   {2, &form.Option2},   {3, &form.Option3},   {4, &form.Option4},
        {5, &form.Option5},   {6, &form.Option6},   {7, &form.Option7},   {8, &form.Option8},
        {9, &form.Option9},   {10, &form.Option10}, {11, &form.Option11}, {12, &form.Option12},
        {13, &form.Option13}, {14, &form.Option14}, {15, &form.Option15}, {16, &form.Option16},
        {17, &form.Option17}, {18, &form.Option18}, {19, &form.Option19}, {20, &form.Option20},
        {21, &form.Option21}, {22, &form.Option22}, {23, &form.Option23}, {24, &form.Option24},
        {25, &form.Option25}, {26, &form.Option26}, {27, &form.Option27}, {28, &form.Option28}};
    std::vector<int> numbers;
    for (const auto& [number, option] : all) {
      if (option->Value.peek()) numbers.push_back(number);
    }
    return numbers;
  }

  void expectOpened() {
    EXPECT_EQ(sent(), Texts{"AT&V\r"});
    EXPECT_TRUE(panel().form15.Visible.peek());
    EXPECT_FALSE(form1().Visible.peek());
    EXPECT_EQ(transcript(), "");
    expectAtRest();
  }
};

TEST_F(ProfileButton, TakesEverythingFromARealProfile) {
  reply("AT&V", kProfileReply);
  press();
  EXPECT_EQ(set(), (std::vector<int>{4, 12, 15, 19, 23, 25}));
  EXPECT_EQ(form1().Label6.Caption.peek(), "115200");
  EXPECT_EQ(panel().form15.Combo1.Text.peek(), "115200");
  EXPECT_EQ(panel().form15.Caption.peek(), "GSM-Modem Settings");
  EXPECT_EQ(form1().Label7.Caption.peek(), "");
  expectOpened();
}

TEST_F(ProfileButton, OpensAnEmptyWindowForASilentModem) {
  press();
  EXPECT_EQ(set(), std::vector<int>{});
  EXPECT_EQ(panel().form15.Combo1.Text.peek(), "");
  expectOpened();
}

TEST_F(ProfileButton, OpensAnEmptyWindowForAnError) {
  reply("AT&V", kError);
  press();
  EXPECT_EQ(set(), std::vector<int>{});
  expectOpened();
}

TEST_F(ProfileButton, ClearsTheTranscriptBeforeItsQuery) {
  inPanel([this] { form1().Text1.Text = "+IFC:0,0"; });
  press();
  EXPECT_EQ(set(), std::vector<int>{});
}

TEST_F(ProfileButton, WaitsForTheProfileBeforeItOpens) {
  reply("AT&V", kProfileReply);
  click(form1().Command11);
  run(2.04);
  EXPECT_FALSE(panel().form15.Visible.peek());
  EXPECT_TRUE(form1().Visible.peek());
  run(0.02);
  EXPECT_TRUE(panel().form15.Visible.peek());
}

TEST_F(ProfileButton, WithThePortClosedEndsSilently) {
  closePort();
  press();
  EXPECT_EQ(sent(), Texts{});
  EXPECT_FALSE(panel().form15.Visible.peek());
  EXPECT_TRUE(form1().Visible.peek());
  expectAtRest();
}

TEST_F(ProfileButton, ClosingItsWindowBringsTheMainWindowBackAndKeepsTheStatus) {
  press();
  form1().Label5.Caption = "as it was";
  close(panel().form15);
  EXPECT_TRUE(form1().Visible.peek());
  EXPECT_FALSE(panel().form15.isLoaded());
  EXPECT_EQ(statusLine(), "as it was");
}

TEST_F(ProfileButton, SelectsAnewInAFreshWindow) {
  reply("AT&V", kProfileReply);
  press();
  close(panel().form15);
  reply("AT&V", information("&C:0"));
  press();
  EXPECT_EQ(set(), std::vector<int>{22});
}

TEST_F(ProfileButton, PressedTwiceLeavesNothingForTheFirst) {
  reply("AT&V", kProfileReply);
  click(form1().Command11);
  run(0.5);
  click(form1().Command11);
  settle();
  EXPECT_EQ(sent(), (Texts{"AT&V\r", "AT&V\r"}));
  EXPECT_EQ(set(), (std::vector<int>{4, 12, 15, 19, 23, 25}));
  EXPECT_TRUE(panel().form15.Visible.peek());
  expectAtRest();
}

struct ProfileRow {
  std::string name;
  std::string line;
  std::vector<int> options;
};
class ProfileLine : public ProfileButton, public ::testing::WithParamInterface<ProfileRow> {};

TEST_P(ProfileLine, SelectsItsOptions) {
  reply("AT&V", information(GetParam().line));
  press();
  EXPECT_EQ(set(), GetParam().options);
  expectOpened();
}

INSTANTIATE_TEST_SUITE_P(FlowControl, ProfileLine,
                         ::testing::Values(ProfileRow{"None", "+IFC:0,0", {13, 17}},
                                           ProfileRow{"Local", "+IFC:1,1", {14, 18}},
                                           ProfileRow{"Lines", "+IFC:2,2", {15, 19}},
                                           ProfileRow{"GlobalToTheHostAlone", "+IFC:3,3", {16}},
                                           ProfileRow{"EachWayItsOwn", "+IFC:0,2", {13, 19}},
                                           ProfileRow{"UnknownDigits", "+IFC:4,9", {}},
                                           ProfileRow{"WithTheBlank", "+IFC: 2,2", {}},
                                           ProfileRow{"Cut", "+IFC:2", {15}},
                                           ProfileRow{"Missing", "+ICF:3,4", {4, 12}}),
                         RowName());

INSTANTIATE_TEST_SUITE_P(
    CarrierAndTerminal, ProfileLine,
    ::testing::Values(ProfileRow{"CarrierOff", "&C:0", {22}}, ProfileRow{"CarrierOn", "&C:1", {23}},
                      ProfileRow{"CarrierTwo", "&C:2", {}}, ProfileRow{"CarrierLetter", "&C:x", {}},
                      ProfileRow{"TerminalIgnored", "&C:1 &D:0", {23, 24}},
                      ProfileRow{"TerminalIgnoredAlone", "&D:0", {24}},
                      ProfileRow{"TerminalOneByCarrierOne", "&C:1 &D:1", {23, 25}},
                      ProfileRow{"TerminalTwoByCarrierOne", "&C:1 &D:2", {23, 25}},
                      ProfileRow{"TerminalOneByCarrierTwo", "&C:2 &D:1", {26}},
                      ProfileRow{"TerminalTwoByCarrierTwo", "&C:2 &D:2", {26}},
                      ProfileRow{"TerminalOneByCarrierOff", "&C:0 &D:1", {22}},
                      ProfileRow{"TerminalTwoByCarrierOff", "&C:0 &D:2", {22}},
                      ProfileRow{"TerminalOneWithoutCarrier", "&D:1", {}},
                      ProfileRow{"TerminalLetterByCarrierOne", "&C:1 &D:x", {23, 25}},
                      ProfileRow{"TerminalInFrontOfCarrier", "&D:2 &C:1", {23, 25}}),
    RowName());

class BareProfile : public ProfileButton, public ::testing::WithParamInterface<ProfileRow> {};

// A modem with its echo off, whose words may stand at the very beginning.
TEST_P(BareProfile, IsReadFromItsWordsAlone) {
  world().modem.add({.write = "AT&V\r",
                     .replies = {{{ModemScript::kDefaultDelay, GetParam().line}}},
                     .echo = false});
  press();
  EXPECT_EQ(set(), GetParam().options);
  expectOpened();
}

INSTANTIATE_TEST_SUITE_P(Texts, BareProfile,
                         ::testing::Values(ProfileRow{"OfDigitsAlone", "\r\n10202021", {}},
                                           ProfileRow{"OfTheFlowControl", "IFC:1,1", {14, 18}},
                                           ProfileRow{"OfTheFraming", "+ICF:3,4", {4, 12}},
                                           ProfileRow{"OfTheCarrier", "&C:1", {23}},
                                           ProfileRow{"OfTheTerminal", "&D:0", {24}}),
                         RowName());

struct ProfileSpeedRow {
  std::string name;
  std::string line;
  std::string speed;
};
class ProfileSpeed : public ProfileButton, public ::testing::WithParamInterface<ProfileSpeedRow> {};

TEST_P(ProfileSpeed, IsShown) {
  reply("AT&V", information(GetParam().line));
  press();
  EXPECT_EQ(form1().Label6.Caption.peek(), GetParam().speed);
  EXPECT_EQ(panel().form15.Combo1.Text.peek(), GetParam().speed);
}

INSTANTIATE_TEST_SUITE_P(Lines, ProfileSpeed,
                         ::testing::Values(ProfileSpeedRow{"Of9600", "+IPR:9600", "9600"},
                                           ProfileSpeedRow{"Of57600Is600", "+IPR:57600", "600"},
                                           ProfileSpeedRow{"OfAutoBaud", "+IPR:0", ""}),
                         RowName());

}  // namespace
}  // namespace gsm
