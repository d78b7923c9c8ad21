#include "platform/headless/headless_boxes.h"

#include "tests/support/platform_fixture.h"

namespace gsm {
namespace {

class HeadlessBoxesTest : public PlatformTest {
 protected:
  HeadlessBoxes& boxes() { return machine().boxes; }

  /// Shows a box as a handler, `after` seconds from now, and notes when it has gone.
  void show(const std::string& text, double after = 0) {
    inProgram(
        [this, text] {
          platform().boxes.show(text, "GSM", BoxIcon::critical);
          note(text + " gone");
        },
        after);
  }
  void answer(double after = 0) {
    time().after(fromSeconds(after), [this] { answered_ = boxes().answerTop(); });
  }
  bool answered_ = false;
};

TEST_F(HeadlessBoxesTest, AreWrittenDownWithTimeTextTitleAndIcon) {
  show("Message", 1.5);
  run(2);
  const auto shown = boxes().takeShown();
  ASSERT_EQ(shown.size(), 1u);
  EXPECT_EQ(toSeconds(shown[0].at), 1.5);
  EXPECT_EQ(shown[0].text, "Message");
  EXPECT_EQ(shown[0].title, "GSM");
  EXPECT_EQ(shown[0].icon, BoxIcon::critical);
  EXPECT_TRUE(boxes().takeShown().empty());
}

TEST_F(HeadlessBoxesTest, WithoutATitleTheyHaveTheProgramsName) {
  inProgram([this] { platform().boxes.show("Message"); });
  run(0);
  const auto shown = boxes().takeShown();
  ASSERT_EQ(shown.size(), 1u);
  EXPECT_EQ(shown[0].title, "GSM-APPLICATION");
  EXPECT_EQ(shown[0].icon, BoxIcon::none);
}

TEST_F(HeadlessBoxesTest, AreAnsweredAtOnceUnlessTold) {
  show("Message");
  run(0);
  EXPECT_EQ(takeNotes(), Notes({"Message gone"}));
  EXPECT_FALSE(boxes().isUp());
}

TEST_F(HeadlessBoxesTest, HeldBoxesWaitForTheUser) {
  boxes().setAnswer(HeadlessBoxes::Answer::hold);
  show("Message");
  run(100);
  EXPECT_TRUE(boxes().isUp());
  EXPECT_EQ(depth(), 1);
  EXPECT_EQ(boxes().takeShown().size(), 1u);
  answer();
  run(0);
  EXPECT_TRUE(answered_);
  EXPECT_FALSE(boxes().isUp());
  EXPECT_EQ(depth(), 0);
  EXPECT_EQ(takeNotes(), Notes({"Message gone"}));
}

TEST_F(HeadlessBoxesTest, AnAnswerWithoutABoxIsNone) {
  EXPECT_FALSE(boxes().answerTop());
  boxes().setAnswer(HeadlessBoxes::Answer::hold);
  EXPECT_FALSE(boxes().answerTop());
}

TEST_F(HeadlessBoxesTest, EventsRunUnderneath) {
  boxes().setAnswer(HeadlessBoxes::Answer::hold);
  show("Message");
  inProgram([this] { note("event"); }, 1);
  run(2);
  EXPECT_EQ(takeNotes(), Notes({"event"}));
  EXPECT_TRUE(boxes().isUp());
}

TEST_F(HeadlessBoxesTest, TheBoxOnTopGoesFirst) {
  boxes().setAnswer(HeadlessBoxes::Answer::hold);
  show("lower");
  show("upper", 1);
  run(2);
  EXPECT_EQ(depth(), 2);
  answer();
  run(0);
  EXPECT_EQ(takeNotes(), Notes({"upper gone"}));
  EXPECT_TRUE(boxes().isUp());
  answer();
  run(0);
  EXPECT_EQ(takeNotes(), Notes({"lower gone"}));
  EXPECT_FALSE(boxes().isUp());
}

TEST_F(HeadlessBoxesTest, TwoAnswersOfOneInstantTakeTwoBoxesDown) {
  boxes().setAnswer(HeadlessBoxes::Answer::hold);
  show("lower");
  show("upper");
  run(1);
  answer();
  answer();
  run(0);
  EXPECT_EQ(takeNotes(), Notes({"upper gone", "lower gone"}));
}

TEST_F(HeadlessBoxesTest, AHandlerThatWaitsAboveABoxKeepsItsHandlerThoughTheUserHasAnswered) {
  boxes().setAnswer(HeadlessBoxes::Answer::hold);
  show("Message");
  inProgram(
      [this] {
        wait(5);
        note("waited");
      },
      1);
  answer(2);
  run(3);
  EXPECT_FALSE(boxes().isUp());
  EXPECT_EQ(depth(), 2);
  run(10);
  EXPECT_EQ(takeNotes(), Notes({"waited", "Message gone"}));
}

TEST_F(HeadlessBoxesTest, HowBoxesGoCountsForThoseShownFromThenOn) {
  boxes().setAnswer(HeadlessBoxes::Answer::hold);
  show("held");
  run(0);
  boxes().setAnswer(HeadlessBoxes::Answer::automatic);
  show("passing");
  run(1);
  EXPECT_EQ(takeNotes(), Notes({"passing gone"}));
  EXPECT_TRUE(boxes().isUp());
}

TEST_F(HeadlessBoxesTest, AHeldBoxKeepsARunFromSettlingUpToItsLimit) {
  boxes().setAnswer(HeadlessBoxes::Answer::hold);
  show("Message");
  settle(30);
  EXPECT_EQ(at(), 30);
  EXPECT_EQ(depth(), 1);
}

}  // namespace
}  // namespace gsm
