#include "modem/form11.h"
#include "panel/form1.h"
#include "panel/panel.h"
#include "phonebook/form3.h"
#include "phonebook/form5.h"
#include "sms/form8.h"

namespace gsm {
namespace {

constexpr int kNewsColour = 0xC0C0FF;  // a light red

// +CLIP: "0146290800",129 - the number lies between the key's quote and the transcript's first
// comma, so a comma further ahead gives a negative length.
std::string callerNumber(const Conversation& modem, Position key) {
  return modem.slice(key + 8, modem.position(",") - key - 9);
}

std::string lastCharacters(const std::string& text, std::size_t count) {
  return text.size() <= count ? text : text.substr(text.size() - count);
}

// The entry of the mirror with that number, or null.
RecordSet* findCaller(Panel& panel, const std::string& number) {
  DataControl& mirror = panel.form3.Data1;
  mirror.Refresh();
  RecordSet& entries = mirror.Recordset();
  // The blank before the closing quote belongs to the criterion.
  entries.FindFirst("right(number,10) = '" + lastCharacters(number, 10) + " '");
  return entries.NoMatch() ? nullptr : &entries;
}

}  // namespace

// CMTI: "SM",3
void Form1::tellOfMessage(Position key) {
  panel_.form11.Show();
  modem.pause(3);
  Command3.BackColor = kNewsColour;
  panel_.form11.Hide();
  // Two characters, so a letter counts only at the very end of the transcript.
  std::string index = modem.slice(key + 11, 2);
  if (index == "A") index = "10";
  if (index == "B") index = "11";
  if (index == "C") index = "12";
  panel_.form8.Label4.Caption = "New Message Received." + index;
}

// +CCWA: "0146290800",145,1
void Form1::tellOfWaitingCall(Position key) {
  const std::string number = callerNumber(modem, key);
  RecordSet* const caller = findCaller(panel_, number);
  // Unlike at a ring, the prompt is up before the name is read, even where it can't be.
  panel_.form5.Show();
  panel_.form5.Label1.Caption =
      caller == nullptr ? "Call Waiting-  " + number : "Call Waiting- " + caller->field("name");
}

void Form1::tellOfNoAnswer(Position) { panel_.form3.Label3.Caption = "No Answer.Plz Disconnect"; }

void Form1::tellOfNoCarrier(Position) {
  panel_.form3.Label3.Caption = "No Carrier.Plz Disconnect";
  panel_.form5.Hide();
}

void Form1::tellOfBusy(Position) { panel_.form3.Label3.Caption = "Busy.Plz Disconnect"; }

// A ring without a number opens no prompt, but starts the poll all the same.
void Form1::tellOfRing(Position) {
  const Position clip = modem.position("+CLIP:");
  if (clip != 0) {
    const std::string number = callerNumber(modem, clip);
    RecordSet* const caller = findCaller(panel_, number);
    const std::string words = caller == nullptr ? "Call Received-  " + number
                                                : "Call Received From  " + caller->field("name");
    panel_.form5.Show();
    panel_.form5.Label1.Caption = words;
  }
  Timer2.Enabled = true;
}

// The time stamp of a status report is read and goes nowhere.
void Form1::readStatusReport(Position key) {
  const std::string report = modem.slice(key + 6, 25);
  const std::string stamp = gsm::slice(report, position("\"", report) + 1, 20);
  before("\"", stamp);
}

}  // namespace gsm
