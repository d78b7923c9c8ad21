#include "simulator/network/network.h"

#include <chrono>

namespace gsm::simulator {

using std::chrono::milliseconds;

namespace {

// What +CREG and +CGREG can tell unasked.
constexpr int kNotices = 1;
constexpr int kNoticesWithPlace = 2;

}  // namespace

Network::Network(Timeline& timeline, const Settings& settings, Notices& notices, bool registered)
    : timeline_(timeline),
      settings_(settings),
      notices_(notices),
      registration_(registered ? kRegisteredAtHome : kNotRegistered) {}

std::string Network::placeText(int notices) const {
  std::string text = std::to_string(registration_);
  if (notices == kNoticesWithPlace && hasService()) {
    text.append(",\"").append(cell().area).append("\",\"").append(cell().number).append("\"");
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
  announce(kNotices);
}

// Only a notice with the place says anything of another cell.
void Network::changeCell() {
  inSecondCell_ = !inSecondCell_;
  if (hasService()) announce(kNoticesWithPlace);
}

void Network::announce(int leastNotices) {
  if (settings_.profile.registrationNotices >= leastNotices) {
    notices_.line("+CREG: " + registrationText());
  }
  if (packetNotices >= leastNotices) notices_.line("+CGREG: " + packetRegistrationText());
}

}  // namespace gsm::simulator
