#include <optional>
#include <utility>

#include "simulator/commands/profile_number.h"
#include "simulator/commands/sim_trouble.h"
#include "simulator/network/service_classes.h"
#include "simulator/text/phone_number.h"

// Making, taking and ending calls, and tones in them.
namespace gsm::simulator {

namespace {

// The dial string as the host wrote it. It may hold commas, which part the values of a command.
std::string dialStringOf(const Command& command) {
  std::string text(command.arguments.text(0));
  for (std::size_t index = 1; index < command.arguments.size(); ++index) {
    text.append(",").append(command.arguments.text(index));
  }
  return text;
}

// What a dial string may hold for a fixed line's sake, and no mobile network minds: tone and pulse
// dialing, pauses, a wait for the tone, and what makes a number readable.
constexpr std::string_view kIgnored = "TPW,@!-().";

// The number in a dial string without its semicolon; nothing when it holds something else.
std::optional<std::string> numberIn(std::string text) {
  std::erase_if(text, [](char c) { return kIgnored.find(c) != std::string_view::npos; });
  // Whether the own number is shown, and a closed group: services that the number doesn't report.
  while (text.ends_with('I') || text.ends_with('G')) text.pop_back();
  return isPhoneNumber(text) ? std::optional(text) : std::nullopt;
}

// The OK comes when the other side answers.
Reply callNumber(ModemState& state, const std::string& number) {
  if (const auto trouble = simTrouble(state.sim.status())) {
    return state.settings.profile.errorCodes != 0 ? error(*trouble) : noCarrier();
  }
  if (!state.calls.all().empty()) return error(EquipmentError::kNotAllowed);
  if (!state.network.hasService() || state.barring.stops(number, kVoiceClass)) return noCarrier();
  return {.result = Reply::Result::kNone, .later = [&state, number](FinishCommand finish) {
            state.calls.dial(number, std::move(finish));
          }};
}

// ATDL reports the number before it dials.
Reply redial(ModemState& state) {
  const std::string number = state.calls.lastNumber();
  if (number.empty()) return error();
  Reply reply = callNumber(state, number);
  if (!reply.failed()) reply.information.push_back(number + ";");
  return reply;
}

// A voice call has a semicolon after its number. Data calls find nobody who takes them.
Reply dial(ModemState& state, const Command& command) {
  std::string text = dialStringOf(command);
  const bool voice = text.ends_with(';');
  if (voice) text.pop_back();
  if (text == "L") return redial(state);
  const auto number = numberIn(text);
  if (!number) return error();
  return voice ? callNumber(state, *number) : noCarrier();
}

Reply answer(ModemState& state, const Command& command) {
  if (command.arguments.size() != 0) return error();
  return state.calls.take() ? ok() : noCarrier();
}

// The host's own hang-up is no NO CARRIER, and OK when there is nothing to hang up, too.
Reply hangUp(ModemState& state, const Command& command) {
  if (command.arguments.size() != 0 && command.arguments.number(0) != 0) return error();
  Reply reply = ok();
  reply.afterwards.push_back(
      [&state, ended = state.calls.hangUp()] { state.calls.announceEnds(ended); });
  return reply;
}

constexpr std::string_view kTones = "0123456789*#ABCD";

Reply sendTone(ModemState& state, const Command& command) {
  const std::string_view tone = command.arguments.text(0);
  const bool known = tone.size() == 1 && kTones.find(tone.front()) != std::string_view::npos;
  if (command.arguments.size() != 1) return error();
  return known && state.calls.has(CallState::kActive) ? ok() : error(EquipmentError::kNotAllowed);
}

Reply listTones(ModemState&, const Command& command) {
  return ok(headed(command, "(0-9,*,#,A-D)"));
}

constexpr CommandRow kDialCommands[] = {
    {.name = "D", .execute = dial},
    {.name = "A", .execute = answer},
    {.name = "H", .execute = hangUp},
    {.name = "+CHUP", .execute = hangUp, .test = isSupported},
    {.name = "+VTS", .set = sendTone, .test = listTones},
};

}  // namespace

CommandRows dialCommands() { return kDialCommands; }

}  // namespace gsm::simulator
