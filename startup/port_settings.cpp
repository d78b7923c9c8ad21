#include "panel/form1.h"
#include "panel/panel.h"
#include "platform/runtime_failure.h"
#include "startup/frm_settings.h"

namespace gsm {

// "Port Settings->". The only way by which a port gets saved.
void Form1::Command7_Click() {
  std::string description;
  try {
    choosePort();
    return;
  } catch (const RuntimeFailure& failure) {
    description = failure.description();
  }
  if (description == failure::fileAlreadyOpen().description()) {
    platform().files.closeAll();
    platform().boxes.show("Please Close The COMMPORT Running In Other Application", "GSM");
  } else {
    platform().boxes.show(description);
  }
}

void Form1::choosePort() {
  panel_.settings.CommSettings(&MSComm1, "Communications Port Settings");
  while (panel_.settings.isLoaded()) platform().loop.pass();
  if (!MSComm1.PortOpen) return;

  ShowPortStatus();
  Show();
  exchange("AT+CGSN");
  if (!Text1.holds("OK")) {
    Label5.Caption = "Check If Modem Is Connected Properly";
    List1.AddItem("Check If Modem Is Connected Properly.");
    return;
  }
  MSComm1.Settings = Label3.Caption.get();
  takeImei(Text1.position("AT+CGSN"));
  ShowPortStatus();
  AcceptPort();
  Text1.clear();
}

}  // namespace gsm
