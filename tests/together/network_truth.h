#pragma once

#include <array>
#include <map>
#include <string>

#include "simulator/messages/message.h"

namespace gsm {

/// What the simulated network holds for the subscriber, as the modem's console reports it, and what
/// the windows say of it.
struct NetworkTruth {
  static constexpr int kReasons = 4;  // that stand for themselves
  static constexpr int kUsualClasses = 7;

  std::array<std::map<int, std::string>, kReasons> forwarding;  // numbers by class
  std::map<std::string, int> barred;                            // sums of classes by facility
  int passwordTries = 0;
  int waiting = 0;                    // sum of classes
  std::array<int, 3> userGroup = {};  // mode, index, info

  /// Reads what the console's "services" prints.
  static NetworkTruth read(const std::string& text);

  /// Whether a caller is sent on to another number.
  bool sendsCallersOn() const { return forwarding[0].contains(1); }

  /// Whether all places that `reason`, 0 to 5, and `classes` cover hold `number`; or nothing, where
  /// that is empty.
  bool forwards(int reason, int classes, const std::string& number) const;

  /// What the label of `reason`, 0 to 5, says: of several lines the first.
  std::string forwardingTold(int reason) const;
  /// The list of the facilities that aren't barred for any usual class.
  std::string barringTold() const;
  std::string userGroupTold() const;
};

/// What the box shows of a message that it has read.
std::string messageTold(const simulator::Message& message);

/// The same of a message that is taken over to be sent once more.
std::string textTold(const simulator::Message& message);

}  // namespace gsm
