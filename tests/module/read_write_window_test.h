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
  /// Opened by `opener` of the menu the window has the title that the menu gives, also when it
  /// reads anew by `refresh`; closed and loaded anew it has its own.
  void expectTitles(CommandButton& opener, CommandButton& refresh, const std::string& own,
                    const std::string& given) {
    EXPECT_EQ(window().Caption.peek(), own);
    openBy(opener);
    EXPECT_EQ(window().Caption.peek(), given);
    press(refresh);
    EXPECT_EQ(window().Caption.peek(), given);
    closeWindow();
    beginLoad();
    EXPECT_EQ(window().Caption.peek(), own);
  }
  void expectStatusWindowFollows() {
    EXPECT_EQ(minimisedLike(WindowState::minimised), WindowState::minimised);
    EXPECT_EQ(minimisedLike(WindowState::maximised), WindowState::minimised);
    EXPECT_EQ(minimisedLike(WindowState::normal), WindowState::normal);
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
