#include "simulator/profile/profile_dump.h"

namespace gsm::simulator {

std::string registerText(int value) {
  const std::string digits = std::to_string(value);
  return std::string(digits.size() < 3 ? 3 - digits.size() : 0, '0') + digits;
}

std::string dumped(const Profile& profile) {
  std::string text;
  const auto show = [&text](const char* label, int value) {
    text += label + std::to_string(value);
  };
  show("Q:", profile.quiet);
  show(" V:", profile.verbose);
  text += " S0:" + registerText(profile.autoAnswer) + " S2:043 S3:013 S4:010 S5:008\r\n";
  show("+CR:0 +CRC:", profile.callTypes);
  show(" +CMEE:", profile.errorCodes);
  show(" +CBST:", profile.bearerSpeed);
  show(",", profile.bearerName);
  show(",", profile.bearerElement);
  text += "\r\n";
  show("+SPEAKER:", profile.speaker);
  show(" +ECHO:", profile.echoMode);
  show(",", profile.echoAlgorithm);
  show(" &C:", profile.carrierDetect);
  show(" &D:", profile.terminalReady);
  show(" %C:", profile.compression);
  text += "\r\n";
  show("+IPR:", profile.speed);
  show(" +ICF:", profile.framing);
  show(",", profile.parity);
  show(" +IFC:", profile.hostFlowControl);
  show(",", profile.modemFlowControl);
  return text;
}

}  // namespace gsm::simulator
