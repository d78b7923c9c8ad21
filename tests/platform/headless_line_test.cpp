#include "platform/headless/headless_line.h"

#include <cmath>

#include "tests/support/platform_fixture.h"

namespace gsm {
namespace {

class HeadlessLineTest : public PlatformTest, public SerialDevice::Listener, public LineModem {
 protected:
  void SetUp() override {
    machine().ports.set({{.number = 3}, {.number = 4}, {.number = 5, .held = true}});
    line().listen(this);
    line().setModem(this);
    line().plug(3);
  }

  HeadlessLine& line() { return machine().line; }
  void open(int number = 3, int baud = 9600) {
    line().open(number, LineSettings{.baud = baud}, Handshaking::none);
  }
  std::string stamp() { return std::to_string(std::lround(at() * 1e6)) + ": "; }

  void bytesArrived(std::string_view bytes) override { note("arrived " + std::string(bytes)); }
  void bytesLeft(std::size_t waiting) override {
    note(stamp() + std::to_string(waiting) + " left");
  }
  void lineEvent(CommEvent) override { note("event"); }
  void hear(std::string_view bytes, int baud) override {
    note("heard " + std::string(bytes) + " at " + std::to_string(baud));
  }
};

TEST_F(HeadlessLineTest, AWriteDrainsInTenBitsAByte) {
  const struct {
    int baud;
    const char* drained;  // at so many microseconds
  } rows[] = {{300, "100000: 0 left"}, {9600, "3125: 0 left"}, {115200, "260: 0 left"}};
  for (const auto& [baud, drained] : rows) {
    const Instant before = time().now();
    open(3, baud);
    line().write("AT\r");
    takeNotes();
    settle();
    const auto took = std::lround(toSeconds(time().now() - before) * 1e6);
    EXPECT_EQ(std::to_string(took) + ": 0 left", drained);
    EXPECT_EQ(takeNotes().size(), 1u);
    line().close();
  }
}

TEST_F(HeadlessLineTest, ASecondWriteDrainsAfterTheFirst) {
  open();
  line().write(std::string(96, 'a'));  // a tenth of a second
  line().write(std::string(192, 'b'));
  takeNotes();
  settle();
  EXPECT_EQ(takeNotes(), Notes({"100000: 192 left", "300000: 0 left"}));
}

TEST_F(HeadlessLineTest, AWriteToAnIdleLineDrainsFromItsOwnTime) {
  open();
  line().write(std::string(96, 'a'));
  run(1);
  line().write(std::string(96, 'b'));
  takeNotes();
  settle();
  EXPECT_EQ(takeNotes(), Notes({"1100000: 0 left"}));
}

TEST_F(HeadlessLineTest, AnEmptyWriteIsWrittenDownAndRaisesNothing) {
  open();
  line().write("");
  settle();
  EXPECT_EQ(takeNotes(), Notes());
  EXPECT_EQ(line().takeWrites().size(), 1u);
}

TEST_F(HeadlessLineTest, TheModemHearsAtOnceAtTheLinesSpeed) {
  open(3, 19200);
  line().write("AT\r");
  EXPECT_EQ(takeNotes(), Notes({"heard AT\r at 19200"}));
  line().configure(LineSettings{.baud = 300}, Handshaking::none);
  line().write("AT\r");
  EXPECT_EQ(takeNotes(), Notes({"heard AT\r at 300"}));
}

TEST_F(HeadlessLineTest, AWriteToAPortWithoutTheModemGoesNowhereButDrains) {
  open(4);
  line().write("AT\r");
  settle();
  EXPECT_EQ(takeNotes(), Notes({"3125: 0 left"}));
}

TEST_F(HeadlessLineTest, AnUnpluggedModemHearsAndSaysNothing) {
  open();
  line().plug(std::nullopt);
  line().write("AT\r");
  line().arrive("x");
  EXPECT_EQ(takeNotes(), Notes());
  line().plug(3);
  line().arrive("y");
  EXPECT_EQ(takeNotes(), Notes({"arrived y"}));
}

TEST_F(HeadlessLineTest, WhatComesToAPortThatIsNotHeldOpenIsLost) {
  line().arrive("closed");
  open(4);
  line().arrive("elsewhere");
  line().close();
  open(3);
  line().arrive("");
  EXPECT_EQ(takeNotes(), Notes());
}

TEST_F(HeadlessLineTest, WritesAreKeptWithTheirTimesUntilTaken) {
  open();
  line().write("a");
  run(1.25);
  line().write("b");
  const auto writes = line().takeWrites();
  ASSERT_EQ(writes.size(), 2u);
  EXPECT_EQ(writes[0].text, "a");
  EXPECT_EQ(toSeconds(writes[0].at), 0);
  EXPECT_EQ(writes[1].text, "b");
  EXPECT_EQ(toSeconds(writes[1].at), 1.25);
  EXPECT_TRUE(line().takeWrites().empty());
}

TEST_F(HeadlessLineTest, ClosingLosesWhatHasNotLeft) {
  open();
  line().write(std::string(960, 'a'));
  takeNotes();
  run(0.5);
  line().close();
  open();
  line().write("b");
  takeNotes();
  settle();
  // The old write's time comes and goes without a word.
  EXPECT_EQ(takeNotes(), Notes({"501042: 0 left"}));
  EXPECT_EQ(at(), 1);
}

TEST_F(HeadlessLineTest, OpeningSaysWhyItCanNot) {
  EXPECT_EQ(failureOf([this] { open(9); }), 8002);
  EXPECT_EQ(failureOf([this] { open(5); }), 8005);
  EXPECT_FALSE(line().isOpen());
  EXPECT_EQ(failureOf([this] { open(3); }), 0);
  EXPECT_TRUE(line().isOpen());
}

TEST_F(HeadlessLineTest, AWriteToAPortThatHasGoneIsADeviceError) {
  open();
  machine().ports.set({{.number = 4}});
  EXPECT_EQ(failureOf([this] { line().write("AT\r"); }), 57);
  EXPECT_TRUE(line().takeWrites().empty());
  line().close();
  EXPECT_EQ(failureOf([this] { line().write("AT\r"); }), 57);
}

TEST_F(HeadlessLineTest, NobodyNeedsToListen) {
  line().listen(nullptr);
  line().setModem(nullptr);
  open();
  line().write("AT\r");
  line().arrive("x");
  settle();
  EXPECT_EQ(takeNotes(), Notes());
}

class HeadlessPortsTest : public PlatformTest {};

TEST_F(HeadlessPortsTest, SaysWhatAProbeWouldMeet) {
  HeadlessPorts& ports = machine().ports;
  EXPECT_FALSE(ports.exists(1));
  ports.set({{.number = 1}, {.number = 2, .held = true}, {.number = 3, .fails = "broken"}});
  EXPECT_TRUE(ports.exists(1));
  EXPECT_TRUE(ports.exists(2));
  EXPECT_TRUE(ports.exists(3));
  EXPECT_FALSE(ports.exists(4));
  EXPECT_EQ(ports.access(1), PortProbe::Access::free);
  EXPECT_EQ(ports.access(2), PortProbe::Access::held);
  EXPECT_EQ(ports.access(3), PortProbe::Access::absent);
  EXPECT_EQ(ports.access(4), PortProbe::Access::absent);
  ports.set({});
  EXPECT_FALSE(ports.exists(1));
}

class HeadlessSettingsTest : public PlatformTest {};

TEST_F(HeadlessSettingsTest, KeepsTheLastValueOfEachKey) {
  platform().settings.save("Section", "Port", "3");
  platform().settings.save("Section", "Port", "4");
  platform().settings.save("Section", "Handshaking", "0");
  const std::map<std::string, std::string> kept = {{"Port", "4"}, {"Handshaking", "0"}};
  EXPECT_EQ(machine().settings.values(), kept);
}

}  // namespace
}  // namespace gsm
