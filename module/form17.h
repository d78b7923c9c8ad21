#pragma once

#include "module/module_window.h"

namespace gsm {

/// The maker's own features: indications, cell environment, voice mail, pins, power.
class Form17 : public ModuleWindow {
 public:
  explicit Form17(Panel& panel);
};

}  // namespace gsm
