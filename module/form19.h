#pragma once

#include "module/module_window.h"

namespace gsm {

/// The contexts of the packet data.
class Form19 : public ModuleWindow {
 public:
  explicit Form19(Panel& panel);
};

}  // namespace gsm
