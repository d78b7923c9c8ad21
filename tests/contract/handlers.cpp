#include "tests/contract/handlers.h"

#include "audio/form6.h"
#include "modem/form10.h"
#include "module/form17.h"
#include "module/form18.h"
#include "module/form19.h"
#include "panel/form1.h"
#include "phonebook/form3.h"
#include "phonebook/form4.h"
#include "security/form9.h"
#include "services/form12.h"
#include "settings/form14.h"
#include "settings/form15.h"
#include "sms/form8.h"

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

void addressMessage(Panel& panel) { panel.form8.Text1.Text = "0261914728"; }
void chooseBroadcast(Panel& panel) { panel.form8.Option1.Value = true; }
void chooseReports(Panel& panel) { panel.form8.Option3.Value = true; }

// The window's own load reads for as long.
const std::vector<float> kSixReasons = {3, 3, 3, 3, 3, 3};

void chooseForwarding(Panel& panel) {
  panel.form12.Option1.Value = true;
  panel.form12.Option8.Value = true;
}
void showBarring(Panel& panel) { panel.form12.Frame9.Visible = true; }
void chooseBarring(Panel& panel) {
  Form12& window = panel.form12;
  window.Frame5.Visible = true;
  window.Option17.Value = true;
  window.Option23.Value = true;
  window.Option24.Value = true;
  window.Text2.Text = "0000";
}
void chooseWaiting(Panel& panel) {
  panel.form12.Frame10.Visible = true;
  panel.form12.Option29.Value = true;
}
void chooseUserGroup(Panel& panel) {
  Form12& window = panel.form12;
  window.Frame12.Visible = true;
  for (ComboBox* combo : {&window.Combo1, &window.Combo2, &window.Combo3}) combo->Text = "1";
}

// The lists of the other pages are filled when their page is read.
void chooseFrom(ComboBox& combo, Frame& page) {
  page.Visible = true;
  if (combo.ListCount() == 0) combo.AddItem("24");
  combo.ListIndex = 0;
}
void chooseBearer(Panel& panel) {
  Form14& window = panel.form14;
  for (ComboBox* combo : {&window.Combo1, &window.Combo2}) chooseFrom(*combo, window.Frame1);
}
void chooseCompression(Panel& panel) { chooseFrom(panel.form14.Combo3, panel.form14.Frame2); }
void chooseCorrection(Panel& panel) { chooseFrom(panel.form14.Combo4, panel.form14.Frame2); }
void chooseFaxClass(Panel& panel) { chooseFrom(panel.form14.Combo5, panel.form14.Frame3); }
void chooseToTransmit(Panel& panel) { chooseFrom(panel.form14.Combo6, panel.form14.Frame3); }
void chooseToReceive(Panel& panel) { chooseFrom(panel.form14.Combo7, panel.form14.Frame3); }

void chooseToolkit(Panel& panel) { panel.form18.Combo1.ListIndex = 1; }
void configureToolkit(Panel& panel) {
  panel.form18.Combo1.ListIndex = 2;
  panel.form18.Text1.Text = "160060C01F";
}
void fillContext(Panel& panel) {
  panel.form19.Combo1.ListIndex = 0;
  panel.form19.Combo2.ListIndex = 0;
  panel.form19.Text1.Text = "internet";
}

void showSimPage(Panel& panel) { panel.form9.Frame3.Visible = true; }
void showNetworkPage(Panel& panel) { panel.form9.Frame4.Visible = true; }
void choosePhoneLock(Panel& panel) {
  panel.form9.Option1.Value = true;
  panel.form9.Text1.Text = "12345678";
}
void chooseSimLock(Panel& panel) {
  showSimPage(panel);
  panel.form9.Option4.Value = true;
}
void chooseNetworkLock(Panel& panel) {
  showNetworkPage(panel);
  panel.form9.Option7.Value = true;
  panel.form9.Text7.Text = "12345678";
}
void enterPhonePasswords(Panel& panel) {
  panel.form9.Text2.Text = "12345678";
  panel.form9.Text3.Text = "87654321";
}

