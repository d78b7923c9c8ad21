#include "app/form1.h"

#include "app/panel.h"

namespace gsm {

Form1::Form1(Panel& panel)
    : Window(panel.platform, "Form1", {.Caption = "GSM-APPLICATION"}), panel_(panel) {
  MSComm1.OnComm = [this] { OnComm(); };
  Timer1.Tick = [this] { Timer1_Tick(); };
  Label8.Click = [this] { networkset(); };
}

}  // namespace gsm
