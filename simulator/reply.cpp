#include "simulator/reply.h"

namespace gsm::simulator {

namespace {

constexpr std::string_view kLineEnd = "\r\n";

// OK and ERROR have a digit of their own for ATV0, which ends with a carriage return alone.
std::string basicResult(std::string_view word, char digit, const Profile& profile) {
  return profile.verbose != 0 ? framedLine(word, profile) : std::string{digit, '\r'};
}

std::string codedError(std::string_view head, int code, const Profile& profile) {
  if (profile.errorCodes == 0) return basicResult("ERROR", '4', profile);
  return framedLine(std::string(head) + std::to_string(code), profile);
}

std::string framedResult(const Reply& reply, const Profile& profile) {
  switch (reply.result) {
    case Reply::Result::kOk: return basicResult("OK", '0', profile);
    case Reply::Result::kError: return basicResult("ERROR", '4', profile);
    case Reply::Result::kEquipmentError: return codedError("+CME ERROR: ", reply.code, profile);
    case Reply::Result::kMessageError: return codedError("+CMS ERROR: ", reply.code, profile);
    case Reply::Result::kNone: break;
  }
  return {};
}

}  // namespace

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
