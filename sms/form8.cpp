#include "sms/form8.h"

#include "panel/form1.h"
#include "panel/panel.h"

namespace gsm {

Form8::Form8(Panel& panel)
    : FeatureWindow(panel, "Form8", {.Caption = "GSM-Short Message Service"}) {
  Text5.Change = [this] {
    // What stands in the message already is not cut.
    Text2.MaxLength = kMessageLength - static_cast<int>(Text5.Text.get().size());
  };
  Command1.Click = [this] { sendMessage(); };
  Command2.Click = [this] { saveMessage(); };
  Command7.Click = [this] { clearMessage(); };
  Command5.Click = [this] { Combo2.Visible = true; };
  Combo2.Click = [this] { loadEntry(); };
  Command3.Click = [this] { readEntry(); };
  Command4.Click = [this] { deleteEntry(); };
  Command8.Click = [this] { switchBroadcast(); };
  Command9.Click = [this] { switchReports(); };
  Command6.Click = [this] { listNames(); };
  List1.Click = [this] { pickName(); };
  Label7.Click = [this] { panel_.form1.networkset(); };
}

void Form8::Form_Load() {
  Combo1.Clear();
  Combo2.Clear();
  // A store may have more entries; the window offers no way to them.
  constexpr int kEntries = 12;
  for (int entry = 1; entry <= kEntries; ++entry) {
    Combo1.AddItem(std::to_string(entry));
    Combo2.AddItem(std::to_string(entry));
  }
}

}  // namespace gsm
