#include "audio/form6.h"
#include "modem/form2.h"
#include "module/form16.h"
#include "panel/form1.h"
#include "panel/panel.h"
#include "phonebook/form3.h"
#include "platform/runtime_failure.h"
#include "security/form9.h"
#include "services/form12.h"
#include "settings/form14.h"
#include "settings/form15.h"
#include "settings/line_options.h"
#include "sms/form8.h"

namespace gsm {
void Form1::swapTo(Window& window) {
  window.Show();
  Hide();
}

// "&Model ".
void Form1::Command1_Click() try {
  Label1.Caption = MSComm1.PortOpen ? "Open" : "Closed";
  if (Label1.Caption != "Open") return;
  exchange("AT");
  if (!Text1.holds("OK")) {
    platform().boxes.show("Check If Modem Is Connected Properly.Set The CommPorts", "GSM");
    return;
  }
  Text1.clear();
  swapTo(panel_.form2);
} catch (const RuntimeFailure&) {
  // Ends silently.
}

// "&Voice Call". The main window stays on view.
void Form1::Command2_Click() try {
  exchange("AT");
  if (!Text1.holds("OK")) return;
  Text1.clear();
  Label5.Caption = "Please Wait.......";
  panel_.form3.Show();
} catch (const RuntimeFailure&) {
  // Ends silently.
}

// "&SMS". Without a trap, like all that have none below: a failure ends the program.
void Form1::Command3_Click() {
  Command3.BackColor = kButtonGrey;  // takes the mark of a new message off
  Label5.Caption = "Please Wait...";
  exchange("AT+CNMI?");
  Form8& window = panel_.form8;
  const Position key = Text1.position("+CNMI:");
  const std::string report = key == 0 ? std::string{} : Text1.slice(key + 13, 1);
  const bool error = Text1.holds("ERROR");
  if (error || report == "0") {
    window.Label6.Caption = "Status Report Disabled";
    window.Option4.Value = true;
  } else if (report == "1") {
    window.Label6.Caption = "Status Report Enabled";
    window.Option3.Value = true;
  }
  Text1.clear();
  swapTo(window);
  Label5.Caption = "";
}

// "&Supplementary Service ".
void Form1::Command4_Click() {
  Label5.Caption = "Please Wait....";
  Hide();
  panel_.form12.Show();
}

// "&Security".
void Form1::Command5_Click() { swapTo(panel_.form9); }

// "&Call Control".
void Form1::Command6_Click() {
  Label5.Caption = "Please Wait...";
  swapTo(panel_.form6);
}

// "&Exit".
void Form1::Command8_Click() { endProgram(); }

// "REFRESH".
void Form1::Command9_Click() {
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
void Form1::Command10_Click() { swapTo(panel_.form14); }

// "Modem Setting->".
void Form1::Command11_Click() try {
  exchange("AT&V");
  Form15& window = panel_.form15;
  const Position flow = Text1.position("IFC:");
  if (flow != 0) {
    selectOption<Form15>(window, kFlowToHost, Text1.slice(flow + 4, 1));
    selectOption<Form15>(window, kFlowToModem, Text1.slice(flow + 6, 1));
  }
  ShowModemSpeed();
  ParseCharacterFraming();

  std::string carrierDigit;
  const Position carrier = Text1.position("&C");
  if (carrier != 0) {
    carrierDigit = Text1.slice(carrier + 3, 1);
    selectOption<Form15>(window, kCarrier, carrierDigit);
  }
  const Position terminalReady = Text1.position("&D");
  if (terminalReady != 0) {
    const std::string digit = Text1.slice(terminalReady + 3, 1);
    if (digit == "0") {
      selectOption<Form15>(window, kTerminalReady, digit);
    } else if (carrierDigit != "0") {
      // The digit of "&C" stands in for that of "&D" here.
      selectOption<Form15>(window, kTerminalReady, carrierDigit);
    }
  }
  swapTo(window);
  Text1.clear();
} catch (const RuntimeFailure&) {
  // Ends silently.
}

// "Other Features".
void Form1::Command12_Click() { swapTo(panel_.form16); }

// "Factory Settings".
void Form1::Command13_Click() {
  if (!MSComm1.PortOpen) {
    Label5.Caption = "Port Not Open ";
    return;
  }
  Label5.Caption = "IniTializing To Factory Settings";
  for (const char* command : {"AT&F", "AT+SPEAKER=1", "AT&W"}) exchange(command);
  Text1.clear();
  Label5.Caption = "Restart in Process.Click Refresh ";
}

}  // namespace gsm
