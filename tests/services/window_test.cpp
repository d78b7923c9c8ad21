#include <gtest/gtest.h>

#include "panel/choices.h"
#include "panel/form7.h"
#include "tests/services/services_test.h"

namespace gsm {
namespace {

// How the window comes up, and what its boxes take.
class ServicesWindow : public ServicesTest {
 protected:
  void SetUp() override {
    ServicesTest::SetUp();
    openWindow();
  }
  /// The user types `keys` after what stands in the password's box.
  std::string typePassword(const std::string& keys) {
    act([this, keys] { form().Text2.userType(keys); });
    return form().Text2.Text.peek();
  }
};

TEST_F(ServicesWindow, ComesUpWithThePageOfTheForwarding) {
  EXPECT_EQ(pages(), (Texts{"Frame1", "Frame13", "Frame11", "Command6"}));
  EXPECT_FALSE(form().Command6.isReachable());
  EXPECT_EQ(form().TabStrip1.Value.peek(), forwarding);
}

TEST_F(ServicesWindow, ThePasswordsBoxTakesDigitsAndBackspaceOnly) {
  turnTo(barring);
  click(form().Command4);
  EXPECT_EQ(typePassword("1a 2-B+"), "12");
  EXPECT_EQ(typePassword("\b90"), "190");
  EXPECT_EQ(typePassword("56"), "1905");
  EXPECT_EQ(typePassword("\b\b\b\b\b"), "");
  EXPECT_EQ(typePassword("3478"), "3478");
}

TEST_F(ServicesWindow, TheFilterLetsDigitsAndBackspaceThroughAlone) {
  const std::string passing = "1234567890\b";
  for (int key = 0; key < 256; ++key) {
    const bool passes = passing.find(static_cast<char>(key)) != std::string::npos;
    EXPECT_EQ(LimitTextInput(key), passes ? key : 0) << key;
  }
}

TEST_F(ServicesWindow, ThePasswordsBoxCutsWhatIsPasted) {
  turnTo(barring);
  click(form().Command4);
  act([this] { form().Text2.userEdit("123456", 6); });
  EXPECT_EQ(form().Text2.Text.peek(), "1234");
}

TEST_F(ServicesWindow, TheNumbersBoxTakesAnyTextOfAnyLength) {
  const std::string text = "+33 (0)1 a\"b," + std::string(300, '9');
  fill(form().Text1, text);
  EXPECT_EQ(form().Text1.Text.peek(), text);
}

TEST_F(ServicesWindow, SignalAsksForTheSignal) {
  click(form().Command8);
  EXPECT_TRUE(panel().form7.Visible.peek());
  EXPECT_EQ(sent(), Texts{"AT\r"});
}

}  // namespace
}  // namespace gsm
