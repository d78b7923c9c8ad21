#pragma once

#include <functional>
#include <optional>
#include <string>

#include "simulator/dialogue/command.h"
#include "simulator/dialogue/reply.h"

namespace gsm::simulator {

// What stands after status and class for a class with the service; nothing for one without.
using ServiceOfClass = std::function<std::optional<std::string>(int serviceClass)>;

// The answer to a query about the `asked` classes: one line for all of them when they stand alike,
// otherwise one for each that has the service.
Reply serviceAnswer(const Command& command, int asked, const ServiceOfClass& service);

}  // namespace gsm::simulator
