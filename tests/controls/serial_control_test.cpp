#include "controls/serial_control.h"

#include "tests/controls/serial_fixture.h"

namespace gsm {
namespace {

TEST_F(SerialControlTest, BeginsClosedOnPortOneReadyForBytes) {
  EXPECT_EQ(static_cast<int>(port.CommPort), 1);
  EXPECT_EQ(static_cast<std::string>(port.Settings), "9600,n,8,1");
  EXPECT_EQ(static_cast<int>(port.Handshaking), 0);
  EXPECT_FALSE(port.PortOpen);
  EXPECT_EQ(port.RThreshold, 1);
  EXPECT_EQ(port.SThreshold, 1);
  EXPECT_EQ(port.InputMode, 1);
  EXPECT_EQ(port.kInBufferSize, 1024);
  EXPECT_EQ(port.kOutBufferSize, 512);
  EXPECT_EQ(port.kParityReplace, "?");
}

TEST_F(SerialControlTest, PortNumbersGoFromOneToTwoHundredAndFiftyFive) {
  for (const int number : {1, 16, 255}) {
    port.CommPort = number;
    EXPECT_EQ(static_cast<int>(port.CommPort), number);
  }
  for (const int number : {0, -1, 256, 32767}) {
    EXPECT_EQ(failureOf([&] { port.CommPort = number; }), 8002) << number;
  }
  EXPECT_EQ(static_cast<int>(port.CommPort), 255);
}

TEST_F(SerialControlTest, TheNumberStaysWhileThePortIsOpen) {
  open();
  EXPECT_EQ(failureOf([this] { port.CommPort = 12; }), 8000);
  EXPECT_EQ(static_cast<int>(port.CommPort), 3);
  port.PortOpen = false;
  port.CommPort = 12;
  EXPECT_EQ(static_cast<int>(port.CommPort), 12);
}

TEST_F(SerialControlTest, SettingsReadBackAsTheyWereAssigned) {
  for (const char* text : {"115200,n,8,1", "9600,N,8,1", " 300 , E , 7 , 2 ", "9600,o,5,1.5"}) {
    port.Settings = text;
    EXPECT_EQ(static_cast<std::string>(port.Settings), text);
  }
}

TEST_F(SerialControlTest, SettingsThatNoLineCanHaveFailAndTheOldOnesStand) {
  port.Settings = "19200,n,8,1";
  for (const char* text : {"", "fast", "9600,n,8", "9600,n,9,1"}) {
    EXPECT_EQ(failureOf([&] { port.Settings = text; }), 380) << text;
  }
  EXPECT_EQ(static_cast<std::string>(port.Settings), "19200,n,8,1");
}

TEST_F(SerialControlTest, SettingsMayChangeWhileThePortIsOpen) {
  open();
  port.Settings = "300,n,8,1";
  port.Output = "AT\r";
  run(0.09);
  EXPECT_EQ(takeNotes(), Notes());
  run(0.02);  // three bytes at 300 baud leave in a tenth of a second
  EXPECT_EQ(takeNotes(), Notes({"event 1"}));
}

TEST_F(SerialControlTest, HandshakingIsZeroToThree) {
  for (const int value : {0, 1, 2, 3}) {
    port.Handshaking = value;
    EXPECT_EQ(static_cast<int>(port.Handshaking), value);
  }
  EXPECT_EQ(failureOf([this] { port.Handshaking = 4; }), 380);
  EXPECT_EQ(failureOf([this] { port.Handshaking = -1; }), 380);
  EXPECT_EQ(static_cast<int>(port.Handshaking), 3);
}

TEST_F(SerialControlTest, OpensAndCloses) {
  open();
  EXPECT_TRUE(port.PortOpen);
  EXPECT_TRUE(machine().line.isOpen());
  port.PortOpen = false;
  EXPECT_FALSE(port.PortOpen);
  EXPECT_FALSE(machine().line.isOpen());
  port.PortOpen = false;
  EXPECT_FALSE(port.PortOpen);
}

TEST_F(SerialControlTest, OpeningWhatIsOpenOrHeldFailsWithThatText) {
  open();
  const auto descriptionOf = [this] {
    try {
      port.PortOpen = true;
    } catch (const RuntimeFailure& failure) {
      return failure.description();
    }
    return std::string("no failure");
  };
  EXPECT_EQ(descriptionOf(), "Port already open");
  EXPECT_TRUE(port.PortOpen);
  port.PortOpen = false;
  port.CommPort = 5;
  EXPECT_EQ(descriptionOf(), "Port already open");
  EXPECT_FALSE(port.PortOpen);
  port.CommPort = 9;
  EXPECT_EQ(descriptionOf(), "Invalid Port Number");
  port.CommPort = 7;
  EXPECT_EQ(descriptionOf(), "The port is on fire");
  EXPECT_FALSE(port.PortOpen);
}

TEST_F(SerialControlTest, NothingGoesThroughAClosedPort) {
  EXPECT_EQ(failureOf([this] { port.Output = "AT\r"; }), 8018);
  EXPECT_EQ(failureOf([this] { (void)port.Input(); }), 8018);
  open();
  port.PortOpen = false;
  EXPECT_EQ(failureOf([this] { port.Output = "AT\r"; }), 8018);
  EXPECT_TRUE(machine().line.takeWrites().empty());
}

TEST_F(SerialControlTest, WritesBytesAsTheyStand) {
  open();
  std::string bytes;
  for (int byte = 0; byte < 256; ++byte) bytes += static_cast<char>(byte);
  port.Output = bytes;
  const auto writes = machine().line.takeWrites();
  ASSERT_EQ(writes.size(), 1u);
  EXPECT_EQ(writes[0].text, bytes);
}

TEST_F(SerialControlTest, EachChunkIsAReceiveEvent) {
  open();
  arrive("one");
  arrive("two");
  arrive("three", 1);
  run(2);
  EXPECT_EQ(takeNotes(), Notes({"receive one", "receive two", "receive three"}));
}

TEST_F(SerialControlTest, InputTakesAllThatHasComeIn) {
  port.OnComm = {};
  open();
  arrive("one");
  arrive("two");
  run(0);
  EXPECT_EQ(port.Input(), "onetwo");
  EXPECT_EQ(port.Input(), "");
}

TEST_F(SerialControlTest, AHigherThresholdWaitsForSoManyBytes) {
  open();
  port.RThreshold = 4;
  arrive("abc");
  run(1);
  EXPECT_EQ(takeNotes(), Notes());
  arrive("d");
  run(1);
  EXPECT_EQ(takeNotes(), Notes({"receive abcd"}));
}

TEST_F(SerialControlTest, AThresholdOfZeroGivesNoEventButKeepsTheBytes) {
  open();
  port.RThreshold = 0;
  port.SThreshold = 0;
  arrive("abc");
  port.Output = "AT\r";
  run(1);
  EXPECT_EQ(takeNotes(), Notes());
  EXPECT_EQ(port.Input(), "abc");
}

TEST_F(SerialControlTest, TheSendEventComesWhenFewerThanTheThresholdAreLeft) {
  open();
  port.Output = "0123456789";
  port.Output = "0123456789";
  run(0.0103);  // the first has left, the second waits
  EXPECT_EQ(takeNotes(), Notes());
  run(0.011);
  EXPECT_EQ(takeNotes(), Notes({"event 1"}));

  port.SThreshold = 11;
  port.Output = "0123456789";
  port.Output = "0123456789";
  run(1);
  EXPECT_EQ(takeNotes(), Notes({"event 1", "event 1"}));
}

TEST_F(SerialControlTest, EveryOtherCauseIsRaisedWithItsValue) {
  open();
  for (const int value :
       {1, 3, 4, 5, 6, 7, 1001, 1002, 1003, 1004, 1006, 1007, 1008, 1009, 1010, 1011}) {
    port.raise(static_cast<CommEvent>(value));
    EXPECT_EQ(takeNotes(), Notes({"event " + std::to_string(value)}));
  }
}

TEST_F(SerialControlTest, EventsRunAsHandlers) {
  open();
  port.OnComm = [this] { note(std::to_string(depth())); };
  arrive("x");
  run(0);
  port.raise(CommEvent::cts);
  EXPECT_EQ(takeNotes(), Notes({"1", "1"}));
}

TEST_F(SerialControlTest, EventsNobodyHandlesDoNoHarm) {
  port.OnComm = {};
  open();
  arrive("x");
  port.Output = "y";
  run(1);
  port.raise(CommEvent::ring);
  EXPECT_EQ(port.Input(), "x");
}

TEST_F(SerialControlTest, ClosingLosesWhatHasNotBeenRead) {
  port.OnComm = {};
  open();
  arrive("lost");
  run(0);
  port.PortOpen = false;
  port.PortOpen = true;
  EXPECT_EQ(port.Input(), "");
}

TEST_F(SerialControlTest, ClosingLosesTheSendEventToo) {
  open();
  port.Output = "AT\r";
  port.PortOpen = false;
  port.PortOpen = true;
  run(1);
  EXPECT_EQ(takeNotes(), Notes());
}

TEST_F(SerialControlTest, WhatComesToAClosedPortIsLost) {
  arrive("lost");
  run(0);
  open();
  run(1);
  EXPECT_EQ(takeNotes(), Notes());
  EXPECT_EQ(port.Input(), "");
}

/// A line whose device is gone or refuses.
struct FailingDevice : SerialDevice {
  void listen(Listener* listener) override { listening = listener != nullptr; }
  void open(int, const LineSettings& settings, Handshaking) override { line = settings; }
  void close() override { ++closings; }
  void configure(const LineSettings&, Handshaking) override {
    throw failure::invalidPropertyValue();
  }
  void write(std::string_view) override { throw failure::deviceError(); }

