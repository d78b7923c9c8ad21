#include "simulator/messages/pdu.h"

#include <algorithm>
#include <initializer_list>

#include "simulator/messages/pdu_format.h"
#include "simulator/text/character_set.h"
#include "simulator/text/hexadecimal.h"
#include "simulator/text/phone_number.h"
#include "simulator/text/septets.h"
#include "simulator/text/text.h"

// Messages written as they travel.
namespace gsm::simulator {

namespace {

constexpr std::string_view kShortMessage = "0000";  // an ordinary one, in the GSM alphabet
constexpr std::string_view kAFewDays = "A7";        // how long the network tries; the factory's
constexpr std::string_view kWrittenTime = "yy/MM/dd,hh:mm:ss+qq";
constexpr std::string_view kNoTime = "00000000000000";

std::string octet(int value) { return toHexadecimal(std::string(1, static_cast<char>(value))); }

char halfOctet(std::size_t value) { return "0123456789ABCDEF"[value % 16]; }

// Digits in pairs, the second of each pair first; what is missing in the last pair is filled up.
std::string swapped(std::string digits) {
  if (digits.size() % 2 != 0) digits += kFiller;
  for (std::size_t at = 0; at < digits.size(); at += 2) std::swap(digits[at], digits[at + 1]);
  return digits;
}

std::string typeAndDigits(std::string_view number) {
  std::string digits;
  for (const char c : number.substr(number.starts_with('+') ? 1 : 0)) {
    digits += halfOctet(kNumberDigits.find(c));
  }
  return octet(typeOfNumber(number)) + swapped(digits);
}

// A number has the count of its digits in front, a centre that of its octets.
std::string numberOf(std::string_view number) {
  return octet(static_cast<int>(lengthOfNumber(number))) + typeAndDigits(number);
}

std::string centreOf(std::string_view centre) {
  if (centre.empty()) return octet(0);
  const std::string rest = typeAndDigits(centre);
  return octet(static_cast<int>(rest.size() / 2)) + rest;
}

bool isWrittenTime(std::string_view time) {
  const auto fits = [](char c, char wanted) {
    return isLetter(wanted) ? isDigit(c) : c == wanted || (wanted == '+' && c == '-');
  };
  return std::equal(time.begin(), time.end(), kWrittenTime.begin(), kWrittenTime.end(), fits);
}

// The quarters of an hour from the time in the first zone, with a bit for those that are behind it.
std::string timeOf(std::string_view time) {
  constexpr std::size_t kBehind = 0x08;
  if (!isWrittenTime(time)) return std::string(kNoTime);
  std::string digits;
  std::copy_if(time.begin(), time.end(), std::back_inserter(digits), isDigit);
  char& tensOfQuarters = digits[digits.size() - 2];
  if (time[time.size() - 3] == '-') {
    tensOfQuarters = halfOctet(static_cast<std::size_t>(tensOfQuarters - '0') | kBehind);
  }
  return swapped(digits);
}

// The codes of a text, `most` at most; no letter of two codes is cut in half.
std::string codesOf(std::string_view text, std::size_t most) {
  std::string codes;
  for (const char byte : text) {
    std::string letter = toGsmAlphabet({&byte, 1});
    if (static_cast<unsigned char>(letter.front()) > 0x7F) letter = "?";
    if (codes.size() + letter.size() > most) break;
    codes += letter;
  }
  return codes;
}

std::string textOf(std::string_view text) {
  const std::string codes = codesOf(text, kMostCodes);
  return octet(static_cast<int>(codes.size())) + toHexadecimal(packed(codes));
}

Pdu written(std::string_view centre, std::initializer_list<std::string> fields) {
  Pdu pdu;
  for (const std::string& field : fields) pdu.digits += field;
  pdu.length = pdu.digits.size() / 2;
  pdu.digits.insert(0, centreOf(centre));
  return pdu;
}

}  // namespace

Pdu deliveryPdu(std::string_view centre, std::string_view number, std::string_view time,
                std::string_view text) {
  return written(centre, {octet(kDelivery | kNoMoreWaiting), numberOf(number),
                          std::string(kShortMessage), timeOf(time), textOf(text)});
}

Pdu submissionPdu(std::string_view centre, std::string_view number, std::string_view text) {
  return written(centre, {octet(kSubmission | kRelativeValidity), octet(0), numberOf(number),
                          std::string(kShortMessage), std::string(kAFewDays), textOf(text)});
}

Pdu reportPdu(std::string_view centre, const Report& report) {
  return written(centre,
                 {octet(kReport | kNoMoreWaiting), octet(report.reference), numberOf(report.number),
                  timeOf(report.sent), timeOf(report.arrived), octet(report.status)});
}

// What is left of a page is filled with carriage returns.
Pdu pagePdu(int serial, int kind, std::string_view text) {
  constexpr std::string_view kAlphabetAndOnePage = "0111";
  std::string codes = codesOf(text, kCodesOfAPage);
  codes.resize(kCodesOfAPage, '\r');
  Pdu page{.digits = octet(serial / 256) + octet(serial) + octet(kind / 256) + octet(kind)};
  page.digits.append(kAlphabetAndOnePage).append(toHexadecimal(packed(codes)));
  page.length = page.digits.size() / 2;
  return page;
}

}  // namespace gsm::simulator
