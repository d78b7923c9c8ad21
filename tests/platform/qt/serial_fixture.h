#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "platform/posix/machine_clock.h"
#include "platform/qt/qt_event_loop.h"
#include "platform/qt/qt_serial_device.h"
#include "simulator/host/pseudo_terminal.h"
#include "tests/support/desktop/desktop_fixture.h"
#include "tests/support/temporary_folder.h"

namespace gsm {

/// Keeps what a device reports.
class SerialRecord : public SerialDevice::Listener {
 public:
  void bytesArrived(std::string_view bytes) override {
    received += bytes;
    chunks.emplace_back(bytes);
  }
  bool hasRoom() const override { return room; }
  void bytesLeft(std::size_t waiting) override { left.push_back(waiting); }
  void lineEvent(CommEvent event) override { events.push_back(event); }

  std::string received;
  std::vector<std::string> chunks;
  bool room = true;
  std::vector<std::size_t> left;
  std::vector<CommEvent> events;
};

/// Port 3 is a pseudo-terminal with its other end in the test's hand.
class SerialTest : public ::testing::Test {
 protected:
  static constexpr int kPort = 3;

  SerialTest() {
    std::filesystem::create_directory(folder_.path() / "ports");
    plugIn();
    device_.listen(&record_);
  }

  void plugIn() {
    terminal_ = std::make_unique<pty::PseudoTerminal>();
    const auto link = folder_.path() / "ports" / "COM3";
    std::filesystem::remove(link);
    std::filesystem::create_symlink(terminal_->device(), link);
  }
  void plugOut() { terminal_.reset(); }

  void open(const LineSettings& settings = {}, Handshaking handshaking = Handshaking::none) {
    device_.open(kPort, settings, handshaking);
  }

  /// What the other end has received by the time that it holds `count` bytes.
  std::string sent(std::size_t count) {
    std::string bytes;
    runUntil(loop_, [&] {
      bytes += terminal_->read();
      return bytes.size() >= count;
    });
    return bytes;
  }

  /// What the device has told of by the time that it holds `count` bytes.
  const std::string& received(std::size_t count) {
    runUntil(loop_, [&] { return record_.received.size() >= count; });
    return record_.received;
  }

  /// Whether a write fails within some seconds, as it must once the device is gone.
  bool writingComesToFail() {
    return runUntil(loop_, [&] {
      try {
        device_.write("AT\r");
        return false;
      } catch (const RuntimeFailure&) {
        return true;
      }
    });
  }

  TemporaryFolder folder_;
  std::unique_ptr<pty::PseudoTerminal> terminal_;
  MachineClock clock_;
  QtEventLoop loop_{clock_};
  PortNames names_{folder_.path()};
  UucpLocks locks_;
  SerialRecord record_;
  QtSerialDevice device_{clock_, loop_, names_, locks_};
};

}  // namespace gsm
