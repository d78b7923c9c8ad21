#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <iosfwd>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "app/headless_panel.h"
#include "panel/form1.h"
#include "tests/support/temporary_folder.h"

namespace gsm {

/// How a test's machine looks before the program starts.
struct Machine {
  std::vector<HeadlessPorts::Port> ports = {{.number = 3}};
  std::optional<int> modemPort = 3;
  int modemSpeed = 9600;
  LocalTime now = {2026, 3, 1, 10, 0, 0};
  std::ostream* record = nullptr;  // gets a record of the line
};

/// The whole panel on virtual time, with a scripted modem, real files in a folder of the test's
/// own, and a user made of one-line calls.
class PanelTest : public ::testing::Test {
 protected:
  /// Lays `COM.txt` with exactly these bytes.
  void layComFile(const std::string& bytes) { folder_.write("COM.txt", bytes); }
  /// The bytes of a file of the program's folder; nothing when there is none.
  std::optional<std::string> file(const std::string& name) const { return folder_.read(name); }
  const std::filesystem::path& folder() const { return folder_.path(); }

  /// The program that is started next has `database` in the place of the real engine.
  void useDatabase(std::shared_ptr<DatabaseEngine> database) { database_ = std::move(database); }

  /// Starts the program; nothing happens before time passes.
  void start(const Machine& machine = {});
  /// Starts it against a modem that answers "AT+CGSN" on the saved port 3, and lets the start-up
  /// end.
  void startWithModem();

  /// The modem answers `command` (without its carriage return) with its echo and `text`.
  void reply(const std::string& command, const std::string& text,
             Duration after = ModemScript::kDefaultDelay);
  /// One chunk comes from the modem, `after` seconds from now.
  void receive(const std::string& bytes, double after = 0);

  void run(double seconds) { world_->time().run(fromSeconds(seconds)); }
  void settle() { world_->time().settle(std::chrono::seconds(600)); }
  /// The user clicks, and what happens at that instant happens.
  template <class Clickable>
  void click(Clickable& control) {
    world_->time().after(Duration::zero(), [&control] { control.userClick(); });
    run(0);
  }
  /// Runs `action` as a handler of the panel, `after` seconds from now.
  void inPanel(std::function<void()> action, double after = 0);

  /// What was written to the port since the last call.
  std::vector<std::string> sent();
  /// The same with the times, in seconds from the start.
  std::vector<HeadlessLine::Write> sentWithTimes() { return world_->machine.line.takeWrites(); }
  /// The boxes shown since the last call, by their texts.
  std::vector<std::string> boxes();

  double now() const { return toSeconds(world_->machine.time.now()); }
  int waiting() const { return world_->machine.handlers().depth(); }
  bool ended() const { return world_->machine.time.hasEnded(); }

  HeadlessPanel& world() { return *world_; }
  HeadlessPlatform& machine() { return world_->machine; }
  Panel& panel() { return world_->panel; }
  Form1& form1() { return world_->panel.form1; }
  std::string transcript() { return form1().Text1.Text.peek(); }
  std::vector<std::string> log() { return form1().List1.List.peek(); }

 private:
  TemporaryFolder folder_;
  std::shared_ptr<DatabaseEngine> database_;
  mutable std::unique_ptr<HeadlessPanel> world_;
};

}  // namespace gsm
