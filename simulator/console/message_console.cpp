#include <optional>

#include "simulator/card/phone_book.h"
#include "simulator/console/console_table.h"
#include "simulator/messages/message_text.h"
#include "simulator/network/service_classes.h"
#include "simulator/text/phone_number.h"
#include "simulator/text/text.h"

// The console as the other side of the messages.
namespace gsm::simulator {

namespace {

// A text as the console takes it, with escapes; nothing when it is none or too long for a message.
std::optional<std::string> textIn(std::string_view operand) {
  auto text = unescaped(operand);
  if (text && (text->empty() || text->size() > kLongestMessage)) return std::nullopt;
  return text;
}

std::string receive(ModemState& state, std::string_view operands) {
  const std::string number(takeWord(operands));
  const auto text = textIn(operands);
  if (!text || !isPhoneNumber(number) || lengthOfNumber(number) > kLongestNumber) return wrongUse();
  if (!state.network.hasService()) return consoleError("the modem has no network");
  if (state.barring.stopsIncoming(kMessageClass, state.network.isHome())) {
    return consoleError("incoming messages are barred");
  }
  return state.messages.receive(number, *text) ? "" : consoleError("the card takes no message");
}

std::string page(ModemState& state, std::string_view operand) {
  const auto text = textIn(operand);
  if (!text) return wrongUse();
  if (!state.network.hasService()) return consoleError("the modem has no network");
  return state.messages.page(*text) ? "" : consoleError("the modem takes no broadcast");
}

constexpr Range kReportStatuses = {0, 255};

std::string report(ModemState& state, std::string_view operand) {
  const auto status = operand.empty() ? 0 : parseNumber<int>(operand);
  if (!status || !kReportStatuses.holds(*status)) return wrongUse();
  return state.messages.report(*status) ? "" : consoleError("no message has been sent");
}

std::string showMessages(ModemState& state, std::string_view) {
  std::string entries = toText(state.messages.card.entries());
  if (entries.empty()) return "none";
  entries.pop_back();  // the console ends the line itself
  return entries;
}

constexpr ConsoleRow kMessageConsole[] = {
    {"message", "NUMBER TEXT", "somebody sends a message; \\r \\n \\t \\\\ \\\" \\xHH in it",
     receive},
    {"broadcast", "TEXT", "the cell sends a page to all", page},
    {"report", "[STATUS]", "the network reports on the message sent last; 0: it arrived", report},
    {"messages", "", "show the card's messages", showMessages},
};

}  // namespace

ConsoleRows messageConsole() { return kMessageConsole; }

}  // namespace gsm::simulator
