#include "tests/together/simulated_week.h"

#include <cmath>

#include "audio/form6.h"
#include "modem/form10.h"
#include "modem/form11.h"
#include "module/form16.h"
#include "module/form17.h"
#include "module/form18.h"
#include "module/form19.h"
#include "panel/form1.h"
#include "phonebook/form3.h"
#include "platform/sqlite/phone_book_file.h"
#include "security/form9.h"
#include "services/form12.h"
#include "settings/form14.h"
#include "settings/form15.h"
#include "simulator/card/phone_book_text.h"
#include "sms/form8.h"

namespace gsm {
namespace {

simulator::PhoneBookEntries cardOf(int entries) {
  if (entries == 0) return simulator::factoryPhoneBook();
  simulator::PhoneBookEntries card;
  for (int location = 1; location <= entries; ++location) {
    const std::string text = std::to_string(location);
    card[location] = {"01" + std::string(8 - text.size(), '4') + text, "Number " + text};
  }
  return card;
}

BookModel::Card cardIn(const simulator::PhoneBookEntries& entries) {
  BookModel::Card card;
  for (const auto& [location, entry] : entries) card[location] = {entry.number, entry.name};
  return card;
}

}  // namespace

void SimulatedWeek::SetUp() {
  createPhoneBook(bookFile());
  layComFile("9600,N,8,1 3\r\n");
}

// The modem goes after the panel's handlers have been unwound, and before the line.
void SimulatedWeek::TearDown() {
  world().time().abandon();
  noteWatch_.reset();
  modem_.reset();
}

void SimulatedWeek::begin(std::uint32_t seed, int entriesOnCard) {
  random_.seed(seed);
  const auto card = cardOf(entriesOnCard);
  model_ = BookModel(cardIn(card));
  start({.now = {2026, 3, 2, 6, 0, 0}});
  modem_ = std::make_unique<SimulatedModem>(
      machine().time, machine().line, simulator::ModemOptions{.speed = 9600, .phoneBook = card});
  settle();
  ASSERT_TRUE(form1().Command2.Enabled.peek()) << "the start-up didn't come to its end";
  inPanel([this] {
    form1().modem.exchange("AT+CCWA=1,1,1");  // the modem reports callers who wait
    form1().Text1.clear();
  });
  settle();
  noteWatch_ = std::make_unique<PropertyWatch>(messages().Label4, [this](PropertyId) {
    if (!note().starts_with("Message Sent ")) return;
    EXPECT_TRUE(isMessageTaken(messages().Text1.Text.peek())) << "whatever else happens meanwhile";
  });
  openCallWindow();
}

double SimulatedWeek::timeOfDay() const { return std::fmod(kGettingUp + now(), kDay); }

void SimulatedWeek::letTimePass() {
  run(static_cast<double>(300 + below(1500)));
  if (timeOfDay() < kGoingToBed) return;
  comeToRest();
  run(kDay - timeOfDay() + kGettingUp);
}

std::string SimulatedWeek::doSomething() {
  struct Choice {
    const char* name;
    void (SimulatedWeek::*act)();
    std::size_t weight;
  };
  static const std::vector<Choice> choices = {
      {"picks an entry", &SimulatedWeek::pickEntryAtRandom, 2},
      {"adds an entry", &SimulatedWeek::addSomeEntry, 8},
      {"deletes an entry", &SimulatedWeek::removeEntryAtRandom, 6},
      {"deletes none", &SimulatedWeek::removeNone, 1},
      {"reloads the book", &SimulatedWeek::reload, 3},
      {"reopens the calls", &SimulatedWeek::reopenCalls, 4},
      {"closes the calls", &SimulatedWeek::closeCalls, 2},
      {"uses the card elsewhere", &SimulatedWeek::useCardElsewhere, 2},
      {"uses a silent modem", &SimulatedWeek::useSilentModem, 3},
      {"uses the book during a call", &SimulatedWeek::useBookDuringACall, 4},
      {"calls somebody", &SimulatedWeek::callSomebody, 5},
      {"redials", &SimulatedWeek::redial, 3},
      {"is called", &SimulatedWeek::letSomebodyCall, 8},
      {"sends a message", &SimulatedWeek::sendMessage, 4},
      {"saves a message", &SimulatedWeek::saveMessage, 2},
      {"reads a message", &SimulatedWeek::readMessage, 4},
      {"deletes a message", &SimulatedWeek::deleteMessage, 3},
      {"writes to some name", &SimulatedWeek::writeToSomeName, 2},
      {"switches the reports", &SimulatedWeek::switchReports, 1},
      {"switches the broadcast", &SimulatedWeek::switchBroadcast, 1},
      {"is written to", &SimulatedWeek::letSomebodyWrite, 4},
      {"is written to meanwhile", &SimulatedWeek::letSomebodyWriteMeanwhile, 6},
      {"forwards calls", &SimulatedWeek::forwardCalls, 3},
      {"bars calls", &SimulatedWeek::barCalls, 2},
      {"switches the waiting", &SimulatedWeek::switchWaiting, 2},
      {"joins a user group", &SimulatedWeek::joinUserGroup, 1},
      {"turns a lock", &SimulatedWeek::turnLock, 4},
      {"changes a password", &SimulatedWeek::changePassword, 2},
      {"tunes the gains", &SimulatedWeek::tuneGains, 2},
      {"cancels the echo", &SimulatedWeek::cancelEcho, 2},
      {"sets the side tone", &SimulatedWeek::setSideTone, 1},
      {"lets the modem answer", &SimulatedWeek::letModemAnswer, 2},
      {"sets the tones' length", &SimulatedWeek::setToneLength, 2},
      {"sets the line", &SimulatedWeek::setLine, 3},
      {"sets the bearer", &SimulatedWeek::setBearer, 2},
      {"sets the compression", &SimulatedWeek::setCompression, 1},
      {"sets the fax", &SimulatedWeek::setFax, 1},
      {"checks the indicators", &SimulatedWeek::checkIndicators, 3},
      {"dumps the cells", &SimulatedWeek::dumpCells, 2},
      {"lets indications come", &SimulatedWeek::letIndicationsCome, 2},
      {"switches the voice mail", &SimulatedWeek::switchVoiceMail, 2},
      {"reads a pin", &SimulatedWeek::readPin, 2},
      {"sets the toolkit", &SimulatedWeek::setToolkit, 2},
      {"defines a context", &SimulatedWeek::defineContext, 3},
  };
  std::size_t sum = 0;
  for (const Choice& choice : choices) sum += choice.weight;
  std::size_t left = below(sum);
  for (const Choice& choice : choices) {
    if (left >= choice.weight) {
      left -= choice.weight;
      continue;
    }
    (this->*choice.act)();
    return choice.name;
  }
  return {};
}

void SimulatedWeek::compareBook() {
  const auto card = simulator::readPhoneBook(tell("phonebook"), simulator::kLongestNameRoom);
  EXPECT_EQ(cardIn(card.entries), model_.card());
  EXPECT_EQ(storedEntries(), model_.entries());
  EXPECT_EQ(storedCounts(), model_.counts());
  ASSERT_EQ(calls().isLoaded(), model_.window().has_value());
  if (!model_.window()) return;
  EXPECT_EQ(rows(), model_.window()->list);
  EXPECT_EQ(used(), model_.window()->used);
  EXPECT_EQ(total(), model_.window()->total);
  EXPECT_EQ(dialBox(), model_.window()->dialBox);
}

void SimulatedWeek::compareWindows() {
  for (const Window* window : machine().platform().windows) {
    EXPECT_TRUE(window->isLoaded() || !window->Visible.peek()) << window->name();
  }
  EXPECT_FALSE(panel().form10.Visible.peek()) << "the SIM has been opened";
  EXPECT_FALSE(panel().form11.Visible.peek());
}

// The audio window saves the modem's profile before it goes; behind the module's windows their menu
// comes back.
void SimulatedWeek::showPanel() {
  for (Window* window : std::initializer_list<Window*>{&messages(), &services(), &locks(), &audio(),
                                                       &data(), &line(), &maker(), &toolkit(),
                                                       &contexts(), &panel().form16}) {
    if (!window->Visible.peek()) continue;
    world().time().after(Duration::zero(), [window] { window->userClose(); });
    settle();
    EXPECT_FALSE(window->isLoaded()) << window->name();
  }
  EXPECT_TRUE(form1().Visible.peek());
}

void SimulatedWeek::pick(ListControl& list, int item) {
  world().time().after(Duration::zero(), [&list, item] { list.userSelect(item); });
  run(0);
}

void SimulatedWeek::move(Slider& slider, int value) {
  world().time().after(Duration::zero(), [&slider, value] { slider.userMove(value); });
  run(0);
}

void SimulatedWeek::clearTranscript() {
  inPanel([this] { form1().Text1.clear(); });
  settle();
}

void SimulatedWeek::expectBox(const std::string& text) {
  EXPECT_EQ(boxes(), text.empty() ? Texts{} : Texts{text});
}

std::string SimulatedWeek::digits(std::size_t count) {
  std::string all;
  while (all.size() < count) all += static_cast<char>('0' + below(10));
  return all;
}

}  // namespace gsm
