#include <gtest/gtest.h>

#include "modem/form2.h"
#include "panel/form1.h"
#include "tests/support/modem_bytes.h"
#include "tests/support/panel_fixture.h"
#include "tests/support/rows.h"

namespace gsm {
namespace {

struct ImeiRow {
  std::string name;
  bool echo;
  std::string reply;
  std::string imei;
};

class Imei : public PanelTest, public ::testing::WithParamInterface<ImeiRow> {};

TEST_P(Imei, IsCutOutTenAfterTheEcho) {
  layComFile("9600,N,8,1 3\r\n");
  start();
  world().modem.add({.write = "AT+CGSN\r",
                     .replies = {{{ModemScript::kDefaultDelay, GetParam().reply}}},
                     .echo = GetParam().echo});
  settle();
  EXPECT_EQ(panel().form2.Label3.Caption.peek(), GetParam().imei);
  EXPECT_EQ(form1().Label2.Caption.peek(), "Port 3");
}

INSTANTIATE_TEST_SUITE_P(
    Rows, Imei,
    ::testing::Values(
        ImeiRow{"OfFifteenDigits", true, kImeiReply, "012345678901234"},
        ImeiRow{"OfSixteenDigitsLosesTheLast", true, information("0123456789012345"),
                "012345678901234"},
        ImeiRow{"OfFourteenDigitsTakesACarriageReturn", true, information("01234567890123"),
                "01234567890123\r"},
        ImeiRow{"BehindAnotherLineTakesThatLine", true,
                unsolicited("+WIND: 4") + information("012345678901234"), "+WIND: 4\r\n\r\n012"},
        ImeiRow{"MissingTakesWhatStandsThere", true, kOk, "OK\r\n"},
        ImeiRow{"OfADeviceWithoutEchoIsCutAtTen", false, kImeiReply, "78901234\r\n\r\nOK\r"},
        ImeiRow{"OfAShortReplyWithoutEchoIsEmpty", false, kOk, ""},
        ImeiRow{"OfAnyTextThatHoldsOk", true, "LOOK HERE", "OK HERE"}),
    RowName());

}  // namespace
}  // namespace gsm
