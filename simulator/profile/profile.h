#pragma once

#include <algorithm>
#include <array>
#include <optional>
#include <string>
#include <string_view>

#include "simulator/line/line_speed.h"

namespace gsm::simulator {

// What AT&W stores and ATZ brings back. The values given here are the factory's.
struct Profile {
  int echo = 1;
  int verbose = 1;
  int quiet = 0;
  int autoAnswer = 0;
  int carrierDetect = 1;
  int terminalReady = 1;
  int dataSetReady = 1;
  int errorCodes = 0;
  int callTypes = 0;
  int callerId = 0;
  int callWaiting = 0;
  int registrationNotices = 0;
  int speaker = 0;
  int speakerGain = 128;
  int microphoneGain = 32;
  int echoMode = 0;
  int echoAlgorithm = 1;
  int echoVolume = 0;  // of algorithm 1, as the three below
  int echoStep = 6;
  int echoRelativeThreshold = 10;
  int echoHighestThreshold = 7;
  int echoParameter = 30;  // of algorithm 3, as the two below
  int echoNoiseThreshold = 8000;
  int echoTaps = 256;
  int sideTone = 1;
  int sideToneLevel = 0;
  int toneLength = 0;  // in tenths of a second; 0 for the usual one
  int bearerSpeed = 0;
  int bearerName = 0;
  int bearerElement = 1;
  int compression = 2;
  int errorCorrection = 0;
  int serviceClass = 0;
  int speed = 115200;
  int framing = 3;
  int parity = 4;
  int hostFlowControl = 2;
  int modemFlowControl = 2;
  int characterSet = 1;
  int textMode = 0;
  int messageNotices = 0;
  int messageRoute = 1;
  int broadcastRoute = 0;
  int reportRoute = 0;
  int noticeBuffer = 0;
  int messageKind = 1;
  int messageValidity = 167;
  int messageProtocol = 0;
  int messageCoding = 0;
  int cugMode = 0;
  int cugIndex = 0;
  int cugInfo = 0;

  friend bool operator==(const Profile&, const Profile&) = default;
};

// The values that a setting takes: `least` to `most` in steps of `step`.
struct Range {
  int least;
  int most;
  int step = 1;

  constexpr bool holds(int value) const {
    return value >= least && value <= most && (value - least) % step == 0;
  }

  // The values as a test command lists them: "(0)" for one, "(0,1)" for two, "(0-3)" for more.
  std::string listing() const;
};

// Values that no range describes.
constexpr bool isSpeedOrAny(int speed) { return speed == kAutobaud || isLineSpeed(speed); }
constexpr bool isBearerSpeed(int speed) {
  constexpr std::array kAbove8 = {12, 14, 65, 66, 68, 70, 71, 75};
  return speed <= 8 || std::find(kAbove8.begin(), kAbove8.end(), speed) != kAbove8.end();
}
constexpr bool isErrorCorrection(int mode) { return mode != 1 && mode != 3; }

// One setting: its key in the stored text, where it lies in the profile, and what it may be.
struct ProfileField {
  std::string_view key;
  int Profile::*member;
  Range range;
  bool (*isOneOf)(int value) = nullptr;  // for a range with holes

