#pragma once

#include <map>
#include <string>
#include <string_view>

#include "simulator/card/sim_card.h"

namespace gsm::simulator {

// The password with which a subscriber changes what the network bars.
class NetworkPassword {
 public:
  // The third wrong one in a row locks it: nothing is asked any more.
  CodeCheck check(std::string_view password);

  // A new one that isn't four digits is as wrong as an old one.
  CodeCheck change(std::string_view password, std::string_view changed);

  bool isLocked() const { return tries_ == 0; }
  int tries() const { return tries_; }

  // The operator's help: all the tries again.
  void unlock() { tries_ = kTries; }

 private:
  static constexpr int kTries = 3;

  std::string password_ = "0000";
  int tries_ = kTries;
};

// What the network doesn't let through.
class Barring {
 public:
  // The facilities of +CLCK, as bits of a sum.
  enum Facility {
    kAllOutgoing = 1,
    kInternational = 2,
    kInternationalButHome = 4,
    kAllIncoming = 8,
    kIncomingAbroad = 16,
  };

  NetworkPassword password;

  void set(int facilities, int classes, bool on);
  bool isOn(Facility facility, int serviceClass) const;

  // The sum of the classes for which `facility` is on.
  int classesOf(Facility facility) const;

  // True when the network refuses a call or message of a class: one to `number`, or one that comes
  // in, with the modem at home or not.
  bool stops(const std::string& number, int serviceClass) const;
  bool stopsIncoming(int serviceClass, bool atHome) const;

 private:
  std::map<Facility, int> classes_;
};

// A barring's name with its bit; several bits for a name that stands for a group.
struct BarringName {
  std::string_view name;
  int facilities;
};

inline constexpr BarringName kBarringNames[] = {
    {"AO", Barring::kAllOutgoing},
    {"OI", Barring::kInternational},
    {"OX", Barring::kInternationalButHome},
    {"AI", Barring::kAllIncoming},
    {"IR", Barring::kIncomingAbroad},
    {"AB", 31},
    {"AG", Barring::kAllOutgoing | Barring::kInternational | Barring::kInternationalButHome},
    {"AC", Barring::kAllIncoming | Barring::kIncomingAbroad},
};

// The bits of a facility; 0 for a name that is none.
int barringOf(std::string_view name);

// True for a facility that is one alone, which can be asked about and switched on.
constexpr bool isSingle(int facilities) { return (facilities & (facilities - 1)) == 0; }

}  // namespace gsm::simulator
