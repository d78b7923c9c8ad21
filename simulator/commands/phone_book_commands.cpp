#include "simulator/commands/profile_number.h"
#include "simulator/commands/sim_trouble.h"
#include "simulator/text/character_set.h"
#include "simulator/text/phone_number.h"

// The phone book of the SIM card.
namespace gsm::simulator {

namespace {

constexpr std::string_view kMemory = "SM";

// The limits of an entry, as the test commands list them.
std::string locationRange() { return "(1-" + std::to_string(kPhoneBookLocations) + ")"; }
std::string numberLimit() { return std::to_string(kLongestNumber); }
std::string nameLimit(const ModemState& state) {
  return std::to_string(state.phoneBook.nameRoom());
}

EquipmentError errorOf(EntryFlaw flaw) {
  switch (flaw) {
    case EntryFlaw::kNumberTooLong: return EquipmentError::kDialStringTooLong;
    case EntryFlaw::kNumberMalformed: return EquipmentError::kDialStringMalformed;
    case EntryFlaw::kNameTooLong: return EquipmentError::kTextTooLong;
    case EntryFlaw::kNameMalformed: return EquipmentError::kTextMalformed;
    case EntryFlaw::kEmpty: break;
  }
  return EquipmentError::kNotAllowed;
}

Reply kept(bool done) { return done ? ok() : error(EquipmentError::kMemoryFailure); }

// A command that needs the card: refused while the card can't be used.
template <CommandHandler handler>
Reply withSim(ModemState& state, const Command& command) {
  const auto trouble = simTrouble(state.sim.status());
  return trouble ? error(*trouble) : handler(state, command);
}

Reply queryMemory(ModemState& state, const Command& command) {
  return ok(headed(command, quoted(kMemory) + "," +
                                std::to_string(state.phoneBook.entries().size()) + "," +
                                std::to_string(kPhoneBookLocations)));
}

Reply selectMemory(ModemState&, const Command& command) {
  if (command.arguments.size() != 1) return error();
  return command.arguments.text(0) == kMemory ? ok() : error(EquipmentError::kNotSupported);
}

Reply listMemories(ModemState&, const Command& command) {
  return ok(headed(command, "(" + quoted(kMemory) + ")"));
}

// "=LOCATION" or "=FIRST,LAST": the entries there, and an error when there is none.
Reply readEntries(ModemState& state, const Command& command) {
  const Arguments& given = command.arguments;
  const auto first = given.number(0);
  const auto last = given.size() == 2 ? given.number(1) : first;
  if (given.size() > 2 || !first || !last) return error();
  if (!isPhoneBookLocation(*first) || !isPhoneBookLocation(*last) || *first > *last) {
    return error(EquipmentError::kInvalidIndex);
  }
  const PhoneBookEntries& entries = state.phoneBook.entries();
  std::string lines;
  for (auto at = entries.lower_bound(*first); at != entries.end() && at->first <= *last; ++at) {
    const auto& [location, entry] = *at;
    if (!lines.empty()) lines += "\r\n";
    lines += headed(command, std::to_string(location) + "," + numberFields(entry.number) + "," +
                                 quoted(encoded(entry.name, state.settings.profile.characterSet)));
  }
  return lines.empty() ? error(EquipmentError::kNotFound) : ok(lines);
}

Reply listEntryLimits(ModemState& state, const Command& command) {
  return ok(headed(command, locationRange() + "," + numberLimit() + "," + nameLimit(state)));
}

// "LOCATION,NUMBER[,TYPE[,NAME]]", with or without quotes around the number. The type only adds the
// plus that a number lacks, for the plus is what decides; a name keeps its blanks.
Reply writeEntry(ModemState& state, int location, const Arguments& given) {
  const auto name = decoded(given.text(3), state.settings.profile.characterSet);
  if (!name) return error(EquipmentError::kTextMalformed);
  PhoneBookEntry entry{std::string(given.text(1)), *name};
  const auto type = given.has(2) ? given.number(2) : typeOfNumber(entry.number);
  if (!type) return error();
  if (*type != kPlainNumber && *type != kInternationalNumber) {
    return error(EquipmentError::kNotSupported);
  }
  const bool lacksPlus = !entry.number.empty() && !entry.number.starts_with('+');
  if (*type == kInternationalNumber && lacksPlus) entry.number.insert(0, "+");
  if (const auto flaw = flawOf(entry, state.phoneBook.nameRoom())) return error(errorOf(*flaw));
  return kept(state.phoneBook.store(location, std::move(entry)));
}

// "=LOCATION" erases; "=[LOCATION],NUMBER,..." writes, to the first free location without one.
Reply changeEntry(ModemState& state, const Command& command) {
  const Arguments& given = command.arguments;
  const bool anywhere = given.size() > 1 && !given.has(0);
  const auto location = anywhere ? state.phoneBook.firstFree() : given.number(0);
  if (given.size() > 4) return error();
  if (!location) return anywhere ? error(EquipmentError::kMemoryFull) : error();
  if (!isPhoneBookLocation(*location)) return error(EquipmentError::kInvalidIndex);
  return given.size() == 1 ? kept(state.phoneBook.erase(*location))
                           : writeEntry(state, *location, given);
}

Reply listWriteLimits(ModemState& state, const Command& command) {
  return ok(
      headed(command, locationRange() + "," + numberLimit() + ",(129,145)," + nameLimit(state)));
}

constexpr CommandRow kPhoneBookCommands[] = {
    {.name = "+CPBS",
     .query = withSim<queryMemory>,
     .set = withSim<selectMemory>,
     .test = withSim<listMemories>},
    {.name = "+CPBR", .set = withSim<readEntries>, .test = withSim<listEntryLimits>},
    {.name = "+CPBW", .set = withSim<changeEntry>, .test = withSim<listWriteLimits>},
};

}  // namespace

CommandRows phoneBookCommands() { return kPhoneBookCommands; }

}  // namespace gsm::simulator
