#include <gtest/gtest.h>

#include "tests/services/services_test.h"

namespace gsm {
namespace {

// Replies of which the line loses everything after some byte.
class CutServiceReply : public ServicesTest, public ::testing::WithParamInterface<int> {
 protected:
  void SetUp() override {
    ServicesTest::SetUp();
    openWindow();
  }
  /// The modem answers `command` with as much of its echo and `text` as the line lets through, and
  /// with the rest `restAfter` seconds later, if at all. Whether all of it stands before the cut.
  bool answerCut(const std::string& command, const std::string& text, double restAfter = 0) {
    const std::string whole = command + "\r" + text;
    const auto cut = static_cast<std::size_t>(GetParam());
    const std::string begin = whole.substr(0, cut);
    std::vector<ModemScript::Chunk> chunks;
    if (!begin.empty()) chunks.push_back({ModemScript::kDefaultDelay, begin});
    if (restAfter > 0 && cut < whole.size()) {
      chunks.push_back({fromSeconds(restAfter), whole.substr(cut)});
    }
    world().modem.add({.write = command + "\r", .replies = {chunks}, .echo = false});
    return begin.find("OK") != std::string::npos;
  }
};

TEST_P(CutServiceReply, OfTheForwardingIsShownWholeOrNotAtAll) {
  const bool whole = answerCut("AT+CCFC=2,2", information("+CCFC: 1,1,\"0146290800\",129"));
  turnTo(forwarding);
  EXPECT_EQ(forwardingShown()[2],
            whole ? "NO REPLY-Call Forward  Active For Voice 0146290800" : "");
  EXPECT_EQ(caption(form().Label2), "");
  EXPECT_EQ(sent(), kForwardingReads);
  expectAtRest();
}

TEST_P(CutServiceReply, OfTheForwardingIsWholeAgainWhenTheRestFollowsShortly) {
  answerCut("AT+CCFC=2,2", information("+CCFC: 1,1,\"0146290800\",129"), 0.5);
  turnTo(forwarding);
  EXPECT_EQ(forwardingShown()[2], "NO REPLY-Call Forward  Active For Voice 0146290800");
}

TEST_P(CutServiceReply, OfTheBarringIsReadAsFarAsItGoes) {
  const std::string command = "AT+CLCK=\"OI\",2";
  answerCut(command, information("+CLCK: 0,7"));
  turnTo(barring);
  const int cut = GetParam();
  const int line = static_cast<int>(command.size()) + 1 + 2;  // where it begins, from 0
  if (cut < line + 6) {
    EXPECT_EQ(caption(form().Label3), ",      ,     ,     ,     ");
  } else if (cut < line + 8) {
    EXPECT_EQ(caption(form().Label3), "Please Wait....");
  } else {
    EXPECT_EQ(caption(form().Label3),
              ",      OutGoing International Calls Not Barred,     ,     ,     ");
  }
  EXPECT_EQ(form().Command4.Enabled.peek(), caption(form().Label3) != "Please Wait....");
  expectAtRest();
}

TEST_P(CutServiceReply, OfTheWaitingIsReadAsFarAsItGoes) {
  const std::string command = "AT+CCWA=1,2";
  answerCut(command, information("+CCWA: 0,7"));
  turnTo(waitingCalls);
  const int end = static_cast<int>(command.size()) + 1 + 2 + 10;
  EXPECT_EQ(caption(form().Label6), GetParam() < end ? "" : "Current Status:Call Waiting Disabled");
  expectAtRest();
}

TEST_P(CutServiceReply, OfTheUserGroupIsShownWholeOrNotAtAll) {
  const bool whole = answerCut("AT+CCUG?", information("+CCUG: 1,10,3"));
  turnTo(userGroup);
  EXPECT_EQ(caption(form().Label7), whole ? "Current Status: CUG Mode Enabled    ,CUG Index 10   ,"
                                            "Suppress Outgoing Access And Preferential CUG"
                                          : "Plz wait...");
  expectAtRest();
}

TEST_P(CutServiceReply, OfTheUserGroupIsWholeAgainWhenTheRestFollowsShortly) {
  answerCut("AT+CCUG?", information("+CCUG: 1,10,3"), 0.5);
  turnTo(userGroup);
  EXPECT_EQ(form().Combo2.Text.peek(), "10");
}

INSTANTIATE_TEST_SUITE_P(AtByte, CutServiceReply, ::testing::Range(0, 56));

}  // namespace
}  // namespace gsm
