#include "modem/form10.h"

#include "panel/form1.h"
#include "panel/panel.h"
#include "platform/message_boxes.h"
#include "platform/platform.h"
#include "platform/runtime_failure.h"

namespace gsm {

Form10::Form10(Panel& panel) : Window(panel.platform, "Form10", {.Asks = true}), panel_(panel) {
  Command1.Click = [this] { sendCode(); };
}

void Form10::showPinForm() {
  Label1.Visible = true;
  Text1.Visible = true;
  Label2.Visible = false;
  Text2.Visible = false;
}

void Form10::sendCode() try {
  const bool pin = Label1.Visible && Text1.Visible;
  if (pin && !Label2.Visible && !Text2.Visible) {
    sendPin();
  } else if (pin && Label2.Visible && Text2.Visible) {
    sendPuk();
  }
} catch (const RuntimeFailure&) {
  // Ends silently.
}

void Form10::sendPin() {
  if (!Text1.Text.empty()) {
    panel_.form1.modem.exchange("AT+CPIN=" + trim(Text1.Text.get()));
    Text1.Text = "";
  } else {
    platform().boxes.show("Enter Valid PIN Number", "GSM");
  }
  showPinForm();
}

void Form10::sendPuk() {
  if (Text1.Text.empty() || Text2.Text.empty()) {
    platform().boxes.show("Enter Valid PUK/PIN Number", "GSM");
    return;
  }
  Form1& form1 = panel_.form1;
  const int verdicts = form1.codeVerdicts();
  form1.modem.exchangeOnTop("AT+CPIN=" + trim(Text2.Text.get()) + "," + trim(Text1.Text.get()));
  Text1.Text = "";
  Text2.Text = "";
  // A code judged during the wait has set the prompts already: a refused PUK leaves the PIN form.
  if (form1.codeVerdicts() != verdicts) return;
  Label1.Visible = true;
  Text1.Visible = true;
  Label2.Visible = true;
  Text2.Visible = true;
}

}  // namespace gsm
