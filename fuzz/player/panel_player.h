#pragma once

#include <filesystem>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>

#include "app/headless_panel.h"
#include "fuzz/player/decisions.h"
#include "fuzz/player/end_watch.h"
#include "fuzz/player/player_book.h"
#include "fuzz/player/transcript_watch.h"
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

  /// Lets everything come to rest: boxes answered, windows closed, the modem unplugged for an hour.
  void rest();

  /// Starts another program, where the time has come to by then. One that still runs ends with what
  /// it was at, as when the machine is switched off.
  void startAnew(Decisions& decisions);

  /// What doesn't hold that must; empty while all is well.
  const std::string& problem() const { return problem_; }

  /// How much time has passed for all programs together.
  Duration played() const { return earlier_ + world_->machine.time.now(); }
  /// How many programs have been started.
  int starts() const { return starts_; }
  /// The most characters that the transcript has held between two clearings.
  std::size_t longestTranscript() const { return longestTranscript_; }
  /// How often the user got something done in each window, by the windows' names.
  const std::map<std::string, int>& deeds() const { return deeds_; }

 private:
  void teachModem();

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

  /// Whether the user may put one more handler on the stack: the program bounds what the line can
  /// pile up, and nobody clicks so fast.
  bool mayNest() const;
  void happens(std::function<void()> event);
  void run(Duration span);
  void endCalls();
  std::size_t transcriptLength() const;

  void look();
  void note(const std::string& problem);

  const std::filesystem::path folder_;
  PlayerBook book_;
  std::unique_ptr<HeadlessPanel> world_;
  std::optional<TranscriptWatch> transcript_;
  std::optional<EndWatch> end_;
  std::unique_ptr<SimulatedModem> modem_;  // in the place of the scripted one; may be none
  Duration earlier_{0};
  int starts_ = 0;
  std::size_t longestTranscript_ = 0;
  std::map<std::string, int> deeds_;
  std::string problem_;
};

}  // namespace gsm
