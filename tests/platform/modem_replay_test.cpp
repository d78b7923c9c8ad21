#include "platform/headless/modem_replay.h"

#include <cmath>

#include "tests/support/platform_fixture.h"

namespace gsm {
namespace {

class ModemReplayTest : public PlatformTest, public SerialDevice::Listener {
 protected:
  void SetUp() override {
    machine().ports.set({{.number = 3}});
    line().listen(this);
    line().plug(3);
    line().open(3, LineSettings{}, Handshaking::none);
  }

  HeadlessLine& line() { return machine().line; }
  void play(std::vector<ModemReplay::Exchange> exchanges) {
    replay_ = std::make_unique<ModemReplay>(time(), line(), std::move(exchanges));
    line().setModem(replay_.get());
  }
  /// What comes back for `write`, each chunk with its milliseconds behind the write.
  Notes answersTo(const std::string& write) {
    begin_ = at();
    line().write(write);
    settle();
    return takeNotes();
  }
  /// Answered, strayed and left, in this order.
  std::vector<std::size_t> progress() const {
    const auto [answered, strayed, left] = replay_->progress();
    return {answered, strayed, left};
  }

  void bytesArrived(std::string_view bytes) override {
    note(std::to_string(std::lround((at() - begin_) * 1000)) + ": " + std::string(bytes));
  }
  void bytesLeft(std::size_t) override {}
  void lineEvent(CommEvent) override {}

 private:
  std::unique_ptr<ModemReplay> replay_;
  double begin_ = 0;
};

ModemReplay::Exchange exchange(const std::string& write, const std::string& text) {
  return {.write = write, .chunks = {{std::chrono::milliseconds(50), text}}};
}

TEST_F(ModemReplayTest, AnswersReplyForReplyAtTheRecordsTimesAndInItsCuts) {
  play({{.write = "AT\r", .chunks = {{fromSeconds(0.1), "AT\r\r\nO"}, {fromSeconds(3), "K\r\n"}}},
        exchange("AT\r", "two")});
  EXPECT_EQ(answersTo("AT\r"), Notes({"100: AT\r\r\nO", "3000: K\r\n"}));
  EXPECT_EQ(answersTo("AT\r"), Notes({"50: two"}));
  EXPECT_EQ(answersTo("AT\r"), Notes());
  EXPECT_EQ(progress(), std::vector<std::size_t>({2, 1, 0}));
}

TEST_F(ModemReplayTest, PassesOverWhatIsNotWrittenThisTime) {
  play({exchange("A\r", "a"), exchange("B\r", "b"), exchange("C\r", "c")});
  EXPECT_EQ(answersTo("B\r"), Notes({"50: b"}));
  EXPECT_EQ(answersTo("A\r"), Notes());
  EXPECT_EQ(answersTo("C\r"), Notes({"50: c"}));
  EXPECT_EQ(progress(), std::vector<std::size_t>({2, 1, 0}));
}

TEST_F(ModemReplayTest, AWriteThatTheRecordHasMuchLaterDoesNotLeadItThere) {
  std::vector<ModemReplay::Exchange> exchanges;
  for (std::size_t i = 0; i <= ModemReplay::kFarthest; ++i)
    exchanges.push_back(exchange("A\r", ""));
  exchanges.push_back(exchange("B\r", "b"));
  play(exchanges);
  EXPECT_EQ(answersTo("B\r"), Notes());
  answersTo("A\r");
  EXPECT_EQ(answersTo("B\r"), Notes({"50: b"}));
}

TEST_F(ModemReplayTest, AtAnotherSpeedItHearsNothing) {
  play({{.write = "AT\r", .baud = 300, .chunks = {{Duration::zero(), "slow"}}}});
  EXPECT_EQ(answersTo("AT\r"), Notes());
  line().configure({.baud = 300}, Handshaking::none);
  EXPECT_EQ(answersTo("AT\r"), Notes({"0: slow"}));
}

TEST_F(ModemReplayTest, AnySecretFitsWhereTheRecordIsBlottedOut) {
  for (const char* write : {"AT+CPIN=1\r", "AT+CPIN=1234\r", "AT+CPIN=12345678,1234\r"}) {
    play({{.write = "AT+CPIN=****\r",
           .blots = {{8, 4}},
           .chunks = {{std::chrono::milliseconds(50), "OK"}}}});
    EXPECT_EQ(answersTo("AT+CPBR=1\r"), Notes());
    EXPECT_EQ(answersTo(write), Notes({"50: OK"}));
  }
}

}  // namespace
}  // namespace gsm
