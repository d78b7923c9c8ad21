#include <gtest/gtest.h>

#include "panel/form1.h"
#include "phonebook/form5.h"
#include "tests/support/phone_book_test.h"

namespace gsm {
namespace {

class PromptButtons : public PhoneBookTest {
 protected:
  void SetUp() override {
    PhoneBookTest::SetUp();
    inPanel([this] { prompt().Show(); });
    run(0);
  }
};

TEST_F(PromptButtons, AnswerTakesTheCallOnTopOfTheTranscriptAndKeepsThePrompt) {
  reply("ATA", kError);
  leaveInTranscript("old");
  click(prompt().Command1);
  EXPECT_EQ(sent(), Texts{"ATA\r"});
  run(0.5);
  EXPECT_EQ(transcript(), "oldATA\r" + std::string(kError));
  settle();
  EXPECT_EQ(transcript(), "");
  EXPECT_TRUE(promptUp());
  EXPECT_EQ(boxes(), Texts{});
}

TEST_F(PromptButtons, HangUpEndsTheCallAndHidesThePromptOnceItHasWaited) {
  leaveInTranscript("old");
  click(prompt().Command2);
  EXPECT_EQ(sent(), Texts{"ATH\r"});
  EXPECT_EQ(transcript(), "");
  run(1.9);
  EXPECT_TRUE(promptUp());
  run(0.2);
  EXPECT_FALSE(promptUp());
  EXPECT_TRUE(prompt().isLoaded());
}

TEST_F(PromptButtons, HangUpThrowsTheReplyAway) {
  reply("ATH", kOk);
  click(prompt().Command2);
  settle();
  EXPECT_EQ(transcript(), "");
  EXPECT_FALSE(promptUp());
}

TEST_F(PromptButtons, HangUpStillWorksWhileAnswerIsDisabled) {
  prompt().Command1.Enabled = false;
  click(prompt().Command1);
  EXPECT_EQ(sent(), Texts{});
  click(prompt().Command2);
  settle();
  EXPECT_EQ(sent(), Texts{"ATH\r"});
  EXPECT_FALSE(promptUp());
}

TEST_F(PromptButtons, OfAClosedPortEndSilently) {
  leaveInTranscript("old");
  inPanel([this] { form1().MSComm1.PortOpen = false; });
  run(0);
  click(prompt().Command1);
  EXPECT_EQ(transcript(), "old");
  click(prompt().Command2);
  settle();
  EXPECT_EQ(transcript(), "");
  EXPECT_TRUE(promptUp());
  EXPECT_EQ(boxes(), Texts{});
  EXPECT_FALSE(ended());
}

}  // namespace
}  // namespace gsm
