#include "simulator/line/cutter.h"

#include <algorithm>
#include <chrono>

#include "simulator/text/text.h"

namespace gsm::simulator {

namespace {

// Between the line end that opens a reply and its text.
constexpr std::chrono::milliseconds kComposing{16};

std::vector<Chunk> cutEvery(const std::string& bytes, std::size_t size) {
  std::vector<Chunk> chunks;
  for (std::size_t at = 0; at < bytes.size(); at += size)
    chunks.push_back({bytes.substr(at, size)});
  return chunks;
}

// Every carriage return and every line feed ends a piece.
std::vector<Chunk> cutAtLineEnds(const std::string& bytes) {
  std::vector<Chunk> chunks;
  for (std::size_t at = 0; at < bytes.size();) {
    const std::size_t end = std::min(bytes.find_first_of("\r\n", at), bytes.size() - 1) + 1;
    chunks.push_back({bytes.substr(at, end - at)});
    at = end;
  }
  for (Chunk& chunk : chunks) {
    if (chunk.bytes == "\r" || chunk.bytes == "\n") continue;
    chunk.pause = kComposing;
    break;
  }
  return chunks;
}

}  // namespace

std::optional<Cutter> Cutter::parse(std::string_view text) {
  if (text == "whole") return whole();
  if (text == "real") return real();
  const auto size = parseNumber<std::size_t>(text);
  if (!size || *size == 0) return std::nullopt;
  return every(*size);
}

std::vector<Chunk> Cutter::cut(const std::string& bytes) const {
  if (bytes.empty()) return {};
  switch (mode_) {
    case Mode::kWhole: return {{bytes}};
    case Mode::kReal: return cutAtLineEnds(bytes);
    case Mode::kEvery: return cutEvery(bytes, size_);
  }
  return {};
}

std::string Cutter::name() const {
  switch (mode_) {
    case Mode::kWhole: return "whole";
    case Mode::kReal: return "real";
    case Mode::kEvery: return std::to_string(size_);
  }
  return {};
}

}  // namespace gsm::simulator
