#include "panel/form1.h"
#include "settings/form15.h"
#include "tour/parts.h"

namespace gsm {

// The rate that the port runs at is saved in the end, else nothing would be heard any more.
Route lineSettings(Panel& panel) {
  Form1& form1 = panel.form1;
  Form15& window = panel.form15;
  return {
      {"line settings", click(form1.Command11), "they are those of the modem's profile",
       [&] {
         return window.Visible.peek() && !form1.Visible.peek() &&
                window.Combo1.Text.peek() == "9600" && window.Option4.Value.peek() &&
                window.Option12.Value.peek() && window.Option15.Value.peek() &&
                window.Option19.Value.peek() && window.Option23.Value.peek() &&
                window.Option25.Value.peek();
       }},
      {"line settings filled in",
       inTurn({click(window.Option20), click(window.Option28), click(window.Option14),
               type(window.Combo1, "0")}),
       "the rate and the flow control are some that the modem lacks",
       [&] {
         return window.Combo1.Text.peek() == "96000" && window.Option14.Value.peek() &&
                window.Option20.Value.peek() && window.Option28.Value.peek();
       }},
      {"line settings begun", click(window.Command1), "they are being saved",
       [&] { return window.Label1.Caption.peek() == "Please Wait...Saving The Setting"; }},
      {"line settings refused",
       {},
       "the modem has taken the others",
       [&] {
         return window.Label1.Caption.peek() ==
                " Changes UnsuccessFul-IPR Changes UnsuccessFul-DCE-DTE Flow Control";
       }},
      {"line settings corrected", inTurn({click(window.Option15), choose(window.Combo1, 5)}),
       "the rate is the port's",
       [&] { return window.Option15.Value.peek() && window.Combo1.Text.peek() == "9600"; }},
      {"line settings saved", click(window.Command1), "the modem has taken all",
       [&] { return window.Label1.Caption.peek() == "Changes SuccessFul"; }},
      {"line settings left", close(window), "the panel is back and tells them",
       [&] {
         return form1.Visible.peek() && !window.isLoaded() &&
                form1.Label6.Caption.peek() == "Speed:9600" &&
                form1.Label7.Caption.peek() ==
                    "Character Framing:8 Data,1 Stop Parity:NoneECHO:Enable";
       }},
  };
}

}  // namespace gsm
