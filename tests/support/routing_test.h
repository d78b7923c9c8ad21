#pragma once

#include <string>

#include "audio/form6.h"
#include "panel/form1.h"
#include "panel/form7.h"
#include "tests/support/open_port_test.h"

namespace gsm {

/// What routing makes of received text, seen in the windows.
class RoutingTest : public OpenPortTest {
 protected:
  /// `text` comes in one chunk, and its routing ends.
  void route(const std::string& text) {
    receive(text);
    run(2.1);
  }

  /// Whether a ring that comes now is heard: that test stands behind nearly all others.
  bool hearsRing() {
    form1().Timer2.Enabled = false;
    route("\r\nRING\r\n");
    return form1().Timer2.Enabled.peek();
  }

  /// Loads the audio window, which the first of its replies would load else, with reads of its own.
  void loadAudio() {
    inPanel([this] { panel().form6.reference(); });
    settle();
    sent();
  }

  void clearTranscript() {
    inPanel([this] { form1().Text1.clear(); });
    run(0);
  }

  std::string audioStatus() { return panel().form6.Label7.Caption.peek(); }
  std::string speakerGain() { return panel().form6.Label5.Caption.peek(); }
  std::string microphoneGain() { return panel().form6.Label6.Caption.peek(); }
  std::string signal() { return panel().form7.Label4.Caption.peek(); }
  std::string registration() { return panel().form7.Label5.Caption.peek(); }

  /// The bars from the left, "#" for one that is lit.
  std::string bars() {
    std::string all;
    Form7& window = panel().form7;
    for (const Picture* bar :
         {&window.Image1, &window.Image2, &window.Image3, &window.Image4, &window.Image5}) {
      all += bar->Visible.peek() ? '#' : '.';
    }
    return all;
  }
  void setBars(const std::string& pattern) {
    Form7& window = panel().form7;
    window.Image1.Visible = pattern[0] == '#';
    window.Image2.Visible = pattern[1] == '#';
    window.Image3.Visible = pattern[2] == '#';
    window.Image4.Visible = pattern[3] == '#';
    window.Image5.Visible = pattern[4] == '#';
  }
};

}  // namespace gsm
