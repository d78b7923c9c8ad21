// The whole panel against the simulated modem, on one virtual time.

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "modem/form10.h"
#include "modem/form2.h"
#include "panel/form1.h"
#include "panel/form7.h"
#include "simulator/host/simulated_modem.h"
#include "tests/support/panel_fixture.h"

namespace gsm {
namespace {

class PanelWithSimulatedModem : public PanelTest {
 protected:
  void begin(const Machine& machine, simulator::ModemOptions options) {
    layComFile("9600,N,8,1 3\r\n");
    start(machine);
    modem_ = std::make_unique<SimulatedModem>(world().machine.time, world().machine.line, options);
  }
  // The modem goes after the panel's handlers have been unwound, and before the line.
  void TearDown() override {
    world().time().abandon();
    modem_.reset();
  }

  std::unique_ptr<SimulatedModem> modem_;
};

TEST_F(PanelWithSimulatedModem, StartsOnTheSavedPortAndUnlocks) {
  begin({}, {.speed = 9600});
  settle();
  EXPECT_EQ(form1().Label1.Caption.peek(), "Open");
  EXPECT_EQ(form1().Label2.Caption.peek(), "Port 3");
  EXPECT_EQ(form1().Label3.Caption.peek(), "9600,N,8,1");
  EXPECT_EQ(form1().Label6.Caption.peek(), "9600");
  EXPECT_EQ(form1().Label7.Caption.peek(),
            "Character Framing:8 Data,1 Stop Parity:NoneECHO:Enabled");
  EXPECT_TRUE(form1().Command2.Enabled.peek());
  EXPECT_FALSE(form1().Frame5.Visible.peek());
  EXPECT_EQ(panel().form7.Label5.Caption.peek(), "Registered/Home Network");
  EXPECT_EQ(panel().form2.Label3.Caption.peek().size(), 15u);
}

TEST_F(PanelWithSimulatedModem, FindsAModemOnAnotherPortAtAnotherSpeed) {
  Machine machine;
  machine.ports = {{.number = 3}, {.number = 4}};
  machine.modemPort = 4;
  begin(machine, {.speed = 115200});
  settle();
  EXPECT_EQ(form1().Label1.Caption.peek(), "Open");
  EXPECT_EQ(form1().Label2.Caption.peek(), "Port 4");
  EXPECT_EQ(form1().Label3.Caption.peek(), "115200,N,8,1");
  EXPECT_TRUE(form1().Command1.Enabled.peek());
}

TEST_F(PanelWithSimulatedModem, AsksForThePinAndUnlocksWithTheRightOne) {
  begin({}, {.speed = 9600, .sim = simulator::SimStatus::kPinWanted});
  settle();
  Form10& prompt = panel().form10;
  ASSERT_TRUE(prompt.Visible.peek());
  EXPECT_FALSE(form1().Command1.Enabled.peek());

  prompt.Text1.Text = "1234";
  click(prompt.Command1);
  settle();
  EXPECT_FALSE(prompt.Visible.peek());
  EXPECT_TRUE(form1().Command2.Enabled.peek());
}

TEST_F(PanelWithSimulatedModem, EndsWithTheThirdWrongPin) {
  begin({}, {.speed = 9600, .sim = simulator::SimStatus::kPinWanted});
  settle();
  for (int attempt = 1; attempt <= 3; ++attempt) {
    ASSERT_FALSE(ended()) << "before attempt " << attempt;
    panel().form10.Text1.Text = "9999";
    click(panel().form10.Command1);
    settle();
  }
  EXPECT_TRUE(ended());
  EXPECT_EQ(boxes(), std::vector<std::string>{"Invalid PIN Entered.GET PUK Number And TRY LAter"});
}

TEST_F(PanelWithSimulatedModem, UnlocksABlockedSimWithThePukAndANewPin) {
  begin({}, {.speed = 9600, .sim = simulator::SimStatus::kPukWanted});
  settle();
  Form10& prompt = panel().form10;
  ASSERT_TRUE(prompt.Text2.Visible.peek());
  prompt.Text2.Text = "12345678";
  prompt.Text1.Text = "4321";
  click(prompt.Command1);
  settle();
  EXPECT_TRUE(form1().Command2.Enabled.peek());
}

TEST_F(PanelWithSimulatedModem, ShowsTheNoSimPanelWithoutACard) {
  begin({}, {.speed = 9600, .sim = simulator::SimStatus::kAbsent});
  settle();
  EXPECT_TRUE(form1().Command1.Enabled.peek());
  EXPECT_FALSE(form1().Command2.Enabled.peek());
  EXPECT_FALSE(form1().Command5.Enabled.peek());
}

TEST_F(PanelWithSimulatedModem, ShowsWhatTheConsoleSetsAsSignalAndRegistration) {
  begin({}, {.speed = 9600});
  settle();
  modem_->console("signal 31");
  modem_->console("register 5");
  click(form1().Label8);
  settle();
  EXPECT_EQ(panel().form7.Label4.Caption.peek(), "31,0");
  EXPECT_EQ(panel().form7.Label5.Caption.peek(), "Registered/Roaming");
  EXPECT_TRUE(panel().form7.Image4.Visible.peek());
  EXPECT_FALSE(panel().form7.Image5.Visible.peek());
}

// However the line cuts the replies, the panel ends in the same state.
class PanelWithCutReplies : public PanelWithSimulatedModem,
                            public ::testing::WithParamInterface<std::size_t> {};

TEST_P(PanelWithCutReplies, UnlocksAllTheSame) {
  begin({}, {.speed = 9600, .cutter = simulator::Cutter::every(GetParam())});
  settle();
  EXPECT_TRUE(form1().Command2.Enabled.peek());
  EXPECT_EQ(form1().Label7.Caption.peek(),
            "Character Framing:8 Data,1 Stop Parity:NoneECHO:Enabled");
  EXPECT_EQ(panel().form7.Label5.Caption.peek(), "Registered/Home Network");
}

INSTANTIATE_TEST_SUITE_P(EverySoManyBytes, PanelWithCutReplies,
                         ::testing::Values(1u, 2u, 8u, 14u, 16u, 32u, 62u, 64u));

}  // namespace
}  // namespace gsm
