#pragma once

#include <string>
#include <string_view>

#include "controls/list_controls.h"
#include "controls/option_button.h"
#include "controls/simple_controls.h"
#include "controls/slider.h"
#include "controls/tab_strip.h"
#include "controls/text_box.h"
#include "link/text.h"
#include "panel/feature_window.h"

namespace gsm {

/// The audio window: gains, echo cancellation, side tone, auto-answer, tones, melody.
class Form6 : public FeatureWindow {
 public:
  explicit Form6(Panel& panel);

  /// The readers of the modem's replies about the gains and the side tone; `key` is where the word
  /// of the reply stands in the transcript.
  void showSpeakerGain(Position key);
  void showMicrophoneGain(Position key);
  void showSideTone(Position key);

  /// Shows the page of `tab`, counted from 1, in the place of the others, and fills it. Page 4 is
  /// the ring melody's, to which no tab leads.
  void turnPage(int tab);

  TabStrip TabStrip1{*this,
                     "TabStrip1",
                     {.Tabs = {"Volume Control", "Tone/Echo Control", "AutoAnswer Mode/DTMF"}}};
  Label Label7{*this, "Label7"};  // the status line of all pages

  // Gains.
  Frame Frame1{*this, "Frame1"};
  Frame Frame3{*this, "Frame3", {.Caption = "Tune For Speaker", .In = &Frame1}};
  Label Label1{*this, "Label1", {.Caption = "0", .In = &Frame3}};
  Slider Slider1{*this, "Slider1", {.In = &Frame3, .Max = 255, .LargeChange = 15}};
  Label Label2{*this, "Label2", {.Caption = "255", .In = &Frame3}};
  Frame Frame4{*this, "Frame4", {.Caption = "Tune For Microphone", .In = &Frame1}};
  Label Label3{*this, "Label3", {.Caption = "0", .In = &Frame4}};
  Slider Slider2{*this, "Slider2", {.In = &Frame4, .Max = 255, .LargeChange = 15}};
  Label Label4{*this, "Label4", {.Caption = "255", .In = &Frame4}};
  Label Label5{*this, "Label5", {.In = &Frame1}};  // the speaker gain to send
  Label Label6{*this, "Label6", {.In = &Frame1}};  // the microphone gain to send
  CommandButton Command1{*this, "Command1", {.Caption = "&Ok", .In = &Frame1}};
  CommandButton Command2{*this, "Command2", {.Caption = "&Back", .In = &Frame1}};

  // Echo cancellation and side tone.
  Frame Frame2{*this, "Frame2"};
  Frame Frame5{*this, "Frame5", {.Caption = "Configure Echo Cancellation", .In = &Frame2}};
  Label Label8{*this, "Label8", {.Caption = "Mode", .In = &Frame5}};
  ComboBox Combo1{*this, "Combo1", {.In = &Frame5}};
  Label Label9{*this, "Label9", {.Caption = "Algold", .In = &Frame5}};
  ComboBox Combo2{*this, "Combo2", {.In = &Frame5}};  // the algorithm
  Frame Frame6{*this, "Frame6", {.Caption = "Echo Cancellation 1", .In = &Frame5}};
  Label Label10{*this, "Label10", {.Caption = "Volout", .In = &Frame6}};
  Label Label17{*this, "Label17", {.Caption = "0", .In = &Frame6}};
  Slider Slider3{*this, "Slider3", {.In = &Frame6, .Max = 15, .LargeChange = 1}};
  Label Label18{*this, "Label18", {.Caption = "15", .In = &Frame6}};
  Label Label11{*this, "Label11", {.Caption = "Step", .In = &Frame6}};
  Label Label19{*this, "Label19", {.Caption = "0", .In = &Frame6}};
  Slider Slider4{*this, "Slider4", {.In = &Frame6, .Max = 3, .LargeChange = 1}};
  Label Label20{*this, "Label20", {.Caption = "3", .In = &Frame6}};
  Label Label12{*this, "Label12", {.Caption = "PcmThRel", .In = &Frame6}};
  Label Label21{*this, "Label21", {.Caption = "0", .In = &Frame6}};
  Slider Slider5{*this, "Slider5", {.In = &Frame6, .Max = 31, .LargeChange = 2}};
  Label Label22{*this, "Label22", {.Caption = "31", .In = &Frame6}};
  Label Label13{*this, "Label13", {.Caption = "PcmThMax", .In = &Frame6}};
  Label Label23{*this, "Label23", {.Caption = "0", .In = &Frame6}};
  Slider Slider6{*this, "Slider6", {.In = &Frame6, .Max = 31, .LargeChange = 2}};
  Label Label24{*this, "Label24", {.Caption = "31", .In = &Frame6}};
  Frame Frame7{*this, "Frame7", {.Caption = "Echo Cancellation3", .In = &Frame5}};
  Label Label14{*this, "Label14", {.Caption = "AlgoParam", .In = &Frame7}};
  Label Label25{*this, "Label25", {.Caption = "0", .In = &Frame7}};
  Slider Slider7{*this, "Slider7", {.In = &Frame7, .Max = 63, .LargeChange = 1}};
  Label Label26{*this, "Label26", {.Caption = "63", .In = &Frame7}};
  Label Label15{*this, "Label15", {.Caption = "NoiseThres", .In = &Frame7}};
  Label Label27{*this, "Label27", {.Caption = "0", .In = &Frame7}};
  Slider Slider8{*this, "Slider8", {.In = &Frame7, .Max = 32767, .LargeChange = 1000}};
  Label Label28{*this, "Label28", {.Caption = "32767", .In = &Frame7}};
  Label Label16{*this, "Label16", {.Caption = "NmbTaps", .In = &Frame7}};
  Label Label29{*this, "Label29", {.Caption = "64", .In = &Frame7}};
  Slider Slider9{
      *this,
      "Slider9",
      {.In = &Frame7, .Min = 64, .Max = 256, .Value = 64, .SmallChange = 0, .LargeChange = 0}};
  Label Label30{*this, "Label30", {.Caption = "256", .In = &Frame7}};
  CommandButton Command3{*this, "Command3", {.Caption = "&Ok", .In = &Frame5}};
  Frame Frame8{*this, "Frame8", {.Caption = "Side Tone", .In = &Frame2}};
  Frame Frame9{*this, "Frame9", {.In = &Frame8}};
  OptionButton Option1{*this, "Option1", {.Caption = "SideTone Disabled", .In = &Frame9}};
  OptionButton Option2{*this, "Option2", {.Caption = "SideTone Enabled", .In = &Frame9}};
  Label Label31{*this, "Label31", {.Caption = "0", .In = &Frame8}};
  Slider Slider10{*this, "Slider10", {.In = &Frame8, .Max = 3, .LargeChange = 1}};
  Label Label32{*this, "Label32", {.Caption = "3", .In = &Frame8}};
  CommandButton Command4{*this, "Command4", {.Caption = "&Ok", .In = &Frame8}};

