#include "modem/identity.h"

#include "modem/form2.h"
#include "panel/form1.h"
#include "panel/panel.h"
#include "platform/files.h"
#include "platform/message_boxes.h"
#include "platform/platform.h"
#include "platform/runtime_failure.h"

namespace gsm {

// The reply to "AT+CGSN": the number stands after the echo, its carriage return, and a line end.
void takeImei(const Panel& panel, Position echo) {
  panel.form2.Label2.Caption = "IMEI: ";
  panel.form2.Label3.Caption = panel.form1.modem.slice(echo + 10, 15);
}

void Form1::ShowImei(Position echo) try {
  takeImei(panel_, echo);
  modem.clear();
} catch (const RuntimeFailure& failure) {
  platform().boxes.show(failure.description());
}

void Form1::ShowManufacturer(Position echo, Position ok) try {
  Form2& window = panel_.form2;
  Label5.Caption = "";
  window.Label4.Visible = true;
  window.Label5.Visible = true;
  window.Label6.Visible = true;
  window.Label4.Caption = Form2::kModelHeading;
  window.Label5.Caption = modem.slice(echo + 8, ok - 9);
  modem.clear();
} catch (const RuntimeFailure&) {
  // Ends silently.
}

// One place before ShowManufacturer, although both commands are of one length: there the reply
// loses its first character (a blank, with these modems), here it is whole.
void Form1::ShowRevision(Position echo, Position ok) try {
  Form2& window = panel_.form2;
  Label5.Caption = "";
  window.Label6.Visible = true;
  window.Label6.Caption = modem.slice(echo + 7, ok - 9);
  modem.clear();

  Files& files = platform().files;
  const int file = files.freeFile();
  files.openForOutput(file, Form2::kModelFile);
  files.printLine(file, window.Label3.Caption);
  files.printLine(file, window.Label5.Caption);
  files.printLine(file, window.Label6.Caption);
  files.closeAll();
} catch (const RuntimeFailure&) {
  // Ends silently.
}

}  // namespace gsm