  constexpr bool accepts(int value) const {
    return range.holds(value) && (isOneOf == nullptr || isOneOf(value));
  }
};

inline constexpr ProfileField kProfileFields[] = {
    {"E", &Profile::echo, {0, 1}},
    {"V", &Profile::verbose, {0, 1}},
    {"Q", &Profile::quiet, {0, 1}},
    {"S0", &Profile::autoAnswer, {0, 255}},
    {"&C", &Profile::carrierDetect, {0, 1}},
    {"&D", &Profile::terminalReady, {0, 2}},
    {"&S", &Profile::dataSetReady, {0, 1}},
    {"+CMEE", &Profile::errorCodes, {0, 1}},
    {"+CRC", &Profile::callTypes, {0, 1}},
    {"+CLIP", &Profile::callerId, {0, 1}},
    {"+CCWA", &Profile::callWaiting, {0, 1}},
    {"+CREG", &Profile::registrationNotices, {0, 2}},
    {"+SPEAKER", &Profile::speaker, {0, 1}},
    {"+VGR", &Profile::speakerGain, {0, 255}},
    {"+VGT", &Profile::microphoneGain, {0, 255}},
    {"+ECHO.mode", &Profile::echoMode, {0, 1}},
    {"+ECHO.algorithm", &Profile::echoAlgorithm, {1, 3, 2}},
    {"+ECHO.volume", &Profile::echoVolume, {0, 15}},
    {"+ECHO.step", &Profile::echoStep, {0, 7}},
    {"+ECHO.relative", &Profile::echoRelativeThreshold, {0, 31}},
    {"+ECHO.highest", &Profile::echoHighestThreshold, {0, 31}},
    {"+ECHO.parameter", &Profile::echoParameter, {0, 63}},
    {"+ECHO.noise", &Profile::echoNoiseThreshold, {0, 32767}},
    {"+ECHO.taps", &Profile::echoTaps, {64, 256}},
    {"+SIDET.mode", &Profile::sideTone, {0, 1}},
    {"+SIDET.level", &Profile::sideToneLevel, {0, 3}},
    {"+VTD", &Profile::toneLength, {0, 255}},
    {"+CBST.speed", &Profile::bearerSpeed, {0, 75}, isBearerSpeed},
    {"+CBST.name", &Profile::bearerName, {0, 0}},
    {"+CBST.element", &Profile::bearerElement, {0, 3}},
    {"%C", &Profile::compression, {0, 2, 2}},
    {"\\N", &Profile::errorCorrection, {0, 5}, isErrorCorrection},
    {"+FCLASS", &Profile::serviceClass, {0, 2}},
    {"+IPR", &Profile::speed, {0, 115200}, isSpeedOrAny},
    {"+ICF.framing", &Profile::framing, {0, 6}},
    {"+ICF.parity", &Profile::parity, {0, 4}},
    {"+IFC.host", &Profile::hostFlowControl, {0, 2, 2}},
    {"+IFC.modem", &Profile::modemFlowControl, {0, 2, 2}},
    {"+CSCS", &Profile::characterSet, {0, 3}},
    {"+CMGF", &Profile::textMode, {0, 1}},
    {"+CNMI.mode", &Profile::messageNotices, {0, 3}},
    {"+CNMI.mt", &Profile::messageRoute, {0, 3}},
    {"+CNMI.bm", &Profile::broadcastRoute, {0, 3}},
    {"+CNMI.ds", &Profile::reportRoute, {0, 2}},
    {"+CNMI.bfr", &Profile::noticeBuffer, {0, 1}},
    {"+CSMP.fo", &Profile::messageKind, {0, 255}},
    {"+CSMP.vp", &Profile::messageValidity, {0, 255}},
    {"+CSMP.pid", &Profile::messageProtocol, {0, 255}},
    {"+CSMP.dcs", &Profile::messageCoding, {0, 255}},
    {"+CCUG.n", &Profile::cugMode, {0, 1}},
    {"+CCUG.index", &Profile::cugIndex, {0, 10}},
    {"+CCUG.info", &Profile::cugInfo, {0, 3}},
};

constexpr const ProfileField& fieldOf(int Profile::*member) {
  for (const ProfileField& field : kProfileFields) {
    if (field.member == member) return field;
  }
  throw "a member of the profile has no field";
}

// The field of a member, found by the compiler: a member without one doesn't compile.
template <int Profile::*member>
inline constexpr ProfileField kField = fieldOf(member);

// The +WIND mask covers the indications 0 to 16.
inline constexpr Range kWindRange = {0, 32767};

// All that outlives a power cycle: the stored profile, and the +WIND mask, which the modem keeps at
// once, without AT&W.
struct StoredSettings {
  Profile profile;
  int wind = 0;

  friend bool operator==(const StoredSettings&, const StoredSettings&) = default;
};

// The settings as text, one "key=value" on a line.
std::string toText(const StoredSettings& settings);

// The settings that `text` holds. A key left out keeps its factory value. Nothing when a line
// isn't "key=value", a key is unknown or a value out of range: noise isn't half believed.
std::optional<StoredSettings> parseStoredSettings(std::string_view text);

}  // namespace gsm::simulator