  // Auto-answer and tones.
  Frame Frame10{*this, "Frame10"};
  Frame Frame11{*this, "Frame11", {.Caption = "         AutoAnswer", .In = &Frame10}};
  OptionButton Option3{*this, "Option3", {.Caption = "Disable", .In = &Frame11}};
  OptionButton Option4{*this, "Option4", {.Caption = "Enable ", .In = &Frame11}};
  Label Label33{*this, "Label33", {.Caption = "Rings", .In = &Frame11, .Visible = false}};
  ComboBox Combo3{*this, "Combo3", {.In = &Frame11, .Visible = false}};
  CommandButton Command5{*this, "Command5", {.Caption = "&OK", .In = &Frame11}};
  Label Label34{*this, "Label34", {.Caption = "DTMF", .In = &Frame11}};
  Label Label35{*this, "Label35", {.Caption = "Tone Length <300-1500>", .In = &Frame11}};
  TextBox Text1{*this, "Text1", {.In = &Frame11, .MaxLength = 5}};
  Label Label36{*this, "Label36", {.Caption = "ms", .In = &Frame11}};
  CommandButton Command6{*this, "Command6", {.Caption = "OK", .In = &Frame11}};

  // Ring melody.
  Frame Frame12{*this, "Frame12", {.Caption = "Ring Melody", .Visible = false}};
  Label Label37{*this, "Label37", {.Caption = "Call Type", .In = &Frame12}};
  ComboBox Combo4{*this, "Combo4", {.In = &Frame12}};
  Label Label38{*this, "Label38", {.Caption = "Volume", .In = &Frame12}};
  Label Label40{*this, "Label40", {.Caption = "Min", .In = &Frame12}};
  Slider Slider11{*this, "Slider11", {.In = &Frame12, .Max = 15}};
  Label Label41{*this, "Label41", {.Caption = "Max", .In = &Frame12}};
  Label Label39{*this, "Label39", {.Caption = "Index", .In = &Frame12}};
  ComboBox Combo5{*this, "Combo5", {.In = &Frame12}};
  CommandButton Command7{*this, "Command7", {.Caption = "OK", .In = &Frame12}};

 protected:
  void Form_Load() override;
  void Form_Unload() override;

 private:
  void goBack();
  void changeGains();
  void readEchoAndSideTone();
  void showAlgorithm();
  void changeEcho();
  void changeSideTone();
  void readAnswerAndToneLength();
  void readAutoAnswer();
  void showRings(bool visible);
  void changeAutoAnswer();
  void sendAutoAnswer(const std::string& command, std::string_view done, bool byHand);
  void readToneLength();
  void changeToneLength();
  void listMelodies();
  void changeMelody();
};

}  // namespace gsm
