#pragma once

#include <algorithm>
#include <array>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "panel/choices.h"
#include "settings/form14.h"

namespace gsm {

/// A value of the data and fax settings: how the modem tells it, what a status line says of it, and
/// the item of its drop-down with what is sent for it.
struct DataValue {
  std::string_view told;
  std::string_view words;
  Item item;
};

// The figures of 14 and 75 are part of the window's texts, and so is each hyphen of 0.
inline constexpr std::array kBearerSpeeds = {
    DataValue{"0", "Speed:0-DeFault", {"0 DeFault", "0"}},
    DataValue{"1", "Speed:1 300bps", {"1 300bps", "1"}},
    DataValue{"2", "Speed:2 1200bps", {"2 1200bps", "2"}},
    DataValue{"3", "Speed:3 1200/75bps", {"3 1200/75bps", "3"}},
    DataValue{"4", "Speed:4 2400bps", {"4 2400bps", "4"}},
    DataValue{"5", "Speed:5 2400bps", {"5 2400bps", "5"}},
    DataValue{"6", "Speed:6 4800bps", {"6 4800bps", "6"}},
    DataValue{"7", "Speed:7 9600bps", {"7 9600bps", "7"}},
    DataValue{"8", "Speed:8 Specific", {"8 Specific", "8"}},
    DataValue{"12", "Speed:12 9600bps", {"12 9600bps", "12"}},
    DataValue{"14", "Speed:14 1400bps", {"14 1400bps", "14"}},
    DataValue{"65", "Speed:65 300bps", {"65 300bps", "65"}},
    DataValue{"66", "Speed:66 1200bps", {"66 1200bps", "66"}},
    DataValue{"68", "Speed:68 2400bps", {"68 2400bps", "68"}},
    DataValue{"70", "Speed:70 4800bps", {"70 4800bps", "70"}},
    DataValue{"71", "Speed:71 9600bps", {"71 9600bps", "71"}},
    DataValue{"75", "Speed:75 1400bps", {"75 1400bps", "75"}},
};

inline constexpr std::array kConnectionElements = {
    DataValue{"0", "CE:0-Transparent Only", {"0 Transparent Only", "0"}},
    DataValue{"1", "CE:1 Default", {"1 Default", "1"}},
    DataValue{"2", "CE:2 Transparent Preferred", {"2 Transparent Preferred", "2"}},
    DataValue{"3", "CE:3 NonTransparent Preferred", {"3 Non Transparent Preferred", "3"}},
};

inline constexpr std::array kCompressions = {
    DataValue{"0", "Default", {"0 No Compression", "0"}},
    DataValue{"2", "V42bis Compression", {"2 V42bis Compression", "2"}},
};

// The last two can be told and chosen, but there is nothing to send for them.
inline constexpr std::array kCorrections = {
    DataValue{"0", "0 Default", {"0 Default", "0"}},
    DataValue{"2", "2 Auto Reliable Mode", {"2 Auto Reliable Mode", "2"}},
    DataValue{"4", "4 LAMP Mode", {"4 LAMP Mode", ""}},
    DataValue{"5", "5 MNP Mode", {"5 MNP Mode", ""}},
};

inline constexpr std::array kFaxClasses = {
    DataValue{"0", "Currently In Data Mode", {"0-Data Mode", "0"}},
    DataValue{"1", "Currently In Fax Class 1 Mode", {"1-Fax Class 1 Mode", "1"}},
    DataValue{"2", "Currently in Fax Class 2 Mode", {"2-Fax Class 2 Mode", "2"}},
};

// Sent as they stand, as what is typed in their place is.
inline constexpr std::array kFaxSpeeds = {
    Item{"24"}, Item{"48"}, Item{"72"},  Item{"73"},  Item{"74"},  Item{"96"},
    Item{"97"}, Item{"98"}, Item{"121"}, Item{"122"}, Item{"145"}, Item{"146"},
};

/// The drop-down items of `values`, in their order.
inline std::vector<Item> itemsOf(std::span<const DataValue> values) {
  std::vector<Item> items;
  for (const DataValue& value : values) items.push_back(value.item);
  return items;
}

/// The words of the first of `values` of which `isIt` is true; none when it is of none.
template <class Predicate>
std::string wordsOf(std::span<const DataValue> values, Predicate isIt) {
  const auto found = std::find_if(values.begin(), values.end(), isIt);
  return found == values.end() ? std::string() : std::string(found->words);
}

/// A setting that a button sends by itself.
struct DataChange {
  enum class Before { keepsStatus, emptiesStatus };

  CommandButton Form14::*button;
  ComboBox Form14::*choice;
  std::span<const DataValue> values;  // none: the text is sent as it stands
  std::string_view command;
  Label Form14::*status;
  Before before;  // what it does to the status line before it sends
  std::string_view success;
};

inline constexpr std::array kDataChanges = {
    DataChange{&Form14::Command7, &Form14::Combo3, kCompressions, "AT%C", &Form14::Label4,
               DataChange::Before::keepsStatus, "Changes SuccessFul-Compression"},
    DataChange{&Form14::Command8, &Form14::Combo4, kCorrections, "AT\\N", &Form14::Label4,
               DataChange::Before::keepsStatus, "Changes SuccessFul-Error Correction"},
    DataChange{&Form14::Command4, &Form14::Combo5, kFaxClasses, "AT+FCLASS=", &Form14::Label5,
               DataChange::Before::emptiesStatus, "Changes SuccessFul-FCLASS"},
    DataChange{&Form14::Command5,
               &Form14::Combo6,
               {},
               "AT+FTM=",
               &Form14::Label5,
               DataChange::Before::emptiesStatus,
               "Changes SuccessFul-Transmit "},
    DataChange{&Form14::Command9,
               &Form14::Combo7,
               {},
               "AT+FRM=",
               &Form14::Label5,
               DataChange::Before::emptiesStatus,
               "Changes SuccessFul-Receive"},
};

}  // namespace gsm
