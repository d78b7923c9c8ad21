#include <gtest/gtest.h>

#include "panel/form7.h"
#include "tests/services/services_test.h"
#include "tests/support/property_watch.h"

namespace gsm {
namespace {

class Pages : public ServicesTest {
 protected:
  void SetUp() override {
    ServicesTest::SetUp();
    openWindow();
  }
};

struct TurnRow {
  std::string name;
  Tab tab;
  Texts shown;  // of the frames and the button, when none was on view before
  Texts left;   // when all of them were
  Texts sent;
};

class Turn : public Pages, public ::testing::WithParamInterface<TurnRow> {
 protected:
  void setAll(bool visible) {
    const auto setAllTo = [this](bool value) {
      for (Control* part : std::initializer_list<Control*>{
               &form().Frame1, &form().Frame13, &form().Frame9, &form().Frame5, &form().Frame10,
               &form().Frame11, &form().Frame12, &form().Command6}) {
        part->Visible = value;
      }
    };
    inPanel([=] { setAllTo(visible); });
    run(0);
  }
};

TEST_P(Turn, ShowsItsFrames) {
  setAll(false);
  turnTo(GetParam().tab);
  EXPECT_EQ(pages(), GetParam().shown);
}

TEST_P(Turn, HidesTheOthersAndLeavesTheRest) {
  setAll(true);
  turnTo(GetParam().tab);
  EXPECT_EQ(pages(), GetParam().left);
}

TEST_P(Turn, ShowsItsFramesBeforeItsReads) {
  setAll(false);
  clickTab(GetParam().tab);
  EXPECT_EQ(pages(), GetParam().shown);
  EXPECT_EQ(sent(), Texts{GetParam().sent.front()});
}

TEST_P(Turn, ReadsItsPageAndClearsTheTranscript) {
  reply("AT+CCUG?", kOk);
  turnTo(GetParam().tab);
  leaveInTranscript("left over");
  sent();
  turnTo(GetParam().tab);
  EXPECT_EQ(sent(), GetParam().sent);
  EXPECT_EQ(transcript(), "");
  expectAtRest();
}

TEST_P(Turn, ToTheSelectedTabReadsOnceMore) {
  turnTo(GetParam().tab);
  sent();
  turnTo(GetParam().tab);
  EXPECT_EQ(form().TabStrip1.Value.peek(), GetParam().tab);
  EXPECT_EQ(sent(), GetParam().sent);
}

TEST_P(Turn, WithAClosedPortShowsItsFramesAndEndsSilently) {
  closePort();
  setAll(false);
  turnTo(GetParam().tab);
  EXPECT_EQ(pages(), GetParam().shown);
  expectAtRest();
}

INSTANTIATE_TEST_SUITE_P(
    To, Turn,
    ::testing::Values(TurnRow{.name = "Forwarding",
                              .tab = forwarding,
                              .shown = {"Frame1", "Frame13"},
                              .left = {"Frame1", "Frame13", "Frame11", "Command6"},
                              .sent = kForwardingReads},
                      TurnRow{.name = "Barring",
                              .tab = barring,
                              .shown = {"Frame9"},
                              .left = {"Frame13", "Frame9", "Frame10", "Frame11", "Command6"},
                              .sent = kBarringReads},
                      TurnRow{.name = "Waiting",
                              .tab = waitingCalls,
                              .shown = {"Frame10"},
                              .left = {"Frame13", "Frame10"},
                              .sent = {"AT+CCWA=1,2\r"}},
                      TurnRow{.name = "UserGroup",
                              .tab = userGroup,
                              .shown = {"Frame12"},
                              .left = {"Frame13", "Frame12", "Command6"},
                              .sent = {"AT+CCUG?\r"}}),
    RowName());

TEST_F(Pages, TheWaitingStaysOnViewBesideTheBarring) {
  turnTo(waitingCalls);
  turnTo(barring);
  EXPECT_EQ(pages(), (Texts{"Frame13", "Frame9", "Frame10"}));
  turnTo(forwarding);
  EXPECT_EQ(pages(), (Texts{"Frame1", "Frame13"}));
}

TEST_F(Pages, TheChangeOfTheBarringGoesWithTheNextTab) {
  turnTo(barring);
  click(form().Command4);
  EXPECT_EQ(pages(), (Texts{"Frame13", "Frame5", "Frame11", "Command6"}));
  turnTo(barring);
  EXPECT_EQ(pages(), (Texts{"Frame13", "Frame9", "Frame11", "Command6"}));
}

TEST_F(Pages, TheTabOfTheForwardingTakesEighteenSeconds) {
  turnTo(barring);
  const double begin = now();
  clickTab(forwarding);
  run(kLoad - 0.01);
  EXPECT_GT(waiting(), 0);
  run(0.02);
  EXPECT_EQ(waiting(), 0);
  EXPECT_NEAR(now() - begin, kLoad, 0.02);
}

TEST_F(Pages, MinimisingAndRestoringTheWindowTakesTheStatusWindowAlong) {
  const auto setState = [this](int state) {
    inPanel([this, state] { form().userState(state); });
    run(0);
    return panel().form7.WindowState.peek();
  };
  EXPECT_EQ(setState(WindowState::minimised), WindowState::minimised);
  EXPECT_EQ(setState(WindowState::maximised), WindowState::minimised);
  EXPECT_EQ(setState(WindowState::normal), WindowState::normal);
  EXPECT_EQ(setState(WindowState::maximised), WindowState::normal);
}

TEST_F(Pages, ClosingTheWindowEmptiesTheStatusLineAndBringsTheMainWindowBack) {
  inPanel([this] {
    form1().Hide();
    form1().Label5.Caption = "Please Wait....";
  });
  run(0);
  closeWindow();
  EXPECT_EQ(caption(form1().Label5), "");
  EXPECT_TRUE(form1().Visible.peek());
  EXPECT_FALSE(form().Visible.peek());
  EXPECT_FALSE(form().isLoaded());
}

}  // namespace
}  // namespace gsm
