#include "panel/form1.h"
#include "security/form9.h"
#include "tour/parts.h"

namespace gsm {

Route locks(Panel& panel) {
  Form1& form1 = panel.form1;
  Form9& window = panel.form9;
  return {
      {"locks opened", click(form1.Command5), "their window tells the phone's lock",
       [&] {
         return window.Visible.peek() && !form1.Visible.peek() &&
                window.Label1.Caption.peek().empty() &&
                window.Label2.Caption.peek() == "Current Status:SIM Not Locked";
       }},
      {"phone lock opened", click(window.Command2), "what changes it is there",
       [&] { return window.Option2.Value.peek() && window.Text1.Visible.peek(); }},
      {"phone passwords opened", click(window.Option3), "their boxes are there",
       [&] { return window.Text2.Visible.peek() && window.Text3.Visible.peek(); }},
      {"phone passwords typed",
       inTurn({type(window.Text2, "12345678"), type(window.Text3, "23456789")}),
       "the boxes hold them",
       [&] {
         return window.Text2.Text.peek().size() == 8 && window.Text3.Text.peek().size() == 8;
       }},
      {"SIM PIN", turn(window.TabStrip1, 2), "its page tells that the PIN is on",
       [&] {
         return window.Frame3.Visible.peek() &&
                window.Label6.Caption.peek() == "Current Status:PIN Activated";
       }},
      {"SIM PIN opened", click(window.Command4), "what changes it is there",
       [&] { return window.Option4.Value.peek() && window.Text4.Visible.peek(); }},
      {"SIM PIN typed", inTurn({click(window.Option5), type(window.Text4, "1234")}),
       "the box holds it",
       [&] { return window.Option5.Value.peek() && window.Text4.Text.peek().size() == 4; }},
      {"SIM PIN off", click(window.Command5), "the SIM has taken it",
       [&] { return window.Label6.Caption.peek() == "Changes SuccessFul-DEACTIVATED"; }},
      {"SIM PIN on again",
       inTurn({click(window.Option4), type(window.Text4, "1234"), click(window.Command5)}),
       "the SIM has taken it",
       [&] { return window.Label6.Caption.peek() == "Changes SuccessFul-ACTIVATED"; }},
      {"network lock", turn(window.TabStrip1, 3), "its page tells that it is off",
       [&] {
         return window.Frame4.Visible.peek() &&
                window.Label10.Caption.peek() == "Current Status:NetWork UNlocked";
       }},
      {"network lock opened", click(window.Command7), "what changes it is there",
       [&] { return window.Option8.Value.peek() && window.Text7.Visible.peek(); }},
      {"network passwords opened", click(window.Option9), "their boxes are there",
       [&] { return window.Text8.Visible.peek() && window.Text9.Visible.peek(); }},
      {"locks left", close(window), "the panel is back",
       [&] { return form1.Visible.peek() && !window.isLoaded(); }},
  };
}

}  // namespace gsm
