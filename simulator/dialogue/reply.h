#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "simulator/profile/profile.h"

namespace gsm::simulator {

// The +CME errors that the modem gives.
enum class EquipmentError {
  kNotAllowed = 3,
  kNotSupported = 4,
  kSimMissing = 10,
  kPinWanted = 11,
  kPukWanted = 12,
  kSimFailure = 13,
  kWrongCode = 16,
  kMemoryFull = 20,
  kInvalidIndex = 21,
  kNotFound = 22,
  kMemoryFailure = 23,
  kTextTooLong = 24,
  kTextMalformed = 25,
  kDialStringTooLong = 26,
  kDialStringMalformed = 27,
  kNoService = 30,
};

// The +CMS errors that the modem gives. Those below 128 are the network's.
enum class MessageError {
  kCallBarred = 10,
  kRejected = 21,
  kCongestion = 42,
  kNotSupported = 303,
  kPduModeParameter = 304,
  kTextModeParameter = 305,
  kSimMissing = 310,
  kPinWanted = 311,
  kSimFailure = 313,
  kPukWanted = 316,
  kMemoryFailure = 320,
  kInvalidIndex = 321,
  kMemoryFull = 322,
  kNoServiceCentre = 330,
  kNoService = 331,
  kNetworkTimeout = 332,
};

// A result that has a digit of its own for ATV0, and that ATQ1 keeps back.
struct ResultCode {
  std::string_view word;
  char digit;
};

inline constexpr ResultCode kOkCode = {"OK", '0'};
inline constexpr ResultCode kRingCode = {"RING", '2'};
inline constexpr ResultCode kNoCarrierCode = {"NO CARRIER", '3'};
inline constexpr ResultCode kErrorCode = {"ERROR", '4'};
inline constexpr ResultCode kBusyCode = {"BUSY", '7'};
inline constexpr ResultCode kNoAnswerCode = {"NO ANSWER", '8'};

struct Reply;

// Takes the rest of a reply.
using FinishCommand = std::function<void(Reply rest)>;

// Begins a command that takes its time, and sees to it that `finish` is called once.
using BeginCommand = std::function<void(FinishCommand finish)>;

// What a command answers.
struct Reply {
  enum class Result {
    kOk,
    kError,
    kEquipmentError,
    kMessageError,
    kNoCarrier,
    kBusy,
    kNoAnswer,
    kNone
  };

  // The information responses. One with several lines holds its line ends.
  std::vector<std::string> information;
  Result result = Result::kOk;
  int code = 0;  // of kEquipmentError and kMessageError

  // Done once the last byte of the whole reply has left, in the order of the commands.
  std::vector<std::function<void()>> afterwards;

  // For a command that takes its time. What this reply holds goes out before, without a result; the
  // modem does nothing else for the host in the meantime.
  BeginCommand later;

  bool failed() const { return result != Result::kOk && result != Result::kNone; }
};

inline Reply ok() { return {}; }
inline Reply ok(std::string information) { return {.information = {std::move(information)}}; }

// An information response that no final result follows.
inline Reply bare(std::string information) {
  return {.information = {std::move(information)}, .result = Reply::Result::kNone};
}

// For a command that isn't one: ERROR whatever AT+CMEE says.
inline Reply error() { return {.result = Reply::Result::kError}; }

// For a right command with a wrong value or at a wrong time: ERROR or, with AT+CMEE=1, the code.
inline Reply error(EquipmentError code) {
  return {.result = Reply::Result::kEquipmentError, .code = static_cast<int>(code)};
}

// The same for the message commands, with a +CMS code.
inline Reply error(MessageError code) {
  return {.result = Reply::Result::kMessageError, .code = static_cast<int>(code)};
}

// For a call that couldn't be made or taken.
inline Reply noCarrier() { return {.result = Reply::Result::kNoCarrier}; }

// A result code as it goes out, in the form that ATV asks for.
std::string framedCode(const ResultCode& code, const Profile& profile);

// One line as it goes out, with the line ends that ATV asks for.
std::string framedLine(std::string_view text, const Profile& profile);

// The reply as it goes out, in the form that ATV, ATQ and AT+CMEE ask for.
std::string framed(const Reply& reply, const Profile& profile);

}  // namespace gsm::simulator
