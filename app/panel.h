#pragma once

#include <string_view>
#include <vector>

#include "app/form1.h"
#include "audio/form6.h"
#include "link/frm_settings.h"
#include "modem/form10.h"
#include "modem/form11.h"
#include "modem/form2.h"
#include "modem/form20.h"
#include "modem/form7.h"
#include "module/form16.h"
#include "phonebook/form3.h"
#include "phonebook/form4.h"
#include "phonebook/form5.h"
#include "platform/platform.h"
#include "security/form9.h"
#include "services/form12.h"
#include "settings/form14.h"
#include "settings/form15.h"
#include "sms/form8.h"

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
  Form3 form3{*this};
  Form4 form4{*this};
  Form5 form5{*this};
  Form6 form6{*this};
  Form7 form7{*this};
  Form8 form8{*this};
  Form9 form9{*this};
  Form10 form10{*this};
  Form11 form11{*this};
  Form12 form12{*this};
  Form14 form14{*this};
  Form15 form15{*this};
  Form16 form16{*this};
  Form20 form20{*this};
  frmSettings settings{*this};
};

}  // namespace gsm
