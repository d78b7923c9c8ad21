#pragma once

#include <string>
#include <string_view>

#include "simulator/dialogue/notices.h"
#include "simulator/line/timeline.h"
#include "simulator/profile/settings.h"

namespace gsm::simulator {

// The status values of +CREG.
inline constexpr int kNotRegistered = 0;
inline constexpr int kRegisteredAtHome = 1;
inline constexpr int kSearching = 2;
inline constexpr int kRoaming = 5;

// A cell as the modem hears it: its location area and its number in hexadecimal, its colour code
// and its channel.
struct Cell {
  std::string_view area;
  std::string_view number;
  int colour;
  int channel;
};

// The radio side of the modem: the field it is in and its registration.
class Network {
 public:
  // Registered at home from the start when `registered` says so.
  Network(Timeline& timeline, const Settings& settings, Notices& notices, bool registered);

  // What +CSQ reports: strength 0 to 31 and bit error rate 0 to 7, or 99 for unknown.
  int signal = 17;
  int bitErrorRate = 0;

  // What the host has chosen: the form of the operator's name, the notices of +CGREG, and whether
  // packets are to be carried.
  int operatorForm = 0;
  int packetNotices = 0;
  bool packetsWanted = true;

  int registration() const { return registration_; }
  bool hasService() const {
    return registration_ == kRegisteredAtHome || registration_ == kRoaming;
  }

  // False abroad, where another network serves.
  bool isHome() const { return registration_ != kRoaming; }

  // The registration as +CREG reports it: the status and, in mode 2 with service, the place.
  std::string registrationText() const { return placeText(settings_.profile.registrationNotices); }

  // The same as +CGREG reports it.
  std::string packetRegistrationText() const { return placeText(packetNotices); }

  // The cell that serves the modem, or would with service, and the other one that it hears.
  const Cell& cell() const { return kCells[inSecondCell_ ? 1 : 0]; }
  const Cell& neighbour() const { return kCells[inSecondCell_ ? 0 : 1]; }

  // The modem has moved: the neighbour serves it now, which is a change of the registration's
  // place.
  void changeCell();

  // Changes the registration at once, announces it and gives up any search.
  void setRegistration(int status);

  // Begins what follows an opened SIM: searches for some seconds, then registers at home, with the
  // indications on the way. With service already there, nothing.
  void search();

  // The SIM is gone, and the service with it.
  void lose();

 private:
  static constexpr Cell kCells[] = {{"00C3", "7066", 37, 706}, {"00C3", "989B", 37, 835}};

  std::string placeText(int notices) const;
  void enter(int status);
  void announce(int leastNotices);

  GuardedTimeline timeline_;
  const Settings& settings_;
  Notices& notices_;
  int registration_;
  bool inSecondCell_ = false;
};

}  // namespace gsm::simulator
