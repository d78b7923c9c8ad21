#include "simulator/network/barring.h"

#include <algorithm>

#include "simulator/network/service_classes.h"
#include "simulator/text/text.h"

namespace gsm::simulator {

namespace {

constexpr std::string_view kHomeCountry = "+33";
constexpr std::size_t kPasswordSize = 4;

}  // namespace

CodeCheck NetworkPassword::check(std::string_view password) {
  if (isLocked()) return CodeCheck::kNotAsked;
  if (password != password_) {
    --tries_;
    return CodeCheck::kWrong;
  }
  tries_ = kTries;
  return CodeCheck::kAccepted;
}

CodeCheck NetworkPassword::change(std::string_view password, std::string_view changed) {
  const bool formed =
      changed.size() == kPasswordSize && std::all_of(changed.begin(), changed.end(), isDigit);
  if (!formed) return isLocked() ? CodeCheck::kNotAsked : CodeCheck::kWrong;
  const CodeCheck result = check(password);
  if (result == CodeCheck::kAccepted) password_ = changed;
  return result;
}

void Barring::set(int facilities, int classes, bool on) {
  for (const auto& [name, bits] : kBarringNames) {
    if (!isSingle(bits) || (facilities & bits) == 0) continue;
    int& held = classes_[static_cast<Facility>(bits)];
    held = on ? held | (classes & kEveryClass) : held & ~classes;
  }
}

int Barring::classesOf(Facility facility) const {
  const auto found = classes_.find(facility);
  return found == classes_.end() ? 0 : found->second;
}

bool Barring::isOn(Facility facility, int serviceClass) const {
  return (classesOf(facility) & serviceClass) != 0;
}

bool Barring::stops(const std::string& number, int serviceClass) const {
  const bool abroad = number.starts_with('+');
  const bool home = number.starts_with(kHomeCountry);
  return isOn(kAllOutgoing, serviceClass) || (abroad && isOn(kInternational, serviceClass)) ||
         (abroad && !home && isOn(kInternationalButHome, serviceClass));
}

bool Barring::stopsIncoming(int serviceClass, bool atHome) const {
  return isOn(kAllIncoming, serviceClass) || (!atHome && isOn(kIncomingAbroad, serviceClass));
}

int barringOf(std::string_view name) {
  for (const BarringName& known : kBarringNames) {
    if (known.name == name) return known.facilities;
  }
  return 0;
}

}  // namespace gsm::simulator
