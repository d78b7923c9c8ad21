#include <gtest/gtest.h>

#include "tests/simulator/callers.h"

// Callers who come while there is a call.
namespace gsm::simulator {
namespace {

TEST_F(Callers, WaitDuringACallAndAreAnnouncedWhenAskedFor) {
  talk();
  EXPECT_EQ(after("wait 0146290800"), "");
  EXPECT_EQ(after("giveup"), "");
  bench_.ask("AT+CCWA=1");
  EXPECT_EQ(after("wait 0146290800"), "\r\n+CCWA: \"0146290800\",129,1\r\n");
  EXPECT_EQ(bench_.listen(seconds(20)), "") << "once is enough";
  after("giveup");
  EXPECT_EQ(after("wait +33612345678"), "\r\n+CCWA: \"+33612345678\",145,1\r\n");
  after("giveup silent");
  EXPECT_EQ(after("wait hidden"), "\r\n+CCWA: ,,1\r\n");
}

TEST_F(Callers, WhoWaitAndGiveUpLeaveTheCallAlone) {
  talk();
  bench_.ask("AT+WIND=1023");
  EXPECT_EQ(after("wait 0123"), "\r\n+WIND: 5,2\r\n");
  EXPECT_EQ(after("giveup"), "\r\n+WIND: 6,2\r\n");
  EXPECT_EQ(bench_.ask("AT+VTS=1"), kOk);
}

TEST_F(Callers, WhoWaitAreTakenAndTheCallIsHeld) {
  talk();
  after("wait 0123");
  EXPECT_EQ(bench_.ask("ATA"), kOk);
  EXPECT_EQ(bench_.ask("AT+CLCC"),
            withOk("+CLCC: 1,1,1,0,0,\"0111\",129\r\n+CLCC: 2,1,0,0,0,\"0123\",129"));
  EXPECT_EQ(bench_.modem.console("wait 0124"),
            "error: a caller waits only while there is one call, answered");
  EXPECT_EQ(after("hangup"), kNoCarrier);
  EXPECT_EQ(bench_.ask("AT+CLCC"), withOk("+CLCC: 1,1,1,0,0,\"0111\",129"));
  EXPECT_EQ(bench_.ask("AT+VTS=1"), kError) << "nobody is talked to";
  EXPECT_EQ(after("hangup"), kNoCarrier);
  EXPECT_EQ(bench_.ask("AT+CLCC"), kOk);
}

TEST_F(Callers, WhoWaitRingOnceTheCallIsOver) {
  bench_.ask("AT+CLIP=1");
  after("ring 0111");
  bench_.ask("ATA");
  after("wait 0123");
  EXPECT_EQ(after("hangup"), "\r\nNO CARRIER\r\n\r\nRING\r\n\r\n+CLIP: \"0123\",129\r\n");
  EXPECT_EQ(bench_.listen(seconds(5)), "\r\nRING\r\n\r\n+CLIP: \"0123\",129\r\n");
  EXPECT_EQ(after("giveup"), kNoCarrier);
}

TEST_F(Callers, AllGoWithAHangUp) {
  bench_.ask("AT+WIND=32");
  talk();
  after("wait 0123");
  EXPECT_EQ(bench_.ask("ATH"), "\r\nOK\r\n\r\n+WIND: 6,1\r\n\r\n+WIND: 6,2\r\n");
  EXPECT_EQ(bench_.listen(seconds(20)), "");
  EXPECT_EQ(bench_.ask("AT+CLCC"), kOk);
}

TEST_F(Callers, AllGoWithTheNetwork) {
  bench_.ask("AT+WIND=32");
  talk();
  after("wait 0123");
  EXPECT_EQ(after("register 0"), "\r\nNO CARRIER\r\n\r\n+WIND: 6,1\r\n\r\n+WIND: 6,2\r\n");
  EXPECT_EQ(bench_.listen(seconds(20)), "");
}

}  // namespace
}  // namespace gsm::simulator
