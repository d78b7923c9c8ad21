#include "simulator/card/sim_card.h"

#include <algorithm>
#include <utility>

#include "simulator/text/text.h"

namespace gsm::simulator {

namespace {

constexpr std::pair<std::string_view, SimStatus> kNames[] = {
    {"ready", SimStatus::kReady},   {"pin", SimStatus::kPinWanted},
    {"puk", SimStatus::kPukWanted}, {"blocked", SimStatus::kBlocked},
    {"out", SimStatus::kAbsent},    {"failed", SimStatus::kFailed},
};

constexpr int kPinTries = 3;
constexpr int kPukTries = 10;

bool isPin(std::string_view text) {
  return text.size() >= 4 && text.size() <= 8 && std::all_of(text.begin(), text.end(), isDigit);
}

bool isPuk(std::string_view text) { return text.size() == 8 && isPin(text); }

}  // namespace

CodeCheck SimCard::enterPin(std::string_view pin) {
  if (status_ != SimStatus::kPinWanted) return CodeCheck::kNotAsked;
  const CodeCheck check = checkPin(pin);
  if (check == CodeCheck::kAccepted) open();
  return check;
}

CodeCheck SimCard::enablePin(bool on, std::string_view pin) {
  if (status_ != SimStatus::kReady || pinEnabled_ == on) return CodeCheck::kNotAsked;
  const CodeCheck check = checkPin(pin);
  if (check == CodeCheck::kAccepted) pinEnabled_ = on;
  return check;
}

CodeCheck SimCard::changePin(std::string_view pin, std::string_view newPin) {
  if (status_ != SimStatus::kReady || !pinEnabled_) return CodeCheck::kNotAsked;
  if (!isPin(newPin)) return CodeCheck::kWrong;
  const CodeCheck check = checkPin(pin);
  if (check == CodeCheck::kAccepted) pin_ = newPin;
  return check;
}

CodeCheck SimCard::enterPuk(std::string_view puk, std::string_view newPin) {
  if (status_ != SimStatus::kPukWanted) return CodeCheck::kNotAsked;
  if (!isPuk(puk) || !isPin(newPin)) return CodeCheck::kWrong;
  if (puk == puk_) {
    pin_ = newPin;
    open();
    return CodeCheck::kAccepted;
  }
  if (--pukTries_ == 0) status_ = SimStatus::kBlocked;
  return CodeCheck::kWrong;
}

void SimCard::force(SimStatus status) {
  if (status == SimStatus::kAbsent) return remove();
  status_ = status;
  pinEnabled_ = status != SimStatus::kReady;
  pinTries_ = status == SimStatus::kPukWanted || status == SimStatus::kBlocked ? 0 : kPinTries;
  pukTries_ = status == SimStatus::kBlocked ? 0 : kPukTries;
}

void SimCard::remove() {
  if (status_ == SimStatus::kAbsent) return;
  const bool opened = status_ == SimStatus::kReady;
  statusOutside_ = opened && pinEnabled_ ? SimStatus::kPinWanted : status_;
  status_ = SimStatus::kAbsent;
}

void SimCard::insert() {
  if (status_ == SimStatus::kAbsent) status_ = statusOutside_;
}

void SimCard::open() {
  status_ = SimStatus::kReady;
  pinTries_ = kPinTries;
  pukTries_ = kPukTries;
}

CodeCheck SimCard::checkPin(std::string_view pin) {
  if (!isPin(pin)) return CodeCheck::kWrong;
  if (pin == pin_) {
    pinTries_ = kPinTries;
    return CodeCheck::kAccepted;
  }
  if (--pinTries_ == 0) {
    status_ = SimStatus::kPukWanted;
    pinEnabled_ = true;
  }
  return CodeCheck::kWrong;
}

std::string_view nameOf(SimStatus status) {
  for (const auto& [name, named] : kNames) {
    if (named == status) return name;
  }
  return {};
}

std::optional<SimStatus> parseSimStatus(std::string_view name) {
  for (const auto& [known, status] : kNames) {
    if (known == name) return status;
  }
  return std::nullopt;
}

}  // namespace gsm::simulator
