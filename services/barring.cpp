#include <algorithm>
#include <array>

#include "link/conversation.h"
#include "panel/choices.h"
#include "platform/message_boxes.h"
#include "platform/platform.h"
#include "platform/runtime_failure.h"
#include "services/form12.h"

namespace gsm {

/// A facility as the network names it, with what stands for it on the window.
struct BarringFacility {
  enum class Class { besideStatus, besideError };
  enum class Barred { replacesStatus, joinsStatus };

  std::string_view code;
  OptionButton Form12::*option;
  Class classIn;        // where its reader takes the class from
  Barred barredStatus;  // what its barred words do to the status
  std::string_view notBarred;
  std::string_view barred;
};

namespace {

using Class = BarringFacility::Class;
using Barred = BarringFacility::Barred;

// In the order of reading. The barred words of "AI" are those of "OX".
constexpr std::array kFacilities = {
    BarringFacility{"AO", &Form12::Option17, Class::besideStatus, Barred::replacesStatus,
                    "OutGoing Calls Not Barred", "Current Status:All OutGoing Calls Barred "},
    BarringFacility{"OI", &Form12::Option18, Class::besideStatus, Barred::joinsStatus,
                    "OutGoing International Calls Not Barred",
                    " Current Status:OutGoing International Calls Barred "},
    BarringFacility{"OX", &Form12::Option19, Class::besideStatus, Barred::joinsStatus,
                    "OutGoing Internet Calls Not Barred",
                    " Current Status:OutGoing Internet Calls Barred "},
    BarringFacility{"AI", &Form12::Option20, Class::besideError, Barred::joinsStatus,
                    "Incoming Calls Not Barred", " Current Status:OutGoing Internet Calls Barred "},
    BarringFacility{"IR", &Form12::Option21, Class::besideError, Barred::joinsStatus,
                    "Incoming Calls While Roaming Calls Not Barred",
                    " Current Status:Barr Incoing when  "},
};

// What stands after each facility's place in the list of those not barred.
constexpr std::array kSeparators = {",      ", ",     ", ",     ", ",     ", ""};
static_assert(kSeparators.size() == kFacilities.size());

constexpr std::array kModes = {
    OptionCode<Form12>{"0", &Form12::Option22},
    OptionCode<Form12>{"1", &Form12::Option23},
};

constexpr std::array kClasses = {
    OptionCode<Form12>{"1", &Form12::Option24, "For Voice"},
    OptionCode<Form12>{"2", &Form12::Option25, "For Data"},
    OptionCode<Form12>{"4", &Form12::Option26, "For Fax"},
    OptionCode<Form12>{"8", &Form12::Option27, "For Short Message"},
    OptionCode<Form12>{"7", &Form12::Option28, "All Classes"},
};

}  // namespace

// The list at the end takes the place of the barred words, so those are on view while it reads and
// a barred facility is an empty place in the list.
void Form12::readBarring() {
  Label3.Caption = "Please Wait....";
  Command4.Enabled = false;
  std::string list;
  for (std::size_t i = 0; i < kFacilities.size(); ++i) {
    const BarringFacility& facility = kFacilities[i];
    modem().exchange("AT+CLCK=\"" + std::string(facility.code) + "\",2", 3);
    const Position reply = modem().position("+CLCK:");
    if (reply != 0) {
      const double status = number(modem().slice(reply + 7, 1));
      // Beside an error that isn't there lies the ninth character of the transcript, the quote
      // after the echoed command's equals sign.
      const Position classAfter =
          facility.classIn == Class::besideStatus ? reply : modem().position("ERROR");
      if (status == 1) ShowBarredStatus(facility, modem().slice(classAfter + 9, 1));
      if (status == 0) list.append(facility.notBarred);
    }
    list.append(kSeparators[i]);
  }
  Label3.Caption = list;
  modem().clear();
  Command4.Enabled = true;
}

void Form12::ShowBarredStatus(const BarringFacility& facility,
                              const std::string& serviceClass) try {
  const double code = number(serviceClass);
  const auto known = std::find_if(kClasses.begin(), kClasses.end(),
                                  [code](const auto& each) { return number(each.code) == code; });
  std::string words(facility.barred);
  if (known != kClasses.end()) words.append(known->words);
  if (facility.barredStatus == Barred::replacesStatus) {
    Label3.Caption = words;
  } else {
    Label3.Caption = Label3.Caption + words;
  }
} catch (const RuntimeFailure&) {
  // Ends silently.
}

void Form12::openBarringChange() {
  Frame9.Visible = false;
  Frame1.Visible = false;
  Frame5.Visible = true;
}

// Of all facilities only the first one is ever sent to the modem.
void Form12::changeBarring() try {
  const auto refuse = [this](const char* text) { platform().boxes.show(text, ""); };
  const auto facility =
      std::find_if(kFacilities.begin(), kFacilities.end(),
                   [this](const auto& each) { return (this->*each.option).Value.get(); });
  if (facility == kFacilities.end()) return refuse("Please Select The Facility");
  const auto* serviceClass = selectedOption<Form12>(*this, kClasses);
  if (serviceClass == nullptr) return refuse("Please Select The Class");
  const auto* mode = selectedOption<Form12>(*this, kModes);
  if (mode == nullptr) return refuse("Please Select The Mode");

  if (Text2.Text.empty()) {
    platform().boxes.show("Please Enter A Valid Password", "GSM");
  } else {
    Label5.Caption = "Please Wait";
    if (facility == kFacilities.begin()) {
      std::string command = "AT+CLCK=\"" + std::string(facility->code) + "\",";
      command.append(mode->code).append(",").append(Text2.Text.get());
      command.append(",").append(serviceClass->code);
      modem().exchange(command, 4);
      modem().report(Label5,
                     {.ok = "Changes SuccessFully", .error = "Error! Changes UnsuccessFul"});
    }
  }
  modem().clear();
  Text2.Text = "";
} catch (const RuntimeFailure&) {
  // Ends silently.
}

}  // namespace gsm
