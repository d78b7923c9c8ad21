#pragma once

#include <string>
#include <vector>

#include "panel/form1.h"
#include "tests/support/panel_fixture.h"

namespace gsm {

/// A start-up that sweeps at once, since the file with the saved port holds an empty line.
///
/// Its clock begins at midnight, where single precision is finer than anything that a test looks
/// at.
class SweepTest : public PanelTest {
 protected:
  struct Attempt {
    int port;
    std::string settings;
    std::string text;

    bool operator==(const Attempt&) const = default;
    friend void PrintTo(const Attempt& attempt, std::ostream* out) {
      *out << "port " << attempt.port << " at " << attempt.settings << ": " << attempt.text;
    }
  };

  static constexpr int kSpeeds[] = {300, 600, 1200, 2400, 4800, 9600, 19200, 38400, 57600, 115200};

  void startSweep(Machine machine) {
    layComFile("\r\n");
    machine.now = {2026, 3, 1, 0, 0, 0};
    start(machine);
  }

  /// The ten attempts on `port`, as they must be.
  static void expectPort(int port, std::vector<Attempt>& attempts) {
    for (const int speed : kSpeeds) {
      attempts.push_back({port, std::to_string(speed) + ",n,8,1", "AT+CGSN\r"});
    }
  }

  /// How long the attempt at `speed` lasts when nothing answers: the sending of its eight bytes,
  /// and the two seconds of the send event.
  static double lasting(int speed) { return 8 * 10.0 / speed + 2; }
  static double lastingWholePort() {
    double seconds = 0;
    for (const int speed : kSpeeds) seconds += lasting(speed);
    return seconds;
  }

  /// What is written from now on, for `seconds`, and how the port was set meanwhile.
  std::vector<Attempt> attempts(double seconds) {
    std::vector<Attempt> all;
    times_.clear();
    for (double left = seconds; left > 0; left -= kLook) {
      run(kLook);
      for (const auto& write : sentWithTimes()) {
        all.push_back({form1().MSComm1.CommPort, form1().MSComm1.Settings, write.text});
        times_.push_back(toSeconds(write.at));
      }
    }
    return all;
  }

  std::string statusLine() { return form1().Label5.Caption.peek(); }
  std::string portNumber() { return form1().Label2.Caption.peek(); }
  std::string portSettings() { return form1().Label3.Caption.peek(); }

  std::vector<double> times_;  // of the attempts

 private:
  static constexpr double kLook = 0.05;  // far below the shortest attempt
};

}  // namespace gsm
