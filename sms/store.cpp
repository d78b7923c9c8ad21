#include <algorithm>
#include <array>

#include "link/conversation.h"
#include "platform/runtime_failure.h"
#include "sms/form8.h"

namespace gsm {
namespace {

/// What the status word of a store entry says about the rest of its reply.
struct EntryStatus {
  std::string_view word;
  int toAddress;            // from the word's first letter
  std::string_view behind;  // stands after the address
  int aroundNumber;         // from there back to the number's end, and the quote before it
  std::string_view kind;    // what is shown of it
  bool isShown = true;
};

/// In the order in which they are looked for: the first one that stands anywhere decides.
///
///     +CMGR: "STO UNSENT","+33146290800",
///     +CMGR: "REC READ","0146290800",,"98/10/01,18:22:11+00"
constexpr std::array kStatuses = {
    // One character too far, so that the piece misses the number's first digit.
    EntryStatus{"STO SENT", 11, "\r", 4, "  ,SENTMSG: ", /*isShown=*/false},
    EntryStatus{"STO UNSENT", 12, "\r", 4, "  ,UNSENTMSG: "},
    EntryStatus{"REC READ", 10, ",,", 3, "  ,READMSG: "},
    EntryStatus{"REC UNREAD", 12, ",,", 3, "  ,UNREADMSG: "},
};

}  // namespace

// "Read".
void Form8::readEntry() try {
  Text3.Text = "";
  Label4.Caption = "";
  ReadMessageEntry(Combo1, Text3, Shown::senderAndText);
} catch (const RuntimeFailure&) {
  // Ends silently.
}

// The number stays as it is, so that a message can be sent on to another one.
void Form8::loadEntry() try {
  Text2.Text = "";
  ReadMessageEntry(Combo2, Text2, Shown::text);
} catch (const RuntimeFailure&) {
  // Ends silently.
}

// Reads the store's entry at `index` into `target`.
void Form8::ReadMessageEntry(const ComboBox& index, TextBox& target, Shown shown) {
  modem().exchange("AT+CMGR= " + index.Text);
  if (modem().holds("ERROR")) target.Text = "No Message";
  const auto status =
      modem().holds("+CMGR:")
          ? std::find_if(kStatuses.begin(), kStatuses.end(),
                         [this](const EntryStatus& each) { return modem().holds(each.word); })
          : kStatuses.end();
  if (status != kStatuses.end()) {
    const Position start = modem().position(status->word) + status->toAddress;
    const Position ok = modem().position("OK");
    const std::string entry = modem().slice(start, status->isShown ? ok - start : ok);
    const std::string address =
        slice(entry, 2, position(status->behind, entry) - status->aroundNumber);
    if (!status->isShown) {
      // A sent message must have a number, and shows nothing.
      static_cast<void>(number(address));
    } else {
      // More than there is left, so the line ends before the result belong to it.
      const std::string body = slice(entry, position("\r", entry) + 2, ok - 4);
      target.Text =
          shown == Shown::text ? body : "From:" + address + std::string(status->kind) + body;
    }
  }
  modem().clear();
}

// "Delete". The reply isn't looked at.
void Form8::deleteEntry() try {
  Text3.Text = "";
  modem().exchange("AT+CMGD=" + Combo1.Text);
  Text3.Text = "Message Deleted";
  modem().clear();
} catch (const RuntimeFailure&) {
  // Ends silently.
}

}  // namespace gsm
