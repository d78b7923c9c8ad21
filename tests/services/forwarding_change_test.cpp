#include <gtest/gtest.h>

#include "tests/services/services_test.h"

namespace gsm {
namespace {

constexpr const char* kNumber = "0146290800";

class ForwardingChange : public ServicesTest {
 protected:
  void SetUp() override {
    ServicesTest::SetUp();
    openWindow();
    form().Label2.Caption = "before";
  }
  void enter(const std::string& number) { form().Text1.Text = number; }
  void expectRefused(const std::string& text) {
    expectBox(text, "GSM");
    EXPECT_EQ(sent(), Texts{});
    EXPECT_EQ(waiting(), 0);
  }
};

TEST_F(ForwardingChange, ToRegisterWantsANumberBeforeAnythingElse) {
  choose({&form().Option7});
  press(form().Command1);
  expectRefused("Enter Valid Number ");
  EXPECT_EQ(caption(form().Label2), "before");
}

TEST_F(ForwardingChange, WantsAReason) {
  press(form().Command1);
  expectRefused("Select Status Property");
  choose({&form().Option7, &form().Option12});
  enter(kNumber);
  press(form().Command1);
  expectRefused("Select Status Property");
  choose({&form().Option8});
  press(form().Command1);
  expectRefused("Select Status Property");
  EXPECT_EQ(caption(form().Label2), "before");
  EXPECT_EQ(form().Text1.Text.peek(), kNumber);
}

TEST_F(ForwardingChange, WantsAModeAfterTheReason) {
  choose({&form().Option2, &form().Option12});
  enter(kNumber);
  press(form().Command1);
  expectRefused("Select Mode Correctly");
  EXPECT_EQ(caption(form().Label2), "before");
  EXPECT_EQ(form().Text1.Text.peek(), kNumber);
}

TEST_F(ForwardingChange, ToRegisterWantsAClassLastAndKeepsTheNumber) {
  choose({&form().Option1, &form().Option7});
  enter(kNumber);
  leaveInTranscript("old");
  press(form().Command1);
  expectRefused("Select Class Correctly");
  EXPECT_EQ(caption(form().Label2), "");
  EXPECT_EQ(form().Text1.Text.peek(), kNumber);
  EXPECT_EQ(transcript(), "old");
}

TEST_F(ForwardingChange, WaitsForTheAnswerToItsBox) {
  machine().boxes.setAnswer(HeadlessBoxes::Answer::hold);
  choose({&form().Option1, &form().Option7});
  enter(kNumber);
  click(form().Command1);
  run(5);
  EXPECT_GT(waiting(), 0);
  machine().boxes.answerTop();
  settle();
  EXPECT_EQ(waiting(), 0);
  EXPECT_EQ(sent(), Texts{});
}

struct ReasonRow {
  std::string name;
  OptionButton Form12::*option;
  std::string code;
};

class ForwardingReason : public ForwardingChange, public ::testing::WithParamInterface<ReasonRow> {
 protected:
  void SetUp() override {
    ForwardingChange::SetUp();
    choose({&(form().*GetParam().option), &form().Option12});
    enter(kNumber);
  }
};

TEST_P(ForwardingReason, IsRegisteredWithNumberAndClass) {
  choose({&form().Option7});
  press(form().Command1);
  EXPECT_EQ(sent(), Texts{"AT+CCFC=" + GetParam().code + ",3,\"0146290800\",1\r"});
}

TEST_P(ForwardingReason, IsErasedWithoutThem) {
  choose({&form().Option8});
  press(form().Command1);
  EXPECT_EQ(sent(), Texts{"AT+CCFC=" + GetParam().code + ",4\r"});
  EXPECT_EQ(form().Text1.Text.peek(), "");
}

INSTANTIATE_TEST_SUITE_P(Of, ForwardingReason,
                         ::testing::Values(ReasonRow{"UnConditional", &Form12::Option1, "0"},
                                           ReasonRow{"MobileBusy", &Form12::Option2, "1"},
                                           ReasonRow{"NoReply", &Form12::Option3, "2"},
                                           ReasonRow{"NotReachable", &Form12::Option4, "3"},
                                           ReasonRow{"All", &Form12::Option5, "4"},
                                           ReasonRow{"AllConditional", &Form12::Option6, "5"}),
                         RowName());

class ForwardingClass : public ForwardingChange, public ::testing::WithParamInterface<ReasonRow> {};

TEST_P(ForwardingClass, IsSentAfterTheNumber) {
  choose({&form().Option1, &form().Option7, &(form().*GetParam().option)});
  enter(kNumber);
  press(form().Command1);
  EXPECT_EQ(sent(), Texts{"AT+CCFC=0,3,\"0146290800\"," + GetParam().code + "\r"});
}

INSTANTIATE_TEST_SUITE_P(Of, ForwardingClass,
                         ::testing::Values(ReasonRow{"Voice", &Form12::Option12, "1"},
                                           ReasonRow{"Data", &Form12::Option13, "2"},
                                           ReasonRow{"Fax", &Form12::Option14, "4"},
                                           ReasonRow{"Sms", &Form12::Option15, "8"},
                                           ReasonRow{"All", &Form12::Option16, "7"}),
                         RowName());

TEST_F(ForwardingChange, EachGroupOfOptionsExcludesItsOwnOnly) {
  choose({&form().Option1, &form().Option7, &form().Option12, &form().Option6});
  EXPECT_FALSE(form().Option1.Value.peek());
  EXPECT_TRUE(form().Option6.Value.peek());
  EXPECT_TRUE(form().Option7.Value.peek());
  EXPECT_TRUE(form().Option12.Value.peek());
}

TEST_F(ForwardingChange, SendsTheNumberAsItWasTyped) {
  choose({&form().Option1, &form().Option7, &form().Option12});
  enter(" +33 \"x\", ");
  press(form().Command1);
  EXPECT_EQ(sent(), Texts{"AT+CCFC=0,3,\" +33 \"x\", \",1\r"});
}

TEST_F(ForwardingChange, ToEraseNeedsNeitherNumberNorClass) {
  choose({&form().Option3, &form().Option8});
  reply("AT+CCFC=2,4", kOk);
  press(form().Command1);
  EXPECT_EQ(sent(), Texts{"AT+CCFC=2,4\r"});
  EXPECT_EQ(caption(form().Label2), "Changes SuccessFul");
}

struct ForwardingOutcomeRow {
  std::string name;
  std::string reply;
  std::string shown;
};

class ForwardingOutcome : public ForwardingChange,
                          public ::testing::WithParamInterface<ForwardingOutcomeRow> {};

TEST_P(ForwardingOutcome, OfRegisteringIsShownAfterThreeSeconds) {
  choose({&form().Option1, &form().Option7, &form().Option12});
  enter(kNumber);
  leaveInTranscript("\r\nOK\r\nERROR\r\n");
  reply("AT+CCFC=0,3,\"0146290800\",1", GetParam().reply);
  click(form().Command1);
  EXPECT_EQ(caption(form().Label2), "");
  EXPECT_EQ(transcript(), "");
  EXPECT_EQ(form().Text1.Text.peek(), kNumber);
  run(2.99);
  EXPECT_EQ(caption(form().Label2), "");
  EXPECT_GT(waiting(), 0);
  run(0.02);
  EXPECT_EQ(caption(form().Label2), GetParam().shown);
  EXPECT_EQ(form().Text1.Text.peek(), "");
  EXPECT_EQ(transcript(), "");
  EXPECT_TRUE(form().Option1.Value.peek());
  EXPECT_TRUE(form().Option7.Value.peek());
  EXPECT_TRUE(form().Option12.Value.peek());
  expectAtRest();
}

TEST_P(ForwardingOutcome, OfErasingIsShownTheSame) {
  choose({&form().Option1, &form().Option8});
  enter(kNumber);
  leaveInTranscript("\r\nOK\r\nERROR\r\n");
  reply("AT+CCFC=0,4", GetParam().reply);
  click(form().Command1);
  run(2.99);
  EXPECT_EQ(caption(form().Label2), "");
  run(0.02);
  EXPECT_EQ(caption(form().Label2), GetParam().shown);
  EXPECT_EQ(form().Text1.Text.peek(), "");
  EXPECT_EQ(transcript(), "");
}

TEST_P(ForwardingOutcome, DoesntReadTheStateBack) {
  form().Label11.Caption = "as read";
  choose({&form().Option1, &form().Option8});
  reply("AT+CCFC=0,4", GetParam().reply);
  press(form().Command1);
  EXPECT_EQ(sent().size(), 1U);
  EXPECT_EQ(forwardingShown()[0], "as read");
}

INSTANTIATE_TEST_SUITE_P(
    Is, ForwardingOutcome,
    ::testing::Values(ForwardingOutcomeRow{"Ok", kOk, "Changes SuccessFul"},
                      ForwardingOutcomeRow{"Error", kError, "Changes UnSuccessFul"},
                      ForwardingOutcomeRow{"Both", "\r\nERROR\r\n\r\nOK\r\n", "Changes SuccessFul"},
                      ForwardingOutcomeRow{"Neither", "\r\nsomething else\r\n", ""},
                      ForwardingOutcomeRow{"Silence", "", ""}),
    RowName());

TEST_F(ForwardingChange, WithoutAPortEndsSilentlyAndKeepsTheNumber) {
  choose({&form().Option1, &form().Option7, &form().Option12});
  enter(kNumber);
  closePort();
  press(form().Command1);
  EXPECT_EQ(caption(form().Label2), "");
  EXPECT_EQ(form().Text1.Text.peek(), kNumber);
  expectAtRest();
}

}  // namespace
}  // namespace gsm
