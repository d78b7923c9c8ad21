#include "services/form12.h"

#include <vector>

#include "link/conversation.h"
#include "panel/choices.h"
#include "panel/form1.h"
#include "panel/panel.h"
#include "platform/runtime_failure.h"

namespace gsm {

Form12::Form12(Panel& panel)
    : FeatureWindow(panel, "Form12", {.Caption = "GSM-Supplementary Service"},
                    OnClose::emptiesStatus) {
  TabStrip1.Click = [this] { turnPage(); };
  Command8.Click = [this] { panel_.form1.networkset(); };
  Command1.Click = [this] { changeForwarding(); };
  Command2.Click = [this] { Form_Load(); };
  Command4.Click = [this] { openBarringChange(); };
  Command3.Click = [this] { changeBarring(); };
  Text2.KeyPress = LimitTextInput;
  Command5.Click = [this] { openWaitingChange(); };
  Command6.Click = [this] { changeWaiting(); };
  Command7.Click = [this] { changeUserGroup(); };
}

// A page leaves alone what its row doesn't name: the state of the forwarding stays on view below
// every page, and the page of the waiting stays beside that of the barring.
void Form12::turnPage() try {
  struct Page {
    std::vector<Control*> shown;
    std::vector<Control*> hidden;
    void (Form12::*read)();
  };
  const Page pages[] = {
      {{&Frame13, &Frame1}, {&Frame12, &Frame9, &Frame5}, &Form12::Form_Load},
      {{&Frame9}, {&Frame12, &Frame1, &Frame5}, &Form12::readBarring},
      {{&Frame10},
       {&Frame12, &Frame1, &Frame5, &Frame9, &Frame11, &Command6},
       &Form12::readWaiting},
      {{&Frame12}, {&Frame1, &Frame5, &Frame9, &Frame10, &Frame11}, &Form12::readUserGroup},
  };
  const Page& page = pages[TabStrip1.Value - 1];
  // In this order the screen never needs room for two pages.
  for (Control* part : page.hidden) part->Visible = false;
  for (Control* part : page.shown) part->Visible = true;
  (this->*page.read)();
  modem().clear();
} catch (const RuntimeFailure&) {
  // Ends silently.
}

}  // namespace gsm
