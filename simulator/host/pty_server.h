#pragma once

#include <chrono>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "simulator/host/device_link.h"
#include "simulator/host/line_splitter.h"
#include "simulator/host/pseudo_terminal.h"
#include "simulator/host/real_timeline.h"
#include "simulator/modem.h"

namespace gsm::pty {

struct PtyServerOptions {
  simulator::ModemOptions modem;
  std::optional<std::string> link;  // path of a symbolic link to the device
  double timeFactor = 1;
  int consoleInput = -1;    // descriptor of the console's lines; -1 for no console
  int stopDescriptor = -1;  // the server ends when this one becomes readable; -1 for none

  // Keep the phone book and the messages after a change, as Surroundings says; empty to keep them
  // in memory alone.
  std::function<bool(std::string_view text)> keepPhoneBook = {};
  std::function<bool(std::string_view text)> keepMessages = {};
};

// A modem on a pseudo-terminal, in real time. It runs on the thread that calls it.
class PtyServer {
 public:
  // Throws std::system_error or std::runtime_error when the pseudo-terminal or the link can't be
  // made. `store` must outlive the server.
  PtyServer(simulator::ProfileStore& store, const PtyServerOptions& options);

  // The path of the device at which the modem is, or was before the console unplugged it.
  const std::string& device() const { return device_; }

  // The speed at which the modem listens.
  int speed() const { return modem_.speed(); }

  // Does one line of the console and returns what to print.
  std::string console(std::string_view line) { return modem_.console(line); }

  // Serves until the console or the stop descriptor ends it.
  void run();

  // Waits for something to do, `longest` at most, and does it. False once the server has ended.
  bool step(std::chrono::nanoseconds longest);

 private:
  void plugIn();
  void plugOut();
  int hostSpeed() const;
  void deliver(std::string_view chunk);
  void readPort();
  void writePort();
  void readConsole();

  std::optional<std::string> linkPath_;
  int consoleInput_;
  int stopDescriptor_;
  RealTimeline timeline_;
  std::optional<PseudoTerminal> terminal_;
  std::optional<DeviceLink> link_;
  std::string device_;
  std::string output_;  // on its way to a program that doesn't read
  LineSplitter consoleLines_;
  bool ended_ = false;
  simulator::Modem modem_;
};

}  // namespace gsm::pty
