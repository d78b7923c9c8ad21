#include <algorithm>
#include <array>

#include "link/conversation.h"
#include "panel/choices.h"
#include "platform/message_boxes.h"
#include "platform/platform.h"
#include "platform/runtime_failure.h"
#include "services/form12.h"

namespace gsm {
namespace {

struct ForwardReason {
  std::string_view code;
  OptionButton Form12::*option;
  Label Form12::*state;
  std::string_view prefix;
};
constexpr std::array kReasons = {
    ForwardReason{"0", &Form12::Option1, &Form12::Label11, "UNCONDITIONAL-"},
    ForwardReason{"1", &Form12::Option2, &Form12::Label12, "MOBILE BUSY-"},
    ForwardReason{"2", &Form12::Option3, &Form12::Label13, "NO REPLY-"},
    ForwardReason{"3", &Form12::Option4, &Form12::Label14, "NOT REACHABLE-"},
    ForwardReason{"4", &Form12::Option5, &Form12::Label15, "ALL CALL FORWARDING-"},
    ForwardReason{"5", &Form12::Option6, &Form12::Label16, "ALL CONDITON CALL FORWARDING-"},
};

constexpr OptionCode<Form12> kRegister{"3", &Form12::Option7};
constexpr OptionCode<Form12> kErase{"4", &Form12::Option8};

constexpr std::array kClasses = {
    OptionCode<Form12>{"1", &Form12::Option12, "Voice"},
    OptionCode<Form12>{"2", &Form12::Option13, "Data"},
    OptionCode<Form12>{"4", &Form12::Option14, "Fax"},
    OptionCode<Form12>{"8", &Form12::Option15, "SMS"},
    OptionCode<Form12>{"7", &Form12::Option16, "All Classes"},
};

struct StateWords {
  std::string_view code;
  std::string_view words;
};
constexpr std::array kStates = {
    StateWords{"0", "Call Forward Not Active For"},
    StateWords{"1", "Call Forward  Active For"},
    StateWords{"2", "Call Forward  Interrogated For"},
    StateWords{"3", "Call Forward  Registered For"},
    StateWords{"4", "Call Forward  Deleted For"},
};

// Of a reply after "+CCFC: ": a state, a comma, a class, two ends of line and "OK". A longer one
// reports a number too, whose first character is the sixth.
constexpr std::size_t kShortestReply = 9;
constexpr Position kNumber = 6;

template <class Rows>
std::string_view wordsOf(const Rows& rows, std::string_view code) {
  const auto found =
      std::find_if(rows.begin(), rows.end(), [code](const auto& row) { return row.code == code; });
  return found == rows.end() ? std::string_view() : found->words;
}

const ForwardReason& row(int reason) { return kReasons.at(static_cast<std::size_t>(reason)); }

}  // namespace

// The window is up while it reads; each reply must have the transcript for itself.
void Form12::Form_Load() try {
  for (Frame* frame : {&Frame9, &Frame5, &Frame10}) frame->Visible = false;
  Frame13.Visible = true;
  for (const ForwardReason& reason : kReasons) (this->*reason.state).Caption = "";
  Show();
  Label2.Caption = "Checking Current Status...";
  for (int reason = 0; reason < static_cast<int>(kReasons.size()); ++reason) {
    modem().exchange("AT+CCFC=" + std::string(row(reason).code) + ",2", 3);
    ReadForwardReply(reason);
  }
  modem().clear();
  Label2.Caption = "";
  ClearForwardPage();
} catch (const RuntimeFailure&) {
  // Ends silently.
}

void Form12::ReadForwardReply(int reason) {
  // A reference to a window that was closed meanwhile loads it, and that reads replies of its own.
  const std::string told = modem().text();
  const Position ok = position("OK", told);
  if (reason == 0) Label16.Caption = "";
  if (ok != 0 && position("+CCFC:", told) != 0) ParseForwardReply(reason, slice(told, 1, ok + 1));
}

void Form12::ParseForwardReply(int reason, const std::string& reply) {
  const std::string told = slice(reply, position("+CCFC:", reply) + 7, position("OK", reply));
  if (told.size() > kShortestReply) {
    const std::string number = slice(told, kNumber, static_cast<int>(told.size()) - kNumber);
    (this->*row(reason).state).Caption = before("\"", number);
  }
  ShowForwardStatus(reason, slice(told, 1, 1), slice(told, 3, 1));
}

void Form12::ShowForwardStatus(int reason, std::string_view status, std::string_view serviceClass) {
  Label& state = this->*row(reason).state;
  std::string told(row(reason).prefix);
  told.append(wordsOf(kStates, status)).append(" ");
  told.append(wordsOf(kClasses, serviceClass)).append(" ");
  state.Caption = told + state.Caption;
}

void Form12::ClearForwardPage() {
  Text1.Text = "";
  for (const ForwardReason& reason : kReasons) (this->*reason.option).Value = false;
  for (OptionButton* option : {&Option7, &Option8}) option->Value = false;
  for (const auto& serviceClass : kClasses) (this->*serviceClass.option).Value = false;
}

void Form12::changeForwarding() try {
  const auto refuse = [this](const char* text) { platform().boxes.show(text, "GSM"); };
  const bool registers = (this->*kRegister.option).Value;
  const bool erases = (this->*kErase.option).Value;
  if (registers && Text1.Text.empty()) return refuse("Enter Valid Number ");
  const auto reason = std::find_if(kReasons.begin(), kReasons.end(), [this](const auto& each) {
    return (this->*each.option).Value.get();
  });
  if (reason == kReasons.end()) return refuse("Select Status Property");
  if (!registers && !erases) return refuse("Select Mode Correctly");

  Label2.Caption = "";
  std::string command = "AT+CCFC=" + std::string(reason->code) + ",";
  if (registers) {
    const auto* serviceClass = selectedOption<Form12>(*this, kClasses);
    if (serviceClass == nullptr) return refuse("Select Class Correctly");
    command.append(kRegister.code).append(",\"").append(Text1.Text.get());
    command.append("\",").append(serviceClass->code);
  } else {
    // Whatever number and class stand there.
    command.append(kErase.code);
  }
  modem().exchange(command, 3);
  modem().report(Label2, {.ok = "Changes SuccessFul", .error = "Changes UnSuccessFul"});
  Text1.Text = "";
  modem().clear();
} catch (const RuntimeFailure&) {
  // Ends silently.
}

}  // namespace gsm
