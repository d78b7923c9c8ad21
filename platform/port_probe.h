#pragma once

#include <string>

namespace gsm {

/// Looks at the machine's serial ports without using them.
class PortProbe {
 public:
  enum class Access {
    absent,  // no such port, or one that can't be opened for a reason of its own
    free,    // can be opened by this program alone
    held,    // there, but another program holds it, or this user may not open it
  };

  virtual ~PortProbe() = default;

  /// Whether port `number` (1 upward) is there, held or not.
  virtual bool exists(int number) = 0;

  /// What an exclusive opening of port `number` for reading and writing would meet.
  virtual Access access(int number) = 0;

  /// The machine's own name of port `number`, such as "/dev/ttyUSB0", for the user to read; empty
  /// when it has none.
  virtual std::string deviceName(int number) = 0;

  /// Why port `number` can't be used and what would help, for the user to read; empty when nothing
  /// is in the way.
  virtual std::string trouble(int number) = 0;
};

}  // namespace gsm
