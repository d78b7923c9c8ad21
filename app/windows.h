#pragma once

#include <memory>

#include "audio/form6.h"
#include "modem/form10.h"
#include "modem/form11.h"
#include "modem/form2.h"
#include "modem/form20.h"
#include "module/form16.h"
#include "module/form17.h"
#include "module/form18.h"
#include "module/form19.h"
#include "panel/form1.h"
#include "panel/form7.h"
#include "panel/panel.h"

namespace gsm {

/// The whole program: owns every window. Only the programs know it.
class Windows {
 public:
  /// `machine` must outlive the windows.
  explicit Windows(Platform& machine);
  ~Windows();

 private:
  Form1 form1_{panel};
  Form2 form2_{panel};
  Form3 form3_{panel};
  Form4 form4_{panel};
  Form5 form5_{panel};
  Form6 form6_{panel};
  Form7 form7_{panel};
  Form8 form8_{panel};
  Form9 form9_{panel};
  Form10 form10_{panel};
  Form11 form11_{panel};
  Form12 form12_{panel};
  Form14 form14_{panel};
  Form15 form15_{panel};
  Form16 form16_{panel};
  Form17 form17_{panel};
  Form18 form18_{panel};
  Form19 form19_{panel};
  Form20 form20_{panel};
  frmSettings settings_{panel};
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
