#include <gtest/gtest.h>

#include "tests/security/lock_change_test.h"

namespace gsm {
namespace {

// A lock's change to one of its states.
struct LockRow {
  std::string name;
  Tab tab;
  CommandButton Form9::*apply;
  TextBox Form9::*box;
  OptionButton Form9::*option;
  Label Form9::*status;
  std::string command;  // up to the password
  std::string success;
  std::string failure;
};

class Lock : public LockChange, public ::testing::WithParamInterface<LockRow> {
 protected:
  void SetUp() override {
    LockChange::SetUp();
    inPanel([this] {
      form().TabStrip1.userTab(GetParam().tab);
      for (Control* control : {static_cast<Control*>(&apply()), static_cast<Control*>(&box())}) {
        control->Visible = true;
      }
      (form().*GetParam().option).Value = true;
      box().Text = "12345678";
    });
    run(0);
  }
  CommandButton& apply() { return form().*GetParam().apply; }
  TextBox& box() { return form().*GetParam().box; }
  Label& status() { return form().*GetParam().status; }
  std::string command() const { return GetParam().command + "12345678"; }
};

TEST_P(Lock, SendsItsFacilityItsCodeAndThePassword) {
  leaveInTranscript("\r\nOK\r\n");
  click(apply());
  EXPECT_EQ(sent(), Texts{command() + "\r"});
  EXPECT_EQ(transcript(), "");
  EXPECT_EQ(box().Text.peek(), "12345678");
  settle();
  EXPECT_EQ(sent(), Texts{});
  EXPECT_EQ(box().Text.peek(), "");
  EXPECT_EQ(transcript(), "");
  expectAtRest();
}

TEST_P(Lock, TakesTheBlanksOffThePassword) {
  box().Text = " 12 456 ";
  press(apply());
  EXPECT_EQ(sent(), Texts{GetParam().command + "12 456\r"});
  EXPECT_EQ(boxes(), Texts{});
}

TEST_P(Lock, SendsQuotesAndCommasAsTyped) {
  box().Text = "\",1\",2\xE9x";
  press(apply());
  EXPECT_EQ(sent(), Texts{GetParam().command + "\",1\",2\xE9x\r"});
}

TEST_P(Lock, ReportsItsSuccessInDarkBlueAfterASecond) {
  reply(command(), kOk);
  const std::string before = caption(status());
  click(apply());
  run(0.99);
  EXPECT_EQ(caption(status()), before);
  EXPECT_GT(waiting(), 0);
  settle();
  expectTold(status(), GetParam().success, kDarkBlue);
  EXPECT_EQ(transcript(), "");
  EXPECT_EQ(sent(), Texts{command() + "\r"});
  expectAtRest();
}

TEST_P(Lock, ReportsItsFailureInDarkRed) {
  reply(command(), kError);
  press(apply());
  expectTold(status(), GetParam().failure, kDarkRed);
  EXPECT_EQ(box().Text.peek(), "");
  EXPECT_EQ(transcript(), "");
}

TEST_P(Lock, EndsOnItsFailureWhenBothCome) {
  reply(command(), "\r\nERROR\r\n\r\nOK\r\n");
  press(apply());
  expectTold(status(), GetParam().failure, kDarkRed);
}

TEST_P(Lock, LeavesItsLineWhenNeitherComes) {
  reply(command(), "\r\nsomething else\r\n");
  press(apply());
  expectNothingTold();
  EXPECT_EQ(box().Text.peek(), "");
}

TEST_P(Lock, WithoutAPortEndsSilentlyAndKeepsThePassword) {
  closePort();
  press(apply());
  expectNothingTold();
  EXPECT_EQ(box().Text.peek(), "12345678");
  expectAtRest();
}

TEST_P(Lock, SelectsNothingAfterAChange) {
  reply(command(), kOk);
  press(apply());
  inPanel([this] {
    for (Control* control : form().controls()) {
      if (auto* option = dynamic_cast<OptionButton*>(control)) option->Value = false;
    }
  });
  run(0);
  for (CommandButton* prepare : {&form().Command2, &form().Command4, &form().Command7}) {
    click(*prepare);
  }
  for (const Control* control : form().controls()) {
    const auto* option = dynamic_cast<const OptionButton*>(control);
    EXPECT_FALSE(option != nullptr && option->Value.peek()) << control->name();
  }
}

INSTANTIATE_TEST_SUITE_P(
    Of, Lock,
    ::testing::Values(
        LockRow{"LockPhone", phone, &Form9::Command1, &Form9::Text1, &Form9::Option1,
                &Form9::Label2, "AT+CLCK=\"PS\",1,", "Changes SuccessFul-LOCKED",
                "Changes Unsuccessful,Phone is Already Lock Or Invalid Password Entered"},
        LockRow{"UnlockPhone", phone, &Form9::Command1, &Form9::Text1, &Form9::Option2,
                &Form9::Label2, "AT+CLCK=\"PS\",0,", "Changes SuccessFul-UNLOCKED",
                "Changes Unsuccessful,Phone is Already UNLocked Or Invalid Password Entered"},
        LockRow{"ActivatePin", simPin, &Form9::Command5, &Form9::Text4, &Form9::Option4,
                &Form9::Label6, "AT+CLCK=\"SC\",1,", "Changes SuccessFul-ACTIVATED",
                "Changes Unsuccessful,SIM PIN is Already Active Or Invalid Password Entered"},
        LockRow{"DeactivatePin", simPin, &Form9::Command5, &Form9::Text4, &Form9::Option5,
                &Form9::Label6, "AT+CLCK=\"SC\",0,", "Changes SuccessFul-DEACTIVATED",
                "Changes Unsuccessful,SIM PIN is Already DeActivated Or Invalid Password Entered"},
        LockRow{"LockNetwork", network, &Form9::Command8, &Form9::Text7, &Form9::Option7,
                &Form9::Label10, "AT+CLCK=\"PN\",1,", "Changes SuccessFul-N/W LOCKED",
                "Changes Unsuccessful,N/W is Already Lock Or Invalid Password Entered"},
        LockRow{"UnlockNetwork", network, &Form9::Command8, &Form9::Text7, &Form9::Option8,
                &Form9::Label10, "AT+CLCK=\"PN\",0,", "Changes SuccessFul-N/WUNLOCKED",
                "Changes Unsuccessful,N/w is Already UNLocked Or Invalid Password Entered"}),
    RowName());

// The locks whose password has eight characters.
class LockOfEight : public Lock {};

TEST_P(LockOfEight, RefusesAnyOtherLengthAndEmptiesTheBox) {
  for (const std::string& password : {std::string(), std::string("1"), std::string("1234567")}) {
    box().Text = password;
    leaveInTranscript("old");
    press(apply());
    expectBox("Pasword Length Should Be 8");
    EXPECT_EQ(sent(), Texts{});
    EXPECT_EQ(box().Text.peek(), "");
    EXPECT_EQ(transcript(), "");
    expectNothingTold();
  }
}

TEST_P(LockOfEight, CountsABlankThatItDoesntSend) {
  box().Text = "1234567 ";
  press(apply());
  EXPECT_EQ(sent(), Texts{GetParam().command + "1234567\r"});
  EXPECT_EQ(boxes(), Texts{});
}

TEST_P(LockOfEight, WithoutAnOptionRefusesTheLengthFirst) {
  (form().*GetParam().option).Value = false;
  box().Text = "1234567";
  press(apply());
  expectBox("Pasword Length Should Be 8");
}

INSTANTIATE_TEST_SUITE_P(
    Of, LockOfEight,
    ::testing::Values(LockRow{"Phone", phone, &Form9::Command1, &Form9::Text1, &Form9::Option1,
                              &Form9::Label2, "AT+CLCK=\"PS\",1,", "", ""},
                      LockRow{"Network", network, &Form9::Command8, &Form9::Text7, &Form9::Option8,
                              &Form9::Label10, "AT+CLCK=\"PN\",0,", "", ""}),
    RowName());

class LockWithoutOption : public Lock {};

TEST_P(LockWithoutOption, OnlyEmptiesTheBox) {
  for (OptionButton* option : {&form().Option3, &form().Option6, &form().Option9}) {
    inPanel([option] { option->Value = true; });  // which clears the lock's two
  }
  run(0);
  inPanel([this] { box().Text = "12345678"; });
  run(0);
  leaveInTranscript("\r\nOK\r\n");
  click(apply());
  EXPECT_EQ(waiting(), 0);
  EXPECT_EQ(sent(), Texts{});
  EXPECT_EQ(box().Text.peek(), "");
  EXPECT_EQ(transcript(), "");
  expectNothingTold();
  expectAtRest();
}

INSTANTIATE_TEST_SUITE_P(
    Of, LockWithoutOption,
    ::testing::Values(LockRow{"Phone", phone, &Form9::Command1, &Form9::Text1, &Form9::Option1,
                              &Form9::Label2, "", "", ""},
                      LockRow{"SimPin", simPin, &Form9::Command5, &Form9::Text4, &Form9::Option4,
                              &Form9::Label6, "", "", ""},
                      LockRow{"Network", network, &Form9::Command8, &Form9::Text7, &Form9::Option7,
                              &Form9::Label10, "", "", ""}),
    RowName());

TEST_F(LockChange, ThePinIsSentWhateverItsLength) {
  inPanel([this] {
    form().TabStrip1.userTab(simPin);
    form().Command5.Visible = true;
    form().Option5.Value = true;
  });
  run(0);
  for (const std::string& pin : {std::string(), std::string("1234"), std::string("123456789")}) {
    form().Text4.Text = pin;
    press(form().Command5);
    EXPECT_EQ(sent(), Texts{"AT+CLCK=\"SC\",0," + pin.substr(0, 8) + "\r"});
    EXPECT_EQ(boxes(), Texts{});
  }
}

TEST_F(LockChange, RefreshBringsTheStateBackAndTheColourStays) {
  inPanel([this] {
    form().Option1.Value = true;
    form().Text1.Text = "12345678";
  });
  reply("AT+CLCK=\"PS\",1,12345678", kOk);
  press(form().Command1);
  answerLocks(information("+CLCK:(\"PS\",1)"));
  press(form().Command10);
  EXPECT_EQ(caption(form().Label2), kPhoneLocked);
  EXPECT_EQ(form().Label2.ForeColor.peek(), kDarkBlue);
}

TEST_F(LockChange, APasswordThatHoldsAResultIsTakenForIt) {
  inPanel([this] {
    form().Option1.Value = true;
    form().Text1.Text = "xxERRORx";
  });
  reply("AT+CLCK=\"PS\",1,xxERRORx", kOk);
  press(form().Command1);
  EXPECT_EQ(caption(form().Label2),
            "Changes Unsuccessful,Phone is Already Lock Or Invalid Password Entered");
}

TEST_F(LockChange, PressedTwiceSendsTwice) {
  inPanel([this] {
    form().Option1.Value = true;
    form().Text1.Text = "12345678";
  });
  run(0);
  click(form().Command1);
  run(0.5);
  click(form().Command1);
  settle();
  EXPECT_EQ(sent(), (Texts{"AT+CLCK=\"PS\",1,12345678\r", "AT+CLCK=\"PS\",1,12345678\r"}));
  expectAtRest();
}

// No wait carries over midnight: the handler ends there, and what it has done stays.
class LockChangeAtMidnight : public LockChange {
 protected:
  void SetUp() override {
    startWithOpenPort({2026, 3, 1, 23, 59, 30});
    openWindow();
    setAll(true);
    inPanel([this] {
      form().Option1.Value = true;
      for (TextBox* box : {&form().Text1, &form().Text2, &form().Text3}) box->Text = "12345678";
    });
    run(29.5 - now());
  }
};

TEST_F(LockChangeAtMidnight, EndsAndKeepsThePasswords) {
  reply("AT+CLCK=\"PS\",1,12345678", kOk);
  click(form().Command1);
  run(0.1);
  click(form().Command3);
  run(1);
  EXPECT_EQ(sent().size(), 2U);
  EXPECT_EQ(form().Text1.Text.peek(), "12345678");
  EXPECT_EQ(form().Text2.Text.peek(), "12345678");
  EXPECT_EQ(form().Text3.Text.peek(), "12345678");
  EXPECT_EQ(caption(form().Label2), "");
  expectAtRest();
}

}  // namespace
}  // namespace gsm
