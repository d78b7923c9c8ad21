#include <utility>

#include "simulator/card/phone_book.h"
#include "simulator/messages/pdu.h"
#include "simulator/messages/pdu_format.h"
#include "simulator/text/character_set.h"
#include "simulator/text/hexadecimal.h"
#include "simulator/text/septets.h"

// A message read as it travels.
namespace gsm::simulator {

namespace {

// Octets taken from the front. What asks for more than there are gets nothing, and so does all that
// is asked for afterwards.
class Octets {
 public:
  explicit Octets(std::string octets) : octets_(std::move(octets)) {}

  std::string take(std::size_t count) {
    enough_ = enough_ && left() >= count;
    if (!enough_) return {};
    at_ += count;
    return octets_.substr(at_ - count, count);
  }
  int take() {
    const std::string octet = take(std::size_t{1});
    return octet.empty() ? 0 : static_cast<unsigned char>(octet.front());
  }

  std::size_t left() const { return octets_.size() - at_; }
  bool enough() const { return enough_; }

 private:
  std::string octets_;
  std::size_t at_ = 0;
  bool enough_ = true;
};

// Nothing for letters and for digits that no keypad has. An odd count leaves half an octet over,
// whatever it holds.
std::optional<std::string> takeNumber(Octets& octets) {
  const auto count = static_cast<std::size_t>(octets.take());
  const int kind = octets.take() & kNumberKindBits;
  if (count > kLongestNumber || kind == kLetters) return std::nullopt;
  std::string number(kind == kInternational && count > 0 ? "+" : "");
  const std::string pairs = octets.take((count + 1) / 2);
  for (std::size_t digit = 0; digit < count && octets.enough(); ++digit) {
    const auto pair = static_cast<unsigned char>(pairs[digit / 2]);
    const std::size_t value = digit % 2 == 0 ? pair % 16u : pair / 16u;
    if (value >= kNumberDigits.size()) return std::nullopt;
    number += kNumberDigits[value];
  }
  return number;
}

// True for the octets that mean the GSM alphabet, not packed tighter, of any class.
bool meansGsmAlphabet(int coding) { return (coding & 0xEC) == 0x00 || (coding & 0xF4) == 0xF0; }

std::size_t octetsOfValidity(int first) {
  constexpr std::size_t kTime = 7;
  if ((first & kValidityBits) == kNoValidity) return 0;
  return (first & kValidityBits) == kRelativeValidity ? 1 : kTime;
}

}  // namespace

std::optional<Submission> readSubmission(std::string_view digits, int length) {
  constexpr std::size_t kLongestCentre = 11;
  const auto bytes = fromHexadecimal(digits);
  if (!bytes) return std::nullopt;
  Octets octets(*bytes);
  const auto centre = static_cast<std::size_t>(octets.take());
  octets.take(centre);
  if (!octets.enough() || centre > kLongestCentre) return std::nullopt;
  if (length < 0 || octets.left() != static_cast<std::size_t>(length)) return std::nullopt;

  const int first = octets.take();
  if ((first & kKindBits) != kSubmission || (first & kTextHasHeader) != 0) return std::nullopt;
  octets.take();  // the reference, which the modem gives itself
  auto number = takeNumber(octets);
  octets.take();  // the protocol
  const int coding = octets.take();
  octets.take(octetsOfValidity(first));
  const auto codes = static_cast<std::size_t>(octets.take());
  const std::string text = octets.take(octetsFor(codes));
  const bool whole = octets.enough() && octets.left() == 0;
  if (!number || !whole || codes > kMostCodes || !meansGsmAlphabet(coding)) return std::nullopt;
  return Submission{.number = std::move(*number),
                    .text = fromGsmAlphabet(unpacked(text, codes)),
                    .wantsReport = (first & kReportWanted) != 0,
                    .namesCentre = centre > 0};
}

}  // namespace gsm::simulator
