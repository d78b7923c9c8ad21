#include "panel/form1.h"
#include "settings/form14.h"
#include "tour/parts.h"

namespace gsm {

Route data(Panel& panel) {
  Form1& form1 = panel.form1;
  Form14& window = panel.form14;
  return {
      {"data opened", click(form1.Command10), "their window tells the bearer",
       [&] {
         return window.Visible.peek() && !form1.Visible.peek() &&
                window.Label1.Caption.peek() == "Speed:0-DeFault  CE:1 Default";
       }},
      {"bearer chosen", inTurn({choose(window.Combo1, 15), choose(window.Combo2, 3)}),
       "the drop-downs hold it",
       [&] {
         return window.Combo1.Text.peek() == "71 9600bps" &&
                window.Combo2.Text.peek() == "3 Non Transparent Preferred";
       }},
      {"bearer set", click(window.Command6), "the modem has taken it",
       [&] { return window.Label1.Caption.peek() == "Changes SuccessFul"; }},
      {"bearer read again", click(window.Command1), "the new one is told",
       [&] {
         return window.Label1.Caption.peek() == "Speed:71 9600bps  CE:3 NonTransparent Preferred";
       }},
      {"compression", click(window.Command2), "its page tells both modes",
       [&] {
         return window.Frame2.Visible.peek() &&
                window.Label4.Caption.peek().starts_with("Compression ") &&
                window.Label4.Caption.peek().find("Error Correction ") != std::string::npos;
       }},
      {"compression set", inTurn({choose(window.Combo3, 0), click(window.Command7)}),
       "the modem has taken it",
       [&] { return window.Label4.Caption.peek() == "Changes SuccessFul-Compression"; }},
      {"error correction set", inTurn({choose(window.Combo4, 1), click(window.Command8)}),
       "the modem has taken it",
       [&] { return window.Label4.Caption.peek() == "Changes SuccessFul-Error Correction"; }},
      {"fax", click(window.Command3), "its page is up and has read",
       [&] {
         return window.Frame3.Visible.peek() && !window.Label5.Caption.peek().empty() &&
                form1.Text1.Text.peek().empty();
       }},
      {"fax class set", inTurn({choose(window.Combo5, 1), click(window.Command4)}),
       "the modem has taken it",
       [&] { return window.Label5.Caption.peek() == "Changes SuccessFul-FCLASS"; }},
      {"fax speed typed", inTurn({type(window.Combo6, "96"), click(window.Command5)}),
       "there is no fax call, so the modem refuses it",
       [&] { return window.Label5.Caption.peek() == "Changes UnsuccessFul"; }},
      {"data left", close(window), "the panel is back",
       [&] { return form1.Visible.peek() && !window.isLoaded(); }},
  };
}

}  // namespace gsm
