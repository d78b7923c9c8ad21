#include "simulator/network.h"

#include <chrono>

namespace gsm::simulator {

using std::chrono::milliseconds;

Network::Network(Timeline& timeline, const Settings& settings, Notices& notices, bool registered)
    : timeline_(timeline),
      settings_(settings),
      notices_(notices),
      registration_(registered ? kRegisteredAtHome : kNotRegistered) {}

std::string Network::registrationText() const {
  std::string text = std::to_string(registration_);
  if (settings_.profile.registrationNotices == 2 && hasService()) {
    text.append(",\"").append(kLocationArea).append("\",\"").append(kCell).append("\"");
  }
  return text;
}

void Network::setRegistration(int status) {
  timeline_.cancelAll();
  enter(status);
}

void Network::search() {
  if (hasService()) return;
  setRegistration(kSearching);
  timeline_.after(milliseconds(1500),
                  [this] { notices_.indicate(Indication::kServiceAvailable, "7"); });
  timeline_.after(milliseconds(3000), [this] { enter(kRegisteredAtHome); });
  timeline_.after(milliseconds(4000), [this] {
    notices_.indicate(Indication::kReadyForAll, "4");
    notices_.indicate(Indication::kPhoneBookLoaded, "10,\"EN\",0");
  });
}

void Network::lose() {
  if (hasService()) notices_.indicate(Indication::kNetworkLost, "8");
  setRegistration(kNotRegistered);
}

void Network::enter(int status) {
  if (registration_ == status) return;
  registration_ = status;
  if (settings_.profile.registrationNotices != 0) notices_.line("+CREG: " + registrationText());
}

}  // namespace gsm::simulator
