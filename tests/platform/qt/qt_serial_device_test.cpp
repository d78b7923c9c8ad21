#include "platform/qt/qt_serial_device.h"

#include <fcntl.h>
#include <sys/ioctl.h>
#include <termios.h>

#include <QCoreApplication>

#include <string>

#include "platform/chunk_gatherer.h"
#include "platform/runtime_failure.h"
#include "simulator/host/descriptor.h"
#include "tests/platform/qt/serial_fixture.h"

namespace gsm {
namespace {

using QtSerialDeviceTest = SerialTest;

std::string everyByte() {
  std::string all;
  for (int byte = 0; byte < 256; ++byte) all += static_cast<char>(byte);
  return all;
}

TEST_F(QtSerialDeviceTest, SendsEveryByteAsItIs) {
  open();
  device_.write(everyByte());
  EXPECT_EQ(sent(256), everyByte());
}

TEST_F(QtSerialDeviceTest, ReceivesEveryByteAsItIs) {
  open();
  terminal_->write(everyByte());
  EXPECT_EQ(received(256), everyByte());
}

TEST_F(QtSerialDeviceTest, ReportsThatEverythingHasLeft) {
  open();
  device_.write("AT\r");
  EXPECT_TRUE(record_.left.empty()) << "never from inside the call";
  EXPECT_TRUE(runUntil(loop_, [&] { return !record_.left.empty(); }));
  EXPECT_EQ(record_.left, std::vector<std::size_t>{0});
}

TEST_F(QtSerialDeviceTest, KeepsTheOrderOfManyWrites) {
  open();
  std::string all;
  for (int line = 0; line < 500; ++line) {
    const std::string text = "AT+CPBR=" + std::to_string(line) + "\r";
    device_.write(text);
    all += text;
  }
  EXPECT_EQ(sent(all.size()), all);
}

TEST_F(QtSerialDeviceTest, LosesNothingOfALongBurst) {
  open();
  std::string all;
  while (all.size() < 300'000) all += std::to_string(all.size()) + "\r\n";
  std::size_t done = 0;
  EXPECT_TRUE(runUntil(loop_, [&] {
    done += terminal_->write(std::string_view(all).substr(done));
    return record_.received.size() >= all.size();
  }));
  EXPECT_EQ(record_.received, all);
}

TEST_F(QtSerialDeviceTest, GoesOnReceivingWhileAListenerWaits) {
  class Waiting : public SerialRecord {
   public:
    explicit Waiting(SerialTest&, EventLoop& loop) : loop_(loop) {}
    void bytesArrived(std::string_view bytes) override {
      SerialRecord::bytesArrived(bytes);
      if (received == "a") complete = runUntil(loop_, [&] { return received == "ab"; });
    }
    bool complete = false;

   private:
    EventLoop& loop_;
  };
  Waiting listener(*this, loop_);
  device_.listen(&listener);
  open();
  const auto later = loop_.every(std::chrono::milliseconds(30), [&, sentOnce = false]() mutable {
    if (listener.received == "a" && !std::exchange(sentOnce, true)) terminal_->write("b");
  });
  terminal_->write("a");
  EXPECT_TRUE(runUntil(loop_, [&] { return listener.complete; }));
  device_.listen(nullptr);
}

TEST_F(QtSerialDeviceTest, AReplyThatComesInPiecesIsOneChunk) {
  open({.baud = 110});  // 318 ms without a character end a chunk
  int pieces = 0;
  const auto modem = loop_.every(std::chrono::milliseconds(5), [&] {
    if (pieces < 20) terminal_->write("piece " + std::to_string(pieces++) + "\r\n");
  });
  EXPECT_TRUE(runUntil(loop_, [&] { return !record_.chunks.empty(); }));
  EXPECT_EQ(pieces, 20);
  ASSERT_EQ(record_.chunks.size(), 1u);
  EXPECT_TRUE(record_.received.starts_with("piece 0\r\n"));
  EXPECT_TRUE(record_.received.ends_with("piece 19\r\n"));
}

TEST_F(QtSerialDeviceTest, ALineThatDoesntRestIsReportedInChunksOfFourKibibytes) {
  open();
  std::size_t done = 0;
  const std::string all(50'000, 'x');
  EXPECT_TRUE(runUntil(loop_, [&] {
    done += terminal_->write(std::string_view(all).substr(done));
    return record_.received.size() >= all.size();
  }));
  record_.chunks.pop_back();
  for (const std::string& chunk : record_.chunks) {
    EXPECT_GE(chunk.size(), ChunkGatherer::kFull);
    EXPECT_LE(chunk.size(), 2 * ChunkGatherer::kFull);
  }
}

TEST_F(QtSerialDeviceTest, ReadsNothingWhileTheListenerHasNoRoom) {
  open();
  record_.room = false;
  std::size_t done = 0;
  const std::string all = everyByte() + std::string(1'000'000, 'x') + everyByte();
  const auto fill = [&] {
    const std::size_t more = terminal_->write(std::string_view(all).substr(done));
    done += more;
    return more;
  };
  fill();
  for (const auto end = clock_.now() + std::chrono::milliseconds(200); clock_.now() < end;) {
    loop_.pass(end);
    fill();
  }
  EXPECT_EQ(record_.received, "");
  EXPECT_LT(done, 200'000u) << "the line must fill up";
  record_.room = true;
  device_.readOn();
  EXPECT_TRUE(runUntil(loop_, [&] {
    fill();
    return record_.received.size() >= all.size();
  }));
  EXPECT_EQ(record_.received, all);
}

TEST_F(QtSerialDeviceTest, ForgetsOldInput) {
  terminal_->write("old");
  open();
  terminal_->write("new");
  EXPECT_EQ(received(3), "new");
}

TEST_F(QtSerialDeviceTest, TellsNobodyOfWhatCameBeforeTheClosing) {
  open();
  terminal_->write("AT\r\r\nOK\r\n");
  QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);  // it waits in the queue
  device_.close();
  settle(loop_);
  EXPECT_EQ(record_.received, "");
}

TEST_F(QtSerialDeviceTest, OpensAndClosesAgainAndAgain) {
  for (int round = 0; round < 5; ++round) {
    record_.received.clear();
    open();
    terminal_->write("OK");
    EXPECT_EQ(received(2), "OK");
    device_.close();
  }
}

TEST_F(QtSerialDeviceTest, SetsTheSpeed) {
  open({.baud = 115200});
  EXPECT_EQ(terminal_->speed(), 115200);
  device_.configure({.baud = 300}, Handshaking::none);
  EXPECT_EQ(terminal_->speed(), 300);
}

TEST_F(QtSerialDeviceTest, EverySpeedOfTheSweepIsTaken) {
  open({.baud = 300});
  for (const int baud : {600, 1200, 2400, 4800, 9600, 19200, 38400, 57600, 115200}) {
    device_.configure({.baud = baud}, Handshaking::none);
    EXPECT_EQ(terminal_->speed(), baud);
  }
}

TEST_F(QtSerialDeviceTest, TakesFramingAtTheOpeningAndLater) {
  open({.parity = Parity::even, .dataBits = 7});
  device_.configure({.parity = Parity::even, .dataBits = 7}, Handshaking::none);
  device_.configure({.parity = Parity::odd, .stopBits = StopBits::two}, Handshaking::xonXoff);
  terminal_->write("OK");
  EXPECT_EQ(received(2), "OK");
}

TEST_F(QtSerialDeviceTest, TakesEveryHandshaking) {
  for (const auto handshaking :
       {Handshaking::none, Handshaking::xonXoff, Handshaking::rts, Handshaking::both}) {
    open({}, handshaking);
    device_.configure({}, Handshaking::none);
    device_.configure({}, handshaking);
    device_.write("AT\r");
    EXPECT_EQ(sent(3), "AT\r") << static_cast<int>(handshaking);
  }
}

TEST_F(QtSerialDeviceTest, BothHandshakingsAreBothInForce) {
  open({}, Handshaking::both);
  termios attributes{};
  ASSERT_EQ(::tcgetattr(terminal_->descriptor(), &attributes), 0);
  EXPECT_NE(attributes.c_cflag & CRTSCTS, 0u);
  EXPECT_EQ(attributes.c_iflag & (IXON | IXOFF), static_cast<tcflag_t>(IXON | IXOFF));
}

TEST_F(QtSerialDeviceTest, RefusesFramingThatNoLineHas) {
  EXPECT_THROW(open({.dataBits = 4}), RuntimeFailure);
  EXPECT_THROW(open({.dataBits = 8, .stopBits = StopBits::oneAndHalf}), RuntimeFailure);
  open({.dataBits = 5, .stopBits = StopBits::oneAndHalf});
  EXPECT_THROW(device_.configure({.dataBits = 4}, Handshaking::none), RuntimeFailure);
  device_.write("AT\r");
  EXPECT_EQ(sent(3), "AT\r");
}

TEST_F(QtSerialDeviceTest, APseudoTerminalReportsNoLineEvents) {
  open();
  const auto end = clock_.now() + std::chrono::milliseconds(300);
  while (clock_.now() < end) loop_.pass(end);
  EXPECT_TRUE(record_.events.empty());
}

TEST_F(QtSerialDeviceTest, WritingToAClosedPortFails) {
  EXPECT_THROW(device_.write("AT\r"), RuntimeFailure);
  open();
  device_.close();
  EXPECT_THROW(device_.write("AT\r"), RuntimeFailure);
}

TEST_F(QtSerialDeviceTest, AKilledProgramLeavesNoPseudoTerminalExclusive) {
  open();
  int exclusive = -1;
  const pty::Descriptor line(::open(terminal_->device().c_str(), O_RDWR | O_NOCTTY | O_NONBLOCK));
  ASSERT_EQ(::ioctl(line.number(), TIOCGEXCL, &exclusive), 0);
  EXPECT_EQ(exclusive, 0);
}

}  // namespace
}  // namespace gsm
