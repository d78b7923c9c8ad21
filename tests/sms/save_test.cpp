#include <gtest/gtest.h>

#include "panel/form1.h"
#include "tests/sms/message_window_test.h"
#include "tests/support/rows.h"

namespace gsm {
namespace {

const std::string kSaved = information("+CMGW: 4");
constexpr const char* kNotSaved = "Message Not Saved.Error Occurred";

class Save : public MessageWindowTest {
 protected:
  void save() { press(window().Command2); }
};

TEST_F(Save, StoresTheTextWithoutTheHeader) {
  compose("+12345", "  Hello ", "Hi");
  answerWithPrompt("AT+CMGW=+12345");
  answerBody("Hello", kSaved);
  save();
  EXPECT_EQ(sent(), (Texts{"AT+CMGW=+12345\r", std::string("Hello") + kEnd}));
  EXPECT_EQ(note(), "Message Saved");
  EXPECT_EQ(transcript(), "");
  EXPECT_EQ(number() + "|" + message() + "|" + header(), "+12345|  Hello |Hi");
  expectAtRest();
}

TEST_F(Save, TakesFourSecondsWithASilentModemAndReportsAnError) {
  stopSendEvents();
  compose("12345", "Hello");
  const double start = now();
  click(window().Command2);
  run(0.99);
  EXPECT_EQ(sent(), Texts{"AT+CMGW=12345\r"});
  run(0.02);
  EXPECT_EQ(sent(), Texts{std::string("Hello") + kEnd});
  run(2.98);
  EXPECT_EQ(note(), "");
  settle();
  EXPECT_NEAR(now() - start, 4, 0.01);
  EXPECT_EQ(note(), kNotSaved);
  expectAtRest();
}

TEST_F(Save, EmptiesTheStatusLabelAndTheTranscriptFirst) {
  window().Label4.Caption = "before";
  leaveInTranscript("+CMGW: from before");
  compose("12345", "Hello");
  click(window().Command2);
  EXPECT_EQ(note(), "");
  EXPECT_EQ(transcript(), "");
  settle();
  EXPECT_EQ(note(), kNotSaved);
}

TEST_F(Save, WithoutANumberAsksForItAndLeavesTheStoredMessagesOnView) {
  compose("", "Hello");
  click(window().Command5);
  window().Label4.Caption = "before";
  save();
  expectBox("Please Enter Destination Number");
  EXPECT_TRUE(window().Combo2.Visible.peek());
  EXPECT_EQ(note(), "before");
  EXPECT_EQ(sent(), Texts{});
}

TEST_F(Save, LeavesTheStoredMessagesOnView) {
  compose("12345", "Hello");
  click(window().Command5);
  save();
  EXPECT_TRUE(window().Combo2.Visible.peek());
}

struct SaveRow {
  std::string name;
  std::string reply;
  std::string note;
};

class SaveResult : public Save, public ::testing::WithParamInterface<SaveRow> {};

TEST_P(SaveResult, IsReportedByTheIndex) {
  compose("12345", "Hello");
  answerWithPrompt("AT+CMGW=12345");
  answerBody("Hello", GetParam().reply);
  save();
  EXPECT_EQ(note(), GetParam().note);
  EXPECT_EQ(transcript(), "");
}

INSTANTIATE_TEST_SUITE_P(
    Rows, SaveResult,
    ::testing::Values(SaveRow{"Taken", kSaved, "Message Saved"},
                      SaveRow{"TakenBesideAnError", kError + kSaved, "Message Saved"},
                      SaveRow{"Refused", kError, kNotSaved},
                      SaveRow{"RefusedWithACode", "\r\n+CMS ERROR: 322\r\n", kNotSaved},
                      SaveRow{"OkAlone", kOk, kNotSaved},
                      SaveRow{"Sent", information("+CMGS: 13"), kNotSaved}),
    RowName());

}  // namespace
}  // namespace gsm
