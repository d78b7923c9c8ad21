#pragma once

#include <deque>
#include <initializer_list>
#include <string>

#include "controls/control.h"

namespace gsm {

/// Controls of one kind that share a name and are told apart by an index from 0.
template <class Kind>
class ControlArray {
 public:
  ControlArray(Window& window, const std::string& name,
               std::initializer_list<typename Kind::Design> designs) {
    for (const auto& design : designs) {
      members_.emplace_back(window, name, design, static_cast<int>(members_.size()));
    }
  }

  /// `index` must be below `size()`.
  Kind& operator[](int index) { return members_.at(static_cast<std::size_t>(index)); }

  int size() const { return static_cast<int>(members_.size()); }

  auto begin() { return members_.begin(); }
  auto end() { return members_.end(); }

 private:
  std::deque<Kind> members_;  // controls stay where they are: views and windows point at them
};

}  // namespace gsm
