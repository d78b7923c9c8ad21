#include "link/speeds.h"
#include "modem/identity.h"
#include "panel/form1.h"
#include "panel/form7.h"
#include "panel/panel.h"
#include "platform/files.h"
#include "platform/message_boxes.h"
#include "platform/platform.h"
#include "platform/port_probe.h"
#include "platform/runtime_failure.h"

namespace gsm {
namespace {

std::string successor(const std::string& count) { return std::to_string(wholeNumber(count) + 1); }

// Tries the speeds on the current port. Whether a modem has answered; then the port stays open.
bool sweepSpeeds(Form1& form) {
  for (const char* const baud : kSpeeds) {
    const std::string speed = std::string(baud) + ",n,8,1";
    if (!form.MSComm1.PortOpen) form.MSComm1.PortOpen = true;
    form.MSComm1.Settings = speed;
    if (std::string(form.MSComm1.Settings) == speed) {
      form.modem.exchange("AT+CGSN");
      if (form.modem.holds("OK")) {
        form.MSComm1.Settings = speed;
        return true;
      }
    }
    form.MSComm1.PortOpen = false;
  }
  return false;
}

}  // namespace

bool Form1::ComPortExists(int port) { return platform().ports.exists(port); }

void Form1::ListCommPorts() {
  for (int port = 1; port <= 32; ++port) {
    const bool free = platform().ports.access(port) == PortProbe::Access::free;
    if (free) Combo2.AddItem(" " + std::to_string(port));
  }
}

void Form1::ScanForModem() {
  std::string description;
  try {
    while (wholeNumber(PortIndex) != PortsToScan) {
      Combo1.ListIndex = wholeNumber(PortIndex);
      MSComm1.CommPort = wholeNumber(Combo1.Text.get());
      Label5.Caption = "Scanning Port  " + Combo1.Text;
      if (sweepSpeeds(*this)) {
        takeImei(panel_, modem.position("AT+CGSN"));
        ShowPortStatus();
        AcceptPort();
        modem.clear();
        return;
      }
      PortIndex = successor(PortIndex);
      if (MSComm1.PortOpen) MSComm1.PortOpen = false;
      if (wholeNumber(PortIndex) == Combo1.ListCount()) {
        Label5.Caption = "No Modem Device Found.Set The Comm Ports";
        Command7.Enabled = true;
      }
    }
    return;
  } catch (const RuntimeFailure& failure) {
    description = failure.description();
  }
  if (description == failure::portAlreadyOpen().description()) {
    PortIndex = successor(PortIndex);
    ScanForModem();
    description.clear();  // the sweep just made has used the description up: the box stays blank
  }
  platform().boxes.show(description);
}

void Form1::AcceptPort() try {
  ShowPortStatus();
  Show();
  CheckSimPin();
  panel_.form7.Show();
  Files& files = platform().files;
  // While a start-up runs the number belongs to the reading of this very file, whoever may have
  // closed it meanwhile: nothing is saved then.
  constexpr int kFileNumber = 1;
  if (runningStartUps_ > 0) throw failure::fileAlreadyOpen();
  files.openForOutput(kFileNumber, "COM.txt");
  files.printLine(kFileNumber, Label3.Caption + " " + std::to_string(MSComm1.CommPort));
  files.closeAll();
} catch (const RuntimeFailure& failure) {
  if (failure.description() == failure::fileAlreadyOpen().description()) {
    platform().files.closeAll();
  } else {
    platform().boxes.show(failure.description());
  }
}

void Form1::ShowPortStatus() {
  Label3.Caption = upperCase(std::string(MSComm1.Settings));
  Label2.Caption = "Port " + std::to_string(MSComm1.CommPort);
  Label1.Caption = MSComm1.PortOpen ? "Open" : "Closed";
}

}  // namespace gsm
