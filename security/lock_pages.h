#pragma once

#include <array>
#include <cstddef>
#include <string_view>

#include "security/form9.h"

namespace gsm {

/// What a lock's change to one of its two states is sent with and shown in. `state` is what the
/// status line says when the lock is found in it.
struct LockState {
  OptionButton Form9::*option;
  std::string_view code;
  std::string_view state;
  std::string_view success;
  std::string_view failure;
};

/// A page of the window: what plays each role on it, and its words.
struct LockPage {
  std::string_view facility;
  Frame Form9::*frame;
  Label Form9::*status;
  CommandButton Form9::*changeStatus;

  LockState lock;
  LockState unlock;
  Label Form9::*passwordLabel;
  TextBox Form9::*password;
  CommandButton Form9::*applyLock;
  bool wantsEightInLock;

  OptionButton Form9::*changePassword;
  Label Form9::*oldLabel;
  TextBox Form9::*oldPassword;
  Label Form9::*newLabel;
  TextBox Form9::*newPassword;
  CommandButton Form9::*applyPassword;
  bool wantsEightInPassword;
  std::string_view passwordFailure;

  bool emptiesOnPrepare;         // of "Change Status": the password box
  bool opensOnLock;              // whether to choose the lock opens the password once more
  Label Form9::*hiddenOldLabel;  // what its tab hides for the labels of the passwords: the last
  Label Form9::*hiddenNewLabel;  // page's hides two of the first one's, which must come back there
};

inline constexpr std::array kLockPages = {
    LockPage{
        .facility = "PS",
        .frame = &Form9::Frame2,
        .status = &Form9::Label2,
        .changeStatus = &Form9::Command2,
        .lock = {&Form9::Option1, "1", "Current Status:SIM Locked", "Changes SuccessFul-LOCKED",
                 "Changes Unsuccessful,Phone is Already Lock Or Invalid Password Entered"},
        .unlock = {&Form9::Option2, "0", "Current Status:SIM Not Locked",
                   "Changes SuccessFul-UNLOCKED",
                   "Changes Unsuccessful,Phone is Already UNLocked Or Invalid Password Entered"},
        .passwordLabel = &Form9::Label3,
        .password = &Form9::Text1,
        .applyLock = &Form9::Command1,
        .wantsEightInLock = true,
        .changePassword = &Form9::Option3,
        .oldLabel = &Form9::Label4,
        .oldPassword = &Form9::Text2,
        .newLabel = &Form9::Label5,
        .newPassword = &Form9::Text3,
        .applyPassword = &Form9::Command3,
        .wantsEightInPassword = true,
        .passwordFailure = "Changes Unsuccessful,Phone is UNLocked Or Invalid Password Entered",
        .emptiesOnPrepare = false,
        .opensOnLock = true,
        .hiddenOldLabel = &Form9::Label4,
        .hiddenNewLabel = &Form9::Label5,
    },
    LockPage{
        .facility = "SC",
        .frame = &Form9::Frame3,
        .status = &Form9::Label6,
        .changeStatus = &Form9::Command4,
        .lock = {&Form9::Option4, "1", "Current Status:PIN Activated",
                 "Changes SuccessFul-ACTIVATED",
                 "Changes Unsuccessful,SIM PIN is Already Active Or Invalid Password Entered"},
        .unlock = {&Form9::Option5, "0", "Current Status:PIN Deactivated",
                   "Changes SuccessFul-DEACTIVATED",
                   "Changes Unsuccessful,SIM PIN is Already DeActivated Or Invalid Password "
                   "Entered"},
        .passwordLabel = &Form9::Label7,
        .password = &Form9::Text4,
        .applyLock = &Form9::Command5,
        .wantsEightInLock = false,
        .changePassword = &Form9::Option6,
        .oldLabel = &Form9::Label8,
        .oldPassword = &Form9::Text5,
        .newLabel = &Form9::Label9,
        .newPassword = &Form9::Text6,
        .applyPassword = &Form9::Command6,
        .wantsEightInPassword = false,
        .passwordFailure =
            "Changes Unsuccessful,SIM PIN is DeActivated Or Invalid Password Entered",
        .emptiesOnPrepare = true,
        .opensOnLock = false,
        .hiddenOldLabel = &Form9::Label8,
        .hiddenNewLabel = &Form9::Label9,
    },
    LockPage{
        .facility = "PN",
        .frame = &Form9::Frame4,
        .status = &Form9::Label10,
        .changeStatus = &Form9::Command7,
        .lock = {&Form9::Option7, "1", "Current Status:NetWork Locked",
                 "Changes SuccessFul-N/W LOCKED",
                 "Changes Unsuccessful,N/W is Already Lock Or Invalid Password Entered"},
        .unlock = {&Form9::Option8, "0", "Current Status:NetWork UNlocked",
                   "Changes SuccessFul-N/WUNLOCKED",
                   "Changes Unsuccessful,N/w is Already UNLocked Or Invalid Password Entered"},
        .passwordLabel = &Form9::Label11,
        .password = &Form9::Text7,
        .applyLock = &Form9::Command8,
        .wantsEightInLock = true,
        .changePassword = &Form9::Option9,
        .oldLabel = &Form9::Label12,
        .oldPassword = &Form9::Text8,
        .newLabel = &Form9::Label13,
        .newPassword = &Form9::Text9,
        .applyPassword = &Form9::Command9,
        .wantsEightInPassword = false,
        .passwordFailure = "Changes Unsuccessful,N/W is UNLocked Or Invalid Password Entered",
        .emptiesOnPrepare = true,
        .opensOnLock = false,
        .hiddenOldLabel = &Form9::Label2,
        .hiddenNewLabel = &Form9::Label3,
    },
};

}  // namespace gsm
