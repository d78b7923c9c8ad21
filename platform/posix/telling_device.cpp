#include "platform/posix/telling_device.h"

#include "platform/code_page.h"

namespace gsm {

void TellingDevice::open(int number, const LineSettings& settings, Handshaking handshaking) {
  try {
    device_.open(number, settings, handshaking);
  } catch (const RuntimeFailure& failure) {
    tellOf(number, failure);
    throw;
  }
  told_.erase(number);
}

void TellingDevice::tellOf(int number, const RuntimeFailure& failure) {
  const std::string trouble = ports_.trouble(number);
  const std::string reason = trouble.empty() ? failure.description() : trouble;
  if (std::string& told = told_[number]; told != reason) {
    told = reason;
    const std::string device = ports_.deviceName(number);
    tell_("COM" + std::to_string(number) + (device.empty() ? "" : " (" + toUtf8(device) + ")") +
          " can't be used: " + toUtf8(reason) +
          ". Mend that and press \"REFRESH\", or choose another port under \"Port Settings->\".");
  }
}

}  // namespace gsm
