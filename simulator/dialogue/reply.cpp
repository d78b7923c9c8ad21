#include "simulator/dialogue/reply.h"

namespace gsm::simulator {

namespace {

constexpr std::string_view kLineEnd = "\r\n";

std::string codedError(std::string_view head, int code, const Profile& profile) {
  if (profile.errorCodes == 0) return framedCode(kErrorCode, profile);
  return framedLine(std::string(head) + std::to_string(code), profile);
}

std::string framedResult(const Reply& reply, const Profile& profile) {
  switch (reply.result) {
    case Reply::Result::kOk: return framedCode(kOkCode, profile);
    case Reply::Result::kError: return framedCode(kErrorCode, profile);
    case Reply::Result::kEquipmentError: return codedError("+CME ERROR: ", reply.code, profile);
    case Reply::Result::kMessageError: return codedError("+CMS ERROR: ", reply.code, profile);
    case Reply::Result::kNoCarrier: return framedCode(kNoCarrierCode, profile);
    case Reply::Result::kBusy: return framedCode(kBusyCode, profile);
    case Reply::Result::kNoAnswer: return framedCode(kNoAnswerCode, profile);
    case Reply::Result::kNone: break;
  }
  return {};
}

}  // namespace

// The digit ends with a carriage return alone.
std::string framedCode(const ResultCode& code, const Profile& profile) {
  return profile.verbose != 0 ? framedLine(code.word, profile) : std::string{code.digit, '\r'};
}

std::string framedLine(std::string_view text, const Profile& profile) {
  std::string line(profile.verbose != 0 ? kLineEnd : "");
  return line.append(text).append(kLineEnd);
}

std::string framed(const Reply& reply, const Profile& profile) {
  std::string bytes;
  for (const std::string& text : reply.information) bytes += framedLine(text, profile);
  if (profile.quiet == 0) bytes += framedResult(reply, profile);
  return bytes;
}

}  // namespace gsm::simulator
