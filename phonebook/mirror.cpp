#include "panel/form1.h"
#include "panel/panel.h"
#include "phonebook/form3.h"
#include "platform/runtime_failure.h"

namespace gsm {

void Form1::SavePhoneBook() try {
  Form3& calls = panel_.form3;
  Label5.Caption = "Saving Phone Book...Please Wait";
  auto book = platform().database.OpenDatabase(platform().files.path("phonebook.mdb"));
  book->Execute("delete from data");
  book->Execute("delete from details");
  book.reset();

  // +CPBS: "SM",8,10
  const std::string behindUsed = Text1.slice(Text1.position("SM") + 4, 4);
  const std::string used = before(",", behindUsed);
  const std::string counts = Text1.slice(Text1.position(",") + 1, 8);
  const std::string total = slice(counts, position(",", counts) + 1, 3);
  calls.Text2.Text = used;
  calls.Text4.Text = total;

  calls.Data2.Refresh();
  RecordSet& details = calls.Data2.Recordset();
  details.AddNew();
  details.setField("TotalIndex", total);
  details.setField("UsedIndex", used);
  details.Update();
  Text1.clear();

  // Locations 1 to the used count: entries behind a hole may lie above, and stay unread.
  const int last = wholeNumber(used);
  for (int location = 1; location <= last; ++location) saveEntry(location);
  calls.Data1.Refresh();
  calls.Data2.Refresh();
  calls.Show();
} catch (const RuntimeFailure&) {
  // Ends silently.
}

// +CPBR: 12,"112",129,"Emergency"
void Form1::saveEntry(int location) {
  const std::string index = std::to_string(location);
  exchangeOnTop("AT+CPBR=" + index);
  const Position comma = Text1.position(",");
  if (comma != 0) {
    const std::string entry = Text1.slice(comma + 1, 35);
    const Position numberEnd = position(",", entry);
    const std::string number = slice(entry, 2, numberEnd - 3);
    if (!number.empty()) {
      // From the last digit of the number's type on.
      const std::string tail = slice(entry, numberEnd + 3, static_cast<int>(entry.size()) - 16);
      const std::string name = before("\"", slice(tail, position(",", tail) + 2, 14));
      panel_.form3.addRow(index, number, name);
      panel_.form3.storeEntry(index, number, name);
    }
  }
  Text1.clear();
}

}  // namespace gsm
