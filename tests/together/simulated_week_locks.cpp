// What the user locks and unlocks in the simulated week.

#include "panel/form1.h"
#include "security/form9.h"
#include "security/lock_pages.h"
#include "tests/together/simulated_week.h"

namespace gsm {
namespace {

constexpr std::size_t kSimPin = 1;  // among the pages

}  // namespace

// "PS off, SC on, PN off"
bool SimulatedWeek::isLocked(std::size_t page) {
  return tell("lock").find(std::string(kLockPages[page].facility) + " on") != std::string::npos;
}

// A third wrong PIN would lock the card, so the user makes no second mistake.
bool SimulatedWeek::mayMistakePin() { return tell("state").find("3 PIN") != std::string::npos; }

void SimulatedWeek::openLocks() {
  const bool opens = !locks().Visible.peek();
  if (opens) showPanel();
  click(opens ? form1().Command5 : locks().Command10);
  settle();
  ASSERT_TRUE(locks().Visible.peek());
  if (opens) {
    EXPECT_FALSE(form1().Visible.peek());
  }
  if (!inPeace_) return;
  EXPECT_EQ(locks().Label1.Caption.peek(), "");
  for (std::size_t page = 0; page < kLockPages.size(); ++page) {
    const LockPage& words = kLockPages[page];
    EXPECT_EQ((locks().*words.status).Caption.peek(),
              std::string(isLocked(page) ? words.lock.state : words.unlock.state));
  }
}

std::size_t SimulatedWeek::openSomeLock() {
  comeToRest();
  openLocks();
  const std::size_t page = below(kLockPages.size());
  world().time().after(Duration::zero(),
                       [this, page] { locks().TabStrip1.userTab(static_cast<int>(page) + 1); });
  run(0);
  EXPECT_TRUE((locks().*kLockPages[page].frame).Visible.peek());
  EXPECT_FALSE((locks().*kLockPages[page].password).Visible.peek());
  click(locks().*kLockPages[page].changeStatus);
  return page;
}

// The user's own password, another one, or one that is too short.
std::string SimulatedWeek::somePassword(std::size_t page) {
  const bool mayErr = page != kSimPin || mayMistakePin();
  if (!mayErr || !perhaps(4)) return passwords_[page];
  return perhaps(3) ? "12" : "9" + digits(passwords_[page].size() - 1);
}

void SimulatedWeek::turnLock() {
  const std::size_t page = openSomeLock();
  const LockPage& roles = kLockPages[page];
  const bool wasLocked = isLocked(page);
  const bool locked = perhaps(2);
  const LockState& wanted = locked ? roles.lock : roles.unlock;
  const std::string password = somePassword(page);
  click(locks().*wanted.option);
  type(locks().*roles.password, password);
  click(locks().*roles.applyLock);
  settle();
  EXPECT_EQ((locks().*roles.password).Text.peek(), "");
  if (roles.wantsEightInLock && password.size() != 8) {
    if (inPeace_) expectBox("Pasword Length Should Be 8");
    return;
  }
  const bool isTaken = locked != wasLocked && password == passwords_[page];
  EXPECT_EQ(isLocked(page), isTaken ? locked : wasLocked);
  if (!inPeace_) return;
  EXPECT_EQ((locks().*roles.status).Caption.peek(),
            std::string(isTaken ? wanted.success : wanted.failure));
}

// Only the password of a lock that is on can be changed.
void SimulatedWeek::changePassword() {
  const std::size_t page = openSomeLock();
  const LockPage& roles = kLockPages[page];
  const std::string password = somePassword(page);
  const std::string changed = perhaps(6) ? "12" : digits(passwords_[page].size());
  click(locks().*roles.changePassword);
  type(locks().*roles.oldPassword, password);
  type(locks().*roles.newPassword, changed);
  click(locks().*roles.applyPassword);
  settle();
  EXPECT_EQ((locks().*roles.oldPassword).Text.peek(), "");
  EXPECT_EQ((locks().*roles.newPassword).Text.peek(), "");
  if (roles.wantsEightInPassword && (password.size() != 8 || changed.size() != 8)) {
    expectBox("Password Lenght Should be 8");
    return;
  }
  const bool isTaken = isLocked(page) && password == passwords_[page] && changed != "12";
  if (isTaken) passwords_[page] = changed;
  EXPECT_EQ((locks().*roles.status).Caption.peek(),
            std::string(isTaken ? "Changes SuccessFul-PASSWORD CHANGED" : roles.passwordFailure));
}

}  // namespace gsm
