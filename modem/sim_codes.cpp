#include "modem/form10.h"
#include "panel/form1.h"
#include "panel/panel.h"
#include "platform/message_boxes.h"
#include "platform/platform.h"
#include "platform/program.h"
#include "platform/runtime_failure.h"

namespace gsm {
namespace {

void acceptPin(Form1& form, Form10& prompt) {
  form.List1.AddItem("PIN Accepted");
  prompt.Hide();
  form.modem.clear();
  form.InitialiseModem();
}

void refusePin(Form1& form, Form10& prompt) {
  prompt.showPinForm();
  form.List1.AddItem("Invalid PIN Entered");
  form.modem.clear();
  TextBox& refusals = form.Text2;
  refusals.Text = std::to_string(wholeNumber(refusals.Text.get()) + 1);
  prompt.Show();
  if (wholeNumber(refusals.Text.get()) > 2) {
    form.List1.AddItem("Invalid PIN Entered 3Times.GET PUK Number");
    form.platform().boxes.show("Invalid PIN Entered.GET PUK Number And TRY LAter", "GSM");
    form.platform().program.end();
  }
}

void acceptPuk(Form1& form, Form10& prompt) {
  form.List1.AddItem("PIN,PUK Accepted");
  prompt.Hide();
  form.InitialiseModem();
  form.modem.clear();
}

// Not counted, and the panel stays in PUK mode although the prompt falls back to the PIN.
void refusePuk(Form1& form, Form10& prompt) {
  form.List1.AddItem("Invalid PUK Entered ");
  prompt.showPinForm();
  form.modem.clear();
}

}  // namespace

void Form1::CheckSimPin() try {
  Label5.Caption = "Please Wait...";
  modem.exchange("AT");
  if (modem.holds("OK")) {
    List1.AddItem("Check SIM PIN");
    modem.exchange("AT+CPIN?");  // its reply is routed to HandlePinStatus during the wait
  }
  if (modem.holds("ERROR")) {
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
  if (modem.holds("READY")) {
    modem.clear();
    InitialiseModem();
  } else if (modem.holds("SIM PIN")) {
    prompt.Show();
    prompt.showPinForm();
    Text2.Visible = true;
    Text3.Visible = false;
  } else if (modem.holds("SIM PUK")) {
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

// The visibility of two boxes that nobody sees says which code was asked for.
void Form1::HandlePinResult() try {
  Form10& prompt = panel_.form10;
  const bool ok = modem.holds("OK");
  const bool error = modem.holds("ERROR");
  const bool pinMode = Text2.Visible && !Text3.Visible;
  const bool pukMode = !Text2.Visible && Text3.Visible;
  if ((ok || error) && (pinMode || pukMode)) ++codeVerdicts_;
  if (pinMode) {
    if (ok) acceptPin(*this, prompt);
    if (error) refusePin(*this, prompt);
  } else if (pukMode) {
    if (ok) acceptPuk(*this, prompt);
    if (error) refusePuk(*this, prompt);
  }
} catch (const RuntimeFailure&) {
  // Ends silently.
}

}  // namespace gsm
