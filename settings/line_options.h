#pragma once

#include <array>

#include "panel/choices.h"
#include "settings/form15.h"

namespace gsm {

// The groups of the line settings: for each option the code that stands for it, in the modem's
// replies and in the commands that set it.

/// Of "+ICF:" the first field, with the words that the main window has for it.
inline constexpr std::array kFormats = {
    OptionCode<Form15>{"0", &Form15::Option1, "Character Framing:Auto Detect"},
    OptionCode<Form15>{"1", &Form15::Option2, "8 Data,2 Stop"},
    OptionCode<Form15>{"2", &Form15::Option3, "8 Data,1 Parity,1 Stop"},
    OptionCode<Form15>{"3", &Form15::Option4, "8 Data,1 Stop"},
    OptionCode<Form15>{"4", &Form15::Option5, "7 Data,2 Stop"},
    OptionCode<Form15>{"5", &Form15::Option6, "7 Data,1 Parity,1 Stop"},
    OptionCode<Form15>{"6", &Form15::Option7, "7 Data,1 Stop"},
};

/// Of "+ICF:" the second field.
inline constexpr std::array kParities = {
    OptionCode<Form15>{"0", &Form15::Option8, "Parity:Odd"},
    OptionCode<Form15>{"1", &Form15::Option9, "Parity:Even"},
    OptionCode<Form15>{"2", &Form15::Option10, "Parity:Mark"},
    OptionCode<Form15>{"3", &Form15::Option11, "Parity:Space"},
    OptionCode<Form15>{"4", &Form15::Option12, "Parity:None"},
};

/// Of "IFC:" the first field: flow control from modem to host.
inline constexpr std::array kFlowToHost = {
    OptionCode<Form15>{"0", &Form15::Option13},
    OptionCode<Form15>{"1", &Form15::Option14},
    OptionCode<Form15>{"2", &Form15::Option15},
    OptionCode<Form15>{"3", &Form15::Option16},
};

/// Of "IFC:" the second field: flow control from host to modem.
inline constexpr std::array kFlowToModem = {
    OptionCode<Form15>{"0", &Form15::Option17},
    OptionCode<Form15>{"1", &Form15::Option18},
    OptionCode<Form15>{"2", &Form15::Option19},
};

/// The digit of "&C".
inline constexpr std::array kCarrier = {
    OptionCode<Form15>{"0", &Form15::Option22},
    OptionCode<Form15>{"1", &Form15::Option23},
};

/// The digit of "&D".
inline constexpr std::array kTerminalReady = {
    OptionCode<Form15>{"0", &Form15::Option24},
    OptionCode<Form15>{"1", &Form15::Option25},
    OptionCode<Form15>{"2", &Form15::Option26},
};

/// The digit of "&S".
inline constexpr std::array kDataSetReady = {
    OptionCode<Form15>{"0", &Form15::Option20},
    OptionCode<Form15>{"1", &Form15::Option21},
};

/// The digit of "E".
inline constexpr std::array kEcho = {
    OptionCode<Form15>{"0", &Form15::Option27},
    OptionCode<Form15>{"1", &Form15::Option28},
};

}  // namespace gsm
