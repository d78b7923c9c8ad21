#include "simulator/commands/profile_number.h"
#include "simulator/profile/profile_dump.h"

// How the modem and the host talk: echo, result codes, S registers, speed, framing, flow control.
namespace gsm::simulator {

namespace {

constexpr const char* kSpeeds = "(0,300,600,1200,2400,4800,9600,19200,38400,57600,115200)";

// The OK still goes out at the old speed, else the host could never read it.
Reply setSpeed(ModemState& state, const Command& command) {
  Reply reply = setNumbers<&Profile::speed>(state, command);
  if (!reply.failed()) {
    reply.afterwards.push_back([&state] { state.changeSpeed(state.settings.profile.speed); });
  }
  return reply;
}

// Likewise.
Reply setFraming(ModemState& state, const Command& command) {
  Reply reply = setNumbers<&Profile::framing, &Profile::parity>(state, command);
  if (!reply.failed()) reply.afterwards.push_back([&state] { state.applyFraming(); });
  return reply;
}

Reply listSpeeds(ModemState&, const Command& command) { return ok(headed(command, kSpeeds)); }

Reply listFlowControls(ModemState&, const Command& command) {
  return ok(headed(command, "(0,2),(0,2)"));
}

Reply queryAutoAnswer(ModemState& state, const Command&) {
  return ok(registerText(state.settings.profile.autoAnswer));
}

// S2 to S5 hold the characters of the escape sequence and of the line, which never change.
template <int value>
Reply queryConstant(ModemState&, const Command&) {
  return ok(registerText(value));
}

constexpr CommandRow kLineCommands[] = {
    profileSwitch<&Profile::echo>("E"),
    profileSwitch<&Profile::verbose>("V"),
    profileSwitch<&Profile::quiet>("Q"),
    profileSwitch<&Profile::carrierDetect>("&C"),
    profileSwitch<&Profile::terminalReady>("&D"),
    profileSwitch<&Profile::dataSetReady>("&S"),
    {.name = "S0", .query = queryAutoAnswer, .set = setNumbers<&Profile::autoAnswer>},
    {.name = "S2", .query = queryConstant<'+'>},
    {.name = "S3", .query = queryConstant<'\r'>},
    {.name = "S4", .query = queryConstant<'\n'>},
    {.name = "S5", .query = queryConstant<'\b'>},
    {.name = "+IPR", .query = queryNumbers<&Profile::speed>, .set = setSpeed, .test = listSpeeds},
    {.name = "+ICF",
     .query = queryNumbers<&Profile::framing, &Profile::parity>,
     .set = setFraming,
     .test = listNumbers<&Profile::framing, &Profile::parity>},
    {.name = "+IFC",
     .query = queryNumbers<&Profile::hostFlowControl, &Profile::modemFlowControl>,
     .set = setNumbers<&Profile::hostFlowControl, &Profile::modemFlowControl>,
     .test = listFlowControls},
    profileNumbers<&Profile::errorCodes>("+CMEE"),
};

}  // namespace

CommandRows lineCommands() { return kLineCommands; }

}  // namespace gsm::simulator
