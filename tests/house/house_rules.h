#pragma once

#include <functional>
#include <ostream>
#include <string>
#include <vector>

#include "tests/house/source_tree.h"

namespace gsm::house {

/// What is wrong: each with its file and line, what is banned there, and what to use instead.
using Findings = std::vector<std::string>;

/// A rule of the house, with what it must find and what it must leave alone.
struct Rule {
  std::string name;
  std::function<Findings(const Tree&)> check;
  Tree planted;   // each of these files breaks the rule, once
  Tree innocent;  // none of these does
  Tree setting;   // what stands beside them
};

inline void PrintTo(const Rule& rule, std::ostream* out) { *out << rule.name; }

const std::vector<Rule>& rules();

}  // namespace gsm::house
