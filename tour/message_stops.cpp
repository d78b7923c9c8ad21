#include "modem/form11.h"
#include "panel/form1.h"
#include "sms/form8.h"
#include "tour/parts.h"

namespace gsm {
namespace {

// The first hole of the card that the modem comes with is its third place.
Route received(Panel& panel, const QString& console) {
  Form1& form1 = panel.form1;
  Form8& window = panel.form8;
  Form11& picture = panel.form11;
  return {
      {"message comes in", say(console, "message +33639984477 Running late\\r\\nSee you at nine"),
       "the picture of a message is up", [&] { return picture.Visible.peek(); }},
      {"message told",
       {},
       "the picture is down and the panel tells where the message lies",
       [&] {
         return !picture.Visible.peek() && form1.Command3.BackColor.peek() != kButtonGrey &&
                window.Label4.Caption.peek().starts_with("New Message Received.3");
       }},
  };
}

Route read(Panel& panel) {
  Form8& window = panel.form8;
  return {
      {"message read", inTurn({choose(window.Combo1, 2), click(window.Command3)}),
       "the box shows who wrote it, and the text",
       [&] {
         return window.Text3.Text.peek().starts_with("From:+33639984477  ,UNREADMSG: Running late");
       }},
  };
}

Route opened(Panel& panel) {
  Form1& form1 = panel.form1;
  Form8& window = panel.form8;
  return {
      {"messages opened", click(form1.Command3),
       "their window is up in the panel's place and tells that there are no reports",
       [&] {
         return window.Visible.peek() && !form1.Visible.peek() &&
                window.Label6.Caption.peek() == "Status Report Disabled";
       }},
  };
}

Route written(Panel& panel) {
  Form1& form1 = panel.form1;
  Form8& window = panel.form8;
  return {
      {"names listed", click(window.Command6), "the names and the service centre are there",
       [&] { return window.List1.List.peek().size() >= 8 && !window.Text4.Text.peek().empty(); }},
      {"message written",
       inTurn({pick(window.List1, 1), type(window.Text5, "Fred: "),
               type(window.Text2,
                    "The train is late again, so don't wait for me with the dinner. "
                    "I'll bring the wine all the same.")}),
       "the boxes hold it, and the header takes its part of the room",
       [&] {
         return window.Text1.Text.peek() == "+33639981201" &&
                window.Text2.Text.peek().ends_with("all the same.") &&
                window.Text2.MaxLength.peek() == Form8::kMessageLength - 6;
       }},
      {"message sent", click(window.Command1), "the network has taken it",
       [&] { return window.Label4.Caption.peek().starts_with("Message Sent SuccessFully At "); }},
      {"message saved", click(window.Command2), "the card has it too",
       [&] { return window.Label4.Caption.peek() == "Message Saved"; }},
      {"reports switched on", inTurn({click(window.Option3), click(window.Command9)}),
       "the window tells so",
       [&] { return window.Label6.Caption.peek() == "Status Report Enabled"; }},
      {"messages left", close(window), "the panel is back",
       [&] { return form1.Visible.peek() && !window.isLoaded(); }},
  };
}

}  // namespace

Route messages(Panel& panel, const QString& console) {
  Route whole;
  const auto add = [&whole](const Route& part) {
    whole.insert(whole.end(), part.begin(), part.end());
  };
  if (!console.isEmpty()) add(received(panel, console));
  add(opened(panel));
  if (!console.isEmpty()) add(read(panel));
  add(written(panel));
  return whole;
}

}  // namespace gsm
