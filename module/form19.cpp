#include "module/form19.h"

#include <array>
#include <string_view>

#include "link/conversation.h"
#include "module/form16.h"
#include "panel/panel.h"
#include "platform/message_boxes.h"
#include "platform/platform.h"
#include "platform/runtime_failure.h"

namespace gsm {
namespace {

// A context's boxes in the grid: its number, its type, its access point's name.
struct ContextRow {
  std::string_view number;
  TextBox Form19::*numberBox;
  TextBox Form19::*typeBox;
  TextBox Form19::*nameBox;
};
constexpr std::array kRows = {
    ContextRow{"1", &Form19::Text2, &Form19::Text3, &Form19::Text4},
    ContextRow{"2", &Form19::Text5, &Form19::Text6, &Form19::Text7},
    ContextRow{"3", &Form19::Text8, &Form19::Text9, &Form19::Text10},
    ContextRow{"4", &Form19::Text11, &Form19::Text12, &Form19::Text13},
};

constexpr std::string_view kIp = "IP";
constexpr std::string_view kPpp = "PPP";

struct Context {
  std::string number;
  std::string type;
  std::string name;
};

// The line of the context at `place` in `reply`, up to the empty field behind the name. For the
// first context that is looked for in the whole reply, for the others between their line and "OK".
// `invalidArgument` when it isn't where it is looked for.
std::string lineOf(const ContextRow& row, Position place, const std::string& reply) {
  constexpr std::string_view kEmptyField = ",,";
  if (&row == &kRows.front()) return slice(reply, place, position(kEmptyField, reply) - place);
  return before(kEmptyField, slice(reply, place, position("OK", reply) - place));
}

// What the line tells: nothing without a type. The later of two types counts, and the letters of
// one in a name are one.
Context contextIn(const std::string& line, const ContextRow& row) {
  Context context;
  const auto length = static_cast<Position>(line.size());
  for (const std::string_view type : {kPpp, kIp}) {
    const Position place = position(type, line);
    if (place == 0) continue;
    // The closing quote, a comma, the name's quotes.
    const Position name = place + static_cast<Position>(type.size()) + 3;
    context = {std::string(row.number), std::string(type), slice(line, name, length - name)};
  }
  return context;
}

}  // namespace

Form19::Form19(Panel& panel) : ModuleWindow(panel, "Form19", "GSM-GPRS SETTINGS") {
  Command1.Click = [this] { defineContext(); };
  Command2.Click = [this] { refresh(); };
}

void Form19::Form_Load() try {
  Label1.Caption = "";
  Combo1.Clear();
  Combo2.Clear();
  for (const ContextRow& row : kRows) Combo1.AddItem(std::string(row.number));
  for (const std::string_view type : {kIp, kPpp}) Combo2.AddItem(std::string(type));
  modem().exchange("AT+CGDCONT?");
  const std::string reply = modem().text();
  if (position("+CGDCONT:", reply) != 0) {
    for (const ContextRow& row : kRows) {
      const Position place = position("+CGDCONT: " + std::string(row.number), reply);
      if (place == 0) continue;
      // The line is cut out of the transcript as it is by then: a reference to a window that was
      // closed meanwhile loads it, and its own reading leaves nothing for the contexts to come.
      const Context context = contextIn(lineOf(row, place, modem().text()), row);
      for (const auto box : {row.numberBox, row.typeBox, row.nameBox}) (this->*box).Visible = true;
      (this->*row.numberBox).Text = context.number;
      (this->*row.typeBox).Text = context.type;
      (this->*row.nameBox).Text = context.name;
    }
    Label1.Caption = "Current Status";
    showHeadings(true);
  }
  if (position("ERROR", reply) != 0) {
    Label1.Caption = "Current Status Not Avialable";
    ClearContextGrid();
  }
  modem().clear();
} catch (const RuntimeFailure&) {
  // Ends silently.
}

void Form19::ClearContextGrid() {
  showHeadings(false);
  for (const ContextRow& row : kRows) {
    for (const auto box : {row.numberBox, row.typeBox, row.nameBox}) (this->*box).Visible = false;
  }
  for (const ContextRow& row : kRows) {
    for (const auto box : {row.numberBox, row.typeBox, row.nameBox}) (this->*box).Text = "";
  }
}

void Form19::showHeadings(bool visible) {
  for (Label* heading : {&Label2, &Label6, &Label7}) heading->Visible = visible;
}

// The contexts are read anew in every case, and that takes the words of the change off the status
// line.
void Form19::defineContext() try {
  if (Combo1.Text.empty() || Combo2.Text.empty() || Text1.Text.empty()) {
    platform().boxes.show("Please Enter Proper Data", "GSM");
  } else {
    Label1.Caption = "";
    modem().exchange("AT+CGDCONT=" + Combo1.Text + ",\"" + Combo2.Text + "\",\"" + Text1.Text +
                     "\"");
    const Outcome outcome =
        modem().report(Label1, {.ok = "Changes SuccessFul-GPRS", .error = "Changes UnsuccessFul"});
    if (outcome == Outcome::ok) Text1.Text = "";
    modem().clear();
  }
  refresh();
} catch (const RuntimeFailure&) {
  // Ends silently.
}

void Form19::refresh() {
  ClearContextGrid();
  Form_Load();
}

void Form19::Form_Unload() {
  ClearContextGrid();
  panel_.form16.Show();
  Hide();
}

}  // namespace gsm
