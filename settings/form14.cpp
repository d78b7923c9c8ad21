#include "settings/form14.h"

#include "link/conversation.h"
#include "panel/form1.h"
#include "panel/pages.h"
#include "panel/panel.h"
#include "platform/runtime_failure.h"
#include "settings/data_choices.h"

namespace gsm {
namespace {

constexpr std::string_view kChecking = "Checking Current Value";
constexpr std::string_view kUnsuccessful = "Changes UnsuccessFul";

}  // namespace

Form14::Form14(Panel& panel) : FeatureWindow(panel, "Form14", {.Caption = "GSM-DATA&FAX SETUP"}) {
  Command1.Click = [this] { readBearer(); };
  Command2.Click = [this] { readCompression(); };
  Command3.Click = [this] { readFax(); };
  Label9.Click = [this] { panel_.form1.networkset(); };
  Command6.Click = [this] { changeBearer(); };
  for (const DataChange& setting : kDataChanges) {
    (this->*setting.button).Click = [this, &setting] { change(setting); };
  }
}

void Form14::Form_Load() { readBearer(); }

// The drop-downs come up without a choice, whatever the modem tells.
void Form14::readBearer() try {
  showPage({&Frame1, &Frame2, &Frame3}, Frame1);
  refill(Combo1, itemsOf(kBearerSpeeds));
  refill(Combo2, itemsOf(kConnectionElements));
  Label1.Caption = std::string(kChecking);
  modem().exchange("AT+CBST?");
  const Position key = modem().position("+CBST:");
  if (key != 0) {
    const std::string reply = modem().slice(key + 7, modem().position("OK"));
    const std::string speed = before(",", reply);
    // The element is told by its place before the end: a digit, two line ends, "OK", a line end.
    constexpr std::size_t kTail = 9;
    const std::string_view element =
        std::string_view(reply).substr(reply.size() - std::min(reply.size(), kTail), 1);
    Label1.Caption =
        wordsOf(kBearerSpeeds, [&](const DataValue& each) { return each.told == speed; }) + "  " +
        wordsOf(kConnectionElements, [&](const DataValue& each) { return each.told == element; });
  }
  modem().clear();
} catch (const RuntimeFailure&) {
  // Ends silently.
}

// The name of the bearer is always 0.
void Form14::changeBearer() try {
  if (Combo1.Text.empty() || Combo2.Text.empty()) return;
  modem().exchange("AT+CBST=" + selectedCode(Combo1, itemsOf(kBearerSpeeds)) + ",0," +
                   selectedCode(Combo2, itemsOf(kConnectionElements)));
  modem().report(Label1, {.ok = "Changes SuccessFul", .error = kUnsuccessful});
  modem().clear();
} catch (const RuntimeFailure&) {
  // Ends silently.
}

// The modem tells its values bare, so a digit anywhere counts. The echo holds none.
void Form14::readCompression() try {
  showPage({&Frame1, &Frame2, &Frame3}, Frame2);
  refill(Combo3, itemsOf(kCompressions));
  refill(Combo4, itemsOf(kCorrections));
  Label4.Caption = std::string(kChecking);
  const auto isTold = [this](const DataValue& each) { return modem().holds(each.told); };
  modem().exchange("AT%C?");
  const std::string compression = wordsOf(kCompressions, isTold);
  modem().exchange("AT\\N?");
  Label4.Caption =
      "Compression " + compression + " , Error Correction " + wordsOf(kCorrections, isTold);
  modem().clear();
} catch (const RuntimeFailure&) {
  // Ends silently.
}

// A digit anywhere in the transcript counts here too. With none of them the class stays unknown.
void Form14::readFax() try {
  showPage({&Frame1, &Frame2, &Frame3}, Frame3);
  refill(Combo5, itemsOf(kFaxClasses));
  refill(Combo6, kFaxSpeeds);
  refill(Combo7, kFaxSpeeds);
  Label5.Caption = std::string(kChecking);
  modem().exchange("AT+FCLASS?");
  if (modem().holds("+FCLASS:")) {
    const std::string words =
        wordsOf(kFaxClasses, [this](const DataValue& each) { return modem().holds(each.told); });
    if (!words.empty()) Label5.Caption = words;
  }
  modem().clear();
} catch (const RuntimeFailure&) {
  // Ends silently.
}

void Form14::change(const DataChange& setting) try {
  const ComboBox& choice = this->*setting.choice;
  if (choice.Text.empty()) return;
  Label& status = this->*setting.status;
  if (setting.before == DataChange::Before::emptiesStatus) status.Caption = "";
  std::string command(setting.command);
  command +=
      setting.values.empty() ? choice.Text.get() : selectedCode(choice, itemsOf(setting.values));
  modem().exchange(command);
  modem().report(status, {.ok = setting.success, .error = kUnsuccessful});
  modem().clear();
} catch (const RuntimeFailure&) {
  // Ends silently.
}

}  // namespace gsm
