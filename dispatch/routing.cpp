#include <algorithm>
#include <functional>
#include <string_view>
#include <vector>

#include "audio/form6.h"
#include "panel/form1.h"
#include "panel/panel.h"
#include "platform/runtime_failure.h"

namespace gsm {
namespace {

// What a test does when its key stands at `key` in the transcript.
using Action = std::function<void(Form1& form, Form6& audio, Position key)>;

enum class Clearing { none, byAction, whole };

struct Branch {
  std::string_view key;
  Action action;
};

struct Test {
  std::vector<Branch> branches;  // the first whose key stands in the transcript acts
  std::string_view alsoNeeds;    // must stand there too, unless empty
  Clearing clearing;  // of the transcript: never, as the action decides, or once it is done
};

Action method(void (Form1::*show)(Position)) {
  return [show](Form1& form, Form6&, Position key) { (form.*show)(key); };
}

Action method(void (Form6::*show)(Position)) {
  return [show](Form1&, Form6& audio, Position key) { (audio.*show)(key); };
}

// The outcome of a change to the audio settings, on that window's status line.
Action outcome(std::string_view success) {
  return [success](Form1& form, Form6& audio, Position) {
    audio.Label7.Caption = form.modem.holds("OK") ? std::string(success) : "UnSuccessFul.Try Again";
  };
}

// The readers of the identity also take where "OK" stands.
Action method(void (Form1::*show)(Position, Position)) {
  return
      [show](Form1& form, Form6&, Position key) { (form.*show)(key, form.modem.position("OK")); };
}

Action method(void (Form1::*handle)()) {
  return [handle](Form1& form, Form6&, Position) { (form.*handle)(); };
}

void showEchoValues(Form1& form, Form6&, Position key) { form.ShowEchoValues(std::to_string(key)); }

void showServiceCenter(Form1& form, Form6&, Position) {
  form.ShowServiceCenter(form.modem.position("OK"), form.modem.position("ERROR"));
}

// The row of tests. Each looks at the transcript anew, so a test that clears it makes all tests
// after it fail, and one that doesn't leaves the same text to them and to the next call.
const std::vector<Test>& tests() {
  static const std::vector<Test> row = {
      {{{"CMTI", method(&Form1::tellOfMessage)}}, "", Clearing::whole},
      {{{"+CCWA:", method(&Form1::tellOfWaitingCall)}}, "\"", Clearing::none},
      {{{"NO ANSWER", method(&Form1::tellOfNoAnswer)},
        {"NO CARRIER", method(&Form1::tellOfNoCarrier)},
        {"BUSY", method(&Form1::tellOfBusy)}},
       "",
       Clearing::none},
      {{{"ATI0", method(&Form1::ShowManufacturer)}}, "OK", Clearing::byAction},
      {{{"ATI3", method(&Form1::ShowRevision)}}, "OK", Clearing::byAction},
      {{{"AT+CPBS?", method(&Form1::SavePhoneBook)}}, "OK", Clearing::byAction},
      {{{"AT+VGR=", outcome("Changes SuccessFul-Speaker")}}, "", Clearing::whole},
      {{{"AT+VGT=", outcome("Changes SuccessFul-Microphone")}}, "", Clearing::whole},
      {{{"VGR:", method(&Form6::showSpeakerGain)}}, "", Clearing::whole},
      {{{"VGT:", method(&Form6::showMicrophoneGain)}}, "", Clearing::whole},
      {{{"ECHO:", showEchoValues}}, "", Clearing::byAction},
      {{{"AT+ECHO=", outcome("Changes SuccessFul")}}, "", Clearing::whole},
      {{{"SIDET:", method(&Form6::showSideTone)}}, "", Clearing::whole},
      {{{"AT+SIDET=", outcome("Changes SuccessFul")}}, "", Clearing::whole},
      {{{"CSQ:", method(&Form1::showSignal)}}, "", Clearing::whole},
      {{{"CREG:", method(&Form1::showRegistration)}}, "", Clearing::whole},
      {{{"CPIN:", method(&Form1::HandlePinStatus)}}, "", Clearing::whole},
      {{{"+CPIN=", method(&Form1::HandlePinResult)}}, "", Clearing::byAction},
      {{{"AT+CSCA?", showServiceCenter}}, "", Clearing::byAction},
      {{{"RING", method(&Form1::tellOfRing)}}, "", Clearing::whole},
      {{{"+CDS:", method(&Form1::readStatusReport)}}, "", Clearing::none},
  };
  return row;
}

void route(Form1& form, Form6& audio) {
  for (const Test& test : tests()) {
    const auto branch =
        std::find_if(test.branches.begin(), test.branches.end(),
                     [&form](const Branch& each) { return form.modem.holds(each.key); });
    if (branch == test.branches.end()) continue;
    if (!test.alsoNeeds.empty() && !form.modem.holds(test.alsoNeeds)) continue;
    branch->action(form, audio, form.modem.position(branch->key));
    if (test.clearing == Clearing::whole) form.modem.clear();
  }
}

}  // namespace

void Form1::ProcessResponse(const std::string& text, bool marked) try {
  Text1.append((marked ? "--> " : "") + text);
  modem.pause(2);
  if (Text1.Text.empty()) return;
  route(*this, panel_.form6);
  Text1.SelStart = Text1.length();
} catch (const RuntimeFailure&) {
  // Ends silently: the rest of the tests is skipped, and the transcript stays as it is.
}

}  // namespace gsm
