#include <gtest/gtest.h>

#include "phonebook/form3.h"
#include "phonebook/form5.h"
#include "tests/support/phone_book_test.h"
#include "tests/support/rows.h"

namespace gsm {
namespace {

struct EndRow {
  std::string name;
  std::string text;
  std::string status;
  bool promptStays;
};

class CallEnd : public PhoneBookTest, public ::testing::WithParamInterface<EndRow> {};

TEST_P(CallEnd, ShowsInTheCallWindowAndKeepsTheTranscript) {
  layEntries({{"1", "112", "HELP"}});
  inPanel([this] { prompt().Show(); });
  run(0);
  route(GetParam().text);
  EXPECT_EQ(callStatus(), GetParam().status);
  EXPECT_EQ(promptUp(), GetParam().promptStays);
  EXPECT_EQ(transcript(), GetParam().text);
  EXPECT_FALSE(calls().Visible.peek());
}

TEST_P(CallEnd, IsWrittenAgainAtEachLaterText) {
  layEntries({{"1", "112", "HELP"}});
  route(GetParam().text);
  for (int round = 0; round < 2; ++round) {
    calls().Label3.Caption = "other";
    inPanel([this] { prompt().Show(); });
    route(kOk);
    EXPECT_EQ(callStatus(), GetParam().status);
    EXPECT_EQ(promptUp(), GetParam().promptStays);
  }
}

INSTANTIATE_TEST_SUITE_P(
    Rows, CallEnd,
    ::testing::Values(
        EndRow{"NoAnswer", "\r\nNO ANSWER\r\n", "No Answer.Plz Disconnect", true},
        EndRow{"NoCarrier", "\r\nNO CARRIER\r\n", "No Carrier.Plz Disconnect", false},
        EndRow{"Busy", "\r\nBUSY\r\n", "Busy.Plz Disconnect", true},
        EndRow{"NoAnswerBeforeNoCarrier", "NO CARRIER NO ANSWER", "No Answer.Plz Disconnect", true},
        EndRow{"NoCarrierBeforeBusy", "BUSY NO CARRIER", "No Carrier.Plz Disconnect", false}),
    RowName());

}  // namespace
}  // namespace gsm
