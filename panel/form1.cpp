#include "panel/form1.h"

#include "panel/panel.h"

namespace gsm {

Form1::Form1(Panel& panel)
    : Window(panel.platform, "Form1", {.Caption = "GSM-APPLICATION"}), panel_(panel) {
  MSComm1.OnComm = [this] { OnComm(); };
  Timer1.Tick = [this] { Timer1_Tick(); };
  Timer2.Tick = [this] { Timer2_Tick(); };
  Label8.Click = [this] { networkset(); };
  Command1.Click = [this] { Command1_Click(); };
  Command2.Click = [this] { Command2_Click(); };
  Command3.Click = [this] { Command3_Click(); };
  Command4.Click = [this] { Command4_Click(); };
  Command5.Click = [this] { Command5_Click(); };
  Command6.Click = [this] { Command6_Click(); };
  Command7.Click = [this] { Command7_Click(); };
  Command8.Click = [this] { Command8_Click(); };
  Command9.Click = [this] { Command9_Click(); };
  Command10.Click = [this] { Command10_Click(); };
  Command11.Click = [this] { Command11_Click(); };
  Command12.Click = [this] { Command12_Click(); };
  Command13.Click = [this] { Command13_Click(); };
}

}  // namespace gsm
