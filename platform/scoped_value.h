#pragma once

namespace gsm {

/// Gives a variable a value for as long as a scope lasts, and then its old one back, however the
/// scope is left.
template <class T>
class ScopedValue {
 public:
  ScopedValue(T& variable, T value) : variable_(variable), old_(variable) { variable = value; }
  ~ScopedValue() { variable_ = old_; }
  ScopedValue(const ScopedValue&) = delete;
  ScopedValue& operator=(const ScopedValue&) = delete;

 private:
  T& variable_;
  const T old_;
};

}  // namespace gsm
