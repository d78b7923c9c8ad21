#include "modem/form10.h"
#include "panel/form1.h"
#include "panel/panel.h"
#include "platform/runtime_failure.h"

namespace gsm {

void Form1::CheckSimPin() try {
  Label5.Caption = "Please Wait...";
  exchange("AT");
  if (Text1.holds("OK")) {
    List1.AddItem("Check SIM PIN");
    exchange("AT+CPIN?");  // its reply is routed to HandlePinStatus during the wait
  }
  if (Text1.holds("ERROR")) {
    List1.AddItem("SIM Not Found !.Insert SIM Properly");
    InitialiseModemNoSim();
    Frame5.Visible = false;
    for (CommandButton* button : {&Command1, &Command6, &Command10, &Command12, &Command11}) {
      button->Enabled = true;
    }
    for (CommandButton* button : {&Command2, &Command3, &Command4, &Command5}) {
      button->Enabled = false;
    }
  }
  Label5.Caption = "";
} catch (const RuntimeFailure&) {
  // Ends silently.
}

void Form1::HandlePinStatus() {
  Form10& prompt = panel_.form10;
  if (Text1.holds("READY")) {
    Text1.clear();
    InitialiseModem();
  } else if (Text1.holds("SIM PIN")) {
    prompt.Show();
    prompt.showPinForm();
    Text2.Visible = true;
    Text3.Visible = false;
  } else if (Text1.holds("SIM PUK")) {
    prompt.Show();
    prompt.Label1.Visible = true;
    prompt.Text1.Visible = true;
    prompt.Label2.Visible = true;
    Text2.Visible = false;
    Text3.Visible = true;
  } else {
    Label5.Caption = "SIM Failure";
    platform().boxes.show("SIM FAILURE", "GSM");
    platform().program.end();
  }
}

// The visibility of two boxes that nobody sees tells which code was asked for.
void Form1::HandlePinResult() try {
  const bool ok = Text1.holds("OK");
  const bool error = Text1.holds("ERROR");
  const bool pinMode = Text2.Visible && !Text3.Visible;
  const bool pukMode = !Text2.Visible && Text3.Visible;
  if ((ok || error) && (pinMode || pukMode)) ++codeVerdicts_;
  if (pinMode) {
    if (ok) acceptPin();
    if (error) refusePin();
  } else if (pukMode) {
    if (ok) acceptPuk();
    if (error) refusePuk();
  }
} catch (const RuntimeFailure&) {
  // Ends silently.
}

void Form1::acceptPin() {
  List1.AddItem("PIN Accepted");
  panel_.form10.Hide();
  Text1.clear();
  InitialiseModem();
}

void Form1::refusePin() {
  panel_.form10.showPinForm();
  List1.AddItem("Invalid PIN Entered");
  Text1.clear();
  Text2.Text = std::to_string(wholeNumber(Text2.Text.get()) + 1);
  panel_.form10.Show();
  if (wholeNumber(Text2.Text.get()) > 2) {
    List1.AddItem("Invalid PIN Entered 3Times.GET PUK Number");
    platform().boxes.show("Invalid PIN Entered.GET PUK Number And TRY LAter", "GSM");
    platform().program.end();
  }
}

void Form1::acceptPuk() {
  List1.AddItem("PIN,PUK Accepted");
  panel_.form10.Hide();
  InitialiseModem();
  Text1.clear();
}

// Not counted, and the panel stays in PUK mode although the prompt falls back to the PIN.
void Form1::refusePuk() {
  List1.AddItem("Invalid PUK Entered ");
  panel_.form10.showPinForm();
  Text1.clear();
}

}  // namespace gsm
