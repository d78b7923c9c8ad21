#include "simulator/console/console_table.h"

// The console's commands about the simulator itself.
namespace gsm::simulator {

namespace {

std::string speedText(const ModemState& state) {
  return state.speed() == kAutobaud ? "autobaud" : std::to_string(state.speed()) + " baud";
}

std::string onOff(bool on) { return on ? "on" : "off"; }

std::string callsText(const Calls& calls) {
  std::string text;
  for (const Call& call : calls.all()) {
    text.append(text.empty() ? "" : ", ").append(std::to_string(call.id)).append(" ");
    text.append(nameOf(call.state)).append(" ");
    text.append(call.number.empty() ? "hidden" : call.number);
  }
  return text.empty() ? "none" : text;
}

std::string moduleText(const ModemState& state) {
  const ModuleFeatures& module = state.module;
  std::string text = "power " + onOff(!state.off) + ", battery " + std::to_string(module.battery) +
                     ", voice mail " + onOff(module.voiceMail.waiting) + ", pins ";
  for (std::size_t pin = 0; pin < kPins; ++pin) text += module.pins[pin] ? '1' : '0';
  return text.append(", cell ").append(state.network.cell().number);
}

std::string showState(ModemState& state, std::string_view) {
  const SimCard& sim = state.sim;
  const Network& network = state.network;
  return "line: " + speedText(state) + ", " + (state.plugged ? "plugged" : "unplugged") +
         ", silent " + onOff(state.silent) + ", echo " + onOff(state.settings.profile.echo != 0) +
         ", cut " + state.transmitter.cutter().name() +
         "\nfaults: " + state.transmitter.faults().names() +
         "\nsim: " + std::string(nameOf(sim.status())) + ", " + std::to_string(sim.pinTries()) +
         " PIN and " + std::to_string(sim.pukTries()) + " PUK tries left\nnetwork: registration " +
         std::to_string(network.registration()) + ", signal " + std::to_string(network.signal) +
         "," + std::to_string(network.bitErrorRate) + "\nmodule: " + moduleText(state) +
         "\nphone book: " + std::to_string(state.phoneBook.entries().size()) + " of " +
         std::to_string(kPhoneBookLocations) + "\ncalls: " + callsText(state.calls);
}

std::string showHelp(ModemState&, std::string_view) { return consoleHelp(); }

std::string quit(ModemState& state, std::string_view) {
  if (state.surroundings.quit) state.surroundings.quit();
  return {};
}

constexpr ConsoleRow kGeneralConsole[] = {
    {"state", "", "show how things stand", showState},
    {"help", "", "show this list", showHelp},
    {"quit", "", "end the simulator", quit},
};

}  // namespace

ConsoleRows generalConsole() { return kGeneralConsole; }

}  // namespace gsm::simulator
