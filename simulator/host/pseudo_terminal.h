#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "simulator/host/descriptor.h"

namespace gsm::pty {

// A pseudo-terminal in raw mode: a serial port for the program that opens its device, with its
// other end here. Closing it hangs up on that program.
class PseudoTerminal {
 public:
  // Opens a free one. Throws std::system_error when there is none.
  PseudoTerminal();

  // The path of the device.
  const std::string& device() const { return device_; }

  // For poll: readable when the program has written.
  int descriptor() const { return master_.number(); }

  // What the program has written and nobody has read, 4096 bytes at most; empty when nothing.
  std::string read();

  // Writes as much of `bytes` as fits and returns how much that was; it never blocks.
  std::size_t write(std::string_view bytes);

  // The speed to which the program has set its end, in bits per second; 0 for one that no serial
  // modem has, and nothing for B0, which a program leaves there when it sets no speed.
  std::optional<int> speed() const;

 private:
  Descriptor master_;
  std::string device_;

  // Kept open so that the line keeps its settings, and reading doesn't fail, between one program
  // and the next.
  Descriptor slave_;
};

}  // namespace gsm::pty
