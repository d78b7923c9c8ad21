#include "simulator/card/sim_card.h"

#include <gtest/gtest.h>

namespace gsm::simulator {
namespace {

void enterWrongPins(SimCard& sim, int count) {
  for (int i = 0; i < count; ++i) EXPECT_EQ(sim.enterPin("0000"), CodeCheck::kWrong);
}

TEST(SimCard, OpensWithItsPin) {
  SimCard sim(SimStatus::kPinWanted);
  EXPECT_EQ(sim.enterPin("1234"), CodeCheck::kAccepted);
  EXPECT_EQ(sim.status(), SimStatus::kReady);
}

TEST(SimCard, ThirdWrongPinAsksForThePuk) {
  SimCard sim(SimStatus::kPinWanted);
  enterWrongPins(sim, 2);
  EXPECT_EQ(sim.status(), SimStatus::kPinWanted);
  enterWrongPins(sim, 1);
  EXPECT_EQ(sim.status(), SimStatus::kPukWanted);
  EXPECT_EQ(sim.enterPin("1234"), CodeCheck::kNotAsked);
}

TEST(SimCard, RightPinGivesTheTriesBack) {
  SimCard sim(SimStatus::kPinWanted);
  enterWrongPins(sim, 2);
  sim.enterPin("1234");
  EXPECT_EQ(sim.pinTries(), 3);
}

TEST(SimCard, CodeOfTheWrongShapeCostsNoTry) {
  SimCard sim(SimStatus::kPinWanted);
  for (const char* bad : {"", "123", "123456789", "12a4"}) {
    EXPECT_EQ(sim.enterPin(bad), CodeCheck::kWrong) << bad;
  }
  EXPECT_EQ(sim.pinTries(), 3);
}

TEST(SimCard, PukChangesThePin) {
  SimCard sim(SimStatus::kPukWanted);
  EXPECT_EQ(sim.enterPuk("12345678", "4321"), CodeCheck::kAccepted);
  EXPECT_EQ(sim.status(), SimStatus::kReady);
  sim.remove();
  sim.insert();
  EXPECT_EQ(sim.enterPin("1234"), CodeCheck::kWrong);
  EXPECT_EQ(sim.enterPin("4321"), CodeCheck::kAccepted);
}

TEST(SimCard, RightPukWithABadNewPinChangesNothing) {
  SimCard sim(SimStatus::kPukWanted);
  EXPECT_EQ(sim.enterPuk("12345678", "12"), CodeCheck::kWrong);
  EXPECT_EQ(sim.status(), SimStatus::kPukWanted);
  EXPECT_EQ(sim.pukTries(), 10);
}

TEST(SimCard, TenthWrongPukBlocksForGood) {
  SimCard sim(SimStatus::kPukWanted);
  for (int i = 0; i < 9; ++i) sim.enterPuk("87654321", "1234");
  EXPECT_EQ(sim.status(), SimStatus::kPukWanted);
  sim.enterPuk("87654321", "1234");
  EXPECT_EQ(sim.status(), SimStatus::kBlocked);
  EXPECT_EQ(sim.enterPuk("12345678", "1234"), CodeCheck::kNotAsked);
}

TEST(SimCard, ComesBackAskingForWhatItAskedBefore) {
  for (const auto status : {SimStatus::kReady, SimStatus::kPinWanted, SimStatus::kPukWanted,
                            SimStatus::kBlocked, SimStatus::kFailed}) {
    SimCard sim(status);
    sim.remove();
    EXPECT_EQ(sim.status(), SimStatus::kAbsent);
    sim.insert();
    EXPECT_EQ(sim.status(), status) << nameOf(status);
  }
}

TEST(SimCard, KeepsItsTriesOutsideTheHolder) {
  SimCard sim(SimStatus::kPinWanted);
  enterWrongPins(sim, 2);
  sim.remove();
  sim.insert();
  EXPECT_EQ(sim.pinTries(), 1);
}

TEST(SimStatus, NamesAndParserAgree) {
  for (const char* name : {"ready", "pin", "puk", "blocked", "out", "failed"}) {
    const auto status = parseSimStatus(name);
    ASSERT_TRUE(status) << name;
    EXPECT_EQ(nameOf(*status), name);
  }
  EXPECT_EQ(parseSimStatus("in"), std::nullopt);
}

}  // namespace
}  // namespace gsm::simulator
