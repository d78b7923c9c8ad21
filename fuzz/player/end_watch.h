#pragma once

#include <string>

#include "app/headless_panel.h"

namespace gsm {

/// Whether the program ends when somebody wants it to, and only then: the user, a box that says
/// why, or the modem that it has switched off.
class EndWatch {
 public:
  /// `world` must outlive it.
  explicit EndWatch(HeadlessPanel& world) : world_(world) {}

  /// The user asks for the end, and can't be refused.
  void userAsks() { asked_ = true; }

  /// Looks at the program between two steps. What is wrong; empty while all is well.
  std::string look();

 private:
  bool told();

  HeadlessPanel& world_;
  // Both for as long as handlers are on the stack that may yet come to it.
  bool asked_ = false;
  bool told_ = false;
};

}  // namespace gsm
