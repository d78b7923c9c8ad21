#include "module/form16.h"
#include "module/form17.h"
#include "panel/form1.h"
#include "tour/parts.h"

namespace gsm {

Route features(Panel& panel, const std::vector<Route>& parts) {
  Form1& form1 = panel.form1;
  Form16& menu = panel.form16;
  Route whole = {
      {"features opened", click(form1.Command12), "their menu is up",
       [&] { return menu.Visible.peek() && !form1.Visible.peek(); }},
  };
  for (const Route& part : parts) whole.insert(whole.end(), part.begin(), part.end());
  whole.push_back({"features left", close(menu), "the panel is back",
                   [&] { return form1.Visible.peek() && !menu.isLoaded(); }});
  return whole;
}

// The dumps that come by themselves are stopped again, since nothing reads them.
Route makersFeatures(Panel& panel) {
  Form1& form1 = panel.form1;
  Form16& menu = panel.form16;
  Form17& window = panel.form17;
  return {
      {"indications", click(menu.Command1), "their window tells the indicators",
       [&] {
         return window.Visible.peek() && !menu.Visible.peek() &&
                window.Label14.Caption.peek().starts_with("BatteryChargeLevel->");
       }},
      {"dump chosen", inTurn({choose(window.Combo1, 1), choose(window.Combo2, 1)}),
       "its mode and its cells are given",
       [&] {
         return window.Combo1.Text.peek() == "Automatic Shot Request" &&
                window.Combo2.Text.peek() == "Neighbour1-Neighbour2";
       }},
      {"dump asked for", click(window.Command7), "the modem has taken it",
       [&] { return window.Label1.Caption.peek() == "Changes SuccessFul-CCED"; }},
      {"dumps stopped", inTurn({choose(window.Combo1, 2), click(window.Command7)}),
       "the modem has taken it",
       [&] {
         return window.Combo1.Text.peek() == "Stop Automatic Shot" &&
                window.Label1.Caption.peek() == "Changes SuccessFul-CCED";
       }},
      {"indication chosen", choose(window.Combo3, 6), "its words are there",
       [&] { return window.Label5.Caption.peek().ends_with("by network or other Party"); }},
      {"indications switched", click(window.Command8), "the modem has taken it",
       [&] { return window.Label1.Caption.peek() == "Changes SuccessFul-WIND"; }},
      {"voice mail", click(window.Command2), "its page is up",
       [&] { return window.Frame5.Visible.peek() && !window.Frame1.Visible.peek(); }},
      {"voice mail asked about", inTurn({choose(window.Combo4, 2), click(window.Command9)}),
       "the modem has answered",
       [&] { return window.Label6.Caption.peek() == "Changes SuccessFul-CPHS"; }},
      {"pins", click(window.Command3), "their page is up",
       [&] { return window.Frame6.Visible.peek() && !window.Frame5.Visible.peek(); }},
      {"pin read", inTurn({choose(window.Combo5, 3), click(window.Command10)}),
       "the modem has answered, and nothing is shown",
       [&] {
         return form1.Text1.Text.peek().find("+WIOR:") != std::string::npos &&
                window.Label9.Caption.peek().empty();
       }},
      {"power", click(window.Command5), "the button that switches the module off is there",
       [&] { return window.Frame9.Visible.peek() && !window.Frame6.Visible.peek(); }},
      {"pages left", close(window), "their menu is back",
       [&] { return menu.Visible.peek() && !window.isLoaded(); }},
  };
}

}  // namespace gsm
