#include "app/windows.h"

#include "platform/runtime_failure.h"

namespace gsm {

Windows::Windows(Platform& machine)
    : panel{.platform = machine,
            .form1 = form1_,
            .form2 = form2_,
            .form3 = form3_,
            .form4 = form4_,
            .form5 = form5_,
            .form6 = form6_,
            .form7 = form7_,
            .form8 = form8_,
            .form9 = form9_,
            .form10 = form10_,
            .form11 = form11_,
            .form12 = form12_,
            .form14 = form14_,
            .form15 = form15_,
            .form16 = form16_,
            .form17 = form17_,
            .form18 = form18_,
            .form19 = form19_,
            .form20 = form20_,
            .settings = settings_} {}

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
