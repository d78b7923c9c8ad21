#include <algorithm>
#include <array>
#include <span>
#include <string>

#include "link/conversation.h"
#include "module/form17.h"
#include "platform/runtime_failure.h"

namespace gsm {
namespace {

struct IndicatorValue {
  std::string_view told;
  std::string_view words;
};

constexpr std::array kBattery = {
    IndicatorValue{"0", "BatteryChargeLevel->0"}, IndicatorValue{"1", "BatteryChargeLevel->1"},
    IndicatorValue{"2", "BatteryChargeLevel->2"}, IndicatorValue{"3", "BatteryChargeLevel->3"},
    IndicatorValue{"4", "BatteryChargeLevel->4"}, IndicatorValue{"5", "BatteryChargeLevel->5"},
};
constexpr std::array kSignal = {
    IndicatorValue{"0", "signal level-0"}, IndicatorValue{"1", "signal level-1"},
    IndicatorValue{"2", "signal level-2"}, IndicatorValue{"3", "signal level-3"},
    IndicatorValue{"4", "signal level-4"}, IndicatorValue{"5", "signal level-5"},
};
constexpr std::array kService = {
    IndicatorValue{"0", "service disabled"},
    IndicatorValue{"1", "service Enabled"},
};
constexpr std::array kMessage = {
    IndicatorValue{"0", "No New Message"},
    IndicatorValue{"1", "Received New Message"},
};
constexpr std::array kCall = {
    IndicatorValue{"0", "No New Call"},
    IndicatorValue{"1", "Call Received"},
};
constexpr std::array kRoaming = {
    IndicatorValue{"0", "Roam Disabled"},
    IndicatorValue{"1", "Roam Enabled"},
};
constexpr std::array kMessageStore = {
    IndicatorValue{"0", "SMS Not FULL"},
    IndicatorValue{"1", "SMS  FULL"},
};

// A row for each field of a reply, in their order.
using Indicator = std::span<const IndicatorValue>;
constexpr std::array kIndicators = {
    Indicator{kBattery}, Indicator{kSignal},  Indicator{kService},      Indicator{kMessage},
    Indicator{kCall},    Indicator{kRoaming}, Indicator{kMessageStore},
};

std::string_view wordsOf(Indicator indicator, std::string_view told) {
  const auto known = std::find_if(indicator.begin(), indicator.end(),
                                  [told](const IndicatorValue& each) { return each.told == told; });
  return known == indicator.end() ? std::string_view() : known->words;
}

// +CIND: 5,4,1,0,1,0,0 - all but the last field end at a comma, and the last is one character.
std::string wordsOfAll(std::string fields) {
  std::string all;
  for (const Indicator& indicator : kIndicators) {
    const bool isLast = &indicator == &kIndicators.back();
    all.append(wordsOf(indicator, isLast ? slice(fields, 1, 1) : takeReplyField(fields)));
    if (!isLast) all.append(",   ");
  }
  return all;
}

}  // namespace

void Form17::readIndicators() try {
  Label14.Caption = "Wait..Checking Status";
  modem().exchange("AT+CIND?");
  const Position key = modem().position("+CIND:");
  // The words load a window that was closed meanwhile, and its own reading takes the reply away.
  if (modem().holds("ERROR")) Label14.Caption = "Works Only For Sendari 100";
  if (key != 0) {
    const std::string fields = modem().slice(key + 7, modem().position("OK"));
    Label14.Caption = wordsOfAll(fields);
  }
  modem().clear();
} catch (const RuntimeFailure&) {
  // Ends silently.
}

}  // namespace gsm
