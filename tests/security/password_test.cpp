#include <gtest/gtest.h>

#include "tests/security/lock_change_test.h"

namespace gsm {
namespace {

// A change of a lock's password.
struct PasswordRow {
  std::string name;
  Tab tab;
  CommandButton Form9::*apply;
  TextBox Form9::*oldBox;
  TextBox Form9::*newBox;
  Label Form9::*status;
  std::string command;  // up to the passwords
  std::string failure;
};

class Password : public LockChange, public ::testing::WithParamInterface<PasswordRow> {
 protected:
  void SetUp() override {
    LockChange::SetUp();
    inPanel([this] {
      form().TabStrip1.userTab(GetParam().tab);
      apply().Visible = true;
    });
    run(0);
    fill("12345678", "87654321");
  }
  void fill(const std::string& oldPassword, const std::string& newPassword) {
    oldBox().Text = oldPassword;
    newBox().Text = newPassword;
  }
  CommandButton& apply() { return form().*GetParam().apply; }
  TextBox& oldBox() { return form().*GetParam().oldBox; }
  TextBox& newBox() { return form().*GetParam().newBox; }
  Label& status() { return form().*GetParam().status; }
  std::string command() const { return GetParam().command + "12345678,87654321"; }
};

TEST_P(Password, SendsItsFacilityTheOldOneAndTheNewOne) {
  leaveInTranscript("\r\nOK\r\n");
  click(apply());
  EXPECT_EQ(sent(), Texts{command() + "\r"});
  EXPECT_EQ(transcript(), "");
  EXPECT_EQ(oldBox().Text.peek() + newBox().Text.peek(), "1234567887654321");
  settle();
  EXPECT_EQ(sent(), Texts{});
  EXPECT_EQ(oldBox().Text.peek() + newBox().Text.peek(), "");
  EXPECT_EQ(transcript(), "");
  expectNothingTold();
  expectAtRest();
}

TEST_P(Password, TakesTheBlanksOffBoth) {
  fill("  345678", "\"6 4,2  ");
  press(apply());
  EXPECT_EQ(sent(), Texts{GetParam().command + "345678,\"6 4,2\r"});
}

TEST_P(Password, ReportsItsSuccessInDarkBlueAfterASecond) {
  reply(command(), kOk);
  click(apply());
  run(0.99);
  expectNothingTold();
  EXPECT_GT(waiting(), 0);
  settle();
  expectTold(status(), "Changes SuccessFul-PASSWORD CHANGED", kDarkBlue);
  EXPECT_EQ(transcript(), "");
  expectAtRest();
}

TEST_P(Password, ReportsItsFailureInDarkRed) {
  reply(command(), kError);
  press(apply());
  expectTold(status(), GetParam().failure, kDarkRed);
  EXPECT_EQ(oldBox().Text.peek() + newBox().Text.peek(), "");
}

TEST_P(Password, EndsOnItsFailureWhenBothCome) {
  reply(command(), "\r\nERROR\r\n\r\nOK\r\n");
  press(apply());
  expectTold(status(), GetParam().failure, kDarkRed);
}

TEST_P(Password, WithoutAPortEndsSilentlyAndKeepsBoth) {
  closePort();
  press(apply());
  EXPECT_EQ(oldBox().Text.peek() + newBox().Text.peek(), "1234567887654321");
  expectNothingTold();
  expectAtRest();
}

TEST_P(Password, OfThePhoneAloneHasEightCharacters) {
  struct Lengths {
    const char* oldPassword;
    const char* newPassword;
  };
  for (const Lengths& each : {Lengths{"", ""}, Lengths{"1234567", "12345678"},
                              Lengths{"12345678", "1234567"}, Lengths{"12345678", ""}}) {
    fill(each.oldPassword, each.newPassword);
    leaveInTranscript("old");
    press(apply());
    if (GetParam().tab == phone) {
      expectBox("Password Lenght Should be 8");
      EXPECT_EQ(sent(), Texts{});
    } else {
      EXPECT_EQ(boxes(), Texts{});
      EXPECT_EQ(sent(),
                Texts{GetParam().command + each.oldPassword + "," + each.newPassword + "\r"});
    }
    EXPECT_EQ(oldBox().Text.peek() + newBox().Text.peek(), "");
    EXPECT_EQ(transcript(), "");
    expectNothingTold();
  }
}

INSTANTIATE_TEST_SUITE_P(
    Of, Password,
    ::testing::Values(
        PasswordRow{"Phone", phone, &Form9::Command3, &Form9::Text2, &Form9::Text3, &Form9::Label2,
                    "AT+CPWD=\"PS\",",
                    "Changes Unsuccessful,Phone is UNLocked Or Invalid Password Entered"},
        PasswordRow{"SimPin", simPin, &Form9::Command6, &Form9::Text5, &Form9::Text6,
                    &Form9::Label6, "AT+CPWD=\"SC\",",
                    "Changes Unsuccessful,SIM PIN is DeActivated Or Invalid Password Entered"},
        PasswordRow{"Network", network, &Form9::Command9, &Form9::Text8, &Form9::Text9,
                    &Form9::Label10, "AT+CPWD=\"PN\",",
                    "Changes Unsuccessful,N/W is UNLocked Or Invalid Password Entered"}),
    RowName());

}  // namespace
}  // namespace gsm
