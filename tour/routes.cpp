#include "tour/routes.h"

#include <string>

#include "modem/form10.h"
#include "modem/form2.h"
#include "panel/form1.h"
#include "panel/form7.h"
#include "phonebook/form3.h"
#include "phonebook/form4.h"
#include "phonebook/form5.h"
#include "startup/frm_settings.h"
#include "tour/parts.h"

namespace gsm {
namespace {

bool isUnlocked(const Form1& form1) {
  return form1.Label1.Caption.peek() == "Open" && form1.Command3.Enabled.peek();
}

Route startUp(Panel& panel) {
  Form1& form1 = panel.form1;
  return {{"start-up", {}, "the port is open and the panel's buttons work", [&] {
             return isUnlocked(form1);
           }}};
}

Route signal(Panel& panel) {
  Form1& form1 = panel.form1;
  Form7& form7 = panel.form7;
  return {
      {"signal asked for", click(form1.Label8), "the status window is up and empty",
       [&] { return form7.Visible.peek() && form7.Label5.Caption.peek().empty(); }},
      {"signal shown",
       {},
       "the status window tells signal and registration",
       [&] {
         return !form7.Label4.Caption.peek().empty() && !form7.Label5.Caption.peek().empty();
       }},
  };
}

Route details(Panel& panel) {
  Form1& form1 = panel.form1;
  Form2& form2 = panel.form2;
  return {
      {"details opened", click(form1.Command1), "the details window is up in the panel's place",
       [&] { return form2.Visible.peek() && !form1.Visible.peek(); }},
      {"details closed", close(form2), "the panel is back",
       [&] { return form1.Visible.peek() && !form2.isLoaded(); }},
      {"details opened again", click(form1.Command1), "the details window has lost its texts",
       [&] { return form2.Visible.peek() && form2.Label6.Caption.peek().empty(); }},
      {"details viewed", click(form2.Command1), "they are back from the saved file",
       [&] {
         return !form2.Label3.Caption.peek().empty() && !form2.Label6.Caption.peek().empty();
       }},
      {"details left", close(form2), "the panel is back", [&] { return form1.Visible.peek(); }},
  };
}

Route phoneBook(Panel& panel) {
  Form1& form1 = panel.form1;
  Form3& calls = panel.form3;
  return {
      {"phone book", click(form1.Command2), "the call window lists the SIM's phone book",
       [&] {
         return calls.Visible.peek() && calls.List1.List.peek().size() >= 8 &&
                form1.Text1.Text.peek().empty();
       }},
  };
}

// Not after a call, whose watch writes its words over those of the new entry.
Route newEntry(Panel& panel) {
  Form3& calls = panel.form3;
  Form4& entry = panel.form4;
  return {
      {"new entry", click(calls.Command2), "its window is up in the call window's place",
       [&] { return entry.Visible.peek() && !calls.Visible.peek(); }},
      {"number typed", type(entry.Text3, "0146290800"), "the box holds it",
       [&] { return entry.Text3.Text.peek() == "0146290800"; }},
      {"name typed", type(entry.Text4, "Fred"), "the box holds it",
       [&] { return entry.Text4.Text.peek() == "Fred"; }},
      {"entry added", click(entry.Command1), "the list has it",
       [&] { return calls.Label3.Caption.peek() == "New Entry  0146290800"; }},
  };
}

Route call(Panel& panel) {
  Form3& calls = panel.form3;
  return {
      {"number picked", pick(calls.List1, 1), "its number stands in the dial box",
       [&] { return !calls.Text1.Text.peek().empty(); }},
      {"call placed", click(calls.Command1), "the other side answers",
       [&] { return calls.Label3.Caption.peek().starts_with("Connected SuccessFully-"); }},
      {"call ended", click(calls.Command4), "the dial box is empty again",
       [&] { return calls.Label3.Caption.peek() == "DisConnected "; }},
  };
}

// The caller is the entry that has just been added.
Route incomingCall(Panel& panel, const QString& console) {
  Form1& form1 = panel.form1;
  Form5& prompt = panel.form5;
  return {
      {"somebody calls", say(console, "ring 0146290800"), "the prompt tells the caller's name",
       [&] { return prompt.Label1.Caption.peek() == "Call Received From  FRED"; }},
      {"call taken", click(prompt.Command1), "the prompt stays while the call is up",
       [&] { return prompt.Visible.peek() && form1.Text1.Text.peek().empty(); }},
      {"caller hung up on", click(prompt.Command2), "the prompt is down",
       [&] { return !prompt.Visible.peek(); }},
  };
}

Route callsLeft(Panel& panel) {
  Form3& calls = panel.form3;
  return {
      {"calls left", close(calls), "the call window is gone", [&] { return !calls.isLoaded(); }},
  };
}

Route portSettings(Panel& panel) {
  Form1& form1 = panel.form1;
  frmSettings& settings = panel.settings;
  return {
      {"port settings", click(form1.Command7), "the port settings list the ports",
       [&] { return settings.isLoaded() && settings.cmdAction[0].Enabled.peek(); }},
      {"port settings left", close(settings), "the port stays closed",
       [&] { return !settings.isLoaded() && !form1.MSComm1.PortOpen; }},
  };
}

Route simCode(Panel& panel) {
  Form1& form1 = panel.form1;
  Form10& prompt = panel.form10;
  return {
      {"code asked for",
       {},
       "the prompt for the SIM's code is up",
       [&] { return prompt.Visible.peek() && prompt.Text1.Visible.peek(); }},
      {"code typed", type(prompt.Text1, "1234"), "the box holds it",
       [&] { return prompt.Text1.Text.peek().size() == 4; }},
      {"code sent", click(prompt.Command1), "the SIM takes it and the panel's buttons work",
       [&] { return !prompt.Visible.peek() && isUnlocked(form1); }},
  };
}

Route joined(std::initializer_list<Route> parts) {
  Route whole;
  for (const Route& part : parts) whole.insert(whole.end(), part.begin(), part.end());
  return whole;
}

}  // namespace

std::optional<Route> routeOf(const QString& name, Panel& panel, const QString& console) {
  if (name == "panel") {
    return joined({startUp(panel), signal(panel), details(panel), phoneBook(panel), newEntry(panel),
                   call(panel), console.isEmpty() ? Route{} : incomingCall(panel, console),
                   callsLeft(panel), portSettings(panel)});
  }
  if (name == "pin") return simCode(panel);
  if (name == "services") {
    return joined({simCode(panel), phoneBook(panel), callsLeft(panel), messages(panel, console),
                   services(panel), locks(panel), audio(panel)});
  }
  if (name == "features") {
    return joined({startUp(panel), lineSettings(panel), data(panel),
                   features(panel, {makersFeatures(panel), toolkit(panel), contexts(panel)})});
  }
  return std::nullopt;
}

}  // namespace gsm
