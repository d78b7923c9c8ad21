#include <initializer_list>

#include "link/conversation.h"
#include "platform/message_boxes.h"
#include "platform/platform.h"
#include "platform/runtime_failure.h"
#include "security/form9.h"
#include "security/lock_pages.h"

namespace gsm {
namespace {

constexpr std::size_t kPasswordLength = 8;
constexpr int kSuccessColour = 0x400000;  // dark blue
constexpr int kFailureColour = 0x0000C0;  // dark red

void show(std::initializer_list<Control*> controls) {
  for (Control* control : controls) control->Visible = true;
}

// Counted, blanks and all; what the characters are doesn't matter.
bool isEightLong(const TextBox& box) { return box.Text.get().size() == kPasswordLength; }

}  // namespace

// "Change Status". The option that it selects is the state that the lock is in, so the user has to
// choose the other one.
void Form9::prepare(const LockPage& page) {
  show({&(this->*page.lock.option), &(this->*page.unlock.option), &(this->*page.passwordLabel),
        &(this->*page.password), &(this->*page.applyLock), &(this->*page.changePassword)});
  if (page.emptiesOnPrepare) (this->*page.password).Text = "";
  for (const LockState* state : {&page.unlock, &page.lock}) {
    if ((this->*page.status).Caption == std::string(state->state)) {
      (this->*state->option).Value = true;
    }
  }
}

void Form9::openLock(const LockPage& page) {
  show({&(this->*page.passwordLabel), &(this->*page.password)});
  (this->*page.password).Text = "";
}

void Form9::openPasswords(const LockPage& page) {
  show({&(this->*page.oldLabel), &(this->*page.newLabel), &(this->*page.oldPassword),
        &(this->*page.newPassword), &(this->*page.applyPassword)});
  (this->*page.oldPassword).Text = "";
  (this->*page.newPassword).Text = "";
}

void Form9::changeLock(const LockPage& page) try {
  TextBox& password = this->*page.password;
  const bool locks = (this->*page.lock.option).Value;
  const bool unlocks = (this->*page.unlock.option).Value;
  if (page.wantsEightInLock && !isEightLong(password)) {
    platform().boxes.show("Pasword Length Should Be 8", "GSM");
  } else if (locks || unlocks) {
    const LockState& state = locks ? page.lock : page.unlock;
    std::string command = "AT+CLCK=\"";
    command.append(page.facility).append("\",").append(state.code);
    command.append(",").append(trim(password.Text.get()));
    modem().exchange(command);
    report(page, state.success, state.failure);
  }
  password.Text = "";
  modem().clear();
} catch (const RuntimeFailure&) {
  // Ends silently.
}

void Form9::changePassword(const LockPage& page) try {
  TextBox& oldPassword = this->*page.oldPassword;
  TextBox& newPassword = this->*page.newPassword;
  if (page.wantsEightInPassword && !(isEightLong(oldPassword) && isEightLong(newPassword))) {
    platform().boxes.show("Password Lenght Should be 8", "GSM");
  } else {
    std::string command = "AT+CPWD=\"";
    command.append(page.facility).append("\",").append(trim(oldPassword.Text.get()));
    command.append(",").append(trim(newPassword.Text.get()));
    modem().exchange(command);
    report(page, "Changes SuccessFul-PASSWORD CHANGED", page.passwordFailure);
  }
  oldPassword.Text = "";
  newPassword.Text = "";
  modem().clear();
} catch (const RuntimeFailure&) {
  // Ends silently.
}

void Form9::report(const LockPage& page, std::string_view success, std::string_view failure) {
  Label& status = this->*page.status;
  const auto tell = [&status](int colour, std::string_view words) {
    status.ForeColor = colour;
    status.Caption = std::string(words);
  };
  if (modem().holds("OK")) tell(kSuccessColour, success);
  if (modem().holds("ERROR")) tell(kFailureColour, failure);
}

}  // namespace gsm
