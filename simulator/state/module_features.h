#pragma once

#include <bitset>
#include <cstddef>
#include <map>
#include <string>

namespace gsm::simulator {

// The voice mail of the card's line.
struct VoiceMail {
  bool waiting = false;
  bool announced = false;  // the host wants to hear of a change
};

// The mail as the modem reports it, for the first line, which is the card's only one.
inline std::string voiceMailLine(const VoiceMail& mail) {
  return mail.waiting ? "+WVMI: 1,1" : "+WVMI: 1,0";
}

// How the card's toolkit is set up. It counts from the next start on.
struct ToolkitSetup {
  int mode = 0;
  std::string config = "1F6BFFFF1F";  // what the host can do for the card, ten hexadecimal digits
  int timeout = 3;
  int autoResponse = 1;
};

// Where a packet connection would lead. None ever comes about.
struct PacketContext {
  std::string type;
  std::string accessPoint;
  std::string address;  // empty for one that the network gives
  int dataCompression = 0;
  int headerCompression = 0;
};

inline constexpr int kFullBattery = 5;
inline constexpr std::size_t kPins = 8;

// What the module has besides its telephone. It stays when the power goes.
struct ModuleFeatures {
  int battery = kFullBattery;  // in fifths
  std::bitset<kPins> pins;     // set or reset, whoever did it last: the host or what is wired there
  VoiceMail voiceMail;
  ToolkitSetup toolkit;
  std::map<int, PacketContext> contexts;  // by their numbers
};

}  // namespace gsm::simulator
