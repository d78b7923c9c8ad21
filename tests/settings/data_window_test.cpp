#include <gtest/gtest.h>

#include "panel/form7.h"
#include "tests/settings/data_test.h"
#include "tests/support/property_watch.h"

namespace gsm {
namespace {

class DataWindow : public DataTest {};

TEST_F(DataWindow, IsOpenedByItsButtonInThePlaceOfThePanel) {
  inPanel([this] {
    form1().Frame5.Visible = false;
    form1().Command10.Enabled = true;
    form1().Show();
  });
  run(0);
  press(form1().Command10);
  EXPECT_TRUE(form().Visible.peek());
  EXPECT_EQ(form().Caption.peek(), "GSM-DATA&FAX SETUP");
  EXPECT_EQ(sent(), Texts{"AT+CBST?\r"});
  EXPECT_FALSE(form1().Visible.peek());
}

TEST_F(DataWindow, ComesUpOnTheBearerWhicheverPageWasLeft) {
  reply("AT+CBST?", information("+CBST: 0,0,0"));
  openWindow();
  press(form().Command3);
  EXPECT_EQ(pages(), Texts{"Frame3"});
  closeWindow();
  beginLoad();
  EXPECT_EQ(pages(), Texts{"Frame1"});
  settle();
  EXPECT_EQ(bearer(), "Speed:0-DeFault  CE:0-Transparent Only");
  EXPECT_EQ(fax(), "");
}

TEST_F(DataWindow, EachButtonShowsItsPageAlone) {
  openWindow();
  press(form().Command2);
  EXPECT_EQ(pages(), Texts{"Frame2"});
  press(form().Command1);
  EXPECT_EQ(pages(), Texts{"Frame1"});
  press(form().Command3);
  EXPECT_EQ(pages(), Texts{"Frame3"});
  press(form().Command2);
  EXPECT_EQ(pages(), Texts{"Frame2"});
  EXPECT_EQ(sent(),
            (Texts{"AT%C?\r", "AT\\N?\r", "AT+CBST?\r", "AT+FCLASS?\r", "AT%C?\r", "AT\\N?\r"}));
}

TEST_F(DataWindow, ClosingItSendsNothingAndBringsThePanelBack) {
  openWindow();
  inPanel([this] {
    form1().Hide();
    form1().Label5.Caption = "before";
  });
  run(0);
  closeWindow();
  EXPECT_TRUE(form1().Visible.peek());
  EXPECT_FALSE(form().isLoaded());
  EXPECT_EQ(caption(form1().Label5), "before");
  EXPECT_EQ(sent(), Texts{});
  expectAtRest();
}

TEST_F(DataWindow, ThePanelComesBackBeforeItGoes) {
  openWindow();
  inPanel([this] { form1().Hide(); });
  run(0);
  bool panelWasUp = false;
  const PropertyWatch watch(form(), [&](PropertyId property) {
    if (property == PropertyId::Visible) panelWasUp = form1().Visible.peek();
  });
  closeWindow();
  EXPECT_TRUE(panelWasUp);
}

TEST_F(DataWindow, MinimisingAndRestoringItTakesTheStatusWindowAlong) {
  openWindow();
  const auto setState = [this](int state) {
    inPanel([this, state] { form().userState(state); });
    run(0);
    return panel().form7.WindowState.peek();
  };
  EXPECT_EQ(setState(WindowState::minimised), WindowState::minimised);
  EXPECT_EQ(setState(WindowState::maximised), WindowState::minimised);
  EXPECT_EQ(setState(WindowState::normal), WindowState::normal);
}

TEST_F(DataWindow, ItsSignalOpensTheStatusWindow) {
  openWindow();
  click(form().Label9);
  EXPECT_TRUE(panel().form7.Visible.peek());
  EXPECT_EQ(sent(), Texts{"AT\r"});
}

TEST_F(DataWindow, LoadedWithoutAPortShowsItsLists) {
  closePort();
  openWindow();
  EXPECT_EQ(bearer(), kChecking);
  EXPECT_EQ(form().Combo1.ListCount(), 17);
  expectAtRest();
}

// What the user and the network do while the window reads.

TEST_F(DataWindow, APageInTheMiddleOfAReadIsReadFirst) {
  openWindow();
  reply("AT+CBST?", information("+CBST: 7,0,1"));
  reply("AT+FCLASS?", information("+FCLASS: 1"));
  click(form().Command1);
  run(0.02);
  click(form().Command3);
  settle();
  EXPECT_EQ(sent(), (Texts{"AT+CBST?\r", "AT+FCLASS?\r"}));
  EXPECT_EQ(pages(), Texts{"Frame3"});
  // Both replies shared the transcript, and the newer read took the digits of both.
  EXPECT_EQ(fax(), "Currently In Data Mode");
  EXPECT_EQ(bearer(), kChecking);
  expectAtRest();
}

TEST_F(DataWindow, ClosingItInAReadLoadsItAnewWithWhatWasTold) {
  openWindow();
  reply("AT+CBST?", information("+CBST: 7,0,1"));
  click(form().Command1);
  run(0.5);
  closeWindow();
  EXPECT_FALSE(form().isLoaded());
  settle();
  EXPECT_TRUE(form().isLoaded());
  EXPECT_EQ(sent(), (Texts{"AT+CBST?\r", "AT+CBST?\r"}));
  EXPECT_EQ(bearer(), "Speed:7 9600bps  CE:1 Default");
  expectAtRest();
}

TEST_F(DataWindow, ClosingItInAReadOfTheCompressionShowsWhatWasTold) {
  openWindow();
  reply("AT%C?", information("2"));
  reply("AT\\N?", information("5"));
  click(form().Command2);
  run(2.5);
  closeWindow();
  settle();
  EXPECT_EQ(sent(), (Texts{"AT%C?\r", "AT\\N?\r", "AT+CBST?\r"}));
  EXPECT_EQ(modes(), "Compression V42bis Compression , Error Correction 5 MNP Mode");
  EXPECT_EQ(pages(), Texts{"Frame1"});
}

TEST_F(DataWindow, ARingTakesTheReplyThatItComesWith) {
  openWindow();
  reply("AT+CBST?", information("+CBST: 7,0,1") + unsolicited("RING"));
  press(form().Command1);
  EXPECT_EQ(bearer(), kChecking);
  EXPECT_TRUE(form1().Timer2.Enabled.peek());
}

TEST_F(DataWindow, APollSharesTheTranscript) {
  openWindow();
  reply("AT+CIND?", information("+CIND: 5,4,1,0,1,0,0"));
  reply("AT+FCLASS?", information("+FCLASS: 2"), fromSeconds(1.5));
  inPanel([this] { form1().Timer2.Enabled = true; });
  run(1);
  click(form().Command3);
  run(10);
  EXPECT_EQ(fax(), "Currently In Data Mode");
}

TEST_F(DataWindow, ADeviceThatGoesEndsEachReadWhereItIs) {
  openWindow();
  machine().ports.set({});
  for (CommandButton* button : {&form().Command1, &form().Command2, &form().Command3}) {
    press(*button);
  }
  EXPECT_EQ(bearer(), kChecking);
  EXPECT_EQ(modes(), kChecking);
  EXPECT_EQ(fax(), kChecking);
  expectAtRest();
}

// No wait carries over midnight: the handler ends there, and what it has done stays.
TEST_F(DataWindow, MidnightEndsEveryWait) {
  startWithOpenPort({2026, 3, 1, 23, 59, 0});
  run(10 - now());
  openWindow();
  reply("AT%C?", information("0"));
  pick(form().Combo1, 0);
  pick(form().Combo2, 0);
  run(59 - now());
  click(form().Command6);
  run(0.1);
  click(form().Command2);
  run(0.1);
  click(form().Command3);
  pick(form().Combo6, 0);
  click(form().Command5);
  run(0.1);
  click(form().Command1);
  run(60.01 - now());
  EXPECT_EQ(waiting(), 0);
  EXPECT_EQ(sent(),
            (Texts{"AT+CBST=0,0,0\r", "AT%C?\r", "AT+FCLASS?\r", "AT+FTM=24\r", "AT+CBST?\r"}));
  EXPECT_EQ(bearer(), kChecking);
  EXPECT_EQ(modes(), kChecking);
  EXPECT_EQ(fax(), "");
  expectAtRest();
}

// Replies of which the line loses everything behind some byte.
class CutDataReply : public DataTest, public ::testing::WithParamInterface<int> {
 protected:
  void SetUp() override {
    DataTest::SetUp();
    openWindow();
  }
  /// The modem answers `command` with as much of its echo and `text` as the line lets through, and
  /// with the rest `restAfter` seconds later, if at all.
  void answerCut(const std::string& command, const std::string& text, double restAfter = 0) {
    const std::string whole = command + "\r" + text;
    const auto cut = static_cast<std::size_t>(GetParam());
    std::vector<ModemScript::Chunk> chunks;
    if (cut > 0) chunks.push_back({ModemScript::kDefaultDelay, whole.substr(0, cut)});
    if (restAfter > 0 && cut < whole.size()) {
      chunks.push_back({fromSeconds(restAfter), whole.substr(cut)});
    }
    world().modem.add({.write = command + "\r", .replies = {chunks}, .echo = false});
  }
};

TEST_P(CutDataReply, OfTheBearerIsReadFromWhereItsEndIs) {
  answerCut("AT+CBST?", information("+CBST: 7,0,1"));
  press(form().Command1);
  // Until the "OK" is whole there is nothing to count by. Without its line end the place of the
  // element is two before it.
  const int ok = 9 + 2 + 12 + 4 + 2;
  const int cut = GetParam();
  EXPECT_EQ(bearer(), cut < ok        ? kChecking
                      : cut == ok     ? "Speed:7 9600bps  CE:0-Transparent Only"
                      : cut == ok + 1 ? "Speed:7 9600bps  "
                                      : "Speed:7 9600bps  CE:1 Default");
  EXPECT_EQ(transcript().empty(), cut < 9 + 2 + 6 || cut >= ok);
  expectAtRest();
}

TEST_P(CutDataReply, OfTheBearerIsWholeAgainWhenTheRestFollowsShortly) {
  answerCut("AT+CBST?", information("+CBST: 7,0,1"), 0.5);
  press(form().Command1);
  EXPECT_EQ(bearer(), "Speed:7 9600bps  CE:1 Default");
}

TEST_P(CutDataReply, OfTheCompressionIsReadAsFarAsItGoes) {
  answerCut("AT\\N?", information("5"));
  press(form().Command2);
  EXPECT_EQ(modes(), GetParam() < 9 ? "Compression  , Error Correction "
                                    : "Compression  , Error Correction 5 MNP Mode");
  expectAtRest();
}

TEST_P(CutDataReply, OfTheFaxIsReadAsFarAsItGoes) {
  answerCut("AT+FCLASS?", information("+FCLASS: 1"));
  press(form().Command3);
  EXPECT_EQ(fax(), GetParam() < 11 + 2 + 10 ? kChecking : "Currently In Fax Class 1 Mode");
  expectAtRest();
}

INSTANTIATE_TEST_SUITE_P(AtByte, CutDataReply, ::testing::Range(0, 34));

}  // namespace
}  // namespace gsm