  LineSettings line;
  bool listening = false;
  int closings = 0;
};

class FailingDeviceTest : public PlatformTest {
 protected:
  FailingDevice device;
  Platform failing{platform().clock,    platform().loop,     platform().handlers, platform().boxes,
                   platform().program,  platform().files,    platform().ports,    device,
                   platform().settings, platform().database, platform().windows};
};

TEST_F(FailingDeviceTest, AWriteToADeviceThatIsGoneFailsAndThePortCanBeClosedAndOpenedAgain) {
  SerialControl port(failing, "MSComm1");
  port.PortOpen = true;
  EXPECT_EQ(failureOf([&] { port.Output = "AT\r"; }), 57);
  EXPECT_TRUE(port.PortOpen);
  port.PortOpen = false;
  port.PortOpen = true;
  EXPECT_TRUE(port.PortOpen);
}

TEST_F(FailingDeviceTest, WhatAnOpenLineRefusesLeavesTheOldValues) {
  SerialControl port(failing, "MSComm1");
  port.Settings = "300,e,7,2";
  port.Handshaking = 2;
  port.PortOpen = true;
  EXPECT_EQ(device.line, (LineSettings{300, Parity::even, 7, StopBits::two}));
  EXPECT_EQ(failureOf([&] { port.Settings = "9600,n,8,1"; }), 380);
  EXPECT_EQ(failureOf([&] { port.Handshaking = 1; }), 380);
  EXPECT_EQ(static_cast<std::string>(port.Settings), "300,e,7,2");
  EXPECT_EQ(static_cast<int>(port.Handshaking), 2);
}

TEST_F(FailingDeviceTest, TheControlLetsGoOfTheDeviceAtItsEnd) {
  {
    SerialControl port(failing, "MSComm1");
    EXPECT_TRUE(device.listening);
    port.PortOpen = true;
  }
  EXPECT_FALSE(device.listening);
  EXPECT_EQ(device.closings, 1);
}

}  // namespace
}  // namespace gsm
