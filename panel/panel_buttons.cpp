#include <string_view>

#include "controls/window.h"
#include "panel/form1.h"
#include "platform/message_boxes.h"
#include "platform/platform.h"
#include "platform/runtime_failure.h"

namespace gsm {
namespace {

// Shows the window of that name in the main window's place.
void swapTo(Form1& form, std::string_view window) {
  windowNamed(form.platform(), window)->Show();
  form.Hide();
}

}  // namespace

// "&Model ".
void Form1::openModel() try {
  Label1.Caption = MSComm1.PortOpen ? "Open" : "Closed";
  if (Label1.Caption != "Open") return;
  modem.exchange("AT");
  if (!modem.holds("OK")) {
    platform().boxes.show("Check If Modem Is Connected Properly.Set The CommPorts", "GSM");
    return;
  }
  modem.clear();
  swapTo(*this, "Form2");
} catch (const RuntimeFailure&) {
  // Ends silently.
}

// "&Voice Call". The main window stays on view.
void Form1::openCalls() try {
  modem.exchange("AT");
  if (!modem.holds("OK")) return;
  modem.clear();
  Label5.Caption = "Please Wait.......";
  windowNamed(platform(), "Form3")->Show();
} catch (const RuntimeFailure&) {
  // Ends silently.
}

// "&Supplementary Service ". Without a trap, like all that have none below: a failure ends the
// program.
void Form1::openServices() {
  Label5.Caption = "Please Wait....";
  Hide();
  windowNamed(platform(), "Form12")->Show();
}

// "&Security".
void Form1::openSecurity() { swapTo(*this, "Form9"); }

// "&Call Control".
void Form1::openAudio() {
  Label5.Caption = "Please Wait...";
  swapTo(*this, "Form6");
}

// "&Exit".
void Form1::exit() { endProgram(); }

// "REFRESH".
void Form1::refresh() {
  ShowStartupPanel();
  if (MSComm1.PortOpen) {
    MSComm1.PortOpen = false;
    Label1.Caption = "";
    Label2.Caption = "";
    Label3.Caption = "";
  }
  Form_Load();
}

void Form1::ShowStartupPanel() {
  Frame5.Visible = true;
  List1.Visible = true;
  List1.Clear();
}

// "Data-Fax Setup".
void Form1::openData() { swapTo(*this, "Form14"); }

// "Other Features".
void Form1::openFeatures() { swapTo(*this, "Form16"); }

// "Factory Settings".
void Form1::restoreFactorySettings() {
  if (!MSComm1.PortOpen) {
    Label5.Caption = "Port Not Open ";
    return;
  }
  Label5.Caption = "IniTializing To Factory Settings";
  for (const char* command : {"AT&F", "AT+SPEAKER=1", "AT&W"}) modem.exchange(command);
  modem.clear();
  Label5.Caption = "Restart in Process.Click Refresh ";
}

}  // namespace gsm
