#pragma once

#include <string>
#include <string_view>

#include "platform/headless/headless_line.h"
#include "simulator/modem.h"

namespace gsm {

/// The simulated modem at the end of a headless line, on the same virtual time.
class SimulatedModem : public LineModem {
 public:
  /// `time` and `line` must outlive the modem, which plugs itself in as the line's modem.
  SimulatedModem(VirtualTime& time, HeadlessLine& line,
                 const simulator::ModemOptions& options = {});
  ~SimulatedModem() override;
  SimulatedModem(const SimulatedModem&) = delete;
  SimulatedModem& operator=(const SimulatedModem&) = delete;

  void hear(std::string_view bytes, int baud) override;

  /// One line of the modem's console; what it prints.
  std::string console(std::string_view line) { return modem_.console(line); }

 private:
  class VirtualTimeline : public simulator::Timeline {
   public:
    explicit VirtualTimeline(VirtualTime& time) : time_(time) {}
    void after(std::chrono::nanoseconds delay, std::function<void()> action) override {
      time_.after(delay, std::move(action));
    }

   private:
    VirtualTime& time_;
  };

  void reach(std::string_view chunk);

  VirtualTime& time_;
  HeadlessLine& line_;
  VirtualTimeline timeline_;
  simulator::MemoryProfileStore profile_;
  simulator::Modem modem_;
};

}  // namespace gsm
