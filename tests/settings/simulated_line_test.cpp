#include <gtest/gtest.h>

#include <memory>

#include "modem/form2.h"
#include "simulator/host/simulated_modem.h"
#include "tests/settings/line_settings_test.h"

namespace gsm {
namespace {

// Whether the modem does what the window has written.
class SimulatedLine : public LineSettingsTest {
 protected:
  void SetUp() override {
    LineSettingsTest::SetUp();
    modem_ = std::make_unique<SimulatedModem>(machine().time, machine().line,
                                              simulator::ModemOptions{.speed = 9600});
    form1().Command11.Enabled = true;
    fillIn();
  }
  // The modem goes after the panel's handlers have been unwound, and before the line.
  void TearDown() override {
    world().time().abandon();
    modem_.reset();
  }

  /// What the modem answers to `command`, echo and all.
  std::string ask(const std::string& command) {
    inPanel([this, command] {
      form1().modem.exchange(command);
      answer_ = transcript();
      form1().modem.clear();
    });
    settle();
    return answer_;
  }

  std::unique_ptr<SimulatedModem> modem_;
  std::string answer_;
};

TEST_F(SimulatedLine, HoldsAndKeepsWhatWasSaved) {
  choose({&form().Option6, &form().Option9, &form().Option13, &form().Option17, &form().Option22,
          &form().Option24});
  save();
  EXPECT_EQ(status(), kSaved);
  EXPECT_EQ(speedShown(), "Speed:9600");
  EXPECT_EQ(framingShown(), "Character Framing:7 Data,1 Parity,1 Stop Parity:EvenECHO:Enable");
  for (const char* command : {"AT&V", "AT&V1"}) {  // in force, and in store
    const std::string profile = ask(command);
    EXPECT_NE(profile.find("&C:0 &D:0"), std::string::npos) << profile;
    EXPECT_NE(profile.find("+IPR:9600 +ICF:5,1 +IFC:0,0"), std::string::npos) << profile;
  }
}

TEST_F(SimulatedLine, IsReadBackByTheMainWindowsButton) {
  choose({&form().Option2, &form().Option11, &form().Option13, &form().Option22, &form().Option24});
  save();
  inPanel([this] { form().userClose(); });
  settle();
  click(form1().Command11);
  settle();
  EXPECT_TRUE(form().Visible.peek());
  EXPECT_EQ(form().Combo1.Text.peek(), "9600");
  EXPECT_EQ(set(), (std::vector<int>{2, 11, 13, 19, 22, 24}));
}

TEST_F(SimulatedLine, RefusesAFlowControlThatItLacks) {
  choose({&form().Option14, &form().Option18});
  save();
  EXPECT_EQ(status(), "Changes UnsuccessFul-DCE-DTE Flow Control");
  EXPECT_NE(ask("AT&V1").find("+IFC:2,2"), std::string::npos);
}

TEST_F(SimulatedLine, RefusesARateThatItLacksAndSavesTheRest) {
  typeRate("1234");
  click(form().Option24);
  save();
  EXPECT_EQ(status(), " Changes UnsuccessFul-IPR ");
  EXPECT_EQ(speedShown(), "before");
  const std::string profile = ask("AT&V1");
  EXPECT_NE(profile.find("&D:0"), std::string::npos) << profile;
  EXPECT_NE(profile.find("+IPR:9600"), std::string::npos) << profile;
}

TEST_F(SimulatedLine, WithItsEchoOffIsStillHeardAndKeepsItOff) {
  click(form().Option27);
  press();
  run(6 * 2.1 + 1);
  EXPECT_EQ(transcript(), "ATE0\r\r\nOK\r\n");
  run(2.1);
  EXPECT_EQ(transcript(), "\r\nOK\r\n") << "of the last step, without its echo";
  settle();
  EXPECT_EQ(status(), kSaved);
  EXPECT_TRUE(framingShown().ends_with("ECHO:Disable"));
  EXPECT_EQ(ask("AT"), "\r\nOK\r\n");
  EXPECT_EQ(ask("ATZ"), "\r\nOK\r\n");
  EXPECT_EQ(ask("AT"), "\r\nOK\r\n");
}

// The readers of the dispatcher know a reply by the command in front of it.
TEST_F(SimulatedLine, WithItsEchoOffIsReadByNoneThatLooksForIt) {
  ask("ATI3");
  EXPECT_NE(panel().form2.Label6.Caption.peek(), "");
  panel().form2.Label6.Caption = "before";
  click(form().Option27);
  save();
  ask("ATI3");
  EXPECT_EQ(panel().form2.Label6.Caption.peek(), "before");
}

// The modem goes to the new rate and the port stays: nothing of the rest arrives.
TEST_F(SimulatedLine, AtANewRateHearsNoneOfTheOtherStepsAndTheyCountAsTaken) {
  typeRate("19200");
  choose({&form().Option5, &form().Option13, &form().Option22, &form().Option24, &form().Option27});
  save();
  EXPECT_EQ(status(), kSaved);
  EXPECT_EQ(speedShown(), "Speed:19200");
  EXPECT_EQ(framingShown(), "before");
  EXPECT_EQ(sent().size(), 8U);
  EXPECT_EQ(ask("AT"), "");
  inPanel([this] { form1().MSComm1.Settings = "19200,n,8,1"; });
  settle();
  EXPECT_EQ(ask("AT"), "AT\r\r\nOK\r\n");
  const std::string profile = ask("AT&V");
  EXPECT_NE(profile.find("+IPR:19200 +ICF:3,4 +IFC:2,2"), std::string::npos) << profile;
  EXPECT_NE(ask("AT&V1").find("+IPR:9600"), std::string::npos) << "nothing was stored";
}

}  // namespace
}  // namespace gsm
