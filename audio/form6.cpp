#include "audio/form6.h"

#include <array>

#include "link/conversation.h"
#include "panel/choices.h"
#include "panel/form1.h"
#include "panel/pages.h"
#include "panel/panel.h"
#include "platform/runtime_failure.h"

namespace gsm {

Form6::Form6(Panel& panel) : FeatureWindow(panel, "Form6", {.Caption = "GSM-Call Control"}) {
  TabStrip1.Click = [this] { turnPage(TabStrip1.Value); };
  // The labels are what is sent; the sliders are never read for it.
  Slider1.Scroll = [this] { Label5.Caption = std::to_string(Slider1.Value); };
  Slider2.Scroll = [this] { Label6.Caption = std::to_string(Slider2.Value); };
  Command1.Click = [this] { changeGains(); };
  Command2.Click = [this] { goBack(); };
  Combo2.Click = [this] { showAlgorithm(); };
  Command3.Click = [this] { changeEcho(); };
  Command4.Click = [this] { changeSideTone(); };
  Option3.Click = [this] { showRings(false); };
  Option4.Click = [this] { showRings(true); };
  Command5.Click = [this] { changeAutoAnswer(); };
  Text1.KeyPress = LimitTextInput;
  Command6.Click = [this] { changeToneLength(); };
  Command7.Click = [this] { changeMelody(); };
}

void Form6::Form_Load() try {
  for (const char* mode : {"0", "1"}) Combo1.AddItem(mode);
  for (const char* algorithm : {"1", "3"}) Combo2.AddItem(algorithm);
  constexpr int kMostRings = 8;
  for (int rings = 1; rings <= kMostRings; ++rings) Combo3.AddItem(std::to_string(rings));
  showPage({&Frame1, &Frame2, &Frame10}, Frame1);
  Label7.Caption = "Please Wait....";
  // What comes back is the dispatcher's.
  modem().exchange("AT+VGR?");
  modem().exchangeOnTop("AT+VGT?");
} catch (const RuntimeFailure&) {
  // Ends silently.
}

void Form6::turnPage(int tab) try {
  struct Page {
    Frame& frame;
    const char* status;  // none: stays as it is
    void (Form6::*fill)();
  };
  const std::array pages = {
      Page{Frame1, nullptr, nullptr},
      Page{Frame2, "Please Wait......", &Form6::readEchoAndSideTone},
      Page{Frame10, "Please Wait......", &Form6::readAnswerAndToneLength},
      Page{Frame12, "", &Form6::listMelodies},
  };
  const Page& page = pages.at(static_cast<std::size_t>(tab) - 1);
  if (page.status != nullptr) Label7.Caption = page.status;
  showPage({&Frame1, &Frame2, &Frame10, &Frame12}, page.frame);
  if (page.fill != nullptr) (this->*page.fill)();
} catch (const RuntimeFailure&) {
  // Ends silently.
}

// The window stays loaded, and the modem's profile isn't saved as it is when the window is closed.
void Form6::goBack() {
  panel_.form1.Show();
  Hide();
}

// While it waits the window is still there to be clicked on, and to be closed once more.
void Form6::Form_Unload() try {
  modem().exchangeOnTop("AT&W");
  modem().clear();
  panel_.form1.Show();
  panel_.form1.Label5.Caption = "";
  Hide();
} catch (const RuntimeFailure&) {
  // Ends silently: the window goes, and the main window isn't brought back.
}

}  // namespace gsm
