#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <variant>

#include "simulator/line/random.h"
#include "simulator/line/transmission.h"

namespace gsm::simulator {

// Something wrong with the line to the host: a filter through which every transmission passes.
class Fault {
 public:
  virtual ~Fault() = default;

  // Changes `transmission` in place. All chance comes from `random`.
  virtual void apply(Transmission& transmission, Random& random) const = 0;

  // The fault in the words that `parseFault` reads.
  virtual std::string name() const = 0;
};

using FaultPointer = std::shared_ptr<const Fault>;

// The fault that `text` describes, such as "garble 0.01"; otherwise the error, as a sentence that
// reports what would have been right.
std::variant<FaultPointer, std::string> parseFault(std::string_view text);

}  // namespace gsm::simulator
