#pragma once

#include <string_view>
#include <vector>

#include "app/form1.h"
#include "audio/form6.h"
#include "modem/form2.h"
#include "modem/form20.h"
#include "modem/form7.h"
#include "platform/platform.h"

namespace gsm {

/// The whole program: all its windows, which reach one another through it.
class Panel {
 public:
  explicit Panel(Platform& machine) : platform(machine) {}

  /// Queues the coming up of the first window, which brings the modem link up.
  void start();

  std::vector<Window*> windows();
  /// The window of that name, or null.
  Window* window(std::string_view name);

  Platform& platform;

  Form1 form1{*this};
  Form2 form2{*this};
  Form6 form6{*this};
  Form7 form7{*this};
  Form20 form20{*this};
};

}  // namespace gsm
