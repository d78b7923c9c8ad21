#include "link/conversation.h"

#include "controls/serial_control.h"
#include "controls/simple_controls.h"
#include "link/pause.h"
#include "link/transcript.h"
#include "platform/event_loop.h"
#include "platform/platform.h"

namespace gsm {

void Conversation::write(const std::string& text) { port_.Output = text; }

void Conversation::send(std::string_view command) { write(std::string(command) + "\r"); }

void Conversation::exchange(std::string_view command, float seconds) {
  clear();
  exchangeOnTop(command, seconds);
}

void Conversation::exchangeOnTop(std::string_view command, float seconds) {
  send(command);
  pause(seconds);
}

void Conversation::pause(float seconds) { gsm::pause(platform_.clock, platform_.loop, seconds); }

bool Conversation::holds(std::string_view key) const { return transcript_.holds(key); }

Position Conversation::position(std::string_view key) const { return transcript_.position(key); }

std::string Conversation::slice(Position start, Position length) const {
  return transcript_.slice(start, length);
}

Outcome Conversation::outcome() const {
  if (holds("OK")) return Outcome::ok;
  return holds("ERROR") ? Outcome::error : Outcome::none;
}

const std::string& Conversation::text() const { return transcript_.Text; }

void Conversation::clear() { transcript_.clear(); }

Outcome Conversation::report(Label& status, const OutcomeWords& words) const {
  const Outcome found = outcome();
  if (found == Outcome::ok) status.Caption = std::string(words.ok);
  if (found == Outcome::error) status.Caption = std::string(words.error);
  return found;
}

}  // namespace gsm
