#include "phonebook/form3.h"

#include "panel/form1.h"
#include "panel/panel.h"
#include "phonebook/book_row.h"
#include "platform/runtime_failure.h"

namespace gsm {

Form3::Form3(Panel& panel)
    : FeatureWindow(panel, "Form3", {.Caption = "GSM-Call"}, OnClose::emptiesStatus) {
  for (Picture& key : Image) {
    key.Click = [this, digit = std::to_string(key.index())] { pressKey(digit); };
  }
  Label2.Click = [this] { pressKey("#"); };
  Label4.Click = [this] { pressKey("*"); };
  Command1.Click = [this] { dial(); };
  Command4.Click = [this] { hangUp(); };
  Command8.Click = [this] { redial(); };
  Command6.Click = [this] { backspace(); };
  Command7.Click = [this] { Text1.Text = ""; };
  Label1.Click = [this] { panel_.form1.networkset(); };
  List1.Click = [this] { pickEntry(); };
  Command2.Click = [this] { openAdd(); };
  Command3.Click = [this] { deleteEntry(); };
  Command5.Click = [this] { reload(); };
}

void Form3::Form_Load() {
  Data1.Refresh();
  RecordSet& entries = Data1.Recordset();
  if (entries.isEof() || entries.isBof()) {
    modem().exchange("AT+CPBS?");  // its reply is routed to the download during the wait
  } else {
    for (entries.MoveFirst(); !entries.isEof(); entries.MoveNext()) {
      addRow(entries.field("Index"), entries.field("Number"), entries.field("Name"));
    }
  }
  Data2.Refresh();
  RecordSet& counts = Data2.Recordset();
  if (counts.isEof() || counts.isBof()) return;
  counts.MoveFirst();
  Text4.Text = counts.field("TotalIndex");
  Text2.Text = counts.field("UsedIndex");
}

void Form3::addRow(const std::string& index, const std::string& number, const std::string& name) {
  List1.AddItem(bookRow(index, number, name));
}

void Form3::storeEntry(const std::string& index, const std::string& number,
                       const std::string& name) {
  RecordSet& entries = Data1.Recordset();
  entries.AddNew();
  entries.setField("Index", index);
  entries.setField("Number", number);
  entries.setField("Name", name);
  entries.Update();
}

void Form3::storeCounts(const std::string& criterion) {
  RecordSet& counts = Data2.Recordset();
  counts.FindFirst(criterion);
  if (counts.NoMatch()) return;
  counts.Edit();
  counts.setField("TotalIndex", Text4.Text);
  counts.setField("UsedIndex", Text2.Text);
  counts.Update();
}

}  // namespace gsm
