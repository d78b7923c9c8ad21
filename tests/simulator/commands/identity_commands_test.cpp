#include <gtest/gtest.h>

#include "tests/simulator/bench.h"

namespace gsm::simulator {
namespace {

TEST(IdentityCommands, MakerHasItsLeadingBlank) {
  Bench bench;
  EXPECT_EQ(bench.ask("AT+CGMI"), "\r\n WAVECOM MODEM\r\n\r\nOK\r\n");
}

TEST(IdentityCommands, ModelHasAllItsBlanksIn41Bytes) {
  Bench bench;
  const std::string reply = bench.write("AT+CGMM\r");
  EXPECT_EQ(reply, "AT+CGMM\r\r\n MULTIBAND  900E  1800 \r\n\r\nOK\r\n");
  EXPECT_EQ(reply.size(), 41u);
}

TEST(IdentityCommands, RevisionHas54Bytes) {
  Bench bench;
  const std::string reply = bench.write("AT+CGMR\r");
  EXPECT_EQ(reply, "AT+CGMR\r\r\n641b09gg.Q2403A 1320676 061804 14:38\r\n\r\nOK\r\n");
  EXPECT_EQ(reply.size(), 54u);
}

TEST(IdentityCommands, SerialNumberIsFifteenBareDigits) {
  Bench bench;
  EXPECT_EQ(bench.ask("AT+CGSN"), withOk("490154203237518"));
  EXPECT_EQ(bench.ask("AT+CGSN?"), withOk("490154203237518"));
}

TEST(IdentityCommands, InformationZeroIsTwoResponses) {
  const std::string both = "\r\n WAVECOM MODEM\r\n\r\n MULTIBAND  900E  1800 \r\n\r\nOK\r\n";
  Bench bench;
  EXPECT_EQ(bench.ask("ATI0"), both);
  EXPECT_EQ(bench.ask("ATI"), both);
}

TEST(IdentityCommands, OtherInformationPages) {
  Bench bench;
  EXPECT_EQ(bench.ask("ATI3"), withOk("641b09gg.Q2403A 1320676 061804 14:38"));
  EXPECT_EQ(bench.ask("ATI4"), bench.ask("AT&V0"));
  EXPECT_EQ(bench.ask("ATI5"), bench.ask("AT&V1"));
  EXPECT_EQ(bench.ask("ATI6"),
            withOk("DATA RATES: AUTOBAUD,300,1200,1200/75,2400,4800,9600,14400\r\n"
                   "DATA MODES: T/NT,ASYNCHRONOUS\r\nFAX CLASS: 1,2"));
  EXPECT_EQ(bench.ask("ATI7"), withOk("SPEECH CODINGS: FR,EFR,HR,AMR"));
  EXPECT_EQ(bench.ask("ATI1"), kOk);
  EXPECT_EQ(bench.ask("ATI9"), kOk);
  EXPECT_EQ(bench.ask("ATI99999999999"), kError);
}

TEST(IdentityCommands, Capabilities) {
  Bench bench;
  EXPECT_EQ(bench.ask("AT+GCAP"), withOk("+GCAP: +CGSM, +FCLASS"));
}

TEST(IdentityCommands, TestFormsSayThatTheCommandIsThere) {
  Bench bench;
  for (const char* command : {"AT+CGMI=?", "AT+CGMM=?", "AT+CGMR=?", "AT+CGSN=?", "AT+GCAP=?"}) {
    EXPECT_EQ(bench.ask(command), kOk) << command;
  }
}

}  // namespace
}  // namespace gsm::simulator
