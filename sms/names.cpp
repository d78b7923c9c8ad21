#include "link/conversation.h"
#include "platform/message_boxes.h"
#include "platform/platform.h"
#include "platform/runtime_failure.h"
#include "sms/form8.h"

namespace gsm {

// "PhoneBook". The reply about the service centre is routed to its own reader during the wait.
void Form8::listNames() try {
  Data1.Refresh();
  // For the next refresh: this list is read from the record set that is open by now.
  Data1.RecordSource = "select name from data";
  RecordSet& entries = Data1.Recordset();
  if (entries.isEof() || entries.isBof()) {
    platform().boxes.show("Empty !No Numbers Stored", "GSM");
    List1.Visible = false;
    return;
  }
  List1.Visible = true;
  List1.Clear();
  for (entries.MoveFirst(); !entries.isEof(); entries.MoveNext()) {
    List1.AddItem(entries.field("name"));
  }
  modem().exchange("AT+CSCA?");
  Label3.Visible = true;
  Text4.Visible = true;
} catch (const RuntimeFailure&) {
  // Ends silently.
}

void Form8::pickName() try {
  Data1.RecordSource = "select * from data";
  const int selected = List1.ListIndex;
  const std::string name =
      selected < 0 ? std::string() : List1.List.get()[static_cast<std::size_t>(selected)];
  Data1.Refresh();
  RecordSet& entries = Data1.Recordset();
  entries.FindFirst("name = '" + name + " ' ");
  if (!entries.NoMatch()) Text1.Text = entries.field("number");
} catch (const RuntimeFailure&) {
  // Ends silently.
}

}  // namespace gsm
