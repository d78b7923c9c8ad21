#include "module/form16.h"

#include "module/form17.h"
#include "module/form18.h"
#include "module/form19.h"
#include "panel/panel.h"

namespace gsm {

Form16::Form16(Panel& panel) : FeatureWindow(panel, "Form16", {.Caption = "GSM-Others FeaTures"}) {
  Command1.Click = [this] { open(panel_.form17); };
  Command2.Click = [this] { open(panel_.form18, "GSM-SIM TOOLKIT Facility"); };
  Command3.Click = [this] { open(panel_.form19, "GSM-GPRS Configuration"); };
}

// A window that comes up for the first time reads before it is on view, and until then the menu
// says so. A window that is loaded anew behind the menu's back has its own title again.
void Form16::open(Window& window, const char* title) {
  Label1.Caption = "Please Wait";
  window.Show();
  if (title != nullptr) window.Caption = title;
  Hide();
  Label1.Caption = "";
}

}  // namespace gsm
