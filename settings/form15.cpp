#include "settings/form15.h"

#include <algorithm>
#include <array>
#include <span>
#include <string_view>

#include "link/conversation.h"
#include "link/speeds.h"
#include "panel/form1.h"
#include "panel/panel.h"
#include "platform/message_boxes.h"
#include "platform/platform.h"
#include "platform/runtime_failure.h"
#include "settings/line_options.h"

namespace gsm {
namespace {

using Options = std::span<const OptionCode<Form15>>;

// What the commands carry.
struct Codes {
  std::string rate;
  std::string format;
  std::string parity;
  std::string flowToHost;
  std::string flowToModem;
  std::string carrier;
  std::string terminalReady;
  std::string dataSetReady;
  std::string echo;
};

struct Check {
  std::string Codes::*code;
  Options options;           // none of the rate, which is a text
  std::string_view missing;  // said when the code is
};
constexpr std::array kChecks = {
    Check{&Codes::format, kFormats, "Framing Format Cannot Be Blank"},
    Check{&Codes::parity, kParities, "Parity Cannot Be Blank"},
    Check{&Codes::flowToHost, kFlowToHost, "DCE-DTE Control Cannot Be Blank"},
    Check{&Codes::flowToModem, kFlowToModem, "DTE-DCE Control Cannot Be Blank"},
    Check{&Codes::rate, {}, "Select IPR Correctly"},
    Check{&Codes::dataSetReady, kDataSetReady, "Error:Set DSR Signal"},
    Check{&Codes::carrier, kCarrier, "Error:Set DCD Signal"},
    Check{&Codes::terminalReady, kTerminalReady, "Error:Set DTR Signal"},
    Check{&Codes::echo, kEcho, "Error:Enable/Disable Echo"},
};

std::string codeOf(const Form15& window, const Check& check) {
  if (check.options.empty()) return window.Combo1.Text;
  const auto* set = selectedOption<Form15>(window, check.options);
  return set == nullptr ? std::string() : std::string(set->code);
}

// What the main window tells of a step that the modem has taken. The rate and the echo are those
// of the window as it is then, whatever the command carried.

void showRate(Form15& window, Form1& form1, const Codes&) {
  form1.Label6.Caption = "Speed:" + window.Combo1.Text;
}

void showFraming(Form15& window, Form1&, const Codes& codes) {
  window.ShowFramingChoice(codes.format, codes.parity);
}

void showEcho(Form15& window, Form1& form1, const Codes&) {
  form1.Label7.Caption =
      form1.Label7.Caption + (window.Option27.Value ? "ECHO:Disable" : "ECHO:Enable");
}

struct Step {
  std::string_view command;
  std::string Codes::*first;
  std::string Codes::*second;
  void (*taken)(Form15& window, Form1& form1, const Codes& codes);
  std::string_view failed;
};
// A modem that has changed its rate hears none of the steps after the first: the port stays at the
// old one, and silence counts as success.
constexpr std::array kSteps = {
    Step{"AT+IPR=", &Codes::rate, nullptr, showRate, " Changes UnsuccessFul-IPR "},
    Step{"AT+ICF=", &Codes::format, &Codes::parity, showFraming,
         " Changes UnsuccessFul-Character Framing "},
    Step{"AT+IFC=", &Codes::flowToHost, &Codes::flowToModem, nullptr,
         "Changes UnsuccessFul-DCE-DTE Flow Control"},
    Step{"AT&C", &Codes::carrier, nullptr, nullptr, "Changes UnsuccessFul-DCD signal"},
    Step{"AT&D", &Codes::terminalReady, nullptr, nullptr, "Changes UnsuccessFul-DTR signal"},
    Step{"AT&S", &Codes::dataSetReady, nullptr, nullptr, "Changes UnsuccessFul-DSR signal"},
    Step{"ATE", &Codes::echo, nullptr, showEcho, "Changes UnsuccessFul-ECHO"},
    Step{"AT&W", nullptr, nullptr, nullptr, ""},
};

std::string commandOf(const Step& step, const Codes& codes) {
  std::string command(step.command);
  if (step.first != nullptr) command += codes.*step.first;
  if (step.second != nullptr) command += "," + codes.*step.second;
  return command;
}

std::string wordsOf(Options options, std::string_view code) {
  const auto found = std::find_if(options.begin(), options.end(),
                                  [code](const auto& each) { return each.code == code; });
  return found == options.end() ? std::string() : std::string(found->words);
}

}  // namespace

Form15::Form15(Panel& panel) : FeatureWindow(panel, "Form15", {.Caption = "GSM-Modem Settings"}) {
  Command1.Click = [this] { saveConfigurations(); };
}

void Form15::Form_Load() {
  Combo1.Clear();
  for (const char* speed : kSpeeds) Combo1.AddItem(speed);
}

// Each step is made, whatever became of the one before it.
void Form15::saveConfigurations() try {
  Codes codes;
  for (const Check& check : kChecks) {
    codes.*check.code = codeOf(*this, check);
    if ((codes.*check.code).empty()) {
      platform().boxes.show(std::string(check.missing), "GSM");
      return;
    }
  }

  modem().clear();
  Label1.Caption = "Please Wait...Saving The Setting";
  std::string failures;
  for (const Step& step : kSteps) {
    modem().exchange(commandOf(step, codes));
    if (step.taken != nullptr && modem().holds("OK")) step.taken(*this, panel_.form1, codes);
    if (modem().holds("ERROR")) failures += step.failed;
  }
  modem().clear();
  Label1.Caption = failures;
  if (Label1.Caption.empty()) Label1.Caption = "Changes SuccessFul";
} catch (const RuntimeFailure&) {
  // Ends silently.
}

void Form15::ShowFramingChoice(const std::string& framing, const std::string& parity) try {
  panel_.form1.Label7.Caption =
      "Character Framing:" + wordsOf(kFormats, framing) + " " + wordsOf(kParities, parity);
} catch (const RuntimeFailure&) {
  // Ends silently.
}

}  // namespace gsm
