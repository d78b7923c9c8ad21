#pragma once

#include <sys/types.h>

#include <filesystem>
#include <optional>
#include <string>

namespace gsm {

/// Which device of the machine is port COMn: in this order the link `ports/COMn` in the program's
/// folder, `/dev/COMn`, and what a fixed table says. A link that leads nowhere still takes the
/// name.
class PortNames {
 public:
  /// `root` is what the machine's paths begin with.
  explicit PortNames(std::filesystem::path programFolder, std::filesystem::path root = "/");

  /// Where port `number` is looked for, as people know it ("/dev/ttyUSB0"); nothing when no device
  /// goes by that number. Whether it is there is another matter.
  std::optional<std::filesystem::path> path(int number) const;

  /// The device of port `number` with all links resolved; nothing when it isn't there: no character
  /// device, or one that the kernel keeps a place for without hardware behind it.
  std::optional<std::filesystem::path> device(int number) const;

 private:
  bool isPlaceholder(dev_t device) const;

  const std::filesystem::path programFolder_;
  const std::filesystem::path root_;
};

}  // namespace gsm
