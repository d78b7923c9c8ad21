#include "tests/support/desktop/simulated_modem.h"

#include <unistd.h>

namespace gsm {
namespace {

// A pipe, as its reading end and its writing end.
std::array<int, 2> makePipe() {
  std::array<int, 2> ends{-1, -1};
  if (::pipe(ends.data()) != 0) pty::throwSystemError("pipe");
  return ends;
}

}  // namespace

SimulatedModem::SimulatedModem(const std::filesystem::path& link, double speed,
                               const simulator::ModemOptions& options)
    : SimulatedModem(makePipe(), link, speed, options) {}

SimulatedModem::SimulatedModem(std::array<int, 2> console, const std::filesystem::path& link,
                               double speed, const simulator::ModemOptions& options)
    : consoleHere_(console[1]),
      consoleThere_(console[0]),
      server_(store_, {.modem = options,
                       .link = link.string(),
                       .timeFactor = speed,
                       .consoleInput = console[0]}),
      thread_([this] { server_.run(); }) {}

SimulatedModem::~SimulatedModem() {
  command("quit");
  thread_.join();
}

void SimulatedModem::command(const std::string& line) {
  const std::string bytes = line + "\n";
  if (::write(consoleHere_.number(), bytes.data(), bytes.size()) < 0) {
    pty::throwSystemError("the modem's console");
  }
}

}  // namespace gsm
