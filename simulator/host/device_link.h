#pragma once

#include <string>

namespace gsm::pty {

// A symbolic link under which a device is found, for as long as the object lives.
class DeviceLink {
 public:
  // Makes `path` point to `device`. A symbolic link that is there is replaced when it points to
  // nothing or to a pseudo-terminal, as one does that a killed simulator left behind. Throws
  // std::runtime_error when anything else is there, and std::system_error when the link can't be
  // made.
  DeviceLink(std::string path, std::string device);

  // Removes the link, unless it points elsewhere by now: then it belongs to another simulator.
  ~DeviceLink();

  DeviceLink(const DeviceLink&) = delete;
  DeviceLink& operator=(const DeviceLink&) = delete;

 private:
  std::string path_;
  std::string device_;
};

}  // namespace gsm::pty
