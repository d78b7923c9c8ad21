#include <gtest/gtest.h>

#include "panel/form1.h"
#include "tests/sms/message_window_test.h"
#include "tests/support/rows.h"

namespace gsm {
namespace {

class DeleteEntry : public MessageWindowTest {};

TEST_F(DeleteEntry, EmptiesTheBoxAndTheTranscriptAndSaysSoASecondLater) {
  stopSendEvents();
  window().Text3.Text = "before";
  window().Label4.Caption = "note";
  compose("112", "text");
  leaveInTranscript("old");
  choose(window().Combo1, "12");
  click(window().Command4);
  EXPECT_EQ(sent(), Texts{"AT+CMGD=12\r"});
  EXPECT_EQ(messageRead() + transcript(), "");
  run(0.99);
  EXPECT_EQ(messageRead(), "");
  run(0.02);
  EXPECT_EQ(messageRead(), "Message Deleted");
  EXPECT_EQ(note(), "note");
  EXPECT_EQ(number() + message(), "112text");
  EXPECT_EQ(window().Combo1.ListIndex.peek(), 11);
  EXPECT_EQ(window().Combo1.List.peek().size(), 12U);
  expectAtRest();
}

TEST_F(DeleteEntry, WithNothingPickedIsSentAllTheSame) {
  press(window().Command4);
  EXPECT_EQ(sent(), Texts{"AT+CMGD=\r"});
  EXPECT_EQ(messageRead(), "Message Deleted");
}

struct DeleteRow {
  std::string name;
  std::string reply;
};

class DeleteReply : public DeleteEntry, public ::testing::WithParamInterface<DeleteRow> {};

TEST_P(DeleteReply, IsNotLookedAt) {
  reply("AT+CMGD=1", GetParam().reply);
  choose(window().Combo1, "1");
  press(window().Command4);
  EXPECT_EQ(messageRead(), "Message Deleted");
  EXPECT_EQ(transcript(), "");
  expectAtRest();
}

INSTANTIATE_TEST_SUITE_P(Rows, DeleteReply,
                         ::testing::Values(DeleteRow{"Ok", kOk}, DeleteRow{"Error", kError},
                                           DeleteRow{"OfAnEmptyEntry", "\r\n+CMS ERROR: 321\r\n"}),
                         RowName());

}  // namespace
}  // namespace gsm
