#pragma once

#include "module/module_window.h"

namespace gsm {

/// The SIM toolkit.
class Form18 : public ModuleWindow {
 public:
  explicit Form18(Panel& panel);
};

}  // namespace gsm
