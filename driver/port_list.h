#pragma once

#include <optional>
#include <vector>

#include "driver/request.h"
#include "platform/headless/headless_ports.h"

namespace gsm::driver {

/// Where a modem is plugged in, and how fast it listens.
struct Plug {
  std::optional<int> port;   // nothing: nowhere
  std::optional<int> speed;  // in baud; nothing: as before
};

/// A list such as [{"number":3},{"number":5,"held":true}]. `BadRequest` when it isn't one.
std::vector<HeadlessPorts::Port> portsOf(const Json& list);

/// An object such as {"port":3,"speed":9600}. `BadRequest` when it isn't one.
Plug plugOf(const Json& object);

}  // namespace gsm::driver