void chooseDump(Panel& panel) {
  panel.form17.Combo1.ListIndex = 0;
  panel.form17.Combo2.ListIndex = 0;
}
void chooseLevel(Panel& panel) { panel.form17.Combo3.ListIndex = 1; }
void chooseVoiceMail(Panel& panel) {
  panel.form17.Frame5.Visible = true;
  panel.form17.Combo4.Text = "1";
}
void choosePin(Panel& panel) {
  panel.form17.Frame6.Visible = true;
  panel.form17.Combo5.Text = "1";
}
void showPowerPage(Panel& panel) { panel.form17.Frame9.Visible = true; }

// Its eight steps.
const std::vector<float> kLineSettings = {1, 1, 1, 1, 1, 1, 1, 1};

void fillLineSettings(Panel& panel) {
  Form15& window = panel.form15;
  window.Combo1.Text = "9600";
  for (OptionButton* option :
       {&window.Option4, &window.Option12, &window.Option15, &window.Option19, &window.Option20,
        &window.Option23, &window.Option25, &window.Option28}) {
    option->Value = true;
  }
}

void turnToEcho(Panel& panel) {
  panel.form6.TabStrip1.Value = 2;
  panel.form6.Frame2.Visible = true;
}
void turnToAnswer(Panel& panel) {
  panel.form6.TabStrip1.Value = 3;
  panel.form6.Frame10.Visible = true;
}
void knowGains(Panel& panel) {
  panel.form6.Label5.Caption = "128";
  panel.form6.Label6.Caption = "064";
}
void chooseEcho(Panel& panel) {
  turnToEcho(panel);
  panel.form6.Combo1.Text = "0";
  panel.form6.Combo2.Text = "3";
}
void chooseSideTone(Panel& panel) {
  turnToEcho(panel);
  panel.form6.Option2.Value = true;
}
void chooseAnswer(Panel& panel) {
  turnToAnswer(panel);
  panel.form6.Option4.Value = true;
  panel.form6.Combo3.Text = "2";
}
void enterToneLength(Panel& panel) {
  turnToAnswer(panel);
  panel.form6.Text1.Text = "300";
}
void chooseMelody(Panel& panel) {
  panel.form6.turnPage(4);
  panel.form6.Combo4.ListIndex = 0;
  panel.form6.Combo5.ListIndex = 1;
}

