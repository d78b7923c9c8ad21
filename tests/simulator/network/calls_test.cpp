#include "simulator/network/calls.h"

#include <gtest/gtest.h>

#include "tests/simulator/callers.h"

// Callers, as the host hears of them.
namespace gsm::simulator {
namespace {

constexpr const char* kRing = "\r\nRING\r\n";
TEST_F(Callers, RingAtOnceAndEveryFiveSeconds) {
  EXPECT_EQ(after("ring 0123"), kRing);
  EXPECT_EQ(bench_.listen(milliseconds(3900)), "");
  EXPECT_EQ(bench_.listen(milliseconds(200)), kRing);
  EXPECT_EQ(bench_.listen(seconds(10)), std::string(kRing) + kRing);
}

TEST_F(Callers, ReportTheirNumberAfterEveryRingWhenAskedFor) {
  bench_.ask("AT+CLIP=1");
  EXPECT_EQ(after("ring +33612345678"), "\r\nRING\r\n\r\n+CLIP: \"+33612345678\",145\r\n");
  EXPECT_EQ(bench_.listen(seconds(5)), "\r\nRING\r\n\r\n+CLIP: \"+33612345678\",145\r\n");
  bench_.ask("ATH");
  EXPECT_EQ(after("ring 0146290800"), "\r\nRING\r\n\r\n+CLIP: \"0146290800\",129\r\n");
}

TEST_F(Callers, MayHideTheirNumber) {
  bench_.ask("AT+CLIP=1");
  EXPECT_EQ(after("ring hidden"), "\r\nRING\r\n\r\n+CLIP: \"\",129\r\n");
}

TEST_F(Callers, ReportTheirKindWhenAskedFor) {
  bench_.ask("AT+CRC=1;+CLIP=1");
  EXPECT_EQ(after("ring 0123"), "\r\n+CRING: VOICE\r\n\r\n+CLIP: \"0123\",129\r\n");
}

TEST_F(Callers, RingIsAResultCode) {
  bench_.ask("ATV0");
  EXPECT_EQ(after("ring 0123"), "2\r");
  EXPECT_EQ(after("giveup"), "3\r");
  bench_.ask("ATQ1");
  EXPECT_EQ(after("ring 0123"), "");
}

TEST_F(Callers, FallSilentWhenAnswered) {
  after("ring 0123");
  EXPECT_EQ(bench_.ask("ATA"), kOk);
  EXPECT_EQ(bench_.listen(seconds(20)), "");
  EXPECT_EQ(bench_.ask("AT+CLCC"), withOk("+CLCC: 1,1,0,0,0,\"0123\",129"));
}

TEST_F(Callers, AreTurnedAwayByAHangUp) {
  after("ring 0123");
  EXPECT_EQ(bench_.ask("ATH"), kOk);
  EXPECT_EQ(bench_.listen(seconds(20)), "");
  EXPECT_EQ(bench_.ask("AT+CPAS"), withOk("+CPAS: 0"));
}

TEST_F(Callers, GiveUpWithNoCarrierOrInSilence) {
  after("ring 0123");
  EXPECT_EQ(after("giveup"), kNoCarrier);
  EXPECT_EQ(bench_.listen(seconds(20)), "");
  after("ring 0123");
  EXPECT_EQ(after("giveup silent"), "");
  EXPECT_EQ(bench_.listen(seconds(20)), "");
  EXPECT_EQ(bench_.ask("AT+CIND?"), withOk("+CIND: 5,2,1,1,0,0,0"));
}

TEST_F(Callers, WhoFollowOneAnotherRingEachAtTheirOwnTimes) {
  for (const char* end : {"giveup silent", "ATH", "ATA"}) {
    after("ring 0123");
    bench_.listen(seconds(2));
    if (const std::string how = end; how.starts_with("AT")) {
      EXPECT_EQ(bench_.ask(how), kOk);
      if (how == "ATA") after("hangup silent");
    } else {
      after(how);
    }
    EXPECT_EQ(after("ring 0124"), kRing);
    EXPECT_EQ(bench_.listen(milliseconds(3900)), "") << end;
    EXPECT_EQ(bench_.listen(milliseconds(200)), kRing) << end;
    after("giveup silent");
  }
}

TEST_F(Callers, ComeAndGoWithIndications) {
  bench_.ask("AT+WIND=1023");
  EXPECT_EQ(after("ring 0123"), "\r\n+WIND: 5,1\r\n\r\nRING\r\n");
  EXPECT_EQ(bench_.ask("ATA"), "\r\n+WIND: 9\r\n\r\nOK\r\n");
  EXPECT_EQ(after("hangup"), "\r\nNO CARRIER\r\n\r\n+WIND: 6,1\r\n");
  after("ring 0123");
  EXPECT_EQ(after("giveup"), "\r\nNO CARRIER\r\n\r\n+WIND: 6,1\r\n");
  after("ring 0123");
  EXPECT_EQ(after("giveup silent"), "");
}

TEST_F(Callers, AreTakenAfterTheRingsThatS0Says) {
  bench_.ask("ATS0=2");
  EXPECT_EQ(after("ring 0123"), kRing);
  EXPECT_EQ(bench_.ask("AT+CPAS"), withOk("+CPAS: 3"));
  EXPECT_EQ(bench_.listen(seconds(4)), kRing);
  EXPECT_EQ(bench_.ask("AT+CPAS"), withOk("+CPAS: 4"));
  EXPECT_EQ(bench_.listen(seconds(20)), "");
}

TEST_F(Callers, HaveTheirRingsCountedAfresh) {
  bench_.ask("ATS0=2");
  after("ring 0123");
  after("giveup silent");
  after("ring 0124");
  EXPECT_EQ(bench_.listen(seconds(2)), "");
  EXPECT_EQ(bench_.ask("AT+CPAS"), withOk("+CPAS: 3"));
}

TEST_F(Callers, MayGiveUpBetweenTheLastRingAndTheAutomaticAnswer) {
  bench_.ask("ATS0=1");
  EXPECT_EQ(bench_.modem.console("ring 0123"), "");
  EXPECT_EQ(bench_.listen(milliseconds(900)), kRing);
  EXPECT_EQ(after("giveup"), kNoCarrier);
  EXPECT_EQ(bench_.ask("AT+CLCC"), kOk);
}

TEST_F(Callers, EndACallWithNoCarrierOrInSilence) {
  talk();
  EXPECT_EQ(after("hangup"), kNoCarrier);
  talk();
  EXPECT_EQ(after("hangup silent"), "");
  EXPECT_EQ(bench_.ask("AT+CPAS"), withOk("+CPAS: 0"));
}

TEST_F(Callers, RingingGoesWithTheCard) {
  after("ring 0123");
  EXPECT_EQ(after("sim pin"), kNoCarrier);
  EXPECT_EQ(bench_.listen(seconds(20)), "");
}

TEST_F(Callers, StayWhenTheNetworkIsOnlyAnotherOne) {
  talk();
  after("register 5");
  EXPECT_EQ(bench_.ask("AT+CIND?"), withOk("+CIND: 5,2,1,1,1,1,0"));
}

TEST_F(Callers, RingBetweenEchoAndReplyButNeverInAReply) {
  for (int wait = 0; wait < 80; ++wait) {
    Bench bench;
    bench.modem.hostWrites("AT+CPBR=1,3\r", Bench::kSpeed);
    bench.timeline.advance(milliseconds(wait));
    bench.modem.console("ring 0123");
    bench.timeline.advance(seconds(1));
    const std::string ring = kRing;
    const std::size_t at = bench.received.find(ring);
    ASSERT_NE(at, std::string::npos);
    bench.received.erase(at, ring.size());
    EXPECT_EQ(bench.received, "AT+CPBR=1,3\r" + withOk("+CPBR: 1,\"112\",129,\"Emergency\"\r\n"
                                                       "+CPBR: 2,\"+33639981201\",145,\"Anna\"\r\n"
                                                       "+CPBR: 3,\"+33639984477\",145,\"Ben\""))
        << "ring after " << wait << " ms";
  }
}

TEST_F(Callers, AreHeardInPiecesOnACutLine) {
  bench_.ask("AT+CLIP=1");
  after("fault add cut 5");
  const std::size_t before = bench_.chunks.size();
  EXPECT_EQ(after("ring 0123"), "\r\nRING\r\n\r\n+CLIP: \"0123\",129\r\n");
  ASSERT_GT(bench_.chunks.size(), before + 5);
  EXPECT_EQ(bench_.chunks[before], "\r\nRIN");
}

TEST_F(Callers, AreNotHeardOfInSilenceButAreThere) {
  after("silent on");
  EXPECT_EQ(after("ring 0123"), "");
  EXPECT_EQ(after("silent off"), "");
  EXPECT_EQ(bench_.ask("AT+CPAS"), withOk("+CPAS: 3"));
}

}  // namespace
}  // namespace gsm::simulator
