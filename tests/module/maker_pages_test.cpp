#include <gtest/gtest.h>

#include "panel/form7.h"
#include "tests/module/makers_features_test.h"
#include "tests/support/property_watch.h"

namespace gsm {
namespace {

class MakerPages : public MakersFeaturesTest {
 protected:
  void SetUp() override {
    MakersFeaturesTest::SetUp();
    openWindow();
  }
};

TEST_F(MakerPages, TheWindowComesUpOnTheIndicationsAndReadsThem) {
  closeWindow();
  run(0);
  beginLoad();
  EXPECT_EQ(pages(), Texts{"Frame1"});
  EXPECT_EQ(sent(), Texts{"AT+CIND?\r"});
  EXPECT_EQ(indicators(), kWaiting);
  EXPECT_FALSE(form().Visible.peek());
  settle();
  EXPECT_TRUE(form().Visible.peek());
}

struct PageRow {
  std::string name;
  CommandButton Form17::*button;
  std::string shown;
  Texts sent;
};

class MakerPage : public MakerPages, public ::testing::WithParamInterface<PageRow> {};

TEST_P(MakerPage, ComesUpInThePlaceOfAllOthers) {
  inPanel([this] {
    for (Frame* page : {&form().Frame1, &form().Frame5, &form().Frame6, &form().Frame9}) {
      page->Visible = true;
    }
  });
  run(0);
  press(form().*GetParam().button);
  EXPECT_EQ(pages(), Texts{GetParam().shown});
  EXPECT_EQ(sent(), GetParam().sent);
  expectAtRest();
}

TEST_P(MakerPage, ComesUpAgainAfterEachOther) {
  for (CommandButton* other :
       {&form().Command1, &form().Command2, &form().Command3, &form().Command5}) {
    press(*other);
    press(form().*GetParam().button);
    EXPECT_EQ(pages(), Texts{GetParam().shown}) << other->name();
  }
}

TEST_P(MakerPage, ComesUpOverAClosedPort) {
  closePort();
  press(form().*GetParam().button);
  EXPECT_EQ(pages(), Texts{GetParam().shown});
  EXPECT_EQ(sent(), Texts{});
  expectAtRest();
}

INSTANTIATE_TEST_SUITE_P(
    Of, MakerPage,
    ::testing::Values(
        PageRow{.name = "Indications",
                .button = &Form17::Command1,
                .shown = "Frame1",
                .sent = {"AT+CIND?\r"}},
        PageRow{.name = "VoiceMail", .button = &Form17::Command2, .shown = "Frame5", .sent = {}},
        PageRow{.name = "Pins", .button = &Form17::Command3, .shown = "Frame6", .sent = {}},
        PageRow{.name = "Power", .button = &Form17::Command5, .shown = "Frame9", .sent = {}}),
    RowName());

TEST_F(MakerPages, LeaveTheTranscriptAloneButForTheIndications) {
  leaveInTranscript("old");
  for (CommandButton* button : {&form().Command2, &form().Command3, &form().Command5}) {
    press(*button);
    EXPECT_EQ(transcript(), "old");
  }
  press(form().Command1);
  EXPECT_EQ(transcript(), "");
}

TEST_F(MakerPages, OfTheIndicationsBuildsItsListsAnewAndKeepsItsWords) {
  pick(form().Combo1, 1);
  pick(form().Combo2, 1);
  pick(form().Combo3, 7);
  inPanel([this] { form().Label1.Caption = "Changes SuccessFul-WIND"; });
  run(0);
  press(form().Command1);
  for (const ComboBox* combo : {&form().Combo1, &form().Combo2, &form().Combo3}) {
    EXPECT_EQ(combo->Text.peek(), "") << combo->name();
    EXPECT_EQ(combo->ListIndex.peek(), -1) << combo->name();
  }
  EXPECT_EQ(form().Combo1.List.peek(),
            (Texts{"1 Shot Request", "Automatic Shot Request", "Stop Automatic Shot"}));
  EXPECT_EQ(form().Combo2.List.peek(),
            (Texts{"Main Cell", "Neighbour1-Neighbour2", "Timing Advance"}));
  EXPECT_EQ(form().Combo3.List.peek(),
            (Texts{"0", "1", "2", "4", "8", "16", "32", "64", "128", "256"}));
  EXPECT_EQ(caption(form().Label5), "Network Service Avialable Indication");
  EXPECT_EQ(caption(form().Label1), "Changes SuccessFul-WIND");
}

TEST_F(MakerPages, OfTheVoiceMailBuildsItsListAnew) {
  press(form().Command2);
  EXPECT_EQ(form().Combo4.List.peek(), (Texts{"DeActivate", "Activate", "Interrogate"}));
  pick(form().Combo4, 2);
  press(form().Command2);
  EXPECT_EQ(form().Combo4.List.peek(), (Texts{"DeActivate", "Activate", "Interrogate"}));
  EXPECT_EQ(form().Combo4.Text.peek(), "");
}

TEST_F(MakerPages, OfThePinsBuildsItsListAnew) {
  press(form().Command3);
  EXPECT_EQ(form().Combo5.List.peek(), (Texts{"0", "1", "2", "3", "4", "5", "6", "7"}));
  pick(form().Combo5, 7);
  press(form().Command3);
  EXPECT_EQ(form().Combo5.List.peek(), (Texts{"0", "1", "2", "3", "4", "5", "6", "7"}));
  EXPECT_EQ(form().Combo5.Text.peek(), "");
}

TEST_F(MakerPages, ThePagesThatAreTurnedToLaterAreEmptyUntilThen) {
  EXPECT_EQ(form().Combo4.ListCount(), 0);
  EXPECT_EQ(form().Combo5.ListCount(), 0);
}

TEST_F(MakerPages, TheSignalIsAskedForOnEach) {
  for (CommandButton* button :
       {&form().Command1, &form().Command2, &form().Command3, &form().Command5}) {
    press(*button);
    sent();
    click(form().Label10);
    settle();
    EXPECT_EQ(sent(), Texts{"AT\r"}) << button->name();  // and no more of a silent modem
    EXPECT_TRUE(panel().form7.Visible.peek());
  }
}

TEST_F(MakerPages, ClosingTheWindowSendsNothingAndLosesItsState) {
  press(form().Command5);
  inPanel([this] { form().Label13.Caption = "Changes Unsuccessful"; });
  run(0);
  closeWindow();
  EXPECT_FALSE(form().isLoaded());
  EXPECT_TRUE(menu().Visible.peek());
  settle();
  EXPECT_EQ(sent(), Texts{});
  openWindow();
  EXPECT_EQ(pages(), Texts{"Frame1"});
  EXPECT_EQ(caption(form().Label13), "");
}

TEST_F(MakerPages, TheWindowGoesBeforeTheMenuComes) {
  bool wasGone = false;
  const PropertyWatch watch(menu(), [&](PropertyId property) {
    if (property == PropertyId::Visible) wasGone = !form().Visible.peek();
  });
  closeWindow();
  EXPECT_TRUE(wasGone);
}

TEST_F(MakerPages, MaximisingTheWindowTellsTheStatusWindowNothing) {
  inPanel([this] { form().userState(WindowState::minimised); });
  run(0);
  inPanel([this] { form().userState(WindowState::maximised); });
  run(0);
  EXPECT_EQ(panel().form7.WindowState.peek(), WindowState::minimised);
}

}  // namespace
}  // namespace gsm
