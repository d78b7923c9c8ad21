#include "simulator/console/console_table.h"
#include "simulator/text/text.h"

// The console's hands on the network. It may say more than a network does: a panel has to bear
// values that no standard defines, too.
namespace gsm::simulator {

namespace {

constexpr int kUnknown = 99;
constexpr Range kSignals = {0, 99};
constexpr Range kRegistrations = {0, 9};

std::string setSignal(ModemState& state, std::string_view operands) {
  const auto values = words(operands);
  if (values.empty() || values.size() > 2) return wrongUse();
  const auto signal = parseNumber<int>(values[0]);
  if (!signal || !kSignals.holds(*signal)) return wrongUse();
  const int usual = *signal == kUnknown ? kUnknown : 0;
  const auto errorRate = values.size() == 2 ? parseNumber<int>(values[1]) : usual;
  if (!errorRate || !kSignals.holds(*errorRate)) return wrongUse();
  state.network.signal = *signal;
  state.network.bitErrorRate = *errorRate;
  return {};
}

std::string setRegistration(ModemState& state, std::string_view operand) {
  const auto status = parseNumber<int>(operand);
  if (!status || !kRegistrations.holds(*status)) return wrongUse();
  state.network.setRegistration(*status);
  if (!state.network.hasService()) state.calls.lose();
  return {};
}

constexpr ConsoleRow kNetworkConsole[] = {
    {"signal", "STRENGTH [ERROR-RATE]", "what AT+CSQ reports: 0 to 31, 99 for unknown", setSignal},
    {"register", "STATUS", "what AT+CREG? reports: 0 no, 1 home, 2 searching, 3 denied, 5 roaming",
     setRegistration},
};

}  // namespace

ConsoleRows networkConsole() { return kNetworkConsole; }

}  // namespace gsm::simulator
