#include <gtest/gtest.h>

#include "sms/form8.h"
#include "tests/support/healthy_modem_test.h"
#include "tests/support/open_port_test.h"

namespace gsm {
namespace {

constexpr const char* kUnknown = "Service Center Unknown";

struct CentreRow {
  std::string name;
  std::string text;
  std::string centre;
  std::string note;
  std::string left;  // in the transcript
};

// What a received text with the echo of the service centre's query makes of the message window.
class ServiceCentre : public OpenPortTest, public ::testing::WithParamInterface<CentreRow> {};

TEST_P(ServiceCentre, IsTakenFromTheReply) {
  inPanel([this] {
    panel().form8.Text4.Text = kBefore;
    panel().form8.Label4.Caption = kBefore;
  });
  settle();
  receive(GetParam().text);
  settle();
  EXPECT_EQ(panel().form8.Text4.Text.peek(), GetParam().centre);
  EXPECT_EQ(panel().form8.Label4.Caption.peek(), GetParam().note);
  EXPECT_EQ(transcript(), GetParam().left);
  EXPECT_FALSE(panel().form8.Visible.peek());
}

INSTANTIATE_TEST_SUITE_P(
    Rows, ServiceCentre,
    ::testing::Values(
        CentreRow{"BetweenTheQuotes", "AT+CSCA?\r\r\n+CSCA: \"+33609001390\",145\r\n\r\nOK\r\n",
                  "+33609001390", "", ""},
        CentreRow{"AShortOne", "AT+CSCA?\r\r\n+CSCA: \"1\",129\r\n\r\nOK\r\n", "1", "", ""},
        CentreRow{"AnEmptyOne", "AT+CSCA?\r\r\n+CSCA: \"\",129\r\n\r\nOK\r\n", "", "", ""},
        CentreRow{"AnErrorLeavesTheNumber", "AT+CSCA?\r\r\nERROR\r\n", kBefore, kUnknown, ""},
        CentreRow{"ACodedErrorIsAnError", "AT+CSCA?\r\r\n+CMS ERROR: 330\r\n", kBefore, kUnknown,
                  ""},
        CentreRow{"BothGiveTheNumberAndTheNote",
                  "AT+CSCA?\r\r\n+CSCA: \"+33609001390\",145\r\n\r\nOK\r\n\r\nERROR\r\n",
                  "+33609001390", kUnknown, ""},
        CentreRow{"NeitherIsCleared", "AT+CSCA?\r\r\n+CSCA: \"+33609001390\",145\r\n", kBefore,
                  kBefore, ""},
        CentreRow{"TheEchoAloneIsCleared", "AT+CSCA?\r", kBefore, kBefore, ""},
        CentreRow{"OkWithoutANumberIsCleared", "AT+CSCA?\r\r\nOK\r\n", kBefore, kBefore, ""},
        CentreRow{"WithoutACommaNothingHappens", "AT+CSCA?\r\r\n+CSCA: \"+336\"\r\n\r\nOK\r\n",
                  kBefore, kBefore, "AT+CSCA?\r\r\n+CSCA: \"+336\"\r\n\r\nOK\r\n"},
        CentreRow{"WithoutACommaAnErrorIsntReached",
                  "AT+CSCA?\r\r\n+CSCA: \"+336\"\r\n\r\nOK ERROR\r\n", kBefore, kBefore,
                  "AT+CSCA?\r\r\n+CSCA: \"+336\"\r\n\r\nOK ERROR\r\n"},
        CentreRow{"ACommaFarInFrontCutsTheNumberOff",
                  "a,AT+CSCA?\r\r\n+CSCA: \"+33609001390\",145\r\n\r\nOK\r\n", kBefore, kBefore,
                  "a,AT+CSCA?\r\r\n+CSCA: \"+33609001390\",145\r\n\r\nOK\r\n"},
        CentreRow{"WithoutEchoItIsLeftAlone", "\r\n+CSCA: \"+33609001390\",145\r\n\r\nOK\r\n",
                  kBefore, kBefore, "\r\n+CSCA: \"+33609001390\",145\r\n\r\nOK\r\n"}),
    RowName());

}  // namespace
}  // namespace gsm
