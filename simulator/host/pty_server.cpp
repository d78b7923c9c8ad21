#include "simulator/host/pty_server.h"

#include <poll.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <exception>
#include <iostream>

#include "simulator/host/wall_clock.h"

namespace gsm::pty {

namespace {

using std::chrono::nanoseconds;

// Beyond this, what nobody reads is lost, as at a real port without flow control.
constexpr std::size_t kMostOutput = 64 * 1024;

// Of a host that never set a speed, at a modem that takes any.
constexpr int kUsualSpeed = 115200;

constexpr nanoseconds kIdle = std::chrono::hours(1);

constexpr short kReadable = POLLIN | POLLHUP | POLLERR;

timespec toTimespec(nanoseconds time) {
  constexpr nanoseconds::rep kSecond = 1'000'000'000;
  return {.tv_sec = time.count() / kSecond, .tv_nsec = time.count() % kSecond};
}

}  // namespace

PtyServer::PtyServer(simulator::ProfileStore& store, const PtyServerOptions& options)
    : linkPath_(options.link),
      consoleInput_(options.consoleInput),
      stopDescriptor_(options.stopDescriptor),
      timeline_(options.timeFactor),
      modem_(timeline_, store,
             {.toHost = [this](std::string_view chunk) { deliver(chunk); },
              .speedChanged = {},
              .plugChanged = [this](bool plugged) { plugged ? plugIn() : plugOut(); },
              .quit = [this] { ended_ = true; },
              .keepPhoneBook = options.keepPhoneBook,
              .keepMessages = options.keepMessages,
              .clock = networkTimeNow},
             options.modem) {
  plugIn();
}

void PtyServer::plugIn() {
  terminal_.emplace();
  device_ = terminal_->device();
  if (linkPath_) link_.emplace(*linkPath_, device_);
}

void PtyServer::plugOut() {
  link_.reset();
  terminal_.reset();
  output_.clear();
}

void PtyServer::run() {
  while (step(kIdle)) {}
}

bool PtyServer::step(nanoseconds longest) {
  // poll passes over an entry whose descriptor is negative.
  const int port = terminal_ ? terminal_->descriptor() : -1;
  const short portEvents = static_cast<short>(output_.empty() ? POLLIN : POLLIN | POLLOUT);
  std::array<pollfd, 3> watched{{{.fd = port, .events = portEvents, .revents = 0},
                                 {.fd = consoleInput_, .events = POLLIN, .revents = 0},
                                 {.fd = stopDescriptor_, .events = POLLIN, .revents = 0}}};
  const timespec limit = toTimespec(std::min(longest, timeline_.untilNext().value_or(longest)));
  if (::ppoll(watched.data(), watched.size(), &limit, nullptr) > 0) {
    if ((watched[0].revents & POLLOUT) != 0) writePort();
    if ((watched[0].revents & kReadable) != 0) readPort();
    if ((watched[1].revents & (kReadable | POLLNVAL)) != 0) readConsole();
    if ((watched[2].revents & kReadable) != 0) ended_ = true;
  }
  timeline_.runDue();
  return !ended_;
}

// A host that never set a speed is taken to have the modem's own.
int PtyServer::hostSpeed() const {
  const bool any = modem_.speed() == simulator::kAutobaud;
  return terminal_->speed().value_or(any ? kUsualSpeed : modem_.speed());
}

// A host that listens at another speed than the modem sends at gets nothing from it but noise, and
// here not even that.
void PtyServer::deliver(std::string_view chunk) {
  if (!terminal_) return;
  if (modem_.speed() != simulator::kAutobaud && modem_.speed() != hostSpeed()) return;
  output_ += chunk.substr(0, kMostOutput - std::min(kMostOutput, output_.size()));
  writePort();
}

void PtyServer::readPort() {
  const std::string bytes = terminal_->read();
  if (!bytes.empty()) modem_.hostWrites(bytes, hostSpeed());
}

void PtyServer::writePort() { output_.erase(0, terminal_->write(output_)); }

void PtyServer::readConsole() {
  std::array<char, 4096> piece;
  const ssize_t count = ::read(consoleInput_, piece.data(), piece.size());
  auto lines = consoleLines_.take({piece.data(), static_cast<std::size_t>(std::max(count, 0L))});
  if (count <= 0) {
    consoleInput_ = -1;
    lines.push_back(consoleLines_.takeRest());
  }
  for (const std::string& line : lines) {
    try {
      const std::string answer = modem_.console(line);
      if (!answer.empty()) std::cout << answer << std::endl;
    } catch (const std::exception& failure) {
      std::cout << "error: " << failure.what() << std::endl;
    }
  }
}

}  // namespace gsm::pty
