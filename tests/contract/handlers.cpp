#include "tests/contract/handlers.h"

#include "modem/form10.h"
#include "panel/form1.h"
#include "phonebook/form3.h"
#include "phonebook/form4.h"

namespace gsm {
namespace {

// Nine looks, two seconds apart, after the command.
const std::vector<float> kDialing = {1, 2, 2, 2, 2, 2, 2, 2, 2, 2};

void enterNumber(Panel& panel) { panel.form3.Text1.Text = "0261914728"; }

void selectEntry(Panel& panel) {
  panel.form3.addRow("1", "0261914728", "ANNA");
  panel.form3.Text2.Text = "1";
  panel.form3.List1.ListIndex = 0;
}

void fillEntry(Panel& panel) {
  panel.form3.Text2.Text = "1";
  panel.form3.Text4.Text = "50";
  panel.form4.Text3.Text = "0261914728";
  panel.form4.Text4.Text = "Anna";
}

void askForPin(Panel& panel) {
  panel.form10.showPinForm();
  panel.form10.Text1.Text = "1234";
}

void askForPuk(Panel& panel) {
  panel.form10.Text1.Text = "1234";
  panel.form10.Text2.Text = "12345678";
}

std::vector<HandlerRow> makeHandlers() {
  std::vector<HandlerRow> rows = {
      {"Signal", "Form1", "Label8", Trap::silent, true, {1}},
      {"Model", "Form1", "Command1", Trap::silent, false, {1}},
      {"VoiceCall", "Form1", "Command2", Trap::silent, true, {1}},
      {"Messages", "Form1", "Command3", Trap::none, true, {1}},
      {"ModemSetting", "Form1", "Command11", Trap::silent, true, {1}},
      {"FactorySettings", "Form1", "Command13", Trap::none, false, {1, 1, 1}},
      {"KeyOfThePad", "Form3", "Image(5)", Trap::silent, true, {1}},
      {"KeyHash", "Form3", "Label2", Trap::silent, true, {1}},
      {"KeyStar", "Form3", "Label4", Trap::silent, true, {1}},
      {"Dial", "Form3", "Command1", Trap::silent, true, kDialing, enterNumber},
      {"Redial", "Form3", "Command8", Trap::silent, true, {1}},
      {"HangUp", "Form3", "Command4", Trap::silent, true, {1}},
      {"Backspace", "Form3", "Command6", Trap::silent, false, {}, enterNumber},
      {"ClearNumber", "Form3", "Command7", Trap::silent, false, {}, enterNumber},
      {"SignalBesideCalls", "Form3", "Label1", Trap::silent, true, {1}},
      {"DeleteEntry", "Form3", "Command3", Trap::silent, true, {1}, selectEntry},
      {"ReloadBook", "Form3", "Command5", Trap::silent, true, {1}},
      {"OpenAdd", "Form3", "Command2", Trap::silent, false, {}},
      {"AddEntry", "Form4", "Command1", Trap::silent, true, {1}, fillEntry},
      {"CancelEntry", "Form4", "Command2", Trap::silent, false, {}},
      {"AnswerCall", "Form5", "Command1", Trap::silent, true, {1}},
      {"RefuseCall", "Form5", "Command2", Trap::silent, true, {1}},
      {"SendPin", "Form10", "Command1", Trap::silent, true, {1}, askForPin},
      {"SendPuk", "Form10", "Command1", Trap::silent, true, {1}, askForPuk},
  };
  return rows;
}

}  // namespace

const std::vector<HandlerRow>& handlers() {
  static const std::vector<HandlerRow> rows = makeHandlers();
  return rows;
}

}  // namespace gsm
