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

/// The beginnings of the commands that read a phone book, each with an answer to them.
std::vector<std::pair<std::string, std::string>> bookAnswers();

}  // namespace gsm
