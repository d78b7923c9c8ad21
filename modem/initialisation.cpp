#include <array>
#include <string_view>

#include "panel/form1.h"
#include "platform/runtime_failure.h"

namespace gsm {
namespace {

// A row of the two sequences. Every command is sent and assumed to work: no reply is examined
// unless the row says so, and there is no retry.
struct Row {
  int full;     // its place in the sequence for a usable SIM
  int reduced;  // its place in the one without; 0: left out
  std::string_view command;
  bool clear;  // whether the transcript is emptied before
  std::string_view log;
  void (Form1::*afterwards)();
};

constexpr std::array kRows = {
    Row{1, 1, "AT+CMEE=0", true, "", nullptr},
    Row{2, 2, "AT+CRC=0", true, "", nullptr},
    Row{3, 0, "AT+CLIP=1", true, "", nullptr},
    Row{4, 3, "AT+WIND=0", true, "", nullptr},
    Row{5, 0, "AT+CMGF=1", true, "Setting to Text Mode", nullptr},
    Row{6, 0, "", false, "", &Form1::networkset},
    Row{7, 4, "AT+SPEAKER=1", true, "Speaker Set ", nullptr},
    Row{8, 5, "ATE1", true, "Echo Enabled", nullptr},
    Row{9, 7, "ATI0", true, "", nullptr},   // routed to ShowManufacturer
    Row{10, 8, "ATI3", true, "", nullptr},  // routed to ShowRevision
    Row{11, 6, "AT+CCED=2", true, "", nullptr},
    Row{12, 0, "ATS0?", true, "", &Form1::showAutoAnswer},
    Row{13, 9, "AT+IPR?", true, "Checking Modem Speed", &Form1::ShowModemSpeed},
    // On top of the reply to the speed query; its reader clears both.
    Row{14, 10, "AT+ICF?", false, "", &Form1::ShowCharacterFraming},
};

const Row* rowAt(int Row::*order, int place) {
  for (const Row& row : kRows) {
    if (row.*order == place) return &row;
  }
  return nullptr;
}

void runRow(Form1& form, const Row& row) {
  if (!row.command.empty()) {
    if (row.clear) form.modem.clear();
    form.modem.exchangeOnTop(row.command);
  }
  if (!row.log.empty()) form.List1.AddItem(std::string(row.log));
  if (row.afterwards != nullptr) (form.*row.afterwards)();
}

void runSequence(Form1& form, int Row::*order) {
  form.Label5.Caption = "Intializing Settings....";
  for (int place = 1; const Row* row = rowAt(order, place); ++place) runRow(form, *row);
}

}  // namespace

void Form1::InitialiseModem() try {
  runSequence(*this, &Row::full);
} catch (const RuntimeFailure&) {
  // Ends silently.
}

void Form1::InitialiseModemNoSim() try {
  runSequence(*this, &Row::reduced);
} catch (const RuntimeFailure&) {
  // Ends silently.
}

}  // namespace gsm
