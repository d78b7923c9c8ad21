// What the simulated modem is told by its files and at its console.

#include <string>
#include <vector>

#include "fuzz/must_hold.h"
#include "fuzz/text_readers.h"
#include "simulator/card/phone_book_text.h"
#include "simulator/host/line_splitter.h"
#include "simulator/messages/message_text.h"
#include "simulator/modem.h"
#include "simulator/profile/profile.h"
#include "tests/simulator/virtual_timeline.h"

namespace gsm {
namespace {

using simulator::Modem;

// All that the console can show of a modem.
std::string stateOf(Modem& modem) {
  std::string state;
  for (const char* line : {"state", "services", "lock", "messages", "phonebook"}) {
    state.append(modem.console(line)).append("\n");
  }
  return state;
}

// A line that can't be done changes nothing.
void obey(Modem& modem, const std::string& line) {
  const std::string before = stateOf(modem);
  const std::string answer = modem.console(line);
  mustHold(!answer.ends_with('\n'));
  if (answer.starts_with("error:")) mustHold(stateOf(modem) == before);
}

// What was read is written, and read again.
template <class Entries, class Read>
void comesBack(const Entries& entries, Read&& read) {
  const auto again = read(simulator::toText(entries));
  mustHold(again.complaints.empty());
  mustHold(again.entries == entries);
}

}  // namespace

void readProfile(std::string_view bytes) {
  const auto settings = simulator::parseStoredSettings(bytes);
  if (!settings) return;
  for (const simulator::ProfileField& field : simulator::kProfileFields) {
    mustHold(field.accepts(settings->profile.*field.member));
  }
  mustHold(simulator::kWindRange.holds(settings->wind));
  mustHold(simulator::parseStoredSettings(simulator::toText(*settings)) == settings);
}

void readPhoneBookText(std::string_view bytes) {
  for (const std::size_t room : {simulator::kShortestNameRoom, simulator::kLongestNameRoom}) {
    const auto read = [room](std::string_view text) {
      return simulator::readPhoneBook(text, room);
    };
    const auto entries = read(bytes).entries;
    for (const auto& [location, entry] : entries) {
      mustHold(simulator::isPhoneBookLocation(location) && !simulator::flawOf(entry, room));
    }
    comesBack(entries, read);
  }
}

void readMessagesText(std::string_view bytes) {
  const auto entries = simulator::readMessages(bytes).entries;
  for (const auto& [location, message] : entries) {
    mustHold(simulator::isMessageLocation(location) && !simulator::flawOf(message));
  }
  comesBack(entries, simulator::readMessages);
}

void readConsole(std::string_view bytes) {
  simulator::VirtualTimeline time;
  simulator::MemoryProfileStore memory;
  Modem modem(time, memory, {});
  pty::LineSplitter splitter;
  std::vector<std::string> lines = splitter.take(bytes);
  lines.push_back(splitter.takeRest());
  for (const std::string& line : lines) {
    mustHold(line.size() <= pty::LineSplitter::kLongest);
    const int speed = modem.speed() == simulator::kAutobaud ? 9600 : modem.speed();
    if (line.starts_with("AT")) {
      modem.hostWrites(line + "\r", speed);
    } else if (line.starts_with('>')) {
      modem.hostWrites(line.substr(1) + "\x1A", speed);
    } else {
      obey(modem, line);
    }
    time.advance(std::chrono::seconds(2));
  }
}

}  // namespace gsm
