#pragma once

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "simulator/line/fault.h"

namespace gsm::simulator {

// The faults of the line, one after the other in the order in which they were added.
class FaultChain {
 public:
  // A chain without faults whose chance is drawn from `seed`.
  explicit FaultChain(std::uint64_t seed) : random_(seed) {}

  void add(FaultPointer fault) { faults_.push_back(std::move(fault)); }
  void clear() { faults_.clear(); }

  void apply(Transmission& transmission) {
    for (const FaultPointer& fault : faults_) fault->apply(transmission, random_);
  }

  // The names of the faults in order, separated by commas; "none" without any.
  std::string names() const {
    std::string names;
    for (const FaultPointer& fault : faults_) {
      names.append(names.empty() ? "" : ", ").append(fault->name());
    }
    return names.empty() ? "none" : names;
  }

 private:
  Random random_;
  std::vector<FaultPointer> faults_;
};

}  // namespace gsm::simulator
