#pragma once

#include <memory>

#include "panel/panel.h"

namespace gsm {

/// The whole program: owns every window. Only the programs know it.
class Windows {
 public:
  /// `machine` must outlive the windows.
  explicit Windows(Platform& machine);
  ~Windows();

 private:
  struct All;
  std::unique_ptr<All> all_;

 public:
  Panel& panel;
};

/// Ends the program as "&Exit" does, when nobody at the screen has asked for it: a failure on the
/// way isn't shown, but ends the program too.
void end(Panel& panel);

/// Queues the coming up of the first window, which brings the modem link up.
void start(Panel& panel);

}  // namespace gsm
