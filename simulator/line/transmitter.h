#pragma once

#include <cstddef>
#include <deque>
#include <functional>
#include <string>
#include <string_view>

#include "simulator/line/cutter.h"
#include "simulator/line/fault_chain.h"
#include "simulator/line/framing.h"
#include "simulator/line/timeline.h"
#include "simulator/line/transmission.h"

namespace gsm::simulator {

// The modem's end of the wire to the host: sends one transmission after the other, cut, spoilt by
// the faults, and at the pace of the line's speed.
class Transmitter {
 public:
  using Sink = std::function<void(std::string_view chunk)>;

  // `sink` takes each chunk at the instant at which its last byte has arrived.
  Transmitter(Timeline& timeline, Sink sink, Cutter cutter, FaultChain faults);

  // The faults that meet what is sent from now on.
  FaultChain& faults() { return faults_; }
  const FaultChain& faults() const { return faults_; }

  const Cutter& cutter() const { return cutter_; }

  // Bits per second, above zero; counts from the next chunk on.
  int speed() const { return speed_; }
  void setSpeed(int speed) { speed_ = speed; }

  // Counts from the next chunk on, too.
  const Framing& framing() const { return framing_; }
  void setFraming(const Framing& framing) { framing_ = framing; }

  // What the framing leaves of a byte.
  int mask() const { return framing_.dataBits == 8 ? 0xFF : 0x7F; }

  // Queues `bytes` after all that was sent before, and calls `sent` once the last of them has
  // left. Replies and unsolicited lines fall into pieces as the cutter says, echo and what the
  // console says don't. When more than 64 KiB are waiting, the bytes are lost, as in a real modem's
  // overrun; `sent` is called all the same.
  void send(Source source, const std::string& bytes, std::function<void()> sent = {});

 private:
  struct Item {
    Chunk chunk;
    std::function<void()> sent;
  };

  void startNext();
  void finishFirst();

  GuardedTimeline timeline_;
  Sink sink_;
  Cutter cutter_;
  FaultChain faults_;
  int speed_ = 9600;
  Framing framing_;
  std::deque<Item> queue_;
  std::size_t queuedBytes_ = 0;
  bool sending_ = false;
};

}  // namespace gsm::simulator
