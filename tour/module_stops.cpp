#include "module/form16.h"
#include "module/form18.h"
#include "module/form19.h"
#include "tour/parts.h"

namespace gsm {

Route toolkit(Panel& panel) {
  Form16& menu = panel.form16;
  Form18& window = panel.form18;
  return {
      {"toolkit", click(menu.Command2), "its window tells the mode",
       [&] {
         return window.Visible.peek() && !menu.Visible.peek() && window.Label2.Visible.peek() &&
                window.Label2.Caption.peek() ==
                    "Current Status: Mode:  DeActivate SIM ToolKit Functionalities";
       }},
      {"configuration opened", choose(window.Combo1, 2), "the box for it is there",
       [&] { return window.Text1.Visible.peek() && window.Label5.Visible.peek(); }},
      {"configuration typed", type(window.Text1, "160060C01F"), "the box holds it",
       [&] { return window.Text1.Text.peek() == "160060C01F"; }},
      {"configuration sent", click(window.Command1), "the modem wants a reset",
       [&] {
         return window.Label2.Caption.peek() == "Changes SuccessFul-SIM ToolKit" &&
                window.Label6.Visible.peek() && !window.Text1.Visible.peek();
       }},
      {"toolkit read again", click(window.Command2), "the status is back",
       [&] {
         return window.Label2.Caption.peek().starts_with("Current Status: ") &&
                !window.Label6.Visible.peek();
       }},
      {"toolkit left", close(window), "the menu is back",
       [&] { return menu.Visible.peek() && !window.isLoaded(); }},
  };
}

Route contexts(Panel& panel) {
  Form16& menu = panel.form16;
  Form19& window = panel.form19;
  return {
      {"contexts", click(menu.Command3), "their window is up and has read",
       [&] { return window.Visible.peek() && !menu.Visible.peek(); }},
      {"context filled in",
       inTurn({choose(window.Combo1, 2), choose(window.Combo2, 1), type(window.Text1, "intranet")}),
       "number, type and name are given",
       [&] {
         return window.Combo1.Text.peek() == "3" && window.Combo2.Text.peek() == "PPP" &&
                window.Text1.Text.peek() == "intranet";
       }},
      {"context defined", click(window.Command1),
       "its row has it, and the others keep their places",
       [&] {
         return window.Label1.Caption.peek() == "Current Status" &&
                window.Text8.Text.peek() == "3" && window.Text9.Text.peek() == "PPP" &&
                window.Text10.Text.peek() == "intranet" && !window.Text11.Visible.peek();
       }},
      {"contexts left", close(window), "the menu is back",
       [&] { return menu.Visible.peek() && !window.isLoaded(); }},
  };
}

}  // namespace gsm
