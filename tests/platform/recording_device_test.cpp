#include "platform/recording_device.h"

#include <sstream>

#include "tests/support/platform_fixture.h"

namespace gsm {
namespace {

class RecordingDeviceTest : public PlatformTest, public SerialDevice::Listener {
 protected:
  void SetUp() override {
    machine().ports.set({{.number = 3}, {.number = 5, .held = true}});
    machine().line.plug(3);
    device_.listen(this);
  }

  void open(int number = 3) { device_.open(number, LineSettings{}, Handshaking::none); }
  /// The record's lines without their times, from the second on.
  Notes lines() {
    std::istringstream text(file_.str());
    Notes lines;
    for (std::string line; std::getline(text, line);) {
      const auto comma = line.find(',');
      if (line.starts_with("{\"at\"")) lines.push_back(line.substr(comma + 1));
    }
    return lines;
  }

  void bytesArrived(std::string_view bytes) override { note("arrived " + std::string(bytes)); }
  bool hasRoom() const override { return hasRoom_; }
  void bytesLeft(std::size_t waiting) override { note(std::to_string(waiting) + " left"); }
  void lineEvent(CommEvent event) override {
    note("event " + std::to_string(static_cast<int>(event)));
  }

  std::ostringstream file_;
  RecordingDevice device_{machine().line, file_, time()};
  bool hasRoom_ = true;
};

TEST_F(RecordingDeviceTest, IsTheDeviceBeneathForBothSides) {
  open();
  EXPECT_TRUE(machine().line.isOpen());
  device_.write("AT\r");
  settle();
  machine().line.arrive("OK");
  EXPECT_EQ(takeNotes(), Notes({"0 left", "arrived OK"}));
  device_.configure({.baud = 300}, Handshaking::none);
  EXPECT_EQ(machine().line.baud(), 300);
  device_.close();
  EXPECT_FALSE(machine().line.isOpen());
}

TEST_F(RecordingDeviceTest, WritesDownWhatGoesOverTheLine) {
  open();
  device_.write("AT\r");
  machine().line.arrive("AT\r\r\nOK\r\n");
  device_.configure({.baud = 300}, Handshaking::xonXoff);
  device_.close();
  EXPECT_EQ(lines(), Notes({R"("open":3,"settings":"9600,N,8,1","handshaking":0})",
                            R"("out":"AT\r"})", R"("in":"AT\r\r\nOK\r\n"})",
                            R"("configured":"300,N,8,1","handshaking":1})", R"("close":3})"}));
}

TEST_F(RecordingDeviceTest, FailsAsTheDeviceDoesAndWritesItDown) {
  EXPECT_EQ(failureOf([this] { open(5); }), 8005);
  EXPECT_EQ(failureOf([this] { device_.write("AT\r"); }), 57);
  EXPECT_EQ(
      lines(),
      Notes({R"("open":5,"settings":"9600,N,8,1","handshaking":0,"failed":"Port already open"})",
             R"("out":"AT\r","failed":"Device I/O error"})"}));
}

TEST_F(RecordingDeviceTest, ClosingWhatIsClosedIsNotWorthALine) {
  device_.close();
  open();
  device_.close();
  device_.close();
  EXPECT_EQ(lines().size(), 2u);
}

// A device that can have gone, and whose line has events.
class FickleDevice : public SerialDevice {
 public:
  void listen(Listener* listener) override { listener_ = listener; }
  void open(int, const LineSettings&, Handshaking) override {}
  void close() override {}
  void configure(const LineSettings&, Handshaking) override {}
  void readOn() override { hasReadOn_ = true; }
  void write(std::string_view) override {}
  bool isGone() const override { return isGone_; }

  Listener* listener_ = nullptr;
  bool hasReadOn_ = false;
  bool isGone_ = false;
};

TEST_F(RecordingDeviceTest, HandsOnRoomEventsAndTheDevicesGoing) {
  FickleDevice fickle;
  RecordingDevice device(fickle, file_, time());
  device.listen(this);
  EXPECT_TRUE(fickle.listener_->hasRoom());
  hasRoom_ = false;
  EXPECT_FALSE(fickle.listener_->hasRoom());
  device.readOn();
  EXPECT_TRUE(fickle.hasReadOn_);
  EXPECT_FALSE(device.isGone());
  fickle.isGone_ = true;
  EXPECT_TRUE(device.isGone());
  fickle.listener_->lineEvent(CommEvent::ring);
  EXPECT_EQ(takeNotes(), Notes({"event 6"}));
  EXPECT_EQ(lines(), Notes({R"("event":6})"}));
  device.listen(nullptr);
  EXPECT_EQ(fickle.listener_, nullptr);
}

}  // namespace
}  // namespace gsm
