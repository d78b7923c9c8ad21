#pragma once

#include <string>
#include <string_view>

#include "simulator/notices.h"
#include "simulator/settings.h"
#include "simulator/timeline.h"

namespace gsm::simulator {

// The status values of +CREG.
inline constexpr int kNotRegistered = 0;
inline constexpr int kRegisteredAtHome = 1;
inline constexpr int kSearching = 2;
inline constexpr int kRoaming = 5;

// The radio side of the modem: the field it is in and its registration.
class Network {
 public:
  static constexpr std::string_view kLocationArea = "00C3";
  static constexpr std::string_view kCell = "7066";

  // Registered at home from the start when `registered` says so.
  Network(Timeline& timeline, const Settings& settings, Notices& notices, bool registered);

  // What +CSQ tells: strength 0 to 31 and bit error rate 0 to 7, or 99 for unknown.
  int signal = 17;
  int bitErrorRate = 0;

  int registration() const { return registration_; }
  bool hasService() const {
    return registration_ == kRegisteredAtHome || registration_ == kRoaming;
  }

  // False abroad, where another network serves.
  bool isHome() const { return registration_ != kRoaming; }

  // The registration as +CREG tells it: the status and, in mode 2 with service, the place.
  std::string registrationText() const;

  // Changes the registration at once, announces it and gives up any search.
  void setRegistration(int status);

  // Begins what follows an opened SIM: searches for some seconds, then registers at home, with the
  // indications on the way. With service already there, nothing.
  void search();

  // The SIM is gone, and the service with it.
  void lose();

 private:
  void enter(int status);

  GuardedTimeline timeline_;
  const Settings& settings_;
  Notices& notices_;
  int registration_;
};

}  // namespace gsm::simulator
