#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace gsm::simulator {

// A message as it travels: what a host in PDU mode reads in place of number, time and text.
struct Pdu {
  std::string digits;      // hexadecimal
  std::size_t length = 0;  // in octets, without the service centre's number in front

  friend bool operator==(const Pdu&, const Pdu&) = default;
};

// A message that has come by way of the service centre `centre`, whose number may be unknown and
// then is empty, as it may be below. Of a text that is longer in the GSM alphabet than a message
// holds, the beginning. A time that isn't one as "26/01/31,18:22:11+04" is told as zeros.
Pdu deliveryPdu(std::string_view centre, std::string_view number, std::string_view time,
                std::string_view text);

// A message that the host has written; the number may be empty.
Pdu submissionPdu(std::string_view centre, std::string_view number, std::string_view text);

// What became of a message that asked for a report.
struct Report {
  int reference;
  std::string number;
  std::string sent;  // both are times
  std::string arrived;
  int status;  // 0 for one that arrived
};

Pdu reportPdu(std::string_view centre, const Report& report);

// Page `serial` of a cell broadcast of that kind, the only one of its message. It has no centre.
Pdu pagePdu(int serial, int kind, std::string_view text);

// A message that the host wants to be sent or kept.
struct Submission {
  std::string number;  // empty, or digits, stars and hashes with or without a plus
  std::string text;
  bool wantsReport;
  bool namesCentre;  // or leaves it to the modem's
};

// Reads one; nothing unless the digits are one whole message of `length` octets behind the service
// centre, with a text in the GSM alphabet alone: no other one, no pictures, no part of a longer
// one.
std::optional<Submission> readSubmission(std::string_view digits, int length);

}  // namespace gsm::simulator
