#pragma once

#include <fcntl.h>
#include <poll.h>
#include <termios.h>
#include <unistd.h>

#include <array>
#include <string>
#include <string_view>

#include "simulator/host/descriptor.h"

namespace gsm::pty {

// The other program at the port: opens a device as a serial port and talks.
class SerialHost {
 public:
  SerialHost(const std::string& device, speed_t speed)
      : port_(::open(device.c_str(), O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC)) {
    setSpeed(speed);
  }

  bool isOpen() const { return port_.isOpen(); }

  void setSpeed(speed_t speed) {
    termios settings{};
    ::tcgetattr(port_.number(), &settings);
    ::cfsetspeed(&settings, speed);
    ::tcsetattr(port_.number(), TCSANOW, &settings);
  }

  // True when all of `bytes` went out.
  bool write(std::string_view bytes) {
    return ::write(port_.number(), bytes.data(), bytes.size()) ==
           static_cast<ssize_t>(bytes.size());
  }

  // What has arrived and not been read.
  std::string read() {
    std::string received;
    std::array<char, 4096> piece;
    ssize_t count = 0;
    while ((count = ::read(port_.number(), piece.data(), piece.size())) > 0) {
      received.append(piece.data(), static_cast<std::size_t>(count));
    }
    return received;
  }

  // Reads until `wanted` has arrived or nothing more has for `patience` milliseconds.
  std::string readUntil(std::string_view wanted, int patience) {
    std::string received;
    pollfd watched{.fd = port_.number(), .events = POLLIN, .revents = 0};
    while (received.find(wanted) == std::string::npos && ::poll(&watched, 1, patience) > 0) {
      received += read();
    }
    return received;
  }

  // True once the modem's end is gone.
  bool hungUp() const {
    pollfd watched{.fd = port_.number(), .events = POLLIN, .revents = 0};
    ::poll(&watched, 1, 0);
    return (watched.revents & POLLHUP) != 0;
  }

 private:
  Descriptor port_;
};

}  // namespace gsm::pty
