#include <gtest/gtest.h>

#include "modem/form2.h"
#include "panel/form1.h"
#include "panel/form7.h"
#include "settings/form15.h"
#include "simulator/host/simulated_modem.h"
#include "sms/form8.h"
#include "tests/modem/code_prompt_test.h"

namespace gsm {
namespace {

using simulator::Cutter;
using simulator::ModemOptions;
using simulator::SimStatus;

// The panel against a modem with a state of its own.
class ModemWithAState : public CodePromptTest {
 protected:
  void startWith(ModemOptions options) {
    layComFile("9600,N,8,1 3\r\n");
    start({.now = {2026, 3, 1, 0, 0, 0}});
    options.speed = 9600;
    modem_ = std::make_unique<SimulatedModem>(machine().time, machine().line, options);
    settle();
  }
  // The modem goes after the handlers that use it, and before the line.
  void TearDown() override {
    world().time().abandon();
    modem_.reset();
  }

  const Texts kStart = {"AT+CGSN\r", "AT\r", "AT+CPIN?\r"};

 private:
  std::unique_ptr<SimulatedModem> modem_;
};

struct CutterRow {
  std::string name;
  Cutter cutter;
};
class ModemInPieces : public ModemWithAState, public ::testing::WithParamInterface<CutterRow> {};

TEST_P(ModemInPieces, IsStartedWhole) {
  startWith({.cutter = GetParam().cutter});
  EXPECT_EQ(sent(), withSequence(kStart));
  EXPECT_EQ(form1().Label6.Caption.peek(), "9600");
  EXPECT_EQ(form1().Label7.Caption.peek(),
            "Character Framing:8 Data,1 Stop Parity:NoneECHO:Enabled");
  EXPECT_EQ(panel().form2.Label5.Caption.peek().substr(0, 13), "WAVECOM MODEM");
  EXPECT_NE(panel().form7.Label4.Caption.peek(), "");
  EXPECT_EQ(panel().form7.Label5.Caption.peek(), "Registered/Home Network");
  EXPECT_TRUE(file("Model.txt").has_value());
  expectWorking();
  expectAtRest();
}

INSTANTIATE_TEST_SUITE_P(Cuts, ModemInPieces,
                         ::testing::Values(CutterRow{"Whole", Cutter::whole()},
                                           CutterRow{"AsARealModem", Cutter::real()},
                                           CutterRow{"ByteForByte", Cutter::every(1)},
                                           CutterRow{"InTwos", Cutter::every(2)},
                                           CutterRow{"InEights", Cutter::every(8)},
                                           CutterRow{"InFourteens", Cutter::every(14)},
                                           CutterRow{"InSixtyFours", Cutter::every(64)}),
                         RowName());

TEST_F(ModemWithAState, WithoutASimLeavesTheReducedPanel) {
  startWith({.sim = SimStatus::kAbsent});
  EXPECT_EQ(logAfterTheCheck(), (Texts{"SIM Not Found !.Insert SIM Properly", "Speaker Set ",
                                       "Echo Enabled", "Checking Modem Speed"}));
  expectNoSim();
  expectAtRest();
}

TEST_F(ModemWithAState, IsOpenedByItsPinAfterARefusal) {
  startWith({.sim = SimStatus::kPinWanted});
  EXPECT_EQ(sent(), kStart);
  EXPECT_TRUE(prompt().Visible.peek());
  enterPin("0000");
  settle();
  EXPECT_EQ(refusals(), "1");
  EXPECT_EQ(parts(), kPinForm);
  enterPin("1234");
  settle();
  EXPECT_EQ(sent(), withSequence({"AT+CPIN=0000\r", "AT+CPIN=1234\r"}));
  EXPECT_FALSE(prompt().Visible.peek());
  expectWorking();
  expectAtRest();
  expectNoCodeInTheLog({"0000", "1234"});
}

TEST_F(ModemWithAState, EndsTheProgramAfterThreeWrongPins) {
  startWith({.sim = SimStatus::kPinWanted});
  for (int i = 0; i < 3; ++i) {
    EXPECT_FALSE(ended());
    enterPin("0000");
    settle();
  }
  EXPECT_TRUE(ended());
  expectBox("Invalid PIN Entered.GET PUK Number And TRY LAter", "GSM");
}

TEST_F(ModemWithAState, IsOpenedByItsPuk) {
  startWith({.sim = SimStatus::kPukWanted});
  EXPECT_EQ(parts(), kPukForm);
  enterPuk("12345678", "4321");
  settle();
  EXPECT_EQ(sent(), withSequence({"AT+CGSN\r", "AT\r", "AT+CPIN?\r", "AT+CPIN=12345678,4321\r"}));
  EXPECT_EQ(logged("PIN,PUK Accepted"), 1);
  expectWorking();
  expectAtRest();
}

TEST_F(ModemWithAState, RefusesAWrongPuk) {
  startWith({.sim = SimStatus::kPukWanted});
  enterPuk("00000000", "4321");
  settle();
  EXPECT_EQ(logged("Invalid PUK Entered "), 1);
  EXPECT_EQ(parts(), kPinForm);
  expectLocked();
  expectAtRest();
}

TEST_F(ModemWithAState, TellsItsProfileToTheSettingsWindow) {
  startWith({});
  sent();
  click(form1().Command11);
  settle();
  EXPECT_EQ(sent(), Texts{"AT&V\r"});
  EXPECT_TRUE(panel().form15.Visible.peek());
  EXPECT_TRUE(panel().form15.Option4.Value.peek());
  EXPECT_TRUE(panel().form15.Option12.Value.peek());
  EXPECT_TRUE(panel().form15.Option15.Value.peek());
  EXPECT_TRUE(panel().form15.Option19.Value.peek());
}

TEST_F(ModemWithAState, IsResetAndStartsAnew) {
  startWith({});
  sent();
  click(form1().Command13);
  settle();
  EXPECT_EQ(statusLine(), "Restart in Process.Click Refresh ");
  EXPECT_EQ(sent(), (Texts{"AT&F\r", "AT+SPEAKER=1\r", "AT&W\r"}));
}

TEST_F(ModemWithAState, OpensEachWindowThatAsksItBefore) {
  startWith({});
  sent();
  click(form1().Command3);
  settle();
  EXPECT_EQ(sent(), Texts{"AT+CNMI?\r"});
  EXPECT_TRUE(panel().form8.Visible.peek());
  EXPECT_EQ(panel().form8.Label6.Caption.peek(), "Status Report Disabled");
  close(panel().form8);
  click(form1().Command1);
  settle();
  EXPECT_TRUE(panel().form2.Visible.peek());
  expectAtRest();
}

}  // namespace
}  // namespace gsm
