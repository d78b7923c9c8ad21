#pragma once

#include <chrono>
#include <string>
#include <vector>

namespace gsm::simulator {

// Bytes that reach the host in one piece, after a silence of `pause` on the line.
struct Chunk {
  std::string bytes;
  std::chrono::nanoseconds pause{};

  friend bool operator==(const Chunk&, const Chunk&) = default;
};

// What a transmission is: the faults treat them differently.
enum class Source { kEcho, kReply, kUnsolicited, kConsole };

// All that the modem sends without letting anything else in between, as the line carries it.
struct Transmission {
  Source source;
  std::vector<Chunk> chunks;
};

// The bytes of all the chunks, joined.
inline std::string joined(const std::vector<Chunk>& chunks) {
  std::string bytes;
  for (const Chunk& chunk : chunks) bytes += chunk.bytes;
  return bytes;
}

}  // namespace gsm::simulator
