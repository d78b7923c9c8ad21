#pragma once

#include <cstdint>
#include <memory>
#include <random>
#include <string>
#include <vector>

#include "simulator/host/simulated_modem.h"
#include "tests/phonebook/phone_book_test.h"
#include "tests/together/book_model.h"

namespace gsm {

/// A panel, a modem and a phone book file, and what a user and the world do to them at random. Each
/// deed looks at what the user must have seen; `compareBook` holds the card, the file and the call
/// window against the model.
///
/// The user is up from six in the morning to ten at night: a wait over midnight fails, which has
/// tests of its own.
class SimulatedWeek : public PhoneBookTest {
 protected:
  void SetUp() override;
  void TearDown() override;

  /// Starts the panel on a Monday at six, with so many entries on the card, and opens the calls.
  void begin(std::uint32_t seed, int entriesOnCard);
  /// How many days are over.
  int days() const { return static_cast<int>(now() / kDay); }
  /// Lets some minutes go by, or the night.
  void letTimePass();
  /// Does something at random, and tells what it was.
  std::string doSomething();

  /// The card, the file and the window stand as the model says.
  void compareBook();

  /// No call is up and the transcript has been cleared: the poll takes the prompt down and ends.
  void comeToRest();
  void reload();
  void reopenCalls();

 private:
  static constexpr double kHour = 3600;
  static constexpr double kDay = 24 * kHour;
  static constexpr double kGettingUp = 6 * kHour;
  static constexpr double kGoingToBed = 22 * kHour;

  // The book; `simulated_week_book.cpp`.
  void openCallWindow();
  void closeCalls();
  void pickEntryAtRandom();
  void addEntry(const NewEntry& entry, bool inPeace = true);
  void addSomeEntry();
  void removeEntry(std::size_t row, bool perhapsUnheard = false);
  void removeEntryAtRandom();
  void removeNone();
  void useCardElsewhere();
  void useSilentModem();
  void useBookDuringACall();

  // The calls; `simulated_week_calls.cpp`.
  void callSomebody();
  void redial();
  /// A watch has ended: its last word must stand there, and a call that was taken goes on.
  void finishWatch(const std::string& number);
  void finishCall();
  void letSomebodyWait();
  void letSomebodyCall();
  void letCallerGiveUp();
  void hangUp();

  // The user's hands and the modem's console.
  void type(TextBox& box, const std::string& text);
  void needCalls();
  void expectBox(const std::string& text);
  /// Follows a call window that a call has loaded unseen.
  void followLoading();
  std::string tell(const std::string& line) { return modem_->console(line); }

  // Chance.
  std::size_t below(std::size_t count) { return random_() % count; }
  bool perhaps(std::size_t oneIn) { return below(oneIn) == 0; }
  template <class T>
  const T& oneOf(const std::vector<T>& all) {
    return all[below(all.size())];
  }
  std::string digits(std::size_t count);
  NewEntry someEntry();
  std::string someCaller();

  double timeOfDay() const;

  std::mt19937 random_;
  std::unique_ptr<SimulatedModem> modem_;
  BookModel model_{{}};
  std::string lastDialled_;
};

}  // namespace gsm
