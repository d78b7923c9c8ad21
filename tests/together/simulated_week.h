#pragma once

#include <array>
#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <random>
#include <string>
#include <vector>

#include "controls/list_controls.h"
#include "controls/slider.h"
#include "panel/panel.h"
#include "simulator/host/simulated_modem.h"
#include "tests/support/phone_book_test.h"
#include "tests/support/property_watch.h"
#include "tests/together/book_model.h"
#include "tests/together/network_truth.h"

namespace gsm {

/// A panel, a modem and a phone book file, and what a user and the world do to them at random. Each
/// deed looks at what the user must have seen; `compareBook` holds the card, the file and the call
/// window against the model, and `compareWindows` looks at what holds of every window at any time.
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
  /// Does something at random, and reports what it was.
  std::string doSomething();

  /// The card, the file and the window stand as the model says.
  void compareBook();

  /// What is on view is loaded, and what comes up for a moment has gone.
  void compareWindows();

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

  // The messages; `simulated_week_messages.cpp`.
  void openMessages();
  simulator::MessageEntries messagesOnCard();
  std::optional<int> freePlaceOnCard();
  bool isMessageTaken(const std::string& number);
  std::string someText();
  void writeMessage(const std::string& number);
  void sendMessage();
  void saveMessage();
  void readMessage();
  void deleteMessage();
  void writeToSomeName();
  void switchReports();
  void switchBroadcast();
  void letSomebodyWrite();
  void letSomebodyWriteMeanwhile();
  Form8& messages() { return panel().form8; }
  std::string note();

  // The network's services; `simulated_week_services.cpp`.
  NetworkTruth truth();
  void turnServices(int page);
  void compareForwarding();
  void forwardCalls();
  void letCallersThrough();
  void barCalls();
  void switchWaiting();
  void joinUserGroup();
  Form12& services() { return panel().form12; }

  // The locks; `simulated_week_locks.cpp`.
  bool isLocked(std::size_t page);
  bool mayMistakePin();
  void openLocks();
  std::size_t openSomeLock();
  std::string somePassword(std::size_t page);
  void turnLock();
  void changePassword();
  Form9& locks() { return panel().form9; }

  // What is heard; `simulated_week_audio.cpp`.
  void openAudio(int tab);
  void tuneGains();
  void cancelEcho();
  void setSideTone();
  void compareAutoAnswer(int rings);
  void switchAutoAnswer(const std::string& rings);
  void letModemAnswer();
  void setToneLength();
  Form6& audio() { return panel().form6; }

  // The modem's line; `simulated_week_line.cpp`.
  void openLine();
  void compareLine();
  void saveLine();
  void followModem();
  void setLine();
  Form15& line() { return panel().form15; }

  // Data calls and fax; `simulated_week_data.cpp`.
  void openData(CommandButton Form14::*page);
  void setBearer();
  void setCompression();
  void setFax();
  Form14& data() { return panel().form14; }

  // The module's own features; `simulated_week_features.cpp`.
  void openFeature(CommandButton Form16::*button, Window& window);
  void openMakersPage(CommandButton Form17::*page);
  std::string indicatorsTold();
  void checkIndicators();
  void dumpCells();
  void letIndicationsCome();
  void switchVoiceMail();
  void readPin();
  void setToolkit();
  void defineContext();
  Form17& maker() { return panel().form17; }
  Form18& toolkit() { return panel().form18; }
  Form19& contexts() { return panel().form19; }

  // The user's hands and the modem's console.
  template <class Editable>
  void type(Editable& box, const std::string& text) {
    world().time().after(Duration::zero(), [&box, text] {
      box.userErase();
      box.userType(text);
    });
    run(0);
  }
  void needCalls();
  /// Leaves the window that stands in the main window's place.
  void showPanel();
  void expectBox(const std::string& text);
  /// Clicks, and lets what comes of it end.
  template <class Clickable>
  void press(Clickable& control) {
    click(control);
    settle();
  }
  void pick(ListControl& list, int item);
  void move(Slider& slider, int value);
  /// What an interrupted handler leaves behind would be another one's.
  void clearTranscript();
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

  // What the modem holds since it left the factory, as it has been told by the windows.
  struct Sound {
    int speakerGain = 128;
    int microphoneGain = 32;
    int echoMode = 0;
    int echoAlgorithm = 1;
    std::array<int, 4> echoOf1 = {0, 6, 10, 7};
    std::array<int, 3> echoOf3 = {30, 8000, 256};
    int sideTone = 1;
    int sideToneLevel = 0;
    int toneLength = 0;
  };
  struct Line {
    std::string rate = "9600";
    int format = 3;
    int parity = 4;
    int flowToHost = 2;
    int flowToModem = 2;
    int carrier = 1;
    int terminalReady = 1;
    bool seen = false;  // the start-up has left a choice in the window that is opened first
  };
  struct Bearer {
    std::size_t speed = 0;  // these two by their places in the window's lists
    std::size_t element = 1;
    bool compresses = true;
    bool corrects = false;
    std::size_t faxClass = 0;
  };
  struct Module {
    bool announcesMail = false;
    bool isActive = false;       // the card's toolkit
    bool hasChosenDump = false;  // of the cells
    std::map<int, std::string> contexts;
  };

  std::mt19937 random_;
  std::unique_ptr<SimulatedModem> modem_;
  BookModel model_{{}};
  std::string lastDialled_;
  bool inPeace_ = true;   // nobody writes while the user does something
  bool reports_ = false;  // of messages, switched on
  std::array<std::string, 3> passwords_ = {"12345678", "1234", "87654321"};
  std::unique_ptr<PropertyWatch> noteWatch_;
  Sound sound_;
  Line line_;
  Bearer bearer_;
  Module module_;
};

}  // namespace gsm
