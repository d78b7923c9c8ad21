#include "link/pause.h"

#include <algorithm>

#include "platform/clock.h"
#include "platform/event_loop.h"
#include "platform/runtime_failure.h"

namespace gsm {

void pause(Clock& clock, EventLoop& loop, float seconds) {
  const float start = clock.secondsSinceMidnight();
  // When to look at the clock again if nothing happens before: at the end, or at midnight. The
  // clock's single precision can lag a little behind the time line, and then another look follows
  // soon.
  constexpr Duration kNextLook = std::chrono::milliseconds(1);
  constexpr float kDay = 24 * 60 * 60;
  Instant wake = clock.now() + fromSeconds(static_cast<double>(std::min(seconds, kDay - start)));

  while (clock.secondsSinceMidnight() - start < seconds) {
    if (wake <= clock.now()) wake = clock.now() + kNextLook;
    loop.pass(wake);
    if (clock.secondsSinceMidnight() < start) throw failure::overflow();  // midnight has passed
  }
}

}  // namespace gsm
