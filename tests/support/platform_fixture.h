#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "platform/headless/headless_platform.h"
#include "platform/runtime_failure.h"
#include "tests/support/temporary_folder.h"

namespace gsm {

/// The number of the run-time failure that `action` ends with, 0 when it ends well.
template <class Action>
int failureOf(Action&& action) {
  try {
    std::forward<Action>(action)();
  } catch (const RuntimeFailure& failure) {
    return failure.number();
  }
  return 0;
}

/// The machine under the windows, on virtual time, with no panel on it.
class PlatformTest : public ::testing::Test {
 protected:
  // Handlers that still wait refer to what a test class adds.
  void TearDown() override { machine_.time.abandon(); }

  HeadlessPlatform& machine() { return machine_; }
  Platform& platform() { return machine_.platform(); }
  VirtualTime& time() { return machine_.time; }
  const TemporaryFolder& folder() const { return folder_; }

  /// Runs `action` as a handler of the program, `after` seconds from now.
  void inProgram(std::function<void()> action, double after = 0) {
    time().after(fromSeconds(after),
                 [this, action = std::move(action)] { machine_.handlers().run(action); });
  }
  /// Runs `action` as a handler now, and what else happens at this instant.
  void now(std::function<void()> action) {
    inProgram(std::move(action));
    run(0);
  }
  void run(double seconds) { time().run(fromSeconds(seconds)); }
  void settle(double limit = 600) { time().settle(fromSeconds(limit)); }

  /// For use in handlers: waits for `seconds` while events run.
  void wait(double seconds) {
    const Instant end = time().now() + fromSeconds(seconds);
    while (time().now() < end) time().pass(end);
  }

  double at() { return toSeconds(time().now()); }
  int depth() { return machine_.handlers().depth(); }
  bool ended() { return time().hasEnded(); }

  /// Notes what happens, for comparison with what should.
  void note(std::string what) { notes_.push_back(std::move(what)); }
  std::vector<std::string> takeNotes() { return std::exchange(notes_, {}); }

  using Notes = std::vector<std::string>;

 private:
  TemporaryFolder folder_;
  HeadlessPlatform machine_{folder_.path(), {2026, 3, 1, 10, 0, 0}};
  Notes notes_;
};

}  // namespace gsm
