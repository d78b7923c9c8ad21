#include "phonebook/form4.h"

#include "panel/form1.h"
#include "panel/panel.h"
#include "phonebook/form3.h"
#include "platform/message_boxes.h"
#include "platform/platform.h"
#include "platform/runtime_failure.h"

namespace gsm {

Form4::Form4(Panel& panel)
    : Window(panel.platform, "Form4", {.Caption = "GSM-Add NUmbers To PhoneBook", .Asks = true}),
      panel_(panel) {
  Command1.Click = [this] { addEntry(); };
  Command2.Click = [this] { returnToCalls(); };
}

void Form4::Form_Load() {
  for (TextBox* box : {&Text1, &Text2, &Text3, &Text4}) box->Text = "";
}

void Form4::returnToCalls() {
  panel_.form3.Show();
  panel_.form3.Visible = true;
  Hide();
}

void Form4::addEntry() try {
  if (Text3.Text.empty() || Text4.Text.empty()) {
    platform().boxes.show("Please Enter Valid Number/Name", "GSM");
    returnToCalls();
    return;
  }
  Form3& calls = panel_.form3;
  const std::int64_t used = wholeCount(calls.Text2.Text.get());
  if (used >= wholeCount(calls.Text4.Text.get())) {
    platform().boxes.show("Address Book full", "GSM");
    returnToCalls();
    return;
  }
  // A count plus one, not a search for a free location: after a deletion in the middle the last
  // entry is written over.
  const std::int64_t location = used + 1;
  const std::string phone = Text1.Text + Text2.Text.get() + Text3.Text.get();
  Form1& form1 = panel_.form1;
  form1.modem.exchange("AT+CPBW=" + std::to_string(location) + "," + phone + ",,\" " +
                       Text4.Text.get() + "\"");
  // The position as a text is never empty ("0" where there is no "OK"), so every reply passes.
  const std::string okPosition = std::to_string(form1.modem.position("OK"));
  if (!okPosition.empty()) {
    recordEntry(location, phone);
  } else {
    platform().boxes.show("Error Occurred.Cannot Add", "GSM");
    returnToCalls();
  }
} catch (const RuntimeFailure&) {
  // Ends silently.
}

void Form4::recordEntry(std::int64_t location, const std::string& phone) {
  Form3& calls = panel_.form3;
  const std::string index = std::to_string(location);
  const std::string name = upperCase(Text4.Text.get());
  calls.addRow(index, phone, name);
  calls.Visible = true;
  calls.Text2.Text = index;
  calls.storeEntry(index, phone, name);
  calls.storeCounts("UsedIndex='" + std::to_string(location - 1) + "'");
  calls.Label3.Caption = "New Entry  " + phone;
  calls.Data1.Refresh();
  calls.Show();
  Hide();
}

}  // namespace gsm
