#pragma once

#include <string>
#include <string_view>

#include "controls/list_controls.h"
#include "controls/serial_control.h"
#include "controls/simple_controls.h"
#include "controls/timer.h"
#include "controls/window.h"
#include "link/conversation.h"
#include "link/text.h"
#include "link/transcript.h"

namespace gsm {

struct Panel;

/// The main window, on view for the whole run. It owns the port, the transcript and the log.
///
/// Its handlers live in the rooms that they belong to; this header is their table of contents.
class Form1 : public Window {
 public:
  explicit Form1(Panel& panel);

  // -- link/: the port and the transcript --------------------------------------------------------

  /// The wait that keeps the event loop running: returns when the clock has gone on by `seconds`,
  /// or at once when that is zero or less. Fails with `overflow` when midnight passes.
  void Pause(float seconds) { modem.pause(seconds); }

  /// Everything that happens on the line: takes in what was received and routes it.
  void OnComm();

  /// Adds `text` to the transcript as something to look at, with a line before and after. Nothing
  /// calls it.
  void ShowResponse(const std::string& text);

  // -- link/: start-up and discovery -------------------------------------------------------------

  /// Brings the modem link up from the saved port, or by the sweep.
  void Form_Load() override;

  /// Tries every port of the list at every speed, from `PortIndex` on, until a modem answers.
  void ScanForModem();

  /// The common last step of every way in which a modem is accepted; saves the port.
  void AcceptPort();

  /// "Port Settings->": lets the user choose the port, and probes the modem there.
  void choosePort();

  /// Whether the port is there, held or not.
  bool ComPortExists(int port);
  /// Adds the ports that are free to `Combo2`.
  void ListCommPorts();

  /// Shows the port's settings, number and state.
  void ShowPortStatus();

  /// Saves the modem's profile when the port is open, and ends the program.
  void endProgram();

  int PortsFound = 0;     // entries of Combo1
  int PortsToScan = 0;    // where the sweep stops
  std::string PortIndex;  // the sweep's place in Combo1, as decimal text
  int FallbackCount = 0;  // entries of Combo2
  int FallbackLimit = 0;  // its copy, where the copying stops
  std::string FallbackIndex;

  // -- dispatch/: what has been received ---------------------------------------------------------

  /// Takes `text` into the transcript, waits, and routes the transcript as it then stands.
  /// `marked` sets the mark "--> " before the text; nothing asks for it.
  void ProcessResponse(const std::string& text, bool marked);

  void showTime();
  void pollCall();

  // What comes without a command; `key` is where its word stands in the transcript.
  void tellOfMessage(Position key);
  void tellOfWaitingCall(Position key);
  void tellOfNoAnswer(Position key);
  void tellOfNoCarrier(Position key);
  void tellOfBusy(Position key);
  void tellOfRing(Position key);
  void readStatusReport(Position key);

  // -- phonebook/ --------------------------------------------------------------------------------

  /// Downloads the SIM's phone book into the mirror and the call window's list; the counts are in
  /// the transcript.
  void SavePhoneBook();

  // -- modem/: initialisation --------------------------------------------------------------------

  /// Drives the modem into the working configuration and unlocks the panel; the second one without
  /// a usable SIM.
  void InitialiseModem();
  void InitialiseModemNoSim();

  /// The readers of the transcript in it.
  void showAutoAnswer();
  void ShowModemSpeed();
  void ShowCharacterFraming();
  /// Selects the framing options by the profile in the transcript, and touches nothing else.
  void ParseCharacterFraming();
  /// Takes the service centre's number; the arguments are where "OK" and "ERROR" stand.
  void ShowServiceCenter(Position ok, Position error);

  // -- modem/: SIM codes -------------------------------------------------------------------------

  /// Asks whether a SIM is there and wants a code, and goes on from there.
  void CheckSimPin();
  void HandlePinStatus();
  void HandlePinResult();
  /// How many replies to a code have been judged so far.
  int codeVerdicts() const { return codeVerdicts_; }

  // -- modem/: identity --------------------------------------------------------------------------

