// What the user can reach: enabled and visible, with all that holds it, and no box in front.

#include "tests/controls/window_fixture.h"

namespace gsm {
namespace {

class ReachTest : public WindowTest {};

TEST_F(ReachTest, AClickRunsTheHandler) {
  noteEach(window.Label1.Click, "label");
  noteEach(window.Command1.Click, "button");
  noteEach(window.Image1.Click, "picture");
  noteEach(window.Option2.Click, "option");
  EXPECT_TRUE(window.Label1.userClick());
  EXPECT_TRUE(window.Command1.userClick());
  EXPECT_TRUE(window.Image1.userClick());
  EXPECT_TRUE(window.Option2.userClick());
  EXPECT_EQ(takeNotes(), Notes({"label", "button", "picture", "option"}));
}

TEST_F(ReachTest, AClickWithoutAHandlerIsDoneAllTheSame) {
  EXPECT_TRUE(window.Command1.userClick());
}

TEST_F(ReachTest, TheHandlerOfAClickCountsOnTheStack) {
  window.Command1.Click = [this] { note(std::to_string(depth())); };
  window.Command1.userClick();
  EXPECT_EQ(takeNotes(), Notes({"1"}));
}

TEST_F(ReachTest, AKeyHeldDownCantPileClicksUpForEver) {
  int clicks = 0;
  window.Command1.Click = [&] {
    ++clicks;
    window.Command1.userClick();
  };
  window.Command1.userClick();
  EXPECT_EQ(clicks, 2 * HandlerStack::kDeepest);
  EXPECT_TRUE(window.Command1.userClick()) << "in reach again once the stack has shrunk";
}

TEST_F(ReachTest, ADisabledControlIsOutOfReach) {
  noteEach(window.Command1.Click, "click");
  window.Command1.Enabled = false;
  EXPECT_FALSE(window.Command1.userClick());
  EXPECT_EQ(takeNotes(), Notes());
  window.Command1.Enabled = true;
  EXPECT_TRUE(window.Command1.userClick());
}

TEST_F(ReachTest, AnInvisibleControlIsOutOfReach) {
  window.Command1.Visible = false;
  EXPECT_FALSE(window.Command1.userClick());
}

TEST_F(ReachTest, AControlInADisabledOrInvisibleFrameIsOutOfReach) {
  noteEach(window.Command2.Click, "click");
  for (Frame* frame : {&window.Frame1, &window.Frame2}) {
    SCOPED_TRACE(frame->name());
    frame->Enabled = false;
    EXPECT_FALSE(window.Command2.userClick());
    frame->Enabled = true;
    frame->Visible = false;
    EXPECT_FALSE(window.Command2.userClick());
    // The control's own state doesn't tell.
    EXPECT_TRUE(window.Command2.Visible);
    frame->Visible = true;
    EXPECT_TRUE(window.Command2.userClick());
  }
  EXPECT_EQ(takeNotes(), Notes({"click", "click"}));
}

TEST_F(ReachTest, AControlOfAHiddenWindowIsOutOfReach) {
  window.Hide();
  EXPECT_FALSE(window.Command1.userClick());
}

TEST_F(ReachTest, NothingIsInReachUnderAMessageBox) {
  machine().boxes.setAnswer(HeadlessBoxes::Answer::hold);
  inProgram([this] { platform().boxes.show("hold"); });
  run(0);
  EXPECT_FALSE(window.Command1.userClick());
  EXPECT_FALSE(window.Text1.userType("x"));
  EXPECT_FALSE(window.userClose());
  EXPECT_FALSE(window.userState(minimised));
  EXPECT_TRUE(machine().boxes.answerTop());
  EXPECT_TRUE(window.Command1.userClick());
}

TEST_F(ReachTest, EveryKindOfControlRefusesWhatIsOutOfReach) {
  window.Combo1.AddItem("a");
  window.List1.AddItem("a");
  for (Control* control : window.controls()) control->Enabled = false;
  EXPECT_FALSE(window.Label1.userClick());
  EXPECT_FALSE(window.Image1.userClick());
  EXPECT_FALSE(window.Option2.userClick());
  EXPECT_FALSE(window.Text1.userType("x"));
  EXPECT_FALSE(window.Text1.userErase());
  EXPECT_FALSE(window.Text1.userEdit("x", 1));
  EXPECT_FALSE(window.Combo1.userSelect(0));
  EXPECT_FALSE(window.Combo1.userType("x"));
  EXPECT_FALSE(window.Combo1.userErase());
  EXPECT_FALSE(window.List1.userSelect(0));
  EXPECT_FALSE(window.Slider1.userMove(4));
  EXPECT_FALSE(window.TabStrip1.userTab(2));
  EXPECT_EQ(window.Text1.Text.get(), "design");
  EXPECT_EQ(window.Combo1.ListIndex.get(), -1);
  EXPECT_EQ(window.List1.ListIndex.get(), -1);
  EXPECT_EQ(window.Slider1.Value.get(), 3);
  EXPECT_EQ(window.TabStrip1.Value.get(), 1);
  EXPECT_FALSE(window.Option2.Value);
}

TEST_F(ReachTest, CodeReachesWhatTheUserCanNot) {
  noteEach(window.Option2.Click, "option");
  window.Option2.Enabled = false;
  window.Option2.Value = true;
  EXPECT_EQ(takeNotes(), Notes({"option"}));
}

TEST_F(ReachTest, MembersOfAnArrayAreToldApartByTheirIndex) {
  EXPECT_EQ(window.Key.size(), 2);
  EXPECT_EQ(window.Key[0].fullName(), "Key(0)");
  EXPECT_EQ(window.Key[1].fullName(), "Key(1)");
  EXPECT_EQ(window.Key[1].name(), "Key");
  EXPECT_EQ(window.Key[1].index(), 1);
  EXPECT_EQ(window.Command1.index(), Control::kNoIndex);
  for (CommandButton& key : window.Key) noteEach(key.Click, key.Caption);
  window.Key[1].userClick();
  window.Key[0].userClick();
  EXPECT_EQ(takeNotes(), Notes({"1", "0"}));
}

}  // namespace
}  // namespace gsm
