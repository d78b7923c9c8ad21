#include "modem/identity.h"
#include "panel/feature_window.h"
#include "panel/form1.h"
#include "panel/form7.h"
#include "panel/panel.h"
#include "platform/files.h"
#include "platform/message_boxes.h"
#include "platform/platform.h"
#include "platform/program.h"
#include "platform/runtime_failure.h"
#include "platform/scoped_value.h"

namespace gsm {
namespace {

// Closes a file at the end of a scope, however it is left.
class FileCloser {
 public:
  FileCloser(Files& files, int number) : files_(files), number_(number) {}
  ~FileCloser() { files_.close(number_); }
  FileCloser(const FileCloser&) = delete;
  FileCloser& operator=(const FileCloser&) = delete;

 private:
  Files& files_;
  const int number_;
};

void buildPortList(Form1& form) {
  form.Combo1.Clear();
  for (int port = 1; port <= 16; ++port) {
    if (form.ComPortExists(port)) form.Combo1.AddItem(std::to_string(port));
  }
  form.Show();
  if (form.Combo1.ListCount() == 0) {
    form.ListCommPorts();
    if (form.Combo2.ListCount() != 0) {
      form.FallbackCount = form.Combo2.ListCount();
      form.FallbackLimit = form.FallbackCount;
      for (form.FallbackIndex = "0"; wholeNumber(form.FallbackIndex) != form.FallbackLimit;
           form.FallbackIndex = std::to_string(wholeNumber(form.FallbackIndex) + 1)) {
        form.Combo2.ListIndex = wholeNumber(form.FallbackIndex);
        form.Combo1.AddItem(form.Combo2.Text);
      }
    } else {
      form.platform().boxes.show("No Comm Ports Present", "GSM");
    }
  }
  form.Combo1.ListIndex = 0;  // fails where there is no port at all, which ends the load
  form.PortsFound = form.Combo1.ListCount();
}

void logSearch(Form1& form) {
  form.List1.AddItem("Checking For Available Communication Ports");
  form.List1.AddItem("Found  " + std::to_string(form.Combo1.ListCount()) + " Ports");
  form.List1.AddItem("Detecting Modem Present..");
}

void sweepPorts(Form1& form) {
  form.PortsToScan = form.PortsFound;
  form.PortIndex = "0";
  form.ScanForModem();
}

void startFromSavedPort(Form1& form, const Panel& panel, const std::string& line) {
  // "9600,N,8,1 3". Of the port two characters are read, the blank included: one digit counts.
  const Position blank = position(" ", line);
  const std::string settings = trim(slice(line, 1, blank));
  const std::string port = trim(slice(line, blank, 2));

  form.MSComm1.CommPort = wholeNumber(port);
  form.MSComm1.Settings = settings;
  form.MSComm1.RThreshold = 1;
  form.MSComm1.SThreshold = 1;
  form.MSComm1.InputMode = 1;
  form.MSComm1.PortOpen = true;
  form.Show();

  form.modem.exchange("AT+CGSN");
  if (!form.modem.holds("OK")) {
    form.MSComm1.PortOpen = false;
    buildPortList(form);
    logSearch(form);
    sweepPorts(form);
    return;
  }
  form.MSComm1.Settings = settings;
  takeImei(panel, form.modem.position("AT+CGSN"));
  form.ShowPortStatus();
  form.AcceptPort();
  form.modem.clear();
}

void startFromLine(Form1& form, const Panel& panel, const std::string& line) {
  form.Command7.Enabled = true;
  if (line.empty()) {
    buildPortList(form);
    logSearch(form);
    sweepPorts(form);
  } else {
    startFromSavedPort(form, panel, line);
  }
}

void startFromFile(Form1& form, const Panel& panel) {
  Files& files = form.platform().files;
  const LocalTime now = form.platform().clock.localTime();
  form.Label9.Caption = "System Started  " + now.date() + "," + now.timeOfDay();
  form.List1.AddItem("                      Welcome To Ormalin Telecom Application");

  const int file = files.freeFile();
  files.openForInput(file, "COM.txt");
  const FileCloser closer(files, file);
  // A port that is accepted closes all files, so that the next look at this one fails and ends the
  // load: after a hit no further line is read.
  while (!files.atEnd(file)) startFromLine(form, panel, files.readLine(file));
  files.closeAll();
}

}  // namespace

void Form1::Form_Load() {
  const ScopedValue running(runningStartUps_, runningStartUps_ + 1);
  try {
    startFromFile(*this, panel_);
  } catch (const RuntimeFailure& failure) {
    // Any other failure, above all a missing COM.txt, leaves the user with "Port Settings->".
    if (failure.description() != failure::portAlreadyOpen().description()) return;
    try {
      Command7.Enabled = true;
      buildPortList(*this);
      List1.AddItem("Port Selected Already Open in Other Application");
      logSearch(*this);
      sweepPorts(*this);
    } catch (const RuntimeFailure&) {
      // Ends silently.
    }
  }
}

void Form1::Form_Resize() { followWith(panel_.form7, WindowState); }

void Form1::Form_Unload() { endProgram(); }

void Form1::endProgram() {
  if (MSComm1.PortOpen) {
    modem.exchangeOnTop("AT&W");
  }
  panel_.form7.Hide();
  platform().program.end();
}

}  // namespace gsm
