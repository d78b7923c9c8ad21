#pragma once

namespace gsm {

/// The signals by which a program is asked to end: TERM, INT and HUP. The first that comes makes a
/// descriptor readable, so that the program can end in its own time; the next ends it at once.
///
/// A signal that the program was started to ignore stays ignored. So is PIPE from now on: a reader
/// of standard error that has gone is no reason to end.
class EndSignals {
 public:
  /// One at a time. Throws std::system_error when the system can't.
  EndSignals();
  /// Puts everything back.
  ~EndSignals();
  EndSignals(const EndSignals&) = delete;
  EndSignals& operator=(const EndSignals&) = delete;

  /// Readable once a signal has come, and from then on.
  int descriptor() const;
};

}  // namespace gsm
