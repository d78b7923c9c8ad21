#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace gsm::simulator {

enum class SimStatus {
  kReady,
  kPinWanted,
  kPukWanted,
  kBlocked,  // ten wrong PUKs: no code opens it again
  kAbsent,
  kFailed,
};

enum class CodeCheck { kAccepted, kWrong, kNotAsked };

// The card in the modem's holder, with its codes and their counters.
class SimCard {
 public:
  // A card that starts out absent is a good one without a PIN, for `insert` to put in.
  explicit SimCard(SimStatus status) { force(status); }

  SimStatus status() const { return status_; }
  int pinTries() const { return pinTries_; }
  int pukTries() const { return pukTries_; }

  // A code that isn't 4 to 8 digits is wrong without costing a try, since the modem doesn't pass it
  // on to the card. The third wrong PIN in a row makes the card want its PUK.
  CodeCheck enterPin(std::string_view pin);

  // The right PUK makes `newPin` the card's PIN and opens it. The tenth wrong one blocks it.
  CodeCheck enterPuk(std::string_view puk, std::string_view newPin);

  // True when the card asks for its PIN at power-up.
  bool pinEnabled() const { return pinEnabled_; }

  // Has the card ask for its PIN, or not, and changes the PIN, of an opened card. Nothing is asked
  // when it does so, or doesn't, already, and for a change while it doesn't. A wrong PIN costs a
  // try as with `enterPin`.
  CodeCheck enablePin(bool on, std::string_view pin);
  CodeCheck changePin(std::string_view pin, std::string_view newPin);

  // The same by hand, whatever the PIN.
  void forcePin(bool on) { pinEnabled_ = on; }

  // Sets the status by hand, with all the tries that the status leaves.
  void force(SimStatus status);

  // Takes the card out, and puts it back: it then wants what it wants at power-up.
  void remove();
  void insert();

 private:
  void open();
  CodeCheck checkPin(std::string_view pin);

  SimStatus status_ = SimStatus::kReady;
  SimStatus statusOutside_ = SimStatus::kReady;  // what a removed card will want when put in
  bool pinEnabled_ = false;
  std::string pin_ = "1234";
  std::string puk_ = "12345678";
  int pinTries_ = 3;
  int pukTries_ = 10;
};

// The status in one word: ready, pin, puk, blocked, out or failed.
std::string_view nameOf(SimStatus status);

// The status that a word names; nothing for any other word.
std::optional<SimStatus> parseSimStatus(std::string_view name);

}  // namespace gsm::simulator
