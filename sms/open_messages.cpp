#include "panel/form1.h"
#include "panel/panel.h"
#include "sms/form8.h"

namespace gsm {

// "&SMS": opens the messages' window preset to whether reports are on. Without a trap: a failure
// ends the program.
void Form1::openMessages() {
  Command3.BackColor = kButtonGrey;  // takes the mark of a new message off
  Label5.Caption = "Please Wait...";
  modem.exchange("AT+CNMI?");
  Form8& window = panel_.form8;
  const Position key = modem.position("+CNMI:");
  const std::string report = key == 0 ? std::string{} : modem.slice(key + 13, 1);
  const bool error = modem.holds("ERROR");
  if (error || report == "0") {
    window.Label6.Caption = "Status Report Disabled";
    window.Option4.Value = true;
  } else if (report == "1") {
    window.Label6.Caption = "Status Report Enabled";
    window.Option3.Value = true;
  }
  modem.clear();
  window.Show();
  Hide();
  Label5.Caption = "";
}

}  // namespace gsm
