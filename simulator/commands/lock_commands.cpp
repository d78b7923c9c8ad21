#include <algorithm>
#include <string>

#include "simulator/commands/delayed.h"
#include "simulator/commands/profile_number.h"
#include "simulator/commands/service_answer.h"
#include "simulator/network/service_classes.h"
#include "simulator/text/text.h"

// What is locked by a password: the modem, its card, and what the network bars.
namespace gsm::simulator {

namespace {

// The modem's own locks, in the order in which a query for all of them shows them. Those for parts
// of a network can't be used.
enum class Lock { kPhone, kCard, kNetwork, kUnused };
struct LockName {
  std::string_view name;
  Lock lock;
};
constexpr LockName kLocks[] = {
    {"PS", Lock::kPhone},  {"SC", Lock::kCard},   {"FD", Lock::kUnused}, {"PN", Lock::kNetwork},
    {"PU", Lock::kUnused}, {"PP", Lock::kUnused}, {"PC", Lock::kUnused},
};

const LockName* lockOf(std::string_view name) {
  const auto* const found = std::find_if(std::begin(kLocks), std::end(kLocks),
                                         [name](const LockName& row) { return row.name == name; });
  return found == std::end(kLocks) ? nullptr : found;
}

bool isOn(const ModemState& state, Lock lock) {
  switch (lock) {
    case Lock::kPhone: return state.locks.phone.isOn();
    case Lock::kCard: return state.sim.pinEnabled();
    case Lock::kNetwork: return state.locks.network.isOn();
    case Lock::kUnused: break;
  }
  return false;
}

CodeCheck turn(ModemState& state, Lock lock, bool on, std::string_view password) {
  switch (lock) {
    case Lock::kPhone: return state.locks.phone.turn(on, password);
    case Lock::kCard: return state.sim.enablePin(on, password);
    case Lock::kNetwork: return state.locks.network.turn(on, password);
    case Lock::kUnused: break;
  }
  return CodeCheck::kNotAsked;
}

CodeCheck changePassword(ModemState& state, Lock lock, std::string_view old,
                         std::string_view changed) {
  switch (lock) {
    case Lock::kPhone: return state.locks.phone.changePassword(old, changed);
    case Lock::kCard: return state.sim.changePin(old, changed);
    case Lock::kNetwork: return state.locks.network.changePassword(old, changed);
    case Lock::kUnused: break;
  }
  return CodeCheck::kNotAsked;
}

// The card that a last wrong PIN has blocked takes the calls and the network with it.
Reply answerTo(ModemState& state, CodeCheck check) {
  if (check == CodeCheck::kAccepted) return ok();
  Reply reply =
      error(check == CodeCheck::kWrong ? EquipmentError::kWrongCode : EquipmentError::kNotAllowed);
  if (state.sim.status() == SimStatus::kReady) return reply;
  reply.afterwards.push_back([&state] {
    state.calls.lose();
    state.network.lose();
  });
  return reply;
}

// One line, and no blank after the colon.
Reply queryLocks(ModemState& state, const Command& command) {
  if (const auto trouble = simTrouble(state.sim.status())) return error(*trouble);
  std::string list;
  for (const auto& [name, lock] : kLocks) {
    list.append(list.empty() ? "" : ",").append("(").append(quoted(name)).append(",");
    list.append(isOn(state, lock) ? "1" : "0").append(")");
  }
  return ok(command.name + ":" + list);
}

constexpr int kQuery = 2;
constexpr Range kLockModes = {0, kQuery};

Reply queryBarring(const ModemState& state, const Command& command, int facilities, int asked) {
  return serviceAnswer(command, asked, [&](int serviceClass) {
    const auto facility = static_cast<Barring::Facility>(facilities);
    const bool on = state.barring.isOn(facility, serviceClass);
    return on ? std::optional<std::string>("") : std::nullopt;
  });
}

// A group of barrings can be lifted as one, and nothing else.
Reply setBarring(ModemState& state, const Command& command, int facilities) {
  const Arguments& given = command.arguments;
  const int mode = given.number(1).value_or(0);
  const auto classes = given.has(3) ? given.number(3) : kUsualClasses;
  if (!classes) return error();
  if (!kClassSums.holds(*classes) || (mode != 0 && !isSingle(facilities))) {
    return error(EquipmentError::kNotSupported);
  }
  return askNetwork(state, [&state, command, facilities, mode, classes] {
    if (mode == kQuery) return queryBarring(state, command, facilities, *classes);
    const CodeCheck check = state.barring.password.check(command.arguments.text(2));
    if (check == CodeCheck::kAccepted) state.barring.set(facilities, *classes, mode != 0);
    return answerTo(state, check);
  });
}

// "=FACILITY,MODE[,PASSWORD[,CLASSES]]". The modem's own locks have no classes.
Reply setLock(ModemState& state, const Command& command) {
  const Arguments& given = command.arguments;
  const auto mode = given.number(1);
  if (given.size() > 4 || !mode) return error();
  if (const auto trouble = simTrouble(state.sim.status())) return error(*trouble);
  if (!kLockModes.holds(*mode)) return error(EquipmentError::kNotSupported);
  if (const int barring = barringOf(given.text(0)); barring != 0) {
    return setBarring(state, command, barring);
  }
  const LockName* const row = lockOf(given.text(0));
  if (row == nullptr) return error(EquipmentError::kNotSupported);
  if (mode == kQuery) return ok(headed(command, isOn(state, row->lock) ? "1" : "0"));
  return answerTo(state, turn(state, row->lock, *mode != 0, given.text(2)));
}

Reply listFacilities(ModemState&, const Command& command) {
  std::string list;
  const auto add = [&list](std::string_view name) {
    list.append(list.empty() ? "" : ",").append(quoted(name));
  };
  for (const LockName& row : kLocks) add(row.name);
  for (const BarringName& row : kBarringNames) add(row.name);
  return ok(headed(command, "(" + list + ")"));
}

// "=FACILITY,OLD,NEW". What the network bars has one password for all.
Reply setPassword(ModemState& state, const Command& command) {
  const Arguments& given = command.arguments;
  if (given.size() != 3) return error();
  if (const auto trouble = simTrouble(state.sim.status())) return error(*trouble);
  if (barringOf(given.text(0)) != 0) {
    return askNetwork(state, [&state, given] {
      return answerTo(state, state.barring.password.change(given.text(1), given.text(2)));
    });
  }
  const LockName* const row = lockOf(given.text(0));
  if (row == nullptr) return error(EquipmentError::kNotSupported);
  return answerTo(state, changePassword(state, row->lock, given.text(1), given.text(2)));
}

Reply listPasswords(ModemState&, const Command& command) {
  return ok(headed(command,
                   "(\"PS\",8),(\"SC\",8),(\"PN\",8),(\"AO\",4),(\"OI\",4),(\"OX\",4),(\"AI\",4),"
                   "(\"IR\",4),(\"AB\",4),(\"AG\",4),(\"AC\",4)"));
}

constexpr CommandRow kLockCommands[] = {
    {.name = "+CLCK", .query = queryLocks, .set = setLock, .test = listFacilities},
    {.name = "+CPWD", .set = setPassword, .test = listPasswords},
};

}  // namespace

CommandRows lockCommands() { return kLockCommands; }

}  // namespace gsm::simulator
