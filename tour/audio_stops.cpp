#include "audio/form6.h"
#include "panel/form1.h"
#include "tour/parts.h"

namespace gsm {

Route audio(Panel& panel) {
  Form1& form1 = panel.form1;
  Form6& window = panel.form6;
  const auto tells = [&window](const char* words) {
    return [&window, words] { return window.Label7.Caption.peek() == words; };
  };
  return {
      {"sound opened", click(form1.Command6), "its window tells the two gains",
       [&] {
         return window.Visible.peek() && !form1.Visible.peek() &&
                window.Label5.Caption.peek() == "128" && !window.Label6.Caption.peek().empty();
       }},
      {"speaker turned down", press(window.Slider1, Qt::Key_PageDown), "the gain follows",
       [&] { return window.Label5.Caption.peek() == "113"; }},
      {"gains sent", click(window.Command1), "the modem has taken both",
       tells("Changes SuccessFul-Microphone")},
      {"echo", turn(window.TabStrip1, 2),
       "the side tone is told, and of the echo what the sliders take",
       [&] { return window.Option2.Value.peek() && window.Combo2.Text.peek() == "1"; }},
      {"other algorithm", choose(window.Combo2, 1), "its sliders are up",
       [&] { return window.Frame7.Visible.peek() && !window.Frame6.Visible.peek(); }},
      {"echo sent",
       inTurn({press(window.Slider7, Qt::Key_Right), press(window.Slider8, Qt::Key_PageUp),
               press(window.Slider9, Qt::Key_End), click(window.Command3)}),
       "the modem has taken it", tells("Changes SuccessFul")},
      {"echo read again", turn(window.TabStrip1, 2), "it is the one that was sent",
       [&] {
         return window.Label7.Caption.peek().starts_with("Echo Current Values--0,3,1,1000,256");
       }},
      {"side tone sent", inTurn({press(window.Slider10, Qt::Key_Right), click(window.Command4)}),
       "the modem has taken it", tells("Changes SuccessFul")},
      {"auto-answer", turn(window.TabStrip1, 3), "it is off",
       [&] {
         return window.Option3.Value.peek() &&
                window.Label7.Caption.peek() == "Tone Lenght Currently Is0";
       }},
      {"rings opened", click(window.Option4), "their list is there",
       [&] { return window.Combo3.Visible.peek(); }},
      {"auto-answer on", inTurn({choose(window.Combo3, 7), click(window.Command5)}),
       "the modem has taken it", tells("Changes SuccessFul.AutoAnswer Enabled")},
      {"auto-answer read again", turn(window.TabStrip1, 3), "it is on",
       [&] {
         return window.Combo3.Text.peek() == "8" &&
                window.Label7.Caption.peek() == "Tone Lenght Currently Is0";
       }},
      {"auto-answer off", inTurn({click(window.Option3), click(window.Command5)}),
       "the modem has taken it", tells("Changes SuccessFul.AutoAnswer Disabled")},
      // In front of the zero that was read.
      {"tone length sent", inTurn({type(window.Text1, "30"), click(window.Command6)}),
       "the modem has taken it", tells("Changes SuccessFul-TONE LENGTH")},
      {"sound left", close(window), "the panel is back",
       [&] { return form1.Visible.peek() && !window.isLoaded(); }},
  };
}

}  // namespace gsm
