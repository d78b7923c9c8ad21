#include "panel/form1.h"

#include "panel/panel.h"

namespace gsm {

Form1::Form1(Panel& panel)
    : Window(panel.platform, "Form1", {.Caption = "GSM-APPLICATION"}), panel_(panel) {
  MSComm1.OnComm = [this] { OnComm(); };
  Timer1.Tick = [this] { showTime(); };
  Timer2.Tick = [this] { pollCall(); };
  Label8.Click = [this] { networkset(); };
  Command1.Click = [this] { openModel(); };
  Command2.Click = [this] { openCalls(); };
  Command3.Click = [this] { openMessages(); };
  Command4.Click = [this] { openServices(); };
  Command5.Click = [this] { openSecurity(); };
  Command6.Click = [this] { openAudio(); };
  Command7.Click = [this] { choosePort(); };
  Command8.Click = [this] { exit(); };
  Command9.Click = [this] { refresh(); };
  Command10.Click = [this] { openData(); };
  Command11.Click = [this] { openModemSettings(); };
  Command12.Click = [this] { openFeatures(); };
  Command13.Click = [this] { restoreFactorySettings(); };
}

}  // namespace gsm
