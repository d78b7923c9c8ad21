#pragma once

#include <string>
#include <utility>
#include <vector>

#include "fuzz/player/decisions.h"

namespace gsm {

/// What modems say: pieces of replies in any order, or any bytes.
std::string saying(Decisions& decisions);

/// A line for the simulated modem's console.
std::string consoleLine(Decisions& decisions);

/// Keys that a user presses in a box, with control characters among them.
std::string typing(Decisions& decisions);

/// The beginnings of the commands that ask for something, window by window, each with an answer to
/// them.
std::vector<std::pair<std::string, std::string>> goodAnswers();

}  // namespace gsm
