// When the prompt of a call is on view: the routing demands two seconds of silence after the last
// piece of the caller's line, and not an instant more goes by.

#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "panel/form1.h"
#include "phonebook/form5.h"
#include "simulator/host/simulated_modem.h"
#include "tests/support/phone_book_test.h"
#include "tests/support/property_watch.h"
#include "tests/support/rows.h"

namespace gsm {
namespace {

constexpr const char* kNumber = "0146290800";
const std::string kRing = unsolicited("RING");
const std::string kCaller = unsolicited("+CLIP: \"0146290800\",129");

class RingToPrompt : public PhoneBookTest {
 protected:
  void SetUp() override {
    PhoneBookTest::SetUp();
    layEntries({{"1", "112", "HELP"}, {"2", kNumber, "ALICE"}});
    watch_.emplace(prompt(), [this](PropertyId property) {
      if (property == PropertyId::Visible && promptUp() && !upAt_) upAt_ = now();
    });
    // A time of day that single precision can tell to the thousandth of a second.
    run(10 - now());
  }
  void TearDown() override { watch_.reset(); }

  /// When the prompt came up, in seconds from the start.
  std::optional<double> upAt() const { return upAt_; }

 private:
  std::optional<PropertyWatch> watch_;
  std::optional<double> upAt_;
};

struct Piece {
  double at;  // from the first on, in seconds that single precision holds as they are
  std::string text;
};

struct RingRow {
  std::string name;
  std::vector<Piece> pieces;
  std::optional<double> up;  // nothing: never
};

class RingInPieces : public RingToPrompt, public ::testing::WithParamInterface<RingRow> {};

TEST_P(RingInPieces, BringsThePromptUpTwoSecondsAfterTheLastOne) {
  const double begin = now();
  for (const Piece& piece : GetParam().pieces) receive(piece.text, piece.at);
  settle();
  const auto up = GetParam().up;
  ASSERT_EQ(upAt().has_value(), up.has_value());
  if (!up) return;
  EXPECT_EQ(*upAt() - begin, *up);
  EXPECT_EQ(caller(), "Call Received From  ALICE");
}

INSTANTIATE_TEST_SUITE_P(
    Rows, RingInPieces,
    ::testing::Values(
        RingRow{"InOne", {{0, kRing + kCaller}}, 2.0},
        RingRow{"NumberAtOnce", {{0, kRing}, {0, kCaller}}, 2.0},
        RingRow{"NumberLater", {{0, kRing}, {0.5, kCaller}}, 2.5},
        RingRow{"NumberJustBeforeTheRingIsRouted", {{0, kRing}, {1.875, kCaller}}, 3.875},
        RingRow{"NumberTooLate", {{0, kRing}, {2.125, kCaller}}, std::nullopt},
        RingRow{"ByteByByteOfTheLineEnds",
                {{0, "\r"},
                 {0.125, "\n"},
                 {0.25, "RING\r"},
                 {0.375, "\n"},
                 {0.5, "\r"},
                 {0.625, "\n"},
                 {0.75, "+CLIP: \"0146290800\",129\r"},
                 {0.875, "\n"}},
                2.875},
        RingRow{"NumberCutInTwo", {{0, kRing + "\r\n+CLIP: \"01462"}, {1, "90800\",129\r\n"}}, 3.0},
        RingRow{"AnotherLineBehindIt", {{0, kRing + kCaller}, {1, unsolicited("+WIND: 2")}}, 3.0},
        RingRow{
            "AnotherLineOnceItIsUp", {{0, kRing + kCaller}, {3, unsolicited("+WIND: 2")}}, 2.0}),
    RowName());

TEST_F(RingToPrompt, IsNotHeldUpByAHandlerThatWaitsBeneath) {
  inPanel([this] { form1().Pause(30); });
  run(5);
  const double begin = now();
  receive(kRing + kCaller);
  run(3);
  ASSERT_TRUE(upAt());
  EXPECT_EQ(*upAt() - begin, 2.0);
  EXPECT_EQ(waiting(), 1);
}

TEST_F(RingToPrompt, WaitsForAHandlerThatHasBegunOnTop) {
  const double begin = now();
  receive(kRing + kCaller);
  inPanel([this] { form1().Pause(3); }, /*after=*/1.5);
  run(6);
  ASSERT_TRUE(upAt());
  EXPECT_EQ(*upAt() - begin, 4.5);
}

// The simulated modem's line at 9600 baud takes its time: 8 and 27 bytes, and twice 16 milliseconds
// in which the modem puts a line together.
TEST_F(RingToPrompt, OnTheSimulatedModemsLineLastsAsLongAsTheLineAndTheWait) {
  auto modem = std::make_unique<SimulatedModem>(machine().time, machine().line,
                                                simulator::ModemOptions{.speed = 9600});
  inPanel([this] {
    form1().modem.exchange("AT+CLIP=1");
    form1().Text1.clear();
  });
  settle();
  const double begin = now();
  ASSERT_EQ(modem->console(std::string("ring ") + kNumber), "");
  run(4);
  ASSERT_TRUE(upAt());
  const double line = (8 + 27) * 10 / 9600.0 + 2 * 0.016;
  EXPECT_NEAR(*upAt() - begin, line + 2, 0.001) << "one more look at the clock";
  EXPECT_EQ(caller(), "Call Received From  ALICE");
  world().time().abandon();
  modem.reset();
}

}  // namespace
}  // namespace gsm
