#include "simulator/commands/service_answer.h"

#include <set>

#include "simulator/commands/profile_number.h"
#include "simulator/network/service_classes.h"

namespace gsm::simulator {

Reply serviceAnswer(const Command& command, int asked, const ServiceOfClass& service) {
  const auto line = [&command](int classes, const std::optional<std::string>& rest) {
    const std::string status = (rest ? "1," : "0,") + std::to_string(classes);
    return headed(command, status + rest.value_or(""));
  };
  std::set<std::optional<std::string>> kinds;
  std::string lines;
  for (const int serviceClass : kServiceClasses) {
    if ((asked & serviceClass) == 0) continue;
    const auto rest = service(serviceClass);
    kinds.insert(rest);
    if (!rest) continue;
    lines.append(lines.empty() ? "" : "\r\n").append(line(serviceClass, rest));
  }
  if (kinds.empty()) return ok(line(asked, std::nullopt));
  return ok(kinds.size() > 1 ? lines : line(asked, *kinds.begin()));
}

}  // namespace gsm::simulator
