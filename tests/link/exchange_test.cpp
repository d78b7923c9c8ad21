#include <gtest/gtest.h>

#include "panel/form1.h"
#include "panel/form7.h"
#include "tests/support/modem_bytes.h"
#include "tests/support/open_port_test.h"
#include "tests/support/rows.h"

namespace gsm {
namespace {

using Texts = std::vector<std::string>;

class Exchange : public OpenPortTest {
 protected:
  std::string signal() { return panel().form7.Label4.Caption.peek(); }
  int caret() { return form1().Text1.SelStart.peek(); }
};

TEST_F(Exchange, ThePortBeginsWithItsDesignValuesAndReadyForReceiveEvents) {
  start();
  const SerialControl& port = form1().MSComm1;
  EXPECT_EQ(port.CommPort, 1);
  EXPECT_EQ(std::string(port.Settings), "9600,n,8,1");
  EXPECT_EQ(port.RThreshold, 1);
  EXPECT_EQ(port.SThreshold, 1);
  EXPECT_EQ(port.InputMode, 1);
  EXPECT_FALSE(port.PortOpen);
  EXPECT_EQ(SerialControl::kInBufferSize, 1024);
  EXPECT_EQ(SerialControl::kOutBufferSize, 512);
  EXPECT_EQ(SerialControl::kParityReplace, "?");
  EXPECT_EQ(transcript(), "");
}

TEST_F(Exchange, ClearsTheTranscriptAndWritesTheCommandWithACarriageReturnAlone) {
  leaveInTranscript("old");
  inPanel([this] { form1().modem.exchange("AT+CGSN"); });
  run(0);
  EXPECT_EQ(transcript(), "");
  EXPECT_EQ(sent(), Texts{"AT+CGSN\r"});
}

TEST_F(Exchange, OnTopKeepsWhatTheTranscriptHolds) {
  leaveInTranscript("old");
  inPanel([this] { form1().modem.exchangeOnTop("AT+ICF?"); });
  run(0);
  EXPECT_EQ(transcript(), "old");
  EXPECT_EQ(sent(), Texts{"AT+ICF?\r"});
}

TEST_F(Exchange, ReadsTheEchoAndTheReplyAsTheyCame) {
  reply("AT+CGSN", kImeiReply);
  std::string read;
  inPanel([&] {
    form1().modem.exchange("AT+CGSN");
    read = form1().Text1.Text.get();
  });
  settle();
  EXPECT_EQ(read, "AT+CGSN\r\r\n012345678901234\r\n\r\nOK\r\n");
}

TEST_F(Exchange, AppendsReceivedTextAtOnceWithoutASeparatorOrMark) {
  leaveInTranscript("old");
  receive("ne");
  receive("w", 0.1);
  run(0.05);
  EXPECT_EQ(transcript(), "oldne");
  run(0.1);
  EXPECT_EQ(transcript(), "oldnew");
}

TEST_F(Exchange, MakesOneCharacterOfEachByte) {
  std::string bytes;
  for (int byte = 0; byte < 256; ++byte) bytes += static_cast<char>(byte);
  receive(bytes);
  settle();
  EXPECT_EQ(transcript(), bytes);
}

TEST_F(Exchange, RoutesReceivedTextTwoSecondsLater) {
  receive("+CSQ: 15,99\r\n");
  run(1.99);
  EXPECT_EQ(signal(), "");
  run(0.02);
  EXPECT_EQ(signal(), "15,99");
  EXPECT_EQ(transcript(), "");
}

TEST_F(Exchange, MovesTheCaretAfterTheTextThatRoutingLeft) {
  receive("\r\nOK\r\n");
  run(1.99);
  EXPECT_EQ(caret(), 0);
  run(0.02);
  EXPECT_EQ(caret(), 6);
}

TEST_F(Exchange, LeavesTheCaretWhereTheTranscriptIsEmptyAfterTheWait) {
  receive("\r\nOK\r\n");
  run(3);
  receive("more");
  run(1);
  inPanel([this] { form1().Text1.clear(); });
  run(0);
  const int before = caret();
  settle();
  EXPECT_EQ(transcript(), "");
  EXPECT_EQ(caret(), before);
}

TEST_F(Exchange, OfASendEventCostsTwoSecondsAndRoutesTheOldTranscriptAnew) {
  leaveInTranscript("+CSQ: 15,99\r\n");
  inPanel([this] { form1().modem.send("AT"); });
  const double lineTime = 3 * 10 / 9600.0;
  run(lineTime + 0.001);
  EXPECT_EQ(waiting(), 1);
  run(1.99);
  EXPECT_EQ(signal(), "");
  EXPECT_EQ(transcript(), "+CSQ: 15,99\r\n");
  run(0.02);
  EXPECT_EQ(signal(), "15,99");
  EXPECT_EQ(waiting(), 0);
}

TEST_F(Exchange, OfASendEventThatFindsNoTextEndsAfterItsTwoSeconds) {
  inPanel([this] { form1().modem.send("AT"); });
  settle();
  EXPECT_NEAR(now(), 2 + 3 * 10 / 9600.0, 0.002);
  EXPECT_EQ(transcript(), "");
}

TEST_F(Exchange, PutsTheMarkInFrontOfTextThatIsMarked) {
  leaveInTranscript("old");
  inPanel([this] { form1().ProcessResponse("text", /*marked=*/true); });
  settle();
  EXPECT_EQ(transcript(), "old--> text");
  EXPECT_EQ(caret(), 11);
}

TEST_F(Exchange, ShowsAResponseBetweenTwoLinesAfterTheOldText) {
  leaveInTranscript("old");
  inPanel([this] { form1().ShowResponse("text"); });
  run(0);
  EXPECT_EQ(transcript(), "oldResponse Received\r\ntext\r\nEnd of Reponse\r\n");
  EXPECT_EQ(caret(), 44);
}

TEST_F(Exchange, WithAClosedPortEndsTheProgramWhereNothingTrapsTheFailure) {
  inPanel([this] {
    form1().MSComm1.PortOpen = false;
    form1().modem.exchange("AT");
  });
  settle();
  EXPECT_EQ(boxes(), Texts{"Operation valid only when the port is open"});
  EXPECT_TRUE(ended());
  EXPECT_EQ(sent(), Texts{});
}

TEST_F(Exchange, WithAClosedPortEndsATrappedHandlerSilently) {
  inPanel([this] {
    form1().MSComm1.PortOpen = false;
    form1().networkset();
  });
  settle();
  EXPECT_EQ(boxes(), Texts{});
  EXPECT_FALSE(ended());
  EXPECT_EQ(sent(), Texts{});
}

TEST_F(Exchange, EndsSilentlyWhereAReceiveEventFindsThePortClosed) {
  inPanel([this] {
    form1().MSComm1.PortOpen = false;
    form1().MSComm1.raise(CommEvent::receive);
  });
  run(0);
  EXPECT_EQ(waiting(), 0);
  EXPECT_EQ(boxes(), Texts{});
  EXPECT_FALSE(ended());
}

TEST_F(Exchange, WhoseRoutingFailsKeepsTheTextAndFailsAtEachFurtherEvent) {
  receive(unsolicited("+CREG: 2"));  // no comma: the registration test fails
  settle();
  EXPECT_EQ(transcript(), "\r\n+CREG: 2\r\n");
  EXPECT_EQ(caret(), 0);

  receive(unsolicited("RING"));  // the ring's test stands after that of the registration
  settle();
  EXPECT_EQ(transcript(), "\r\n+CREG: 2\r\n\r\nRING\r\n");
  EXPECT_FALSE(form1().Timer2.Enabled.peek());
  EXPECT_EQ(boxes(), Texts{});

  inPanel([this] { form1().Text1.clear(); });
  receive(unsolicited("RING"));
  run(2.1);
  EXPECT_EQ(transcript(), "");
  EXPECT_TRUE(form1().Timer2.Enabled.peek());
}

struct LineEventRow {
  std::string name;
  CommEvent event;
};

class LineEvents : public OpenPortTest, public ::testing::WithParamInterface<LineEventRow> {};

TEST_P(LineEvents, ReadNothingAndRouteTheTranscriptAnew) {
  form1().MSComm1.RThreshold = 0;  // so that what comes in stays in the buffer
  receive("bytes in the buffer");
  leaveInTranscript("+CSQ: 15,99\r\n");

  machine().time.after(Duration::zero(), [this] { form1().MSComm1.raise(GetParam().event); });
  run(1.99);
  EXPECT_EQ(transcript(), "+CSQ: 15,99\r\n");
  EXPECT_EQ(waiting(), 1);
  run(0.02);
  EXPECT_EQ(panel().form7.Label4.Caption.peek(), "15,99");
  EXPECT_EQ(transcript(), "");
  EXPECT_EQ(waiting(), 0);
  EXPECT_EQ(form1().MSComm1.Input(), "bytes in the buffer");
}

INSTANTIATE_TEST_SUITE_P(
    Rows, LineEvents,
    ::testing::Values(LineEventRow{"Send", CommEvent::send}, LineEventRow{"Cts", CommEvent::cts},
                      LineEventRow{"Dsr", CommEvent::dsr}, LineEventRow{"Cd", CommEvent::cd},
                      LineEventRow{"Ring", CommEvent::ring},
                      LineEventRow{"EndOfFile", CommEvent::endOfFile},
                      LineEventRow{"Break", CommEvent::breakReceived},
                      LineEventRow{"CdTimeout", CommEvent::cdTimeout},
                      LineEventRow{"CtsTimeout", CommEvent::ctsTimeout},
                      LineEventRow{"DeviceControlBlock", CommEvent::deviceControlBlock},
                      LineEventRow{"DsrTimeout", CommEvent::dsrTimeout},
                      LineEventRow{"Framing", CommEvent::framing},
                      LineEventRow{"Overrun", CommEvent::overrun},
                      LineEventRow{"ReceiveOverflow", CommEvent::receiveOverflow},
                      LineEventRow{"Parity", CommEvent::parity},
                      LineEventRow{"TransmitFull", CommEvent::transmitFull},
                      LineEventRow{"OneThatNoListNames", static_cast<CommEvent>(1005)}),
    RowName());

TEST_F(OpenPortTest, AReceiveEventEmptiesTheBuffer) {
  form1().MSComm1.RThreshold = 0;
  receive("all ");
  receive("of it");
  run(0);
  machine().time.after(Duration::zero(), [this] { form1().MSComm1.raise(CommEvent::receive); });
  run(0);
  EXPECT_EQ(transcript(), "all of it");
  EXPECT_EQ(form1().MSComm1.Input(), "");
}

}  // namespace
}  // namespace gsm
