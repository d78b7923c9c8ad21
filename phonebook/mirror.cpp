#include "panel/form1.h"
#include "panel/panel.h"
#include "phonebook/form3.h"
#include "platform/files.h"
#include "platform/platform.h"
#include "platform/runtime_failure.h"

namespace gsm {
namespace {

// +CPBR: 12,"112",129,"Emergency"
void saveEntry(Conversation& modem, Form3& calls, int location) {
  const std::string index = std::to_string(location);
  modem.exchangeOnTop("AT+CPBR=" + index);
  const Position comma = modem.position(",");
  if (comma != 0) {
    const std::string entry = modem.slice(comma + 1, 35);
    const Position numberEnd = position(",", entry);
    const std::string number = slice(entry, 2, numberEnd - 3);
    if (!number.empty()) {
      // From the last digit of the number's type on.
      const std::string tail = slice(entry, numberEnd + 3, static_cast<int>(entry.size()) - 16);
      const std::string name = before("\"", slice(tail, position(",", tail) + 2, 14));
      calls.addRow(index, number, name);
      calls.storeEntry(index, number, name);
    }
  }
  modem.clear();
}

}  // namespace

void Form1::SavePhoneBook() try {
  Form3& calls = panel_.form3;
  Label5.Caption = "Saving Phone Book...Please Wait";
  auto book = platform().database.OpenDatabase(platform().files.path("phonebook.mdb"));
  book->Execute("delete from data");
  book->Execute("delete from details");
  book.reset();

  // +CPBS: "SM",8,10
  const std::string behindUsed = modem.slice(modem.position("SM") + 4, 4);
  const std::string used = before(",", behindUsed);
  const std::string counts = modem.slice(modem.position(",") + 1, 8);
  const std::string total = slice(counts, position(",", counts) + 1, 3);
  calls.Text2.Text = used;
  calls.Text4.Text = total;

  calls.Data2.Refresh();
  RecordSet& details = calls.Data2.Recordset();
  details.AddNew();
  details.setField("TotalIndex", total);
  details.setField("UsedIndex", used);
  details.Update();
  modem.clear();

  // Locations 1 to the used count: entries after a hole may lie above, and stay unread.
  const int last = wholeNumber(used);
  for (int location = 1; location <= last; ++location) saveEntry(modem, calls, location);
  calls.Data1.Refresh();
  calls.Data2.Refresh();
  calls.Show();
} catch (const RuntimeFailure&) {
  // Ends silently.
}

}  // namespace gsm
