#include "simulator/line/transmitter.h"

#include <utility>

#include "simulator/line/line_speed.h"

namespace gsm::simulator {

namespace {

constexpr std::size_t kMostQueued = 64 * 1024;

}  // namespace

Transmitter::Transmitter(Timeline& timeline, Sink sink, Cutter cutter, FaultChain faults)
    : timeline_(timeline), sink_(std::move(sink)), cutter_(cutter), faults_(std::move(faults)) {}

void Transmitter::send(Source source, const std::string& bytes, std::function<void()> sent) {
  Transmission transmission{source, {}};
  if (queuedBytes_ + bytes.size() <= kMostQueued) {
    const bool asItIs = source == Source::kEcho || source == Source::kConsole;
    transmission.chunks = (asItIs ? Cutter::whole() : cutter_).cut(bytes);
    faults_.apply(transmission);
  }
  if (transmission.chunks.empty()) transmission.chunks.emplace_back();
  for (Chunk& chunk : transmission.chunks) {
    queuedBytes_ += chunk.bytes.size();
    queue_.push_back({std::move(chunk), {}});
  }
  queue_.back().sent = std::move(sent);
  if (!sending_) startNext();
}

void Transmitter::startNext() {
  sending_ = !queue_.empty();
  if (!sending_) return;
  const Chunk& chunk = queue_.front().chunk;
  const auto time = lineTime(chunk.bytes.size(), speed_, framing_.bits);
  timeline_.after(chunk.pause + time, [this] { finishFirst(); });
}

void Transmitter::finishFirst() {
  Item item = std::move(queue_.front());
  queue_.pop_front();
  queuedBytes_ -= item.chunk.bytes.size();
  for (char& byte : item.chunk.bytes) byte = static_cast<char>(byte & mask());
  if (!item.chunk.bytes.empty()) sink_(item.chunk.bytes);
  if (item.sent) item.sent();
  startNext();
}

}  // namespace gsm::simulator
