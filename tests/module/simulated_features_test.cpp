#include <gtest/gtest.h>

#include <memory>

#include "simulator/host/simulated_modem.h"
#include "tests/module/contexts_test.h"
#include "tests/module/toolkit_test.h"

namespace gsm {
namespace {

// A window over a modem that holds what it is told.
template <class WindowTest>
class Simulated : public WindowTest {
 protected:
  void SetUp() override {
    WindowTest::SetUp();
    modem_ = std::make_unique<SimulatedModem>(this->machine().time, this->machine().line,
                                              simulator::ModemOptions{.speed = 9600});
    this->openWindow();
  }
  // The modem goes after the panel's handlers have been unwound, and before the line.
  void TearDown() override {
    this->world().time().abandon();
    modem_.reset();
  }

 private:
  std::unique_ptr<SimulatedModem> modem_;
};

class SimulatedToolkit : public Simulated<ToolkitTest> {};

TEST_F(SimulatedToolkit, TellsItsStatusAndTakesAChange) {
  EXPECT_EQ(status(), (Texts{"Current Status: Mode:  DeActivate SIM ToolKit Functionalities",
                             "TIMEOUT: 3", "Automatic Response  Activated"}));
  pick(form().Combo1, configure);
  fill(form().Text1, "160060C01F");
  press(form().Command1);
  EXPECT_EQ(line(), "Changes SuccessFul-SIM ToolKit");
  EXPECT_TRUE(wantsReset());
}

TEST_F(SimulatedToolkit, RefusesAConfigurationThatIsNone) {
  pick(form().Combo1, configure);
  fill(form().Text1, "xyz");
  press(form().Command1);
  EXPECT_EQ(line(), "Changes UnSuccessFul");
  EXPECT_FALSE(wantsReset());
}

class SimulatedContexts : public Simulated<ContextsTest> {
 protected:
  void define(int number, int type, const std::string& name) {
    pick(form().Combo1, number - 1);
    pick(form().Combo2, type);
    this->fill(form().Text1, name);
    press(form().Command1);
  }
};

TEST_F(SimulatedContexts, ShowsEachContextThatIsDefined) {
  define(3, 1, "c");
  define(1, 0, "a.example");
  define(4, 0, "abcdefghijklmnopqrst");
  define(2, 1, "b");
  define(3, 0, "c again");
  EXPECT_EQ(grid(),
            (Texts{"1|IP|a.example", "2|PPP|b", "3|IP|c again", "4|IP|abcdefghijklmnopqrst"}));
  EXPECT_EQ(line(), "Current Status");
  EXPECT_EQ(form().Text1.Text.peek(), "");
  expectAtRest();
}

}  // namespace
}  // namespace gsm
