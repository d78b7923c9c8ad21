#include <optional>
#include <string>

#include "simulator/card/phone_book.h"
#include "simulator/commands/delayed.h"
#include "simulator/commands/profile_number.h"
#include "simulator/commands/service_answer.h"
#include "simulator/network/service_classes.h"
#include "simulator/text/phone_number.h"

// The network's services for calls: forwarding, waiting, closed user groups.
namespace gsm::simulator {

namespace {

constexpr Range kForwardingReasons = {0, Forwarding::kAllConditions};

// What AT+CCFC can want of the network.
enum class ForwardingMode { kDisable, kEnable, kQuery, kRegister, kErase };
constexpr Range kForwardingModes = {0, 4};

// "=REASON,MODE[,NUMBER[,TYPE[,CLASSES]]]". Further values concern data calls and the time of an
// unanswered one, and are taken for nothing.
struct ForwardingWish {
  int reason;
  ForwardingMode mode;
  std::string number;
  int classes;
};
constexpr std::size_t kMostForwardingValues = 8;

// A type of number is never below this.
constexpr int kLeastType = 128;

// Some hosts leave the type out and write the classes in its place. Without any, what is undone is
// undone for all: a host couldn't see what was left behind.
std::optional<int> classesIn(const Arguments& given, ForwardingMode mode) {
  const bool inPlaceOfType = given.has(3) && given.number(3).value_or(kLeastType) < kLeastType;
  if (inPlaceOfType && !given.has(4)) return given.number(3);
  if (given.has(4)) return given.number(4);
  const bool undone = mode == ForwardingMode::kErase || mode == ForwardingMode::kDisable;
  return undone ? kEveryClass : kUsualClasses;
}

// The plus decides; the type only adds it.
std::string numberIn(const Arguments& given) {
  std::string number(given.text(2));
  if (given.number(3) == kInternationalNumber && !number.starts_with('+')) number.insert(0, "+");
  return number;
}

Reply queryForwarding(const ModemState& state, const Command& command, const ForwardingWish& wish) {
  return serviceAnswer(command, wish.classes, [&](int serviceClass) -> std::optional<std::string> {
    const auto number = state.forwarding.target(wish.reason, serviceClass);
    if (!number) return std::nullopt;
    return "," + numberFields(*number);
  });
}

Reply forward(ModemState& state, const Command& command, const ForwardingWish& wish) {
  const auto& [reason, mode, number, classes] = wish;
  switch (mode) {
    case ForwardingMode::kQuery: return queryForwarding(state, command, wish);
    case ForwardingMode::kRegister: state.forwarding.enter(reason, classes, number); break;
    case ForwardingMode::kErase: state.forwarding.erase(reason, classes); break;
    case ForwardingMode::kEnable:
    case ForwardingMode::kDisable:
      const bool on = mode == ForwardingMode::kEnable;
      if (!state.forwarding.enable(reason, classes, on)) return error(EquipmentError::kNotAllowed);
  }
  return ok();
}

Reply setForwarding(ModemState& state, const Command& command) {
  const Arguments& given = command.arguments;
  const auto reason = given.number(0);
  const auto mode = given.number(1);
  if (given.size() > kMostForwardingValues || !reason || !mode) return error();
  if (!kForwardingReasons.holds(*reason) || !kForwardingModes.holds(*mode)) {
    return error(EquipmentError::kNotSupported);
  }
  ForwardingWish wish{*reason, static_cast<ForwardingMode>(*mode), numberIn(given), 0};
  const auto classes = classesIn(given, wish.mode);
  if (!classes) return error();
  if (!kClassSums.holds(*classes)) return error(EquipmentError::kNotSupported);
  wish.classes = *classes;
  if (wish.mode == ForwardingMode::kRegister) {
    if (!isPhoneNumber(wish.number)) return error(EquipmentError::kDialStringMalformed);
    if (lengthOfNumber(wish.number) > kLongestNumber) {
      return error(EquipmentError::kDialStringTooLong);
    }
  }
  return askNetwork(state, [&state, command, wish] { return forward(state, command, wish); });
}

Reply listForwardingReasons(ModemState&, const Command& command) {
  return ok(headed(command, kForwardingReasons.listing()));
}

// What AT+CCWA can want of the network.
enum class WaitingMode { kDisable, kEnable, kQuery };
constexpr Range kWaitingModes = {0, 2};

Reply queryWaiting(const ModemState& state, const Command& command, int asked) {
  return serviceAnswer(command, asked, [&](int serviceClass) {
    const bool on = (state.calls.waitingClasses & serviceClass) != 0;
    return on ? std::optional<std::string>("") : std::nullopt;
  });
}

Reply changeWaiting(ModemState& state, const Command& command, WaitingMode mode, int classes) {
  int& held = state.calls.waitingClasses;
  switch (mode) {
    case WaitingMode::kQuery: return queryWaiting(state, command, classes);
    case WaitingMode::kEnable: held |= classes & kEveryClass; break;
    case WaitingMode::kDisable: held &= ~classes; break;
  }
  return ok();
}

// "=[NOTICES][,MODE[,CLASSES]]": the notices of a caller who waits, and the network's service.
Reply setWaiting(ModemState& state, const Command& command) {
  const Arguments& given = command.arguments;
  const auto notices = given.has(0) ? given.number(0) : state.settings.profile.callWaiting;
  const auto mode = given.has(1) ? given.number(1) : 0;
  const auto classes = given.has(2) ? given.number(2) : kUsualClasses;
  if (given.size() == 0 || given.size() > 3 || !notices || !mode || !classes) return error();
  if (!kField<&Profile::callWaiting>.accepts(*notices) || !kWaitingModes.holds(*mode) ||
      !kClassSums.holds(*classes)) {
    return error(EquipmentError::kNotSupported);
  }
  const auto change = [&state, command, given, notices, mode, classes] {
    state.settings.profile.callWaiting = *notices;
    if (!given.has(1)) return ok();
    return changeWaiting(state, command, static_cast<WaitingMode>(*mode), *classes);
  };
  return given.has(1) ? askNetwork(state, change) : change();
}

constexpr CommandRow kServiceCommands[] = {
    {.name = "+CCFC", .set = setForwarding, .test = listForwardingReasons},
    {.name = "+CCWA",
     .query = queryNumbers<&Profile::callWaiting>,
     .set = setWaiting,
     .test = listNumbers<&Profile::callWaiting>},
    fromStandard(profileNumbers<&Profile::cugMode, &Profile::cugIndex, &Profile::cugInfo>("+CCUG")),
};

}  // namespace

CommandRows serviceCommands() { return kServiceCommands; }

}  // namespace gsm::simulator
