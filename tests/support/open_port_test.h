#pragma once

#include <string>

#include "panel/form1.h"
#include "tests/support/panel_fixture.h"

namespace gsm {

/// A panel without a saved port, so without a start-up, on whose open port 3 a scripted modem
/// listens. The test decides all that happens on the line.
///
/// Its clock begins at midnight, where single precision is finer than anything that a test looks
/// at.
class OpenPortTest : public PanelTest {
 protected:
  void SetUp() override { startWithOpenPort(); }

  void startWithOpenPort(LocalTime clock = {2026, 3, 1, 0, 0, 0});

  /// Puts `text` into the transcript, as if it had come earlier and nothing had claimed it.
  void leaveInTranscript(const std::string& text);
};

}  // namespace gsm
