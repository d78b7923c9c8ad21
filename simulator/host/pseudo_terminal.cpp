#include "simulator/host/pseudo_terminal.h"

#include <fcntl.h>
#include <stdlib.h>
#include <termios.h>
#include <unistd.h>

#include <array>
#include <utility>

namespace gsm::pty {

namespace {

constexpr std::pair<speed_t, int> kSpeeds[] = {
    {B300, 300},   {B600, 600},     {B1200, 1200},   {B2400, 2400},   {B4800, 4800},
    {B9600, 9600}, {B19200, 19200}, {B38400, 38400}, {B57600, 57600}, {B115200, 115200},
};

Descriptor openMaster() {
  Descriptor master(::posix_openpt(O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC));
  if (!master.isOpen() || ::grantpt(master.number()) != 0 || ::unlockpt(master.number()) != 0) {
    throwSystemError("no pseudo-terminal");
  }
  return master;
}

std::string deviceOf(const Descriptor& master) {
  std::array<char, 128> name{};
  if (::ptsname_r(master.number(), name.data(), name.size()) != 0) {
    throwSystemError("no name of the pseudo-terminal");
  }
  return name.data();
}

Descriptor openSlave(const std::string& device) {
  Descriptor slave(::open(device.c_str(), O_RDWR | O_NOCTTY | O_CLOEXEC));
  termios settings{};
  if (!slave.isOpen() || ::tcgetattr(slave.number(), &settings) != 0) throwSystemError(device);
  ::cfmakeraw(&settings);
  ::cfsetspeed(&settings, B9600);
  if (::tcsetattr(slave.number(), TCSANOW, &settings) != 0) throwSystemError(device);
  return slave;
}

}  // namespace

PseudoTerminal::PseudoTerminal()
    : master_(openMaster()), device_(deviceOf(master_)), slave_(openSlave(device_)) {}

std::string PseudoTerminal::read() {
  std::string bytes(4096, '\0');
  const ssize_t count = ::read(master_.number(), bytes.data(), bytes.size());
  bytes.resize(count > 0 ? static_cast<std::size_t>(count) : 0);
  return bytes;
}

std::size_t PseudoTerminal::write(std::string_view bytes) {
  const ssize_t count = ::write(master_.number(), bytes.data(), bytes.size());
  return count > 0 ? static_cast<std::size_t>(count) : 0;
}

std::optional<int> PseudoTerminal::speed() const {
  termios settings{};
  if (::tcgetattr(slave_.number(), &settings) != 0) return 0;
  const speed_t code = ::cfgetospeed(&settings);
  if (code == B0) return std::nullopt;
  for (const auto& [known, speed] : kSpeeds) {
    if (known == code) return speed;
  }
  return 0;
}

}  // namespace gsm::pty
