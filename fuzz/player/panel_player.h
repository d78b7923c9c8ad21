#pragma once

#include <filesystem>
#include <functional>
#include <memory>
#include <string>

#include "app/headless_panel.h"
#include "controls/controls.h"
#include "controls/window.h"
#include "fuzz/player/decisions.h"
#include "fuzz/player/player_book.h"
#include "simulator/host/simulated_modem.h"

namespace gsm {

/// A user, a modem and a machine that do anything at all, decision by decision, to a panel without
/// a screen; and a look at what must hold whatever they do. When the program has ended for a reason
/// of its own, the next step starts another.
class PanelPlayer {
 public:
  /// `folder` is the program's own.
  PanelPlayer(std::filesystem::path folder, Decisions& decisions);

  /// Takes one step.
  void step(Decisions& decisions);

  /// Lets everything come to rest: boxes answered, windows closed, the modem unplugged.
  void rest();

  /// What doesn't hold that must; empty while all is well.
  const std::string& problem() const { return problem_; }

  /// How much time has passed for all programs together.
  Duration played() const { return earlier_ + world_->machine.time.now(); }
  /// How many programs have been started.
  int starts() const { return starts_; }

 private:
  void startAnew(Decisions& decisions);

  // The steps.
  void modemSays(Decisions& decisions);
  void modemFloods(Decisions& decisions);
  void modemLearns(Decisions& decisions);
  void callComes(Decisions& decisions);
  void modemIsHandled(Decisions& decisions);
  void lineChanges(Decisions& decisions);
  void machineChanges(Decisions& decisions);
  void userActs(Decisions& decisions);
  void userHandlesWindow(Decisions& decisions);
  void userHandlesBox(Decisions& decisions);
  void timePasses(Decisions& decisions);

  Control* anyControl(Decisions& decisions);
  std::function<void()> deed(Control& control, Decisions& decisions);
  /// Whether the user may put one more handler on the stack: the program bounds what the line can
  /// pile up, and nobody clicks so fast.
  bool mayNest() const;
  void happens(std::function<void()> event);
  void run(Duration span);
  void endCalls();

  void look();
  bool hasReasonToEnd();

  const std::filesystem::path folder_;
  PlayerBook book_;
  std::unique_ptr<HeadlessPanel> world_;
  std::unique_ptr<SimulatedModem> modem_;  // in the place of the scripted one; may be none
  Duration earlier_{0};
  int starts_ = 0;
  bool userAskedForTheEnd_ = false;
  bool boxWasHeld_ = false;
  std::string problem_;
};

}  // namespace gsm
