#include "panel/form1.h"
#include "services/form12.h"
#include "tour/parts.h"

namespace gsm {

// The window loads for eighteen seconds, six questions of three.
Route services(Panel& panel) {
  Form1& form1 = panel.form1;
  Form12& window = panel.form12;
  return {
      {"services opened", click(form1.Command4), "their window is up and reads",
       [&] {
         return window.Visible.peek() && !form1.Visible.peek() &&
                window.Label2.Caption.peek() == "Checking Current Status...";
       }},
      {"forwarding read",
       {},
       "the six reasons have been asked about",
       [&] {
         return window.Label2.Caption.peek().empty() && !window.Label16.Caption.peek().empty();
       }},
      {"forwarding filled in",
       inTurn({click(window.Option1), click(window.Option7), click(window.Option12),
               type(window.Text1, "+33639981201")}),
       "reason, mode, class and number are given",
       [&] {
         return window.Option1.Value.peek() && window.Option7.Value.peek() &&
                window.Option12.Value.peek() && window.Text1.Text.peek() == "+33639981201";
       }},
      {"forwarding registered", click(window.Command1), "the network has taken it",
       [&] { return window.Label2.Caption.peek() == "Changes SuccessFul"; }},
      {"forwarding read again", click(window.Command2), "the first reason tells the number",
       [&] {
         return window.Label2.Caption.peek().empty() &&
                window.Label11.Caption.peek() ==
                    "UNCONDITIONAL-Call Forward  Active For Voice +33639981201";
       }},
      {"barring", turn(window.TabStrip1, 2), "nothing is barred",
       [&] {
         return window.Command4.Enabled.peek() &&
                window.Label3.Caption.peek().starts_with("OutGoing Calls Not Barred");
       }},
      {"bar opened", click(window.Command4), "the page of the change is up",
       [&] { return window.Frame5.Visible.peek(); }},
      {"bar filled in",
       inTurn({click(window.Option17), click(window.Option23), click(window.Option26),
               type(window.Text2, "0000")}),
       "facility, mode, class and password are given",
       [&] { return window.Option26.Value.peek() && window.Text2.Text.peek().size() == 4; }},
      {"faxes barred", click(window.Command3), "the network has taken it",
       [&] { return window.Label5.Caption.peek() == "Changes SuccessFully"; }},
      {"waiting", turn(window.TabStrip1, 3), "callers wait",
       [&] { return window.Label6.Caption.peek() == "Current Status:Call Waiting Enabled"; }},
      {"waiting opened", click(window.Command5), "its options are up",
       [&] { return window.Frame11.Visible.peek() && window.Command6.Visible.peek(); }},
      {"waiting switched off", inTurn({click(window.Option30), click(window.Command6)}),
       "the network has taken it",
       [&] { return window.Label6.Caption.peek() == "Changes SuccessFul"; }},
      {"user group", turn(window.TabStrip1, 4), "there is none",
       [&] {
         return window.Label7.Caption.peek().starts_with("Current Status: CUG Mode Disabled");
       }},
      {"user group changed",
       inTurn({choose(window.Combo1, 1), choose(window.Combo2, 10), choose(window.Combo3, 3)}),
       "its values are chosen",
       [&] { return window.Combo3.Text.peek() == "Supress OA and Prefer.CUG"; }},
      {"user group sent", click(window.Command7), "the modem has taken them",
       [&] { return window.Label7.Caption.peek() == "Changes SuccessFul"; }},
      {"services left", close(window), "the panel is back",
       [&] { return form1.Visible.peek() && !window.isLoaded(); }},
  };
}

}  // namespace gsm
