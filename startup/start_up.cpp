#include "modem/identity.h"
#include "panel/feature_window.h"
#include "panel/form1.h"
#include "panel/form7.h"
#include "panel/panel.h"
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

}  // namespace

void Form1::Form_Load() {
  const ScopedValue running(runningStartUps_, runningStartUps_ + 1);
  try {
    startFromFile();
  } catch (const RuntimeFailure& failure) {
    // Any other failure, above all a missing COM.txt, leaves the user with "Port Settings->".
    if (failure.description() != failure::portAlreadyOpen().description()) return;
    try {
      Command7.Enabled = true;
      buildPortList();
      List1.AddItem("Port Selected Already Open in Other Application");
      logSearch();
      sweepPorts();
    } catch (const RuntimeFailure&) {
      // Ends silently.
    }
  }
}

void Form1::startFromFile() {
  Files& files = platform().files;
  const LocalTime now = platform().clock.localTime();
  Label9.Caption = "System Started  " + now.date() + "," + now.timeOfDay();
  List1.AddItem("                      Welcome To Ormalin Telecom Application");

  const int file = files.freeFile();
  files.openForInput(file, "COM.txt");
  const FileCloser closer(files, file);
  // A port that is accepted closes all files, so that the next look at this one fails and ends the
  // load: after a hit no further line is read.
  while (!files.atEnd(file)) startFromLine(files.readLine(file));
  files.closeAll();
}

void Form1::startFromLine(const std::string& line) {
  Command7.Enabled = true;
  if (line.empty()) {
    buildPortList();
    logSearch();
    sweepPorts();
  } else {
    startFromSavedPort(line);
  }
}

void Form1::startFromSavedPort(const std::string& line) {
  // "9600,N,8,1 3". Of the port two characters are read, the blank included: one digit counts.
  const Position blank = position(" ", line);
  const std::string settings = trim(gsm::slice(line, 1, blank));
  const std::string port = trim(gsm::slice(line, blank, 2));

  MSComm1.CommPort = wholeNumber(port);
  MSComm1.Settings = settings;
  MSComm1.RThreshold = 1;
  MSComm1.SThreshold = 1;
  MSComm1.InputMode = 1;
  MSComm1.PortOpen = true;
  Show();

  exchange("AT+CGSN");
  if (!Text1.holds("OK")) {
    MSComm1.PortOpen = false;
    buildPortList();
    logSearch();
    sweepPorts();
    return;
  }
  MSComm1.Settings = settings;
  takeImei(panel_, Text1.position("AT+CGSN"));
  ShowPortStatus();
  AcceptPort();
  Text1.clear();
}

void Form1::buildPortList() {
  Combo1.Clear();
  for (int port = 1; port <= 16; ++port) {
    if (ComPortExists(port)) Combo1.AddItem(std::to_string(port));
  }
  Show();
  if (Combo1.ListCount() == 0) {
    ListCommPorts();
    if (Combo2.ListCount() != 0) {
      FallbackCount = Combo2.ListCount();
      FallbackLimit = FallbackCount;
      for (FallbackIndex = "0"; wholeNumber(FallbackIndex) != FallbackLimit;
           FallbackIndex = std::to_string(wholeNumber(FallbackIndex) + 1)) {
        Combo2.ListIndex = wholeNumber(FallbackIndex);
        Combo1.AddItem(Combo2.Text);
      }
    } else {
      platform().boxes.show("No Comm Ports Present", "GSM");
    }
  }
  Combo1.ListIndex = 0;  // fails where there is no port at all, which ends the load
  PortsFound = Combo1.ListCount();
}

void Form1::logSearch() {
  List1.AddItem("Checking For Available Communication Ports");
  List1.AddItem("Found  " + std::to_string(Combo1.ListCount()) + " Ports");
  List1.AddItem("Detecting Modem Present..");
}

void Form1::sweepPorts() {
  PortsToScan = PortsFound;
  PortIndex = "0";
  ScanForModem();
}

void Form1::Form_Resize() { followWith(panel_.form7, WindowState); }

void Form1::Form_Unload() { endProgram(); }

void Form1::endProgram() {
  if (MSComm1.PortOpen) {
    send("AT&W");
    Pause(1);
  }
  panel_.form7.Hide();
  platform().program.end();
}

}  // namespace gsm
