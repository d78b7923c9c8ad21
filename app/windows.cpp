#include "app/windows.h"

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
#include "phonebook/form3.h"
#include "phonebook/form4.h"
#include "phonebook/form5.h"
#include "platform/event_loop.h"
#include "platform/handler_stack.h"
#include "platform/platform.h"
#include "platform/program.h"
#include "platform/runtime_failure.h"
#include "security/form9.h"
#include "services/form12.h"
#include "settings/form14.h"
#include "settings/form15.h"
#include "sms/form8.h"
#include "startup/frm_settings.h"

namespace gsm {

struct Windows::All {
  explicit All(Platform& machine)
      : panel{.platform = machine,
              .form1 = form1,
              .form2 = form2,
              .form3 = form3,
              .form4 = form4,
              .form5 = form5,
              .form6 = form6,
              .form7 = form7,
              .form8 = form8,
              .form9 = form9,
              .form10 = form10,
              .form11 = form11,
              .form12 = form12,
              .form14 = form14,
              .form15 = form15,
              .form16 = form16,
              .form17 = form17,
              .form18 = form18,
              .form19 = form19,
              .form20 = form20,
              .settings = settings} {}

  Panel panel;
  Form1 form1{panel};
  Form2 form2{panel};
  Form3 form3{panel};
  Form4 form4{panel};
  Form5 form5{panel};
  Form6 form6{panel};
  Form7 form7{panel};
  Form8 form8{panel};
  Form9 form9{panel};
  Form10 form10{panel};
  Form11 form11{panel};
  Form12 form12{panel};
  Form14 form14{panel};
  Form15 form15{panel};
  Form16 form16{panel};
  Form17 form17{panel};
  Form18 form18{panel};
  Form19 form19{panel};
  Form20 form20{panel};
  frmSettings settings{panel};
};

Windows::Windows(Platform& machine) : all_(std::make_unique<All>(machine)), panel(all_->panel) {}

Windows::~Windows() = default;

void end(Panel& panel) {
  panel.platform.handlers.run([&panel] {
    try {
      panel.form1.exit();
    } catch (const RuntimeFailure&) {
      // The port may be gone.
    }
  });
  panel.platform.program.end();
}

void start(Panel& panel) {
  panel.platform.loop.post([&form1 = panel.form1] {
    form1.reference();  // which loads it
    // Start-up shows it as soon as it can, and other windows over it: don't lift it once more.
    if (!form1.Visible) form1.Show();
  });
}

}  // namespace gsm
