#include "simulator/console/console_table.h"
#include "simulator/network/service_classes.h"
#include "simulator/text/text.h"

// The console as the network's operator, and as a hand on the modem's locks.
namespace gsm::simulator {

namespace {

constexpr std::string_view kReasons[] = {"unconditional", "busy", "no reply", "not reachable"};

// Each class with what is there for it, or "off".
std::string classText(int serviceClass) { return " class " + std::to_string(serviceClass); }

std::string forwardingText(const Forwarding& forwarding) {
  std::string text;
  for (int reason = 0; reason < Forwarding::kReasons; ++reason) {
    std::string targets;
    for (const int serviceClass : kServiceClasses) {
      const auto target = forwarding.target(reason, serviceClass);
      if (target) targets.append(classText(serviceClass)).append(" to ").append(*target);
    }
    text.append("forwarding, ").append(kReasons[reason]).append(":");
    text.append(targets.empty() ? " off" : targets).append("\n");
  }
  return text;
}

std::string barringText(const Barring& barring) {
  std::string text = "barring:";
  for (const auto& [name, facilities] : kBarringNames) {
    if (!isSingle(facilities)) continue;
    const int classes = barring.classesOf(static_cast<Barring::Facility>(facilities));
    text.append(" ").append(name).append(" ").append(std::to_string(classes));
  }
  return text + ", " + std::to_string(barring.password.tries()) + " tries left";
}

std::string showServices(ModemState& state, std::string_view) {
  const Profile& profile = state.settings.profile;
  return forwardingText(state.forwarding) + barringText(state.barring) +
         "\nwaiting: " + std::to_string(state.calls.waitingClasses) +
         "\nclosed user group: " + std::to_string(profile.cugMode) + "," +
         std::to_string(profile.cugIndex) + "," + std::to_string(profile.cugInfo);
}

constexpr Range kBarredSums = {0, kEveryClass};

std::string bar(ModemState& state, std::string_view operands) {
  const std::string_view name = takeWord(operands);
  if (name == "unlock" && operands.empty()) {
    state.barring.password.unlock();
    return {};
  }
  const int facility = barringOf(name);
  const auto classes = parseNumber<int>(operands);
  if (facility == 0 || !isSingle(facility) || !classes || !kBarredSums.holds(*classes)) {
    return wrongUse();
  }
  state.barring.set(facility, kEveryClass, false);
  state.barring.set(facility, *classes, true);
  return {};
}

std::string showLocks(const ModemState& state) {
  const auto text = [](bool on) { return on ? " on" : " off"; };
  return std::string("PS") + text(state.locks.phone.isOn()) + ", SC" +
         text(state.sim.pinEnabled()) + ", PN" + text(state.locks.network.isOn());
}

std::string lock(ModemState& state, std::string_view operands) {
  if (operands.empty()) return showLocks(state);
  const std::string_view name = takeWord(operands);
  const auto on = parseSwitch(operands);
  if (!on) return wrongUse();
  if (name == "PS") {
    state.locks.phone.force(*on);
  } else if (name == "SC") {
    state.sim.forcePin(*on);
  } else if (name == "PN") {
    state.locks.network.force(*on);
  } else {
    return wrongUse();
  }
  return {};
}

constexpr ConsoleRow kServiceConsole[] = {
    {"services", "", "show what the network forwards, bars and lets wait", showServices},
    {"bar", "AO|OI|OX|AI|IR CLASSES | unlock",
     "bar calls of the classes, a sum of 1 voice, 2 data, 4 fax, 8 messages; or allow new tries",
     bar},
    {"lock", "[PS|SC|PN on|off]", "show the locks, or change one without its password", lock},
};

}  // namespace

ConsoleRows serviceConsole() { return kServiceConsole; }

}  // namespace gsm::simulator
