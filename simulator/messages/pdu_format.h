#pragma once

#include <cstddef>
#include <string_view>

// The octets that reader and writer of a message as it travels agree on.
namespace gsm::simulator {

// The first octet: what kind it is, in the two lowest bits, and what follows.
inline constexpr int kKindBits = 0x03;
inline constexpr int kDelivery = 0x00;
inline constexpr int kSubmission = 0x01;
inline constexpr int kReport = 0x02;
inline constexpr int kNoMoreWaiting = 0x04;  // of what comes in
inline constexpr int kValidityBits = 0x18;   // of what goes out
inline constexpr int kNoValidity = 0x00;
inline constexpr int kRelativeValidity = 0x10;
inline constexpr int kReportWanted = 0x20;
inline constexpr int kTextHasHeader = 0x40;

// The type in front of a number's digits.
inline constexpr int kNumberKindBits = 0x70;
inline constexpr int kInternational = 0x10;
inline constexpr int kLetters = 0x50;

// The digits of a number, by what the half octets count to; all others fill up.
inline constexpr std::string_view kNumberDigits = "0123456789*#";
inline constexpr char kFiller = 'F';

// Codes of seven bits in a message and in a page.
inline constexpr std::size_t kMostCodes = 160;
inline constexpr std::size_t kCodesOfAPage = 93;

}  // namespace gsm::simulator