  /// The arguments are where the echoed command and "OK" stand.
  void ShowManufacturer(Position echo, Position ok);
  void ShowRevision(Position echo, Position ok);
  /// Nothing calls it: start-up takes the same steps in its own flow.
  void ShowImei(Position echo);

  // -- modem/: the panel's buttons ---------------------------------------------------------------

  void openModel();
  void openCalls();
  void openMessages();
  void openServices();
  void openSecurity();
  void openAudio();
  void exit();
  void refresh();
  void openData();
  void openModemSettings();
  void openFeatures();
  void restoreFactorySettings();
  /// Shows the log, empty.
  void ShowStartupPanel();

  // -- modem/: signal and registration -----------------------------------------------------------

  /// Asks the modem for signal and registration, which appear in `Form7`.
  void networkset();
  /// The replies to it, of which `key` is the position in the transcript.
  void showSignal(Position key);
  void showRegistration(Position key);

  // -- audio/: replies about the audio settings --------------------------------------------------

  /// `key` is where "ECHO:" stands, as decimal text.
  void ShowEchoValues(const std::string& key);

  // -- controls ----------------------------------------------------------------------------------

  SerialControl MSComm1{platform(), "MSComm1"};

  Label Label1{*this, "Label1"};  // "Open" or "Closed"
  Label Label2{*this, "Label2"};  // the port
  Label Label3{*this, "Label3"};  // its settings
  Label Label4{*this, "Label4"};  // the clock
  Label Label5{*this, "Label5"};  // the status line
  Label Label6{*this, "Label6"};  // the modem's speed
  Label Label7{*this, "Label7"};  // the modem's framing
  Label Label8{*this, "Label8", {.Caption = "<<Signal>>"}};
  Label Label9{*this, "Label9"};  // since when the system runs

  CommandButton Command1{*this, "Command1", {.Caption = "&Model ", .Enabled = false}};
  CommandButton Command2{*this, "Command2", {.Caption = "&Voice Call", .Enabled = false}};
  CommandButton Command3{*this, "Command3", {.Caption = "&SMS", .Enabled = false}};
  CommandButton Command4{
      *this, "Command4", {.Caption = "&Supplementary Service ", .Enabled = false}};
  CommandButton Command5{*this, "Command5", {.Caption = "&Security", .Enabled = false}};
  CommandButton Command6{*this, "Command6", {.Caption = "&Call Control", .Enabled = false}};
  CommandButton Command7{*this, "Command7", {.Caption = "Port Settings->"}};
  CommandButton Command8{*this, "Command8", {.Caption = "&Exit"}};
  CommandButton Command9{*this, "Command9", {.Caption = "REFRESH"}};
  CommandButton Command10{*this, "Command10", {.Caption = "Data-Fax Setup", .Enabled = false}};
  CommandButton Command11{*this, "Command11", {.Caption = "Modem Setting->", .Enabled = false}};
  CommandButton Command12{*this, "Command12", {.Caption = "Other Features", .Enabled = false}};
  CommandButton Command13{*this, "Command13", {.Caption = "Factory Settings"}};

  Frame Frame5{*this, "Frame5"};                   // the start-up panel
  ListBox List1{*this, "List1", {.In = &Frame5}};  // the log; nothing reads it

  // Below the client area, so never on view.
  Transcript Text1{*this, "Text1", {.MultiLine = true, .Unseen = true}};
  TextBox Text2{*this, "Text2", {.Text = "0", .Unseen = true}};
  TextBox Text3{*this, "Text3", {.Text = "0", .Unseen = true}};
  ComboBox Combo1{*this, "Combo1", {.Unseen = true}};  // the ports to sweep
  ComboBox Combo2{*this, "Combo2", {.Unseen = true}};  // the free ports

  Conversation modem{platform(), MSComm1, Text1};

  Timer Timer1{*this, "Timer1", {.Interval = 1000}};
  Timer Timer2{*this, "Timer2", {.Interval = 2000, .Enabled = false}};

 protected:
  void Form_Resize() override;
  void Form_Unload() override;

 private:
  Panel& panel_;
  int runningStartUps_ = 0;  // on the handler stack now
  int codeVerdicts_ = 0;
};

}  // namespace gsm
