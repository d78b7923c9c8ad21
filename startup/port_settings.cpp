#include "modem/identity.h"
#include "panel/form1.h"
#include "panel/panel.h"
#include "platform/files.h"
#include "platform/message_boxes.h"
#include "platform/platform.h"
#include "platform/runtime_failure.h"
#include "startup/frm_settings.h"

namespace gsm {

namespace {

void probeChosenPort(Form1& form, Panel& panel) {
  panel.settings.CommSettings(&form.MSComm1, "Communications Port Settings");
  while (panel.settings.isLoaded()) form.platform().loop.pass();
  if (!form.MSComm1.PortOpen) return;

  form.ShowPortStatus();
  form.Show();
  form.modem.exchange("AT+CGSN");
  if (!form.modem.holds("OK")) {
    form.Label5.Caption = "Check If Modem Is Connected Properly";
    form.List1.AddItem("Check If Modem Is Connected Properly.");
    return;
  }
  form.MSComm1.Settings = form.Label3.Caption.get();
  takeImei(panel, form.modem.position("AT+CGSN"));
  form.ShowPortStatus();
  form.AcceptPort();
  form.modem.clear();
}

}  // namespace

// "Port Settings->". The only way by which a port gets saved.
void Form1::choosePort() {
  std::string description;
  try {
    probeChosenPort(*this, panel_);
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

}  // namespace gsm
