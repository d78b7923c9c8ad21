#include "panel/form1.h"
#include "panel/panel.h"
#include "phonebook/book_row.h"
#include "phonebook/form3.h"
#include "phonebook/form4.h"
#include "platform/message_boxes.h"
#include "platform/platform.h"
#include "platform/runtime_failure.h"

namespace gsm {

std::string Form3::selectedRow() const {
  const int selected = List1.ListIndex;
  return selected < 0 ? std::string{} : List1.List.get()[static_cast<std::size_t>(selected)];
}

void Form3::pickEntry() try {
  const std::string number = rowNumber(selectedRow());
  Text1.Text = "";
  Text1.Text = number;
} catch (const RuntimeFailure&) {
  // Ends silently.
}

// "Add".
void Form3::openAdd() try {
  panel_.form4.Show();
  Hide();
} catch (const RuntimeFailure&) {
  // Ends silently.
}

// "Delete". The used count is taken for the last location, so the stored counts follow only when
// the entry at that location goes.
void Form3::deleteEntry() try {
  const std::string index = rowIndex(selectedRow());
  if (index.empty()) {
    platform().boxes.show("Select the Number To Delete In PhoneBook", "GSM");
    return;
  }
  modem().exchange("AT+CPBW=" + oneLine(index));
  if (!modem().holds("OK")) {
    platform().boxes.show("Error Occurred.Try Again", "GSM");
    return;
  }
  Label3.Caption = "Number Deleted";
  List1.RemoveItem(List1.ListIndex);
  Text2.Text = std::to_string(wholeCount(Text2.Text.get()) - 1);
  RecordSet& entries = Data1.Recordset();
  entries.FindFirst("INDEX='" + index + "'");
  if (!entries.NoMatch()) entries.Delete();
  storeCounts("USEDINDEX='" + index + "'");
  Data1.Refresh();
  Data2.Refresh();
  Text1.Text = "";
} catch (const RuntimeFailure&) {
  // Ends silently.
}

// "Reload PhoneBook". The whole download runs within the wait.
void Form3::reload() try {
  List1.Clear();
  modem().clear();
  modem().send("AT+CPBS?");
  Label3.Caption = "Please Wait.......";
  modem().pause(1);
  Label3.Caption = "";
} catch (const RuntimeFailure&) {
  // Ends silently.
}

}  // namespace gsm