std::vector<HandlerRow> makeHandlers() {
  std::vector<HandlerRow> rows = {
      {"Signal", "Form1", "Label8", Trap::silent, true, {1}},
      {"Model", "Form1", "Command1", Trap::silent, false, {1}},
      {"VoiceCall", "Form1", "Command2", Trap::silent, true, {1}},
      {"Messages", "Form1", "Command3", Trap::none, true, {1}},
      {"CallControl", "Form1", "Command6", Trap::silent, false, {1, 1}},
      {"DataFaxSetup", "Form1", "Command10", Trap::silent, false, {1}},
      {"OtherFeatures", "Form1", "Command12", Trap::silent, false, {}},
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
      {"SendMessage", "Form8", "Command1", Trap::silent, true, {1, 6}, addressMessage},
      {"SaveMessage", "Form8", "Command2", Trap::silent, true, {1, 3}, addressMessage},
      {"ReadMessage", "Form8", "Command3", Trap::silent, true, {1}},
      {"DeleteMessage", "Form8", "Command4", Trap::silent, true, {1}},
      {"ShowOutbox", "Form8", "Command5", Trap::silent, false, {}},
      {"ListNamesWithoutABook", "Form8", "Command6", Trap::silent, false, {}},
      {"ClearMessage", "Form8", "Command7", Trap::silent, false, {}},
      {"SignalBesideMessages", "Form8", "Label7", Trap::silent, true, {1}},
      {"SwitchBroadcast", "Form8", "Command8", Trap::silent, true, {1}, chooseBroadcast},
      {"SwitchReports", "Form8", "Command9", Trap::silent, true, {1, 1}, chooseReports},
      {"ChangeForwarding", "Form12", "Command1", Trap::silent, true, {3}, chooseForwarding},
      {"RefreshForwarding", "Form12", "Command2", Trap::silent, true, kSixReasons},
      {"PageOfForwarding", "Form12", "TabStrip1", Trap::silent, true, kSixReasons},
      {"OpenBarringChange", "Form12", "Command4", Trap::silent, false, {}, showBarring},
      {"ChangeBarring", "Form12", "Command3", Trap::silent, true, {4}, chooseBarring},
      {"OpenWaitingChange", "Form12", "Command5", Trap::silent, false, {}, chooseWaiting},
      {"ChangeWaiting", "Form12", "Command6", Trap::silent, true, {3}, chooseWaiting},
      {"ChangeUserGroup", "Form12", "Command7", Trap::silent, true, {1}, chooseUserGroup},
      {"SignalBesideServices", "Form12", "Command8", Trap::silent, true, {1}},
      {"PageOfThePhoneLock", "Form9", "TabStrip1", Trap::silent, false, {}},
      {"RefreshLocks", "Form9", "Command10", Trap::silent, true, {1}},
      {"SignalBesideLocks", "Form9", "Command11", Trap::silent, true, {1}},
      {"PreparePhoneLock", "Form9", "Command2", Trap::silent, false, {}},
      {"PrepareSimLock", "Form9", "Command4", Trap::silent, false, {}, showSimPage},
      {"PrepareNetworkLock", "Form9", "Command7", Trap::silent, false, {}, showNetworkPage},
      {"OpenPhoneLock", "Form9", "Option1", Trap::silent, false, {}},
      {"OpenPhonePasswords", "Form9", "Option3", Trap::silent, false, {}},
      {"OpenSimPasswords", "Form9", "Option6", Trap::silent, false, {}, showSimPage},
      {"OpenNetworkPasswords", "Form9", "Option9", Trap::silent, false, {}, showNetworkPage},
      {"LockPhone", "Form9", "Command1", Trap::silent, true, {1}, choosePhoneLock},
      {"LockSim", "Form9", "Command5", Trap::silent, true, {1}, chooseSimLock},
      {"LockNetwork", "Form9", "Command8", Trap::silent, true, {1}, chooseNetworkLock},
      {"ChangePhonePassword", "Form9", "Command3", Trap::silent, true, {1}, enterPhonePasswords},
      {"ChangeSimPin", "Form9", "Command6", Trap::silent, true, {1}, showSimPage},
      {"ChangeNetworkPassword", "Form9", "Command9", Trap::silent, true, {1}, showNetworkPage},
      {"PageOfTheBearer", "Form14", "Command1", Trap::silent, true, {1}},
      {"PageOfCompression", "Form14", "Command2", Trap::silent, true, {1, 1}},
      {"PageOfFax", "Form14", "Command3", Trap::silent, true, {1}},
      {"SignalBesideData", "Form14", "Label9", Trap::silent, true, {1}},
      {"ChangeBearer", "Form14", "Command6", Trap::silent, true, {1}, chooseBearer},
      {"ChangeCompression", "Form14", "Command7", Trap::silent, true, {1}, chooseCompression},
      {"ChangeCorrection", "Form14", "Command8", Trap::silent, true, {1}, chooseCorrection},
      {"ChangeFaxClass", "Form14", "Command4", Trap::silent, true, {1}, chooseFaxClass},
      {"ChangeTransmitSpeed", "Form14", "Command5", Trap::silent, true, {1}, chooseToTransmit},
      {"ChangeReceiveSpeed", "Form14", "Command9", Trap::silent, true, {1}, chooseToReceive},
      {"SaveLineSettings", "Form15", "Command1", Trap::silent, true, kLineSettings,
       fillLineSettings},
      {"OpenMakersFeatures", "Form16", "Command1", Trap::silent, false, {1}},
      {"PageOfIndications", "Form17", "Command1", Trap::silent, true, {1}},
      {"PageOfVoiceMail", "Form17", "Command2", Trap::silent, false, {}},
      {"PageOfPins", "Form17", "Command3", Trap::silent, false, {}},
      {"PageOfPower", "Form17", "Command5", Trap::silent, false, {}},
      {"SignalBesideIndications", "Form17", "Label10", Trap::silent, true, {1}},
      {"ReadIndicators", "Form17", "Command6", Trap::silent, true, {1}},
      {"ChangeDump", "Form17", "Command7", Trap::silent, true, {1}, chooseDump},
      {"ChooseIndications", "Form17", "Combo3", Trap::silent, false, {}},
      {"ChangeIndications", "Form17", "Command8", Trap::silent, true, {1}, chooseLevel},
      {"ChangeVoiceMail", "Form17", "Command9", Trap::silent, true, {1}, chooseVoiceMail},
      {"ReadPin", "Form17", "Command10", Trap::silent, true, {1}, choosePin},
      {.name = "SwitchOff",
       .window = "Form17",
       .control = "Command4",
       .trap = Trap::silent,
       .usesPort = true,
       .pauses = {1, 3},
       .prepare = showPowerPage,
       .endsByOk = true},
      {"OpenToolkit", "Form16", "Command2", Trap::silent, false, {1}},
      {"ChooseToolkitMode", "Form18", "Combo1", Trap::silent, false, {}},
      {"ChangeToolkitMode", "Form18", "Command1", Trap::silent, true, {1}, chooseToolkit},
      {"ConfigureToolkit", "Form18", "Command1", Trap::silent, true, {1}, configureToolkit},
      {"RefreshToolkit", "Form18", "Command2", Trap::silent, true, {1}},
      {"OpenContexts", "Form16", "Command3", Trap::silent, false, {1}},
      {"DefineContext", "Form19", "Command1", Trap::silent, true, {1, 1}, fillContext},
      {"RefreshContexts", "Form19", "Command2", Trap::silent, true, {1}},
      {"PageOfTheGains", "Form6", "TabStrip1", Trap::silent, false, {}},
      {"PageOfTheEcho", "Form6", "TabStrip1", Trap::silent, true, {1, 1}, turnToEcho},
      {"PageOfTheAnswer", "Form6", "TabStrip1", Trap::silent, true, {1, 1}, turnToAnswer},
      {"SendGains", "Form6", "Command1", Trap::silent, true, {1, 1}, knowGains},
      {"BackFromAudio", "Form6", "Command2", Trap::silent, false, {}},
      {"ChooseEchoAlgorithm", "Form6", "Combo2", Trap::silent, false, {}, turnToEcho},
      {"SendEcho", "Form6", "Command3", Trap::silent, true, {1}, chooseEcho},
      {"SendSideTone", "Form6", "Command4", Trap::silent, true, {1}, chooseSideTone},
      {"HideRings", "Form6", "Option3", Trap::silent, false, {}, turnToAnswer},
      {"ShowRings", "Form6", "Option4", Trap::silent, false, {}, turnToAnswer},
      {"SendAnswer", "Form6", "Command5", Trap::silent, true, {1}, chooseAnswer},
      {"SendToneLength", "Form6", "Command6", Trap::silent, true, {1}, enterToneLength},
      {"SendMelody", "Form6", "Command7", Trap::silent, true, {1}, chooseMelody},
  };
  return rows;
}

}  // namespace

const std::vector<HandlerRow>& handlers() {
  static const std::vector<HandlerRow> rows = makeHandlers();
  return rows;
}

}  // namespace gsm
