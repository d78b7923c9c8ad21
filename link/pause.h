#pragma once

namespace gsm {

class Clock;
class EventLoop;

/// The wait that keeps the event loop running: returns when `clock` has gone on by `seconds`, or at
/// once when that is zero or less. Fails with `overflow` when midnight passes.
void pause(Clock& clock, EventLoop& loop, float seconds);

}  // namespace gsm
