#include "platform/headless/headless_ports.h"

#include <algorithm>

namespace gsm {

const HeadlessPorts::Port* HeadlessPorts::find(int number) const {
  const auto port = std::find_if(ports_.begin(), ports_.end(),
                                 [number](const Port& each) { return each.number == number; });
  return port == ports_.end() ? nullptr : &*port;
}

PortProbe::Access HeadlessPorts::access(int number) {
  const Port* port = find(number);
  if (port == nullptr) return Access::absent;
  if (port->held) return Access::held;
  return port->fails.empty() ? Access::free : Access::absent;
}

std::string HeadlessPorts::deviceName(int number) {
  const Port* port = find(number);
  return port == nullptr ? std::string() : port->device;
}

std::string HeadlessPorts::trouble(int number) {
  const Port* port = find(number);
  return port == nullptr ? std::string() : port->trouble;
}

}  // namespace gsm
