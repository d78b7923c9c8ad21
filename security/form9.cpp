#include "security/form9.h"

#include "link/conversation.h"
#include "panel/form1.h"
#include "panel/pages.h"
#include "panel/panel.h"
#include "platform/runtime_failure.h"
#include "security/lock_pages.h"

namespace gsm {

Form9::Form9(Panel& panel) : FeatureWindow(panel, "Form9", {.Caption = "GSM-SECURITY"}) {
  TabStrip1.Click = [this] { turnPage(); };
  Command10.Click = [this] { readStatus(); };
  Command11.Click = [this] { panel_.form1.networkset(); };
  for (const LockPage& page : kLockPages) {
    (this->*page.changeStatus).Click = [this, &page] { prepare(page); };
    if (page.opensOnLock) (this->*page.lock.option).Click = [this, &page] { openLock(page); };
    (this->*page.changePassword).Click = [this, &page] { openPasswords(page); };
    (this->*page.applyLock).Click = [this, &page] { changeLock(page); };
    (this->*page.applyPassword).Click = [this, &page] { changePassword(page); };
  }
}

void Form9::Form_Load() {
  showPage({&Frame2, &Frame3, &Frame4}, Frame2);
  readStatus();
}

void Form9::readStatus() try {
  Label1.Caption = "Please Wait....";
  modem().exchange("AT+CLCK?");
  // A reference to a window that was closed meanwhile loads it, and that reads a reply of its own.
  const std::string told = modem().text();
  if (position("+CLCK:", told) != 0) {
    for (const LockPage& page : kLockPages) showState(page, told);
  }
  modem().clear();
} catch (const RuntimeFailure&) {
  // Ends silently.
}

// The digit stands after the name's closing quote and a comma: ("PS",0). The name is looked for
// anywhere, and its first place counts.
void Form9::showState(const LockPage& page, const std::string& told) {
  const Position name = position(page.facility, told);
  if (name == 0) return;
  const std::string digit = slice(told, name + 4, 1);
  Label1.Caption = "";
  const double state = number(digit);
  for (const LockState* each : {&page.unlock, &page.lock}) {
    if (state == number(each->code)) (this->*page.status).Caption = std::string(each->state);
  }
}

// A page comes up without what changes its lock.
void Form9::turnPage() try {
  const LockPage& page = kLockPages.at(static_cast<std::size_t>(TabStrip1.Value) - 1);
  showPage({&Frame2, &Frame3, &Frame4}, this->*page.frame);
  if (&page == &kLockPages.front()) Label2.Visible = true;
  for (Control* control : std::initializer_list<Control*>{
           &(this->*page.lock.option), &(this->*page.unlock.option), &(this->*page.passwordLabel),
           &(this->*page.password), &(this->*page.applyLock), &(this->*page.changePassword),
           &(this->*page.hiddenOldLabel), &(this->*page.oldPassword), &(this->*page.hiddenNewLabel),
           &(this->*page.newPassword), &(this->*page.applyPassword)}) {
    control->Visible = false;
  }
  for (const auto box : {page.password, page.oldPassword, page.newPassword}) {
    (this->*box).Text = "";
  }
  modem().clear();
} catch (const RuntimeFailure&) {
  // Ends silently.
}

}  // namespace gsm
