#include <ctime>

#include "platform/runtime_failure.h"
#include "tests/platform/qt/serial_fixture.h"

namespace gsm {
namespace {

using namespace std::chrono_literals;

class SerialHangUpTest : public SerialTest {
 protected:
  void passFor(Duration duration) {
    for (const Instant end = clock_.now() + duration; clock_.now() < end;) loop_.pass(end);
  }

  static Duration processorTime() {
    std::timespec time{};
    ::clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return std::chrono::seconds(time.tv_sec) + std::chrono::nanoseconds(time.tv_nsec);
  }
};

TEST_F(SerialHangUpTest, WritingFailsAtOnce) {
  open();
  plugOut();
  EXPECT_THROW(device_.write("AT\r"), RuntimeFailure);
}

TEST_F(SerialHangUpTest, TheFailureIsADeviceError) {
  open();
  plugOut();
  passFor(50ms);
  try {
    device_.write("AT\r");
    FAIL() << "the device is gone";
  } catch (const RuntimeFailure& failure) {
    EXPECT_EQ(failure.description(), failure::deviceError().description());
  }
}

TEST_F(SerialHangUpTest, ConfiguringFails) {
  open();
  plugOut();
  EXPECT_THROW(device_.configure({.baud = 300}, Handshaking::none), RuntimeFailure);
}

TEST_F(SerialHangUpTest, TheProcessorStaysCalm) {
  open();
  plugOut();
  passFor(100ms);
  const Duration before = processorTime();
  passFor(1500ms);
  EXPECT_LT(processorTime() - before, 100ms);
}

TEST_F(SerialHangUpTest, TheProcessorStaysCalmWithBytesOnTheirWay) {
  open();
  device_.write(std::string(200'000, 'x'));
  passFor(20ms);
  plugOut();
  passFor(100ms);
  const Duration before = processorTime();
  passFor(1500ms);
  EXPECT_LT(processorTime() - before, 100ms);
}

TEST_F(SerialHangUpTest, ThePortCanBeClosedAndOpenedAgain) {
  open();
  plugOut();
  passFor(50ms);
  device_.close();
  EXPECT_THROW(open(), RuntimeFailure) << "there is no device";
  plugIn();
  open();
  terminal_->write("OK");
  EXPECT_EQ(received(2), "OK");
}

TEST_F(SerialHangUpTest, ThePortCanBeClosedBeforeTheHangUpIsNoticed) {
  open();
  plugOut();
  device_.close();
  plugIn();
  open();
  device_.write("AT\r");
  EXPECT_EQ(sent(3), "AT\r");
}

TEST_F(SerialHangUpTest, TheDeviceMayGoWhileAListenerIsTold) {
  class Unplugging : public SerialRecord {
   public:
    explicit Unplugging(std::function<void()> unplug) : unplug_(std::move(unplug)) {}
    void bytesArrived(std::string_view bytes) override {
      SerialRecord::bytesArrived(bytes);
      unplug_();
    }

   private:
    std::function<void()> unplug_;
  };
  Unplugging listener([this] {
    plugOut();
    passFor(50ms);
    device_.close();
  });
  device_.listen(&listener);
  open();
  terminal_->write("OK");
  EXPECT_TRUE(runUntil(loop_, [&] { return listener.received == "OK"; }));
  EXPECT_THROW(device_.write("AT\r"), RuntimeFailure);
  device_.listen(nullptr);
}

}  // namespace
}  // namespace gsm
