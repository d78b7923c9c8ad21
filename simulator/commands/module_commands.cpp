#include <algorithm>
#include <optional>
#include <string>

#include "simulator/commands/profile_number.h"
#include "simulator/commands/sim_trouble.h"
#include "simulator/text/text.h"

// What the module has of its own: voice mail, pins, the card's toolkit, the battery.
namespace gsm::simulator {

namespace {

// The features of CPHS, of which the card has the first alone: the voice mail.
constexpr Range kCardFeatures = {1, 7};
constexpr int kVoiceMail = 1;

// The codes of AT+CPHS.
constexpr int kSilence = 0;
constexpr int kAnnounce = 1;
constexpr int kInterrogate = 2;
constexpr Range kFeatureModes = {kSilence, kInterrogate};

Reply queryCardFeatures(ModemState& state, const Command& command) {
  std::string lines;
  for (int feature = kCardFeatures.least; feature <= kCardFeatures.most; ++feature) {
    const bool on = feature == kVoiceMail && state.module.voiceMail.announced;
    lines += (lines.empty() ? "" : "\r\n") + headed(command, std::to_string(feature)) +
             (on ? ",1" : ",0");
  }
  return ok(lines);
}

// "=MODE,FEATURE".
Reply changeCardFeature(ModemState& state, const Command& command) {
  const auto mode = command.arguments.number(0);
  const auto feature = command.arguments.number(1);
  if (command.arguments.size() != 2 || !mode || !feature) return error();
  if (const auto trouble = simTrouble(state.sim.status())) return error(*trouble);
  if (!kFeatureModes.holds(*mode)) return error(EquipmentError::kNotSupported);
  if (*feature != kVoiceMail) return error(EquipmentError::kNotAllowed);
  VoiceMail& mail = state.module.voiceMail;
  if (*mode == kInterrogate) return ok(voiceMailLine(mail));
  mail.announced = *mode == kAnnounce;
  return ok();
}

constexpr Range kPinNumbers = {0, static_cast<int>(kPins) - 1};
constexpr Range kLevels = {0, 1};

// The pin that the first value names; an error when it names none.
std::optional<Reply> pinTrouble(const Command& command, std::size_t wanted) {
  const auto pin = command.arguments.number(0);
  if (command.arguments.size() != wanted || !pin) return error();
  if (!kPinNumbers.holds(*pin)) return error(EquipmentError::kNotAllowed);
  return std::nullopt;
}

Reply readPin(ModemState& state, const Command& command) {
  if (const auto trouble = pinTrouble(command, 1)) return *trouble;
  const auto pin = static_cast<std::size_t>(*command.arguments.number(0));
  return ok(headed(command, state.module.pins[pin] ? "1" : "0"));
}

Reply writePin(ModemState& state, const Command& command) {
  if (const auto trouble = pinTrouble(command, 2)) return *trouble;
  const auto pin = static_cast<std::size_t>(*command.arguments.number(0));
  const auto level = command.arguments.number(1);
  if (!level) return error();
  if (!kLevels.holds(*level)) return error(EquipmentError::kNotSupported);
  state.module.pins[pin] = *level != 0;
  return ok();
}

Reply listPins(ModemState&, const Command& command) {
  return ok(headed(command, kPinNumbers.listing()));
}

Reply listPinLevels(ModemState&, const Command& command) {
  return ok(headed(command, kPinNumbers.listing() + "," + kLevels.listing()));
}

constexpr int kConfigure = 2;
constexpr Range kToolkitModes = {0, kConfigure};
constexpr Range kTimeouts = {1, 255};
constexpr std::string_view kLeastConfig = "160060C01F";
constexpr std::string_view kMostConfig = "5FFFFFFF7F";

// Ten hexadecimal digits in upper case are in order as texts, too.
bool isConfig(std::string_view text) {
  const bool hexadecimal = text.find_first_not_of("0123456789ABCDEF") == std::string_view::npos;
  return text.size() == kLeastConfig.size() && hexadecimal && text >= kLeastConfig &&
         text <= kMostConfig;
}

Reply queryToolkit(ModemState& state, const Command& command) {
  const ToolkitSetup& toolkit = state.module.toolkit;
  return ok(headed(command, std::to_string(toolkit.mode) + "," + quoted(toolkit.config) + "," +
                                std::to_string(toolkit.timeout) + "," +
                                std::to_string(toolkit.autoResponse)));
}

// "=MODE[,CONFIG[,TIMEOUT[,AUTORESPONSE]]]". The mode that configures wants a configuration, is the
// only one with it, and leaves the toolkit on or off as it was.
Reply setToolkit(ModemState& state, const Command& command) {
  const Arguments& given = command.arguments;
  ToolkitSetup changed = state.module.toolkit;
  const auto mode = given.number(0);
  const auto timeout = given.has(2) ? given.number(2) : changed.timeout;
  const auto response = given.has(3) ? given.number(3) : changed.autoResponse;
  if (given.size() > 4 || !mode || !timeout || !response) return error();
  if (*mode == kConfigure) {
    changed.config = given.text(1);
    std::transform(changed.config.begin(), changed.config.end(), changed.config.begin(), upper);
  } else {
    changed.mode = *mode;
  }
  const bool fits = given.has(1) == (*mode == kConfigure) && isConfig(changed.config);
  if (!fits || !kToolkitModes.holds(*mode) || !kTimeouts.holds(*timeout) ||
      !kLevels.holds(*response)) {
    return error(EquipmentError::kNotSupported);
  }
  changed.timeout = *timeout;
  changed.autoResponse = *response;
  state.module.toolkit = changed;
  return ok();
}

Reply listToolkit(ModemState&, const Command& command) {
  std::string configs = "(";
  configs.append(kLeastConfig).append("-").append(kMostConfig).append(")");
  return ok(headed(command, kToolkitModes.listing() + "," + configs + "," + kTimeouts.listing() +
                                "," + kLevels.listing()));
}

// On battery, and how full it is in hundredths.
Reply queryBattery(ModemState& state, const Command& command) {
  return ok(headed(command, "0," + std::to_string(state.module.battery * 100 / kFullBattery)));
}

Reply listBatteryLevels(ModemState&, const Command& command) {
  return ok(headed(command, "(0),(0-100)"));
}

constexpr CommandRow kModuleCommands[] = {
    {.name = "+CPHS", .query = queryCardFeatures, .set = changeCardFeature, .test = isSupported},
    {.name = "+WIOR", .set = readPin, .test = listPins},
    {.name = "+WIOW", .set = writePin, .test = listPinLevels},
    {.name = "+STSF", .query = queryToolkit, .set = setToolkit, .test = listToolkit},
    fromStandard({.name = "+CBC", .execute = queryBattery, .test = listBatteryLevels}),
};

}  // namespace

CommandRows moduleCommands() { return kModuleCommands; }

}  // namespace gsm::simulator
