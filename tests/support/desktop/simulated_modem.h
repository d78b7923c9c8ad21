#pragma once

#include <array>
#include <filesystem>
#include <string>
#include <thread>

#include "simulator/host/descriptor.h"
#include "simulator/host/pty_server.h"

namespace gsm {

/// The simulated modem at work in a thread of its own, for as long as the object lives.
class SimulatedModem {
 public:
  /// The modem's port is found as `link`; its delays are `speed` times as short as real ones.
  SimulatedModem(const std::filesystem::path& link, double speed,
                 const simulator::ModemOptions& options = {});
  ~SimulatedModem();
  SimulatedModem(const SimulatedModem&) = delete;
  SimulatedModem& operator=(const SimulatedModem&) = delete;

  /// Has the modem do a line of its console.
  void command(const std::string& line);

 private:
  SimulatedModem(std::array<int, 2> console, const std::filesystem::path& link, double speed,
                 const simulator::ModemOptions& options);

  pty::Descriptor consoleHere_;
  pty::Descriptor consoleThere_;
  simulator::MemoryProfileStore store_;
  pty::PtyServer server_;
  std::thread thread_;
};

}  // namespace gsm
