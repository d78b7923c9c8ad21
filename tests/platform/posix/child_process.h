#pragma once

#include <sys/types.h>

#include <string>

namespace gsm {

/// Another program, for as long as the object lives: a child process that may have a device open.
class ChildProcess {
 public:
  /// `device`: what the child has open; nothing when empty. The child is up when this returns.
  explicit ChildProcess(const std::string& device = {});
  ~ChildProcess();
  ChildProcess(const ChildProcess&) = delete;
  ChildProcess& operator=(const ChildProcess&) = delete;

  pid_t id() const { return id_; }

  /// Ends the child, and leaves it to be asked after.
  void kill();

 private:
  pid_t id_ = -1;
};

}  // namespace gsm
