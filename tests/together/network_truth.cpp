#include "tests/together/network_truth.h"

#include <algorithm>
#include <optional>
#include <sstream>
#include <vector>

namespace gsm {
namespace {

constexpr int kClasses[] = {1, 2, 4, 8};

bool covers(int reason, int single) {
  return reason == single || reason == 4 || (reason == 5 && single != 0);
}

const char* nameOf(int classes) {
  switch (classes) {
    case 1: return "Voice";
    case 2: return "Data";
    case 4: return "Fax";
    default: return "All Classes";
  }
}

// " class 1 to +33639981201 class 2 to 112", or " off".
std::map<int, std::string> targetsIn(const std::string& text) {
  std::map<int, std::string> targets;
  std::istringstream words(text);
  std::string word;
  int serviceClass = 0;
  while (words >> word && word == "class") words >> serviceClass >> word >> targets[serviceClass];
  return targets;
}

}  // namespace

NetworkTruth NetworkTruth::read(const std::string& text) {
  NetworkTruth truth;
  std::istringstream lines(text);
  std::string line;
  int reason = 0;
  while (std::getline(lines, line)) {
    std::istringstream values(line.substr(line.find(':') + 1));
    char comma = 0;
    if (line.starts_with("forwarding,")) {
      truth.forwarding.at(static_cast<std::size_t>(reason++)) =
          targetsIn(line.substr(line.find(':') + 1));
    } else if (line.starts_with("barring:")) {
      for (std::string facility : {"AO", "OI", "OX", "AI", "IR"}) {
        values >> facility >> truth.barred[facility];
      }
      values >> comma >> truth.passwordTries;
    } else if (line.starts_with("waiting:")) {
      values >> truth.waiting;
    } else {
      auto& [mode, index, info] = truth.userGroup;
      values >> mode >> comma >> index >> comma >> info;
    }
  }
  return truth;
}

bool NetworkTruth::forwards(int reason, int classes, const std::string& number) const {
  for (int single = 0; single < kReasons; ++single) {
    if (!covers(reason, single)) continue;
    const auto& targets = forwarding[static_cast<std::size_t>(single)];
    for (const int serviceClass : kClasses) {
      if ((classes & serviceClass) == 0) continue;
      const auto found = targets.find(serviceClass);
      if ((found == targets.end() ? "" : found->second) != number) return false;
    }
  }
  return true;
}

std::string NetworkTruth::forwardingTold(int reason) const {
  static const std::vector<std::string> prefixes = {
      "UNCONDITIONAL-", "MOBILE BUSY-",         "NO REPLY-",
      "NOT REACHABLE-", "ALL CALL FORWARDING-", "ALL CONDITON CALL FORWARDING-"};
  const std::string& prefix = prefixes[static_cast<std::size_t>(reason)];
  // For each usual class the number on which all agree that the reason covers.
  const auto first = static_cast<std::size_t>(reason == 4 ? 0 : reason == 5 ? 1 : reason);
  std::vector<std::optional<std::string>> targets;
  for (const int serviceClass : {1, 2, 4}) {
    const auto found = forwarding[first].find(serviceClass);
    const bool agreed =
        found != forwarding[first].end() && forwards(reason, serviceClass, found->second);
    targets.push_back(agreed ? std::optional(found->second) : std::nullopt);
  }
  const bool alike = std::equal(targets.begin() + 1, targets.end(), targets.begin());
  for (std::size_t i = 0; i < targets.size(); ++i) {
    if (!targets[i]) continue;
    const std::string classes = nameOf(alike ? kUsualClasses : kClasses[i]);
    return prefix + "Call Forward  Active For " + classes + " " + *targets[i];
  }
  return prefix + "Call Forward Not Active For All Classes ";
}

std::string NetworkTruth::barringTold() const {
  static const std::vector<std::vector<std::string>> facilities = {
      {"AO", "OutGoing Calls Not Barred", ",      "},
      {"OI", "OutGoing International Calls Not Barred", ",     "},
      {"OX", "OutGoing Internet Calls Not Barred", ",     "},
      {"AI", "Incoming Calls Not Barred", ",     "},
      {"IR", "Incoming Calls While Roaming Calls Not Barred", ""},
  };
  std::string told;
  for (const auto& facility : facilities) {
    if ((barred.at(facility[0]) & kUsualClasses) == 0) told += facility[1];
    told += facility[2];
  }
  return told;
}

std::string NetworkTruth::userGroupTold() const {
  static const std::vector<std::string> infos = {"Default", "Suppress Outgoing Access",
                                                 "Suppress Preferential CUG",
                                                 "Suppress Outgoing Access And Preferential CUG"};
  const auto& [mode, index, info] = userGroup;
  return std::string("Current Status: ") + (mode == 1 ? "CUG Mode Enabled" : "CUG Mode Disabled") +
         "    ,CUG Index " + std::to_string(index) + "   ," + infos[static_cast<std::size_t>(info)];
}

// The line ends before the result are a part of it.
std::string textTold(const simulator::Message& message) {
  return message.status == simulator::MessageStatus::kStoredSent ? "" : message.text + "\r\n\r\n";
}

std::string messageTold(const simulator::Message& message) {
  using enum simulator::MessageStatus;
  const std::string from = "From:" + message.number;
  switch (message.status) {
    case kReceivedRead: return from + "  ,READMSG: " + textTold(message);
    case kReceivedUnread: return from + "  ,UNREADMSG: " + textTold(message);
    case kStoredUnsent: return from + "  ,UNSENTMSG: " + textTold(message);
    case kStoredSent: break;
  }
  return {};
}

}  // namespace gsm
