#include <algorithm>
#include <array>
#include <span>
#include <vector>

#include "link/conversation.h"
#include "panel/choices.h"
#include "platform/runtime_failure.h"
#include "services/form12.h"

namespace gsm {
namespace {

// A value of a reply, what the status label and the drop-down say of it, and what is sent when the
// drop-down's item is selected. The label has "Suppress" where the drop-down has "Supress".
struct GroupValue {
  std::string_view told;
  std::string_view words;
  Item item;
};

constexpr std::array kModes = {
    GroupValue{"0", "CUG Mode Disabled", {"Disable CUG Mode", "0"}},
    GroupValue{"1", "CUG Mode Enabled", {"Enable CUG Mode", "1"}},
};

// Index 2 can be told but not sent.
constexpr std::array kIndexes = {
    GroupValue{"0", "CUG Index 0", {"0", "0"}},     GroupValue{"1", "CUG Index 1", {"1", "1"}},
    GroupValue{"2", "CUG Index 2", {"2", ""}},      GroupValue{"3", "CUG Index 3", {"3", "3"}},
    GroupValue{"4", "CUG Index 4", {"4", "4"}},     GroupValue{"5", "CUG Index 5", {"5", "5"}},
    GroupValue{"6", "CUG Index 6", {"6", "6"}},     GroupValue{"7", "CUG Index 7", {"7", "7"}},
    GroupValue{"8", "CUG Index 8", {"8", "8"}},     GroupValue{"9", "CUG Index 9", {"9", "9"}},
    GroupValue{"10", "CUG Index 10", {"10", "10"}},
};

constexpr std::array kInfos = {
    GroupValue{"0", "Default", {"Default", "0"}},
    GroupValue{"1", "Suppress Outgoing Access", {"Supress OA", "1"}},
    GroupValue{"2", "Suppress Preferential CUG", {"Supress Preferential CUG", "2"}},
    GroupValue{
        "3", "Suppress Outgoing Access And Preferential CUG", {"Supress OA and Prefer.CUG", "3"}},
};

struct GroupField {
  ComboBox Form12::*combo;
  std::span<const GroupValue> values;
  std::string_view shownBehind;  // on the status label
  std::string_view sentBehind;   // in the command
};
constexpr std::array kFields = {
    GroupField{&Form12::Combo1, kModes, "Current Status: ", "="},
    GroupField{&Form12::Combo2, kIndexes, "    ,", ","},
    GroupField{&Form12::Combo3, kInfos, "   ,", ","},
};

std::vector<Item> itemsOf(const GroupField& field) {
  std::vector<Item> items;
  for (const GroupValue& value : field.values) items.push_back(value.item);
  return items;
}

}  // namespace

void Form12::readUserGroup() {
  Label7.Caption = "Plz wait...";
  for (const GroupField& field : kFields) refill(this->*field.combo, itemsOf(field));
  modem().exchange("AT+CCUG?");
  const Position key = modem().position("+CCUG:");
  if (key != 0) {
    std::string reply = modem().slice(key + 7, modem().position("OK"));
    const std::string mode = takeReplyField(reply);
    const std::string index = takeReplyField(reply);
    ShowCugStatus(mode, index, slice(reply, 1, 1));
  }
  modem().clear();
}

void Form12::ShowCugStatus(const std::string& mode, const std::string& index,
                           const std::string& info) {
  const std::array told = {mode, index, info};
  std::string status;
  for (std::size_t i = 0; i < kFields.size(); ++i) {
    const auto values = kFields[i].values;
    const auto known = std::find_if(values.begin(), values.end(),
                                    [&](const GroupValue& each) { return each.told == told[i]; });
    status.append(kFields[i].shownBehind);
    if (known == values.end()) continue;
    status.append(known->words);
    (this->*kFields[i].combo).Text = std::string(known->item.text);
  }
  Label7.Caption = status;
}

void Form12::changeUserGroup() try {
  Label7.Caption = "";
  std::string command = "AT+CCUG";
  for (const GroupField& field : kFields) {
    const ComboBox& combo = this->*field.combo;
    if (combo.Text.empty()) return;
    command.append(field.sentBehind).append(selectedCode(combo, itemsOf(field)));
  }
  modem().exchange(command);
  modem().report(Label7, {.ok = "Changes SuccessFul", .error = "Changes UNSuccessFul"});
  modem().clear();
} catch (const RuntimeFailure&) {
  // Ends silently.
}

}  // namespace gsm
