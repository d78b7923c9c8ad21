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

/// Keeps a value in a set for as long as a scope lasts.
template <class Set>
class ScopedMember {
 public:
  ScopedMember(Set& set, typename Set::value_type value) : set_(set), value_(value) {
    set.insert(value);
  }
  ~ScopedMember() { set_.erase(value_); }
  ScopedMember(const ScopedMember&) = delete;
  ScopedMember& operator=(const ScopedMember&) = delete;

 private:
  Set& set_;
  const typename Set::value_type value_;
};

}  // namespace gsm
