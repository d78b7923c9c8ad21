#include "module/form17.h"

#include "link/conversation.h"
#include "panel/form1.h"
#include "panel/pages.h"
#include "panel/panel.h"

namespace gsm {

Form17::Form17(Panel& panel) : ModuleWindow(panel, "Form17", "GSM-Wavecom Features") {
  Label10.Click = [this] { panel_.form1.networkset(); };
  Command1.Click = [this] { openIndications(); };
  Command2.Click = [this] { openVoiceMail(); };
  Command3.Click = [this] { openPins(); };
  Command5.Click = [this] { turnTo(Frame9); };
  Command7.Click = [this] { changeDump(); };
  Combo3.Click = [this] { showLevel(); };
  Command8.Click = [this] { changeLevel(); };
  Command6.Click = [this] { readIndicators(); };
  Command9.Click = [this] { changeVoiceMail(); };
  Command10.Click = [this] { readPin(); };
  Command4.Click = [this] { switchOff(); };
}

void Form17::Form_Load() { openIndications(); }

void Form17::turnTo(Frame& page) { showPage({&Frame1, &Frame5, &Frame6, &Frame9}, page); }

// Whatever else the modem tells goes with the transcript.
void Form17::change(std::string_view command, Label& status, const OutcomeWords& words) {
  modem().exchange(command);
  modem().report(status, words);
  modem().clear();
}

}  // namespace gsm
