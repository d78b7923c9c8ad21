#include "startup/frm_settings.h"

#include <array>

#include "link/speeds.h"
#include "link/text.h"
#include "panel/form1.h"
#include "panel/panel.h"
#include "platform/message_boxes.h"
#include "platform/platform.h"
#include "platform/port_probe.h"
#include "platform/runtime_failure.h"
#include "platform/settings_store.h"

namespace gsm {
namespace {

constexpr std::array kParityLetters = {"E", "O", "N"};
constexpr int kOk = 0;

// Runs `statement`. A failure is skipped.
template <class Statement>
void attempt(Statement&& statement) {
  try {
    statement();
  } catch (const RuntimeFailure&) {
    // Goes on with what stands next.
  }
}

// Takes the next field of a settings text off `rest`.
std::string takeField(std::string& rest) {
  std::string field = rest.substr(0, rest.find(','));
  rest = behind(",", rest);
  return field;
}

}  // namespace

frmSettings::frmSettings(Panel& panel)
    : Window(panel.platform, "frmSettings", {.Asks = true}), panel_(panel) {
  cboPort.DropDown = [this] { listPortsAnew(); };
  for (OptionButton& option : optDataBits) option.Click = [this] { optDataBits_Click(); };
  for (OptionButton& option : optHandshake) {
    option.Click = [this, index = option.index()] { optHandshake_Click(index); };
  }
  for (CommandButton& button : cmdAction) {
    button.Click = [this, index = button.index()] { cmdAction_Click(index); };
  }
}

void frmSettings::Form_Load() {
  Caption = "Scanning available comm hardware...";
  for (CommandButton& button : cmdAction) button.Enabled = false;
  Centred = true;
  Show();
  for (const char* speed : kSpeeds) cboBaud.AddItem(speed);
}

void frmSettings::Form_Unload() { panel_.form1.Show(); }

void frmSettings::CommSettings(Object* control, const std::string& title) {
  if (control == nullptr) {
    platform().boxes.show("No serial communications control specified.", "GSM", BoxIcon::critical);
    Unload();
    return;
  }
  Control = dynamic_cast<SerialControl*>(control);
  if (Control == nullptr) {
    platform().boxes.show("Passed control is not a serial communications control.", "GSM",
                          BoxIcon::critical);
    Unload();
    return;
  }
  PortWasClosed = !Control->PortOpen;
  if (Control->PortOpen) closePort();

  TopMost = true;
  MousePointer = MousePointer::hourglass;
  listPorts();
  Port = PortWasClosed ? 0 : static_cast<int>(Control->CommPort);
  std::string settings = Control->Settings;
  Baud = takeField(settings);
  Parity = takeField(settings);
  DataBits = takeField(settings);
  StopBits = takeField(settings);
  Handshake = Control->Handshaking;
  selectPort();
  selectSettings();
  MousePointer = MousePointer::arrow;
  Caption = title;
  for (CommandButton& button : cmdAction) button.Enabled = true;
}

void frmSettings::closePort() {
  attempt([this] { Control->PortOpen = false; });
  platform().loop.pass(platform().clock.now());
}

void frmSettings::listPorts() {
  cboPort.AddItem("<none>");
  for (int port = 1; port <= 32; ++port) {
    const PortProbe::Access access = platform().ports.access(port);
    const std::string tip = platform().ports.deviceName(port);
    if (access == PortProbe::Access::free) {
      cboPort.AddItem(" " + std::to_string(port), tip);
    } else if (access == PortProbe::Access::held) {
      cboPort.AddItem(" " + std::to_string(port) + " - Not Available",
                      tip + ": " + platform().ports.trouble(port));
    }
  }
}

// What was plugged in since the window came up is there when the list is opened, and what was
// pulled out isn't. The choice stays as long as there is such an entry; else it is "<none>".
void frmSettings::listPortsAnew() {
  const std::string chosen = cboPort.Text;
  cboPort.Clear();
  listPorts();
  cboPort.ListIndex = 0;
  attempt([&] { cboPort.Text = chosen; });
}

// Selects each entry in turn until one is the port. An entry that isn't available is no number: the
// comparison fails, which is skipped, and what stands next is the end of the search.
void frmSettings::selectPort() {
  for (int entry = 1; entry < cboPort.ListCount(); ++entry) {
    cboPort.ListIndex = entry;
    bool same = true;
    attempt([&] { same = number(trim(cboPort.Text.get())) == Port; });
    if (same) return;
    cboPort.ListIndex = 0;
  }
}

void frmSettings::selectSettings() {
  const auto& speeds = cboBaud.List.get();
  for (std::size_t entry = 0; entry < speeds.size(); ++entry) {
    if (speeds[entry] == Baud) cboBaud.ListIndex = static_cast<int>(entry);
  }
  for (OptionButton& option : optParity) {
    if (upperCase(Parity) == kParityLetters.at(static_cast<std::size_t>(option.index()))) {
      option.Value = true;
    }
  }
  if (DataBits == "7") optDataBits[0].Value = true;
  if (DataBits == "8") optDataBits[1].Value = true;
  if (StopBits == "1") optStopBits[0].Value = true;
  if (StopBits == "2") optStopBits[1].Value = true;
  if (Handshake >= 0 && Handshake < optHandshake.size()) optHandshake[Handshake].Value = true;
}

// Eight data bits leave no room for a second stop bit.
void frmSettings::optDataBits_Click() {
  const bool eight = optDataBits[1].Value;
  if (eight) optStopBits[0].Value = true;
  optStopBits[1].Enabled = !eight;
}

void frmSettings::optHandshake_Click(int index) {
  if (optHandshake[index].Value) Handshake = index;
}

void frmSettings::cmdAction_Click(int index) {
  if (index == kOk) {
    while (Control->PortOpen) closePort();
    const std::string chosen = cboPort.Text;
    if (position("none", chosen) != 0) {
      save("Port", "0");
      PortWasClosed = true;
      Unload();
      return;
    }
    // Exact in case, so the entries that end in " - Not Available" pass, and are refused below.
    if (position("not", chosen) != 0) {
      platform().boxes.show("Port " + slice(chosen, 1, 2) +
                                " is already open by another process. Please select a different "
                                "Comm port.",
                            "GSM");
      return;
    }
    takeChoices();
  }
  if (!PortWasClosed && !Control->PortOpen) attempt([this] { Control->PortOpen = true; });
  Unload();
}

void frmSettings::takeChoices() {
  DataBits = optDataBits[0].Value ? "7" : "8";
  if (optStopBits[0].Value) {
    StopBits = "1";
  } else {
    DataBits = "2";  // not the stop bits: the control refuses the settings, and the old ones stand
  }
  Parity = optParity[0].Value ? "E" : optParity[1].Value ? "O" : "N";
  Baud = cboBaud.Text;
  const std::string port = trim(cboPort.Text.get());

  attempt([&] { Control->CommPort = wholeNumber(port); });
  attempt([&] {
    Control->Settings = Baud + "," + Parity + "," + trim(DataBits) + "," + trim(StopBits);
  });
  attempt([&] { Control->Handshaking = Handshake; });
  save("Settings", Control->Settings);
  save("Port", std::to_string(Control->CommPort));
  save("Handshaking", std::to_string(Control->Handshaking));
  PortWasClosed = false;
}

void frmSettings::save(const std::string& key, const std::string& value) {
  attempt([&] { platform().settings.save(Control->name(), key, value); });
}

}  // namespace gsm
