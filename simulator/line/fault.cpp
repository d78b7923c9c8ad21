#include "simulator/line/fault.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "simulator/line/cutter.h"
#include "simulator/text/text.h"

namespace gsm::simulator {

namespace {

// Everything arrives in pieces of the same size, echo and unsolicited lines too.
class Cut final : public Fault {
 public:
  explicit Cut(std::size_t size) : size_(size) {}

  void apply(Transmission& transmission, Random&) const override {
    std::vector<Chunk>& chunks = transmission.chunks;
    if (chunks.empty()) return;
    const auto pause = chunks.front().pause;
    chunks = Cutter::every(size_).cut(joined(chunks));
    if (!chunks.empty()) chunks.front().pause = pause;
  }

  std::string name() const override { return "cut " + std::to_string(size_); }

 private:
  std::size_t size_;
};

// Replies take longer.
class Delay final : public Fault {
 public:
  explicit Delay(std::chrono::milliseconds extra) : extra_(extra) {}

  void apply(Transmission& transmission, Random&) const override {
    if (transmission.source != Source::kReply || transmission.chunks.empty()) return;
    transmission.chunks.front().pause += extra_;
  }

  std::string name() const override { return "delay " + std::to_string(extra_.count()); }

 private:
  std::chrono::milliseconds extra_;
};

// A fault that meets single bytes, each with the same probability.
class ByteFault : public Fault {
 public:
  ByteFault(std::string verb, std::string probability)
      : verb_(std::move(verb)),
        spelling_(std::move(probability)),
        probability_(parseNumber<double>(spelling_).value_or(0)) {}

  std::string name() const override { return verb_ + " " + spelling_; }

 protected:
  double probability() const { return probability_; }

 private:
  std::string verb_;
  std::string spelling_;
  double probability_;
};

// One bit of a byte arrives turned over.
class Garble final : public ByteFault {
 public:
  explicit Garble(std::string probability) : ByteFault("garble", std::move(probability)) {}

  void apply(Transmission& transmission, Random& random) const override {
    for (Chunk& chunk : transmission.chunks) {
      for (char& byte : chunk.bytes) {
        if (random.happens(probability())) byte = static_cast<char>(byte ^ (1 << random.below(8)));
      }
    }
  }
};

// A byte is lost.
class Drop final : public ByteFault {
 public:
  explicit Drop(std::string probability) : ByteFault("drop", std::move(probability)) {}

  void apply(Transmission& transmission, Random& random) const override {
    for (Chunk& chunk : transmission.chunks) {
      std::erase_if(chunk.bytes, [&](char) { return random.happens(probability()); });
    }
  }
};

// An unsolicited line gets in between the echo and the reply, where a modem lets it; inside a reply
// it never does.
class Interject final : public Fault {
 public:
  explicit Interject(std::string text) : text_(std::move(text)) {}

  void apply(Transmission& transmission, Random&) const override {
    if (transmission.source != Source::kReply) return;
    transmission.chunks.insert(transmission.chunks.begin(), Chunk{"\r\n" + text_ + "\r\n"});
  }

  std::string name() const override { return "interject " + text_; }

 private:
  std::string text_;
};

constexpr int kLongestDelay = 600'000;  // ten minutes

FaultPointer makeCut(std::string_view operand) {
  const auto size = parseNumber<std::size_t>(operand);
  return size && *size > 0 ? std::make_shared<Cut>(*size) : nullptr;
}

FaultPointer makeDelay(std::string_view operand) {
  const auto extra = parseNumber<int>(operand);
  if (!extra || *extra < 0 || *extra > kLongestDelay) return nullptr;
  return std::make_shared<Delay>(std::chrono::milliseconds(*extra));
}

template <typename Kind>
FaultPointer makeByteFault(std::string_view operand) {
  const auto probability = parseNumber<double>(operand);
  if (!probability || !(*probability >= 0 && *probability <= 1)) return nullptr;
  return std::make_shared<Kind>(std::string(operand));
}

FaultPointer makeInterject(std::string_view operand) {
  return operand.empty() ? nullptr : std::make_shared<Interject>(std::string(operand));
}

struct FaultRow {
  std::string_view verb;
  std::string_view operand;
  FaultPointer (*make)(std::string_view operand);  // null when the operand doesn't fit
};

constexpr FaultRow kFaults[] = {
    {"cut", "BYTES, a number above 0", makeCut},
    {"delay", "MILLISECONDS, 0 to 600000", makeDelay},
    {"garble", "PROBABILITY per byte, 0 to 1", makeByteFault<Garble>},
    {"drop", "PROBABILITY per byte, 0 to 1", makeByteFault<Drop>},
    {"interject", "TEXT of an unsolicited line", makeInterject},
};

}  // namespace

std::variant<FaultPointer, std::string> parseFault(std::string_view text) {
  const std::string_view verb = takeWord(text);
  std::string verbs;
  for (const FaultRow& row : kFaults) {
    verbs.append(verbs.empty() ? "" : ", ").append(row.verb);
    if (row.verb != verb) continue;
    if (FaultPointer fault = row.make(text)) return fault;
    return "the fault " + std::string(verb) + " wants " + std::string(row.operand);
  }
  return "no fault '" + std::string(verb) + "'; there are " + verbs;
}

}  // namespace gsm::simulator
