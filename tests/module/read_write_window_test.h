#pragma once

#include <string>

#include "module/form16.h"
#include "panel/form7.h"
#include "tests/support/feature_window_test.h"

namespace gsm {

/// One of the module's windows that read when they load, over an open port with a scripted modem.
class ReadWriteWindowTest : public FeatureWindowTest {
 protected:
  /// The user opens it by a button of the menu, and its read ends.
  void openBy(CommandButton& button) {
    inPanel([this] { panel().form16.Show(); });
    run(0);
    click(button);
    settle();
  }
  int minimisedLike(int state) {
    inPanel([this, state] { window().userState(state); });
    run(0);
    return panel().form7.WindowState.peek();
  }
  /// The modem answers `command` with the first `cut` bytes of its echo and `text`, and with the
  /// rest `restAfter` seconds later, if at all.
  void replyCut(const std::string& command, const std::string& text, int cut,
                double restAfter = 0) {
    const std::string whole = command + "\r" + text;
    const auto size = static_cast<std::size_t>(cut);
    std::vector<ModemScript::Chunk> chunks;
    if (size > 0) chunks.push_back({ModemScript::kDefaultDelay, whole.substr(0, size)});
    if (restAfter > 0 && size < whole.size()) {
      chunks.push_back({fromSeconds(restAfter), whole.substr(size)});
    }
    world().modem.add({.write = command + "\r", .replies = {chunks}, .echo = false});
  }
};

}  // namespace gsm
