#pragma once

#include <string>
#include <string_view>

#include "link/text.h"

namespace gsm {

class Label;
class SerialControl;
class Transcript;
struct Platform;

/// What the transcript says about a command: "OK", or else "ERROR", or else neither.
enum class Outcome { none, ok, error };

/// The words in which a status label shows an outcome. With neither result it stays as it is.
struct OutcomeWords {
  std::string_view ok;
  std::string_view error;
};

/// The talk with the modem: commands go to the port as plain text, and what comes back is searched
/// for in the transcript. There is no queue and no command in flight: while one handler waits here,
/// another may send its own and take the replies of both.
class Conversation {
 public:
  /// All of them must outlive the conversation.
  Conversation(const Platform& platform, SerialControl& port, Transcript& transcript)
      : platform_(platform), port_(port), transcript_(transcript) {}

  /// Writes `text` to the port as it stands. Fails when the port is closed or gone.
  void write(const std::string& text);
  /// Writes `command` with a carriage return.
  void send(std::string_view command);
  /// An exchange: clears the transcript, sends `command`, and waits `seconds`.
  void exchange(std::string_view command, float seconds = 1);
  /// An exchange on top of what the transcript holds.
  void exchangeOnTop(std::string_view command, float seconds = 1);
  /// Waits `seconds` while events run. Fails with `overflow` when midnight passes.
  void pause(float seconds);

  // The transcript, which every look searches from its beginning.

  bool holds(std::string_view key) const;
  /// Where `key` first stands; 0 when it doesn't.
  Position position(std::string_view key) const;
  /// As `gsm::slice` of the transcript.
  std::string slice(Position start, Position length) const;
  Outcome outcome() const;
  /// The whole of it, as it stands now.
  const std::string& text() const;
  void clear();

  /// Shows the outcome on `status`, and returns it.
  Outcome report(Label& status, const OutcomeWords& words) const;

 private:
  const Platform& platform_;
  SerialControl& port_;
  Transcript& transcript_;
};

}  // namespace gsm
