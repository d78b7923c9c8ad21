#pragma once

#include <string>
#include <utility>

namespace gsm::pty {

// An open file descriptor that closes itself.
class Descriptor {
 public:
  Descriptor() = default;
  explicit Descriptor(int number) : number_(number) {}
  ~Descriptor() { reset(); }
  Descriptor(Descriptor&& other) noexcept : number_(std::exchange(other.number_, -1)) {}
  Descriptor& operator=(Descriptor&& other) noexcept {
    std::swap(number_, other.number_);
    return *this;
  }

  int number() const { return number_; }
  bool isOpen() const { return number_ >= 0; }
  void reset();

 private:
  int number_ = -1;
};

// Throws std::system_error with errno and what was being done.
[[noreturn]] void throwSystemError(const std::string& what);

}  // namespace gsm::pty
