#include <gtest/gtest.h>

#include <memory>

#include "simulator/host/simulated_modem.h"
#include "tests/settings/data_test.h"

namespace gsm {
namespace {

// Whether the modem holds what the window has set.
class SimulatedData : public DataTest {
 protected:
  void SetUp() override {
    DataTest::SetUp();
    modem_ = std::make_unique<SimulatedModem>(machine().time, machine().line,
                                              simulator::ModemOptions{.speed = 9600});
    openWindow();
  }
  // The modem goes after the panel's handlers have been unwound, and before the line.
  void TearDown() override {
    world().time().abandon();
    modem_.reset();
  }

  std::unique_ptr<SimulatedModem> modem_;
};

TEST_F(SimulatedData, EveryBearerIsToldAsItWasSet) {
  for (int speed = 0; speed < 17; ++speed) {
    const int element = speed % 4;
    pick(form().Combo1, speed);
    pick(form().Combo2, element);
    press(form().Command6);
    EXPECT_EQ(bearer(), "Changes SuccessFul");
    press(form().Command1);
    const std::string code = form().Combo1.List.peek()[static_cast<std::size_t>(speed)];
    EXPECT_TRUE(bearer().starts_with("Speed:" + code.substr(0, code.find(' ')))) << bearer();
    EXPECT_NE(bearer().find("  CE:" + std::to_string(element)), std::string::npos) << bearer();
  }
}

TEST_F(SimulatedData, CompressionAndCorrectionAreToldAsTheyWereSet) {
  press(form().Command2);
  pick(form().Combo3, 0);
  press(form().Command7);
  EXPECT_EQ(modes(), "Changes SuccessFul-Compression");
  pick(form().Combo4, 1);
  press(form().Command8);
  EXPECT_EQ(modes(), "Changes SuccessFul-Error Correction");
  press(form().Command2);
  EXPECT_EQ(modes(), "Compression Default , Error Correction 2 Auto Reliable Mode");
}

TEST_F(SimulatedData, AFaxClassIsTakenAndASpeedIsRefusedWhereThereIsNoCall) {
  press(form().Command3);
  pick(form().Combo5, 2);
  press(form().Command4);
  EXPECT_EQ(fax(), "Changes SuccessFul-FCLASS");
  pick(form().Combo6, 5);
  press(form().Command5);
  EXPECT_EQ(fax(), "Changes UnsuccessFul");
  expectAtRest();
}

}  // namespace
}  // namespace gsm
