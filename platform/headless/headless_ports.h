#pragma once

#include <string>
#include <vector>

#include "platform/port_probe.h"

namespace gsm {

/// The serial ports of a machine that isn't there.
class HeadlessPorts : public PortProbe {
 public:
  struct Port {
    int number;
    bool held = false;    // by another program
    std::string fails;    // what its opening fails with, when not empty
    std::string device;   // the machine's name of it
    std::string trouble;  // why it can't be used
  };

  void set(std::vector<Port> ports) { ports_ = std::move(ports); }

  /// The port of that number, or null.
  const Port* find(int number) const;

  bool exists(int number) override { return find(number) != nullptr; }
  Access access(int number) override;
  std::string deviceName(int number) override;
  std::string trouble(int number) override;

 private:
  std::vector<Port> ports_;
};

}  // namespace gsm
