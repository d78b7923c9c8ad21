#pragma once

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "app/windows.h"
#include "panel/form1.h"
#include "platform/qt/desktop.h"
#include "platform/sqlite/phone_book_file.h"
#include "tests/support/desktop/simulated_modem.h"
#include "tests/support/temporary_folder.h"
#include "ui/views/binder.h"

namespace gsm {

/// The panel on the desktop with its port open on the simulated modem, at 9600 baud and in real
/// time. Needs Qt's application object. What it can't do ends the process.
class DesktopBench {
 public:
  using Clock = std::chrono::steady_clock;
  using Milliseconds = std::chrono::duration<double, std::milli>;

  DesktopBench() : modem_(port(), /*speed=*/1, {.speed = 9600}) {
    createPhoneBook(folder_.path() / "phonebook.mdb");
    screen_.bind(desktop_.platform().windows);
    start(panel_);
    // Without a saved port nothing else goes on in the panel.
    act([this] {
      panel_.form1.MSComm1.CommPort = 1;
      panel_.form1.MSComm1.PortOpen = true;
    });
  }

 protected:
  const TemporaryFolder folder_;

  [[noreturn]] static void fail(const char* reason) {
    std::fprintf(stderr, "%s\n", reason);
    std::_Exit(EXIT_FAILURE);  // handlers may wait on the stack
  }

  Platform& platform() { return desktop_.platform(); }

  void runUntil(const std::function<bool()>& condition, Clock::duration limit) {
    using namespace std::chrono_literals;
    const auto alarm = platform().loop.every(5ms, [] {});  // keeps a pass from sleeping too long
    for (const auto end = Clock::now() + limit; !condition() && Clock::now() < end;) {
      platform().loop.pass();
    }
  }

  /// Runs `action` as a handler, to its end.
  void act(const std::function<void()>& action) {
    using namespace std::chrono_literals;
    bool done = false;
    platform().loop.post([&] {
      platform().handlers.run(action);
      done = true;
    });
    runUntil([&done] { return done; }, 20s);
    if (!done) fail("a handler doesn't end");
  }

  /// Lets the modem do `command`, and forgets its reply.
  void exchange(const char* command) {
    act([this, command] {
      panel_.form1.modem.exchange(command);
      panel_.form1.Text1.clear();
    });
  }

 private:
  std::filesystem::path port() const {
    std::filesystem::create_directory(folder_.path() / "ports");
    return folder_.path() / "ports" / "COM1";
  }

 protected:
  SimulatedModem modem_;

 private:
  Desktop desktop_{{.programFolder = folder_.path()}};
  Windows windows_{desktop_.platform()};

 protected:
  Panel& panel_ = windows_.panel;
  Binder screen_{desktop_.platform().loop};
};

inline void tell(const char* what, DesktopBench::Milliseconds time) {
  std::printf("%s: %.1f ms\n", what, time.count());
}

/// Prints each of the times, and what of them is beyond what is demanded. Ends the process.
[[noreturn]] inline void tellAll(const char* what, std::vector<DesktopBench::Milliseconds> times,
                                 DesktopBench::Milliseconds demanded) {
  for (const auto time : times) tell(what, time);
  std::sort(times.begin(), times.end());
  tell("demanded", demanded);
  tell("median beyond it", times[times.size() / 2] - demanded);
  tell("longest beyond it", times.back() - demanded);
  std::fflush(nullptr);
  std::_Exit(EXIT_SUCCESS);
}

}  // namespace gsm
