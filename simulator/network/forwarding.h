#pragma once

#include <map>
#include <optional>
#include <string>
#include <utility>

namespace gsm::simulator {

// Where the network sends calls that the modem doesn't get.
class Forwarding {
 public:
  // The reasons of +CCFC: four of them, and two that stand for several.
  static constexpr int kReasons = 4;
  static constexpr int kUnconditional = 0;
  static constexpr int kAllReasons = 4;
  static constexpr int kAllConditions = 5;

  // Has the calls of all `classes` forwarded to `number`.
  void enter(int reason, int classes, const std::string& number);

  // Forgets the numbers.
  void erase(int reason, int classes);

  // Switches what is entered on or off. False, with nothing changed, when one of `classes` has no
  // number to be switched on with.
  bool enable(int reason, int classes, bool on);

  // Where calls of a class go; nothing when they come through. Several reasons must agree.
  std::optional<std::string> target(int reason, int serviceClass) const;

 private:
  struct Entry {
    std::string number;
    bool on = false;
  };

  // By reason and class.
  std::map<std::pair<int, int>, Entry> entries_;
};

}  // namespace gsm::simulator
