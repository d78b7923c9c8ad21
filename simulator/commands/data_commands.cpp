#include <algorithm>
#include <array>

#include "simulator/commands/profile_number.h"

// Data and fax calls: what they would be carried by. None ever comes about.
namespace gsm::simulator {

namespace {

Reply listBearers(ModemState&, const Command& command) {
  return ok(headed(command, "(0-8,12,14,65,66,68,70,71,75),(0),(0-3)"));
}

// The commands with a mark instead of a plus tell their value bare.
template <int Profile::*member>
Reply queryBare(ModemState& state, const Command&) {
  return ok(std::to_string(state.settings.profile.*member));
}

template <int Profile::*member>
constexpr CommandRow bareSwitch(std::string_view name) {
  return {.name = name, .execute = switchNumber<member>, .query = queryBare<member>};
}

// The speeds of a fax page, which a network of this kind carries.
constexpr std::array kFaxSpeeds = {24, 48, 72, 96};

// A page is sent or received in a fax call, and there is none.
Reply exchangePage(ModemState&, const Command& command) {
  const auto speed = command.arguments.number(0);
  if (command.arguments.size() != 1 || !speed) return error();
  const bool known = std::find(kFaxSpeeds.begin(), kFaxSpeeds.end(), *speed) != kFaxSpeeds.end();
  return error(known ? EquipmentError::kNotAllowed : EquipmentError::kNotSupported);
}

Reply listFaxSpeeds(ModemState&, const Command&) {
  std::string speeds;
  for (const int speed : kFaxSpeeds) speeds += (speeds.empty() ? "" : ",") + std::to_string(speed);
  return ok(speeds);
}

constexpr CommandRow kDataCommands[] = {
    {.name = "+CBST",
     .query = queryNumbers<&Profile::bearerSpeed, &Profile::bearerName, &Profile::bearerElement>,
     .set = setNumbers<&Profile::bearerSpeed, &Profile::bearerName, &Profile::bearerElement>,
     .test = listBearers},
    bareSwitch<&Profile::compression>("%C"),
    bareSwitch<&Profile::errorCorrection>("\\N"),
    fromStandard(profileNumbers<&Profile::serviceClass>("+FCLASS")),
    fromStandard({.name = "+FTM", .set = exchangePage, .test = listFaxSpeeds}),
    fromStandard({.name = "+FRM", .set = exchangePage, .test = listFaxSpeeds}),
};

}  // namespace

CommandRows dataCommands() { return kDataCommands; }

}  // namespace gsm::simulator
