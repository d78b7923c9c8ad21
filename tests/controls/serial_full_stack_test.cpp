// What the serial control does while the handler stack is full.

#include <algorithm>

#include "tests/controls/serial_fixture.h"

namespace gsm {
namespace {

class SerialFullStackTest : public SerialControlTest {};

TEST_F(SerialFullStackTest, AFullStackHoldsTheReceiveEventBackAndDeliversItWholeLater) {
  open();
  port.OnComm = [this] {
    const std::string bytes = port.Input();
    if (bytes != "+") note(bytes);
    if (bytes == "+") wait(2);
  };
  for (int chunk = 0; chunk < 200; ++chunk) arrive("+");
  arrive("a", 0.1);
  arrive("b", 0.2);
  run(1);
  EXPECT_EQ(depth(), 200);
  EXPECT_EQ(takeNotes(), Notes());
  settle();
  EXPECT_EQ(takeNotes(), Notes({"ab"}));
  EXPECT_EQ(depth(), 0);
}

// A device that says a line each second. The handlers underneath would else wait for as long as it
// takes to pile up two hundred.
TEST_F(SerialFullStackTest, ADeviceThatSaysALineEachSecondHoldsNoHandlerForLong) {
  open();
  std::string received;
  port.OnComm = [&] {
    if (port.CommEvent == CommEvent::receive) received += port.Input();
    wait(2);
  };
  std::string sent;
  for (int line = 1; line <= 600; ++line) {
    arrive(std::to_string(line) + ";", line);
    sent += std::to_string(line) + ";";
  }
  inProgram([this] {
    wait(1);
    note("went on");
    EXPECT_LE(at(), 30);
  });
  settle(3600);
  EXPECT_EQ(takeNotes(), Notes({"went on"}));
  EXPECT_EQ(received, sent) << "nothing is lost";
}

TEST_F(SerialFullStackTest, SixteenHandlersHoldTheReceiveEventBackAfterTenSeconds) {
  open();
  port.OnComm = [this] {
    const std::string bytes = port.Input();
    if (bytes != "+") note(bytes + " at " + std::to_string(static_cast<int>(at())));
    if (bytes == "+") wait(15);
  };
  for (int chunk = 0; chunk < 16; ++chunk) arrive("+");
  arrive("a", 9.9);
  arrive("b", 10);
  arrive("c", 14);
  settle();
  EXPECT_EQ(takeNotes(), Notes({"a at 9", "bc at 15"}));
}

// A reply that comes byte for byte leaves as many handlers, and a dialogue may go on on top of
// them.
TEST_F(SerialFullStackTest, AReplyIsNotHeldBack) {
  open();
  port.OnComm = [this] {
    if (port.CommEvent != CommEvent::receive) return;
    const std::string bytes = port.Input();
    if (bytes != "+") note(bytes);
    if (bytes == "+") wait(40);
  };
  for (int chunk = 0; chunk < 30; ++chunk) arrive("+");
  inProgram([this] { port.Output = "AT\r"; }, 20);
  arrive("held", 19);
  arrive(" OK", 29.9);
  arrive("held too", 30.1);
  settle();
  EXPECT_EQ(takeNotes(), Notes({"held OK", "held too"}));
}

TEST_F(SerialFullStackTest, AFloodLosesNoByteAndKeepsTheStackBounded) {
  open();
  std::string received;
  int deepest = 0;
  port.OnComm = [&] {
    received += port.Input();
    deepest = std::max(deepest, depth());
    wait(2);
  };
  std::string sent;
  for (int chunk = 0; chunk < 5000; ++chunk) {
    const std::string bytes = std::to_string(chunk) + ";";
    sent += bytes;
    arrive(bytes, chunk * 0.001);
  }
  settle();
  EXPECT_EQ(received, sent);
  EXPECT_EQ(deepest, 200);
}

// While it has no room the device reads nothing off the line, so what waits stays bounded.
TEST_F(SerialFullStackTest, HasRoomForOneMebibyteUntilSomebodyTakesIt) {
  struct Device : SerialDevice {
    void listen(Listener* who) override { listener = who; }
    void open(int, const LineSettings&, gsm::Handshaking) override {}
    void close() override {}
    void configure(const LineSettings&, gsm::Handshaking) override {}
    void write(std::string_view) override {}
    void readOn() override { ++readings; }
    Listener* listener = nullptr;
    int readings = 0;
  } device;
  Platform other{platform().clock,    platform().loop,     platform().handlers, platform().boxes,
                 platform().program,  platform().files,    platform().ports,    device,
                 platform().settings, platform().database, platform().windows};
  SerialControl control(other, "MSComm1");
  control.PortOpen = true;
  control.RThreshold = 0;
  device.listener->bytesArrived(std::string(SerialControl::kMostWaiting - 1, 'x'));
  EXPECT_TRUE(device.listener->hasRoom());
  EXPECT_EQ(control.Input().size(), SerialControl::kMostWaiting - 1);
  EXPECT_EQ(device.readings, 0);
  device.listener->bytesArrived(std::string(SerialControl::kMostWaiting, 'x'));
  EXPECT_FALSE(device.listener->hasRoom());
  EXPECT_EQ(control.Input().size(), SerialControl::kMostWaiting);
  EXPECT_TRUE(device.listener->hasRoom());
  EXPECT_EQ(device.readings, 1);
}

TEST_F(SerialFullStackTest, BytesHeldBackAreLostWhenThePortCloses) {
  open();
  port.OnComm = [this] {
    const std::string bytes = port.Input();
    if (bytes != "+") note(bytes);
    wait(2);
  };
  for (int chunk = 0; chunk < 200; ++chunk) arrive("+");
  arrive("held", 0.1);
  inProgram([this] { port.PortOpen = false; }, 0.2);
  settle();
  EXPECT_EQ(takeNotes(), Notes());
}

TEST_F(SerialFullStackTest, AFullStackHoldsLineEventsBackEachCauseOnce) {
  open();
  port.OnComm = [this] {
    if (port.CommEvent != CommEvent::receive) {
      note(std::to_string(static_cast<int>(port.CommEvent)));
    } else {
      wait(2);
    }
  };
  for (int chunk = 0; chunk < 200; ++chunk) arrive("+");
  for (int change = 0; change < 1000; ++change) {
    time().after(fromSeconds(0.1), [this] { port.raise(CommEvent::cts); });
    time().after(fromSeconds(0.1), [this] { port.raise(CommEvent::framing); });
  }
  run(1);
  EXPECT_EQ(depth(), 200);
  EXPECT_EQ(takeNotes(), Notes());
  settle();
  EXPECT_EQ(takeNotes(), Notes({"3", "1004"}));
}

TEST_F(SerialFullStackTest, SendEventsAreNotHeldBack) {
  open();
  port.OnComm = [this] {
    if (port.CommEvent != CommEvent::receive) note(std::to_string(depth()));
    if (port.CommEvent == CommEvent::receive) wait(2);
  };
  for (int chunk = 0; chunk < 200; ++chunk) arrive("+");
  run(0.1);
  inProgram([this] { port.Output = "x"; });
  settle();
  EXPECT_EQ(takeNotes(), Notes({"201"}));
}

}  // namespace
}  // namespace gsm
