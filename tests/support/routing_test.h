#pragma once

#include <string>

#include "tests/support/open_port_test.h"

namespace gsm {

/// What routing makes of received text, seen in the windows.
class RoutingTest : public OpenPortTest {
 protected:
  /// `text` comes in one chunk, and its routing ends.
  void route(const std::string& text);

  /// Whether a ring that comes now is heard: that test stands after nearly all others.
  bool hearsRing();

  /// Loads the audio window, which the first of its replies would load else, with reads of its own.
  void loadAudio();

  void clearTranscript();

  std::string audioStatus();
  std::string speakerGain();
  std::string microphoneGain();
  std::string signal();
  std::string registration();

  /// The bars from the left, "#" for one that is lit.
  std::string bars();
  void setBars(const std::string& pattern);
};

}  // namespace gsm
