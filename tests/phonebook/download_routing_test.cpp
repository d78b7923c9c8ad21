#include <gtest/gtest.h>

#include <algorithm>

#include "phonebook/form3.h"
#include "tests/phonebook/download_test.h"
#include "tests/support/rows.h"

namespace gsm {
namespace {

// When the reply to the question about the counts sets off the download, and when something else
// in the transcript keeps it from that.
class DownloadRouting : public DownloadTest {
 protected:
  static inline const std::string kCounts = "AT+CPBS?\r" + information("+CPBS: \"SM\",0,100");

  void SetUp() override {
    DownloadTest::SetUp();
    layEntries({{"1", "112", "OLD"}});
    layCounts("50", "1");
    openCalls();
    inPanel([this] { calls().Hide(); });
    run(0);
  }

  bool hasRun() { return statusLine() == kSaving; }
  void expectOldBook() {
    EXPECT_FALSE(hasRun());
    EXPECT_EQ(storedEntries(), (BookRows{{"1", "112", "OLD"}}));
    EXPECT_EQ(storedCounts(), (BookRows{{"50", "1"}}));
    EXPECT_FALSE(calls().Visible.peek());
  }
  void expectNewBook() {
    EXPECT_TRUE(hasRun());
    EXPECT_EQ(storedEntries(), BookRows{});
    EXPECT_EQ(storedCounts(), (BookRows{{"100", "0"}}));
    EXPECT_TRUE(calls().Visible.peek());
    EXPECT_EQ(transcript(), "");
  }
};

struct BesideRow {
  std::string name;
  std::string text;
};

class ClearedBeforeIt : public DownloadRouting, public ::testing::WithParamInterface<BesideRow> {};

TEST_P(ClearedBeforeIt, TheReplyDoesntReachTheDownload) {
  receive(GetParam().text + kCounts);
  settle();
  expectOldBook();
  EXPECT_EQ(transcript(), "");
}

INSTANTIATE_TEST_SUITE_P(
    Rows, ClearedBeforeIt,
    ::testing::Values(BesideRow{"ByANewMessage", "\r\n+CMTI: \"SM\",1\r\n"},
                      BesideRow{"ByTheMaker",
                                "ATI0\r\r\n WAVECOM MODEM\r\n\r\n MULTIBAND  900E  1800 "
                                "\r\n\r\nOK\r\n"},
                      BesideRow{"ByTheRevision", "ATI3\r\r\n641b09gg.Q2403A\r\n\r\nOK\r\n"}),
    RowName());

class KeptBeforeIt : public DownloadRouting, public ::testing::WithParamInterface<BesideRow> {};

TEST_P(KeptBeforeIt, TheReplyStillReachesTheDownload) {
  receive(GetParam().text + kCounts);
  settle();
  expectNewBook();
}

INSTANTIATE_TEST_SUITE_P(Rows, KeptBeforeIt,
                         ::testing::Values(BesideRow{"ByNoAnswer", "\r\nNO ANSWER\r\n"},
                                           BesideRow{"ByNoCarrier", "\r\nNO CARRIER\r\n"},
                                           BesideRow{"ByABusyLine", "\r\nBUSY\r\n"},
                                           BesideRow{"ByAnError", "\r\nERROR\r\n"}),
                         RowName());

class SwallowedByIt : public DownloadRouting, public ::testing::WithParamInterface<BesideRow> {};

TEST_P(SwallowedByIt, AWordOfALaterTestIsLost) {
  for (const std::string& text : {GetParam().text + kCounts, kCounts + GetParam().text}) {
    receive(text);
    settle();
    expectNewBook();
  }
  EXPECT_EQ(audioStatus() + signal() + registration(), "");
  EXPECT_FALSE(polls());
}

INSTANTIATE_TEST_SUITE_P(Rows, SwallowedByIt,
                         ::testing::Values(BesideRow{"OfASpeakerChange", "AT+VGR=128\r\r\nOK\r\n"},
                                           BesideRow{"OfASpeakerGain", "\r\n+VGR: 128\r\n"},
                                           BesideRow{"OfTheServiceCentre",
                                                     "AT+CSCA?\r\r\nERROR\r\n"},
                                           BesideRow{"OfARing", "\r\nRING\r\n"}),
                         RowName());

TEST_F(DownloadRouting, AfterAWaitingCallTakesTheFirstCommaOfAll) {
  receive("\r\n+CCWA: \"0299999999\",129,1\r\n" + kCounts);
  settle();
  EXPECT_EQ(caller(), "Call Waiting-  0299999999");
  EXPECT_TRUE(hasRun());
  EXPECT_EQ(storedCounts(), (BookRows{{"1\r\n", "0"}}));
}

TEST_F(DownloadRouting, AfterAnEarlierCommaTakesTheTotalThere) {
  leaveInTranscript("x,1234,567,8");
  receive(kCounts);
  settle();
  EXPECT_EQ(storedCounts(), (BookRows{{"567", "0"}}));
}

TEST_F(DownloadRouting, BeforeAWaitingCallEndsAtItsEarlierComma) {
  const std::string text = kCounts + "\r\n+CCWA: \"0299999999\",129,1\r\n";
  receive(text);
  settle();
  EXPECT_FALSE(promptUp());
  expectOldBook();
  EXPECT_EQ(transcript(), text);
}

TEST_F(DownloadRouting, WaitsForTheResult) {
  const std::size_t ok = kCounts.find("OK");
  receive(kCounts.substr(0, ok));
  settle();
  expectOldBook();
  EXPECT_EQ(transcript(), kCounts.substr(0, ok));
  receive(kCounts.substr(ok));
  settle();
  expectNewBook();
}

TEST_F(DownloadRouting, WithAnotherCommandsResultBeginsAtTheEchoAndLosesTheBook) {
  leaveInTranscript(kOk);
  receive("AT+CPBS?\r");
  settle();
  EXPECT_TRUE(hasRun());
  EXPECT_EQ(storedEntries(), BookRows{});
  EXPECT_EQ(storedCounts(), BookRows{});
  EXPECT_FALSE(calls().Visible.peek());
}

TEST_F(DownloadRouting, WithTheEchoOffNeverBegins) {
  receive(information("+CPBS: \"SM\",0,100"));
  settle();
  expectOldBook();
}

TEST_F(DownloadRouting, OfAReplyInSeveralChunksBeginsOnce) {
  answerEntry(1, "0146290801", "One");
  answerEntry(2, "0146290802", "Two");
  receive("AT+CPBS?\r");
  receive("\r\n+CPBS: \"SM\",", 0.1);
  receive("2,100\r\n\r\nO", 0.2);
  receive("K\r\n", 0.3);
  settle();
  EXPECT_EQ(sent(), (Texts{"AT+CPBR=1\r", "AT+CPBR=2\r"}));
  EXPECT_EQ(storedEntries(), (BookRows{{"1", "0146290801", "One"}, {"2", "0146290802", "Two"}}));
  EXPECT_EQ(storedCounts(), (BookRows{{"100", "2"}}));
}

// The same reply comes to two waiting calls: the newest takes it, the older one finds nothing.
TEST_F(DownloadRouting, OfTwoQuestionsAtOnceBeginsOnce) {
  answerCounts("1,100");
  answerEntry(1, "0146290801", "One");
  inPanel([this] { calls().Show(); });
  run(0);
  click(calls().Command5);
  click(calls().Command5);
  settle();
  EXPECT_EQ(sent(), (Texts{"AT+CPBS?\r", "AT+CPBS?\r", "AT+CPBR=1\r"}));
  EXPECT_EQ(rows(), Texts{"1  0146290801          One"});
  EXPECT_EQ(storedCounts(), (BookRows{{"100", "1"}}));
}

// A download that is set off while another runs.
class DownloadOnTop : public DownloadTest {
 protected:
  void SetUp() override {
    DownloadTest::SetUp();
    answerCounts("2,100");
    answerEntry(1, "0146290801", "One");
    answerEntry(2, "0146290802", "Two");
  }
  void reloadUntilFirstEntryIsAskedFor() {
    layEntries({{"1", "112", "OLD"}});
    openCalls();
    click(calls().Command5);
    run(2.5);
    ASSERT_EQ(sent(), (Texts{"AT+CPBS?\r", "AT+CPBR=1\r"}));
  }
  static inline const BookRow kOne{"1", "0146290801", "One"};
  static inline const BookRow kTwo{"2", "0146290802", "Two"};
};

TEST_F(DownloadOnTop, RunsToItsEndBeforeTheFirstGoesOnAtItsLocation) {
  reloadUntilFirstEntryIsAskedFor();
  click(calls().Command5);
  settle();
  // The first download's reply to location 1 went with the clearing of the second.
  EXPECT_EQ(sent(), (Texts{"AT+CPBS?\r", "AT+CPBR=1\r", "AT+CPBR=2\r", "AT+CPBR=2\r"}));
  EXPECT_EQ(storedEntries(), (BookRows{kOne, kTwo, kTwo}));
  EXPECT_EQ(rows().size(), 3U);
  EXPECT_EQ(storedCounts(), (BookRows{{"100", "2"}}));
}

TEST_F(DownloadOnTop, GoesOnInAWindowThatIsClosedAndComesBack) {
  reloadUntilFirstEntryIsAskedFor();
  run(2);
  ASSERT_EQ(storedEntries(), BookRows{kOne});
  inPanel([this] { calls().userClose(); });
  run(0);
  EXPECT_FALSE(calls().isLoaded());
  EXPECT_EQ(statusLine(), "");
  settle();
  EXPECT_EQ(sent(), Texts{"AT+CPBR=2\r"});
  EXPECT_EQ(rows(), (Texts{"1  0146290801          One", "2  0146290802          Two"}));
  EXPECT_EQ(storedEntries(), (BookRows{kOne, kTwo}));
  EXPECT_TRUE(calls().Visible.peek());
  EXPECT_EQ(used() + "/" + total(), "2/100");
}

// The window is loaded anew by the first entry, finds no rows yet, and downloads all by itself.
TEST_F(DownloadOnTop, OfAWindowClosedBeforeTheFirstEntryFillsTheBookTwice) {
  reloadUntilFirstEntryIsAskedFor();
  inPanel([this] { calls().userClose(); });
  settle();
  EXPECT_EQ(sent(), (Texts{"AT+CPBS?\r", "AT+CPBR=1\r", "AT+CPBR=2\r", "AT+CPBR=2\r"}));
  EXPECT_EQ(storedEntries(), (BookRows{kOne, kTwo, kOne, kTwo}));
  EXPECT_EQ(storedCounts(), (BookRows{{"100", "2"}}));
  EXPECT_EQ(rows().size(), 4U);
}

}  // namespace
}  // namespace gsm
