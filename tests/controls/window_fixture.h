#pragma once

#include <string>
#include <vector>

#include "tests/controls/test_window.h"
#include "tests/support/platform_fixture.h"

namespace gsm {

/// A machine with one window of every kind of control, on view.
class WindowTest : public PlatformTest {
 protected:
  void SetUp() override { window.Show(); }

  /// Notes each run of `event`, by `name`.
  void noteEach(Event& event, const std::string& name) {
    event = [this, name] { note(name); };
  }

  TestWindow window{platform()};
};

}  // namespace gsm
