#include "fuzz/player/panel_player.h"

#include <algorithm>
#include <array>
#include <fstream>
#include <utility>
#include <vector>

#include "fuzz/player/modem_words.h"
#include "fuzz/player/player_user.h"
#include "panel/form1.h"

namespace gsm {
namespace {

constexpr int kMostHandlers = 240;  // that this player asks for
constexpr int kDeepest = 300;       // that the program may have with those of its own

constexpr int kPort = 3;  // where the modem is
constexpr Duration kStartUp = std::chrono::seconds(40);

constexpr std::array kSpans = {
    Duration(std::chrono::milliseconds(0)),  Duration(std::chrono::milliseconds(3)),
    Duration(std::chrono::milliseconds(50)), Duration(std::chrono::milliseconds(500)),
    Duration(std::chrono::seconds(1)),       Duration(std::chrono::seconds(2)),
    Duration(std::chrono::seconds(5)),       Duration(std::chrono::seconds(60)),
    Duration(std::chrono::minutes(10)),      Duration(std::chrono::hours(1)),
};

std::vector<HeadlessPorts::Port> anyPorts(Decisions& decisions) {
  std::vector<HeadlessPorts::Port> ports;
  for (int number = 1; number <= 5; ++number) {
    switch (decisions.next() % 5) {
      case 0: break;
      case 1: ports.push_back({.number = number, .held = true}); break;
      case 2: ports.push_back({.number = number, .fails = "It fails"}); break;
      default: ports.push_back({.number = number});
    }
  }
  return ports;
}

}  // namespace

PanelPlayer::PanelPlayer(std::filesystem::path folder, Decisions& decisions)
    : folder_(std::move(folder)), book_(folder_) {
  startAnew(decisions);
}

void PanelPlayer::startAnew(Decisions& decisions) {
  const bool saved = decisions.next() % 4 != 0;
  const std::string comFile = saved ? "9600,N,8,1 3\r\n" : decisions.text(30);
  std::ofstream(folder_ / "COM.txt", std::ios::binary) << comFile;

  LocalTime now{2026, 2, 27, 22, 0, 0};
  if (world_) {
    now = world_->panel.platform.clock.localTime();
    earlier_ += world_->machine.time.now();
  }
  modem_.reset();
  transcript_.reset();
  end_.reset();
  world_.reset();  // its handlers unwind before another's begin
  book_.lay(decisions);
  world_ = std::make_unique<HeadlessPanel>(folder_, now);
  world_->machine.ports.set({{.number = kPort}, {.number = 5}});
  world_->machine.line.plug(kPort);
  teachModem();
  if (decisions.next() % 2 == 0) {
    modem_ = std::make_unique<SimulatedModem>(world_->time(), world_->machine.line,
                                              simulator::ModemOptions{.seed = decisions.next()});
  }
  transcript_.emplace(world_->machine.line, world_->panel.form1.Text1);
  end_.emplace(*world_);
  ++starts_;
  world_->start();
  // Mostly the start-up has its peace, so that there is a panel to play with.
  run(decisions.next() % 4 == 0 ? Duration::zero() : kStartUp);
}

// What a modem in good health answers.
void PanelPlayer::teachModem() {
  world_->modem.forget();
  world_->modem.setOtherwise({.replies = {{{ModemScript::kDefaultDelay, "\r\nOK\r\n"}}}});
  for (const auto& [command, answer] : goodAnswers()) {
    world_->modem.add({.fit = ModemScript::Rule::Fit::beginning,
                       .write = command,
                       .replies = {{{ModemScript::kDefaultDelay, answer}}}});
  }
}

void PanelPlayer::step(Decisions& decisions) {
  if (world_->machine.time.hasEnded()) startAnew(decisions);
  using Step = void (PanelPlayer::*)(Decisions&);
  // Every step stands as often as it is likely.
  static constexpr auto kSteps = std::to_array<Step>(
      {&PanelPlayer::modemSays, &PanelPlayer::modemSays, &PanelPlayer::modemSays,
       &PanelPlayer::modemFloods, &PanelPlayer::modemLearns, &PanelPlayer::callComes,
       &PanelPlayer::lineChanges, &PanelPlayer::machineChanges, &PanelPlayer::userActs,
       &PanelPlayer::userActs, &PanelPlayer::userActs, &PanelPlayer::userActs,
       &PanelPlayer::userHandlesWindow, &PanelPlayer::userHandlesBox, &PanelPlayer::timePasses,
       &PanelPlayer::timePasses, &PanelPlayer::timePasses});
  (this->*kSteps[decisions.next() % kSteps.size()])(decisions);
}

void PanelPlayer::modemSays(Decisions& decisions) {
  happens([this, bytes = saying(decisions)] { world_->machine.line.arrive(bytes); });
}

// Many chunks at once, which the program must bound by itself.
void PanelPlayer::modemFloods(Decisions& decisions) {
  const std::string bytes = saying(decisions);
  for (int chunk = 0; chunk < 50; ++chunk) {
    world_->time().after(std::chrono::milliseconds(chunk),
                         [this, bytes] { world_->machine.line.arrive(bytes); });
  }
  run(std::chrono::milliseconds(100));
}

// The first one loads the call window, which downloads the phone book where there is none.
void PanelPlayer::callComes(Decisions& decisions) {
  const std::string number = decisions.next() % 2 == 0 ? "0146290800" : "112";
  happens([this, number] {
    if (modem_) {
      modem_->console("ring " + number);
    } else {
      world_->machine.line.arrive("\r\nRING\r\n\r\n+CLIP: \"" + number + "\",129\r\n");
    }
  });
}

// What a person does to the simulated modem at its console.
void PanelPlayer::modemIsHandled(Decisions& decisions) {
  if (modem_) happens([this, line = consoleLine(decisions)] { modem_->console(line); });
}

void PanelPlayer::modemLearns(Decisions& decisions) {
  if (modem_) return modemIsHandled(decisions);
  ModemScript& modem = world_->modem;
  const ModemScript::Rule rule{.fit = ModemScript::Rule::Fit::beginning,
                               .write = decisions.next() % 2 == 0 ? "AT+C" : "AT",
                               .replies = {{{kSpans[decisions.below(6)], saying(decisions)}}},
                               .echo = decisions.next() % 4 != 0};
  switch (decisions.next() % 8) {
    case 0: modem.forget(); break;
    case 1: modem.setOtherwise(rule); break;
    case 2: modem.setSpeed(decisions.next() % 4 == 0 ? 115200 : 9600); break;
    case 3:
    case 4:
    case 5: teachModem(); break;
    default: modem.add(rule);
  }
}

void PanelPlayer::lineChanges(Decisions& decisions) {
  static constexpr auto kEvents = std::to_array<int>(
      {1, 3, 4, 5, 6, 7, 1001, 1002, 1003, 1004, 1006, 1007, 1008, 1009, 1010, 1011, 0, -1, 99});
  const auto event = static_cast<CommEvent>(kEvents[decisions.below(kEvents.size())]);
  happens([this, event] { world_->panel.form1.MSComm1.raise(event); });
}

void PanelPlayer::machineChanges(Decisions& decisions) {
  switch (decisions.next() % 5) {
    case 0:
    case 1: world_->machine.ports.set(anyPorts(decisions)); break;
    case 2: book_.change(decisions); break;
    default:
      const auto port = static_cast<int>(decisions.next() % 12);
      const int used = port > 5 ? kPort : port;
      world_->machine.line.plug(port == 0 ? std::nullopt : std::optional(used));
  }
}

void PanelPlayer::userActs(Decisions& decisions) {
  Control* const control = anyControl(world_->panel.platform, decisions);
  if (control == nullptr || !mayNest()) return;
  auto action = deed(*control, decisions);
  if (!action) return;
  happens([this, control, action = std::move(action)] {
    const std::string& window = control->window().name();
    if (control == &world_->panel.form1.Command8 && control->isReachable()) end_->userAsks();
    if (action()) ++deeds_[window];
  });
}

void PanelPlayer::userHandlesWindow(Decisions& decisions) {
  const auto& windows = world_->panel.platform.windows;
  Window* const window = windows[decisions.below(windows.size())];
  const int what = decisions.next() % 4;
  if (!mayNest()) return;
  happens([this, window, what] {
    if (what < 3) {
      window->userState(what);
      return;
    }
    const bool isInReach = window->Visible.peek() && !world_->machine.boxes.isUp();
    if (window == &world_->panel.form1 && isInReach) end_->userAsks();
    window->userClose();
  });
}

void PanelPlayer::userHandlesBox(Decisions& decisions) {
  HeadlessBoxes& boxes = world_->machine.boxes;
  switch (decisions.next() % 4) {
    case 0: boxes.setAnswer(HeadlessBoxes::Answer::hold); break;
    case 1: boxes.setAnswer(HeadlessBoxes::Answer::automatic); break;
    default: happens([&boxes] { boxes.answerTop(); });
  }
}

void PanelPlayer::timePasses(Decisions& decisions) { run(kSpans[decisions.below(kSpans.size())]); }

bool PanelPlayer::mayNest() const { return world_->handlers().depth() < kMostHandlers; }

void PanelPlayer::happens(std::function<void()> event) {
  world_->time().after(Duration::zero(), std::move(event));
  run(Duration::zero());
}

void PanelPlayer::run(Duration span) {
  world_->time().run(span);
  look();
}

void PanelPlayer::rest() {
  if (world_->machine.time.hasEnded()) return;
  HeadlessBoxes& boxes = world_->machine.boxes;
  world_->modem.forget();
  world_->machine.line.setModem(nullptr);
  endCalls();
  boxes.setAnswer(HeadlessBoxes::Answer::automatic);
  while (boxes.isUp()) boxes.answerTop();
  // A handler may wait for the user to close the window that it has opened.
  for (Window* window : world_->panel.platform.windows) {
    if (window != &world_->panel.form1) happens([window] { window->userClose(); });
  }
  // Nor is a download of thousands of entries cut short.
  world_->time().settle(std::chrono::hours(26));
  look();
  if (world_->machine.time.hasEnded() || !problem_.empty()) return;
  if (world_->handlers().depth() != 0) note("handlers stay on the stack for ever");

  const auto clock = [this] { return world_->panel.form1.Label4.Caption.peek(); };
  const std::string before = clock();
  run(std::chrono::seconds(2));
  if (world_->machine.time.hasEnded()) return;
  if (clock() == before) note("the clock has stopped");
  const std::size_t length = transcriptLength();
  run(std::chrono::hours(1));
  if (world_->machine.time.hasEnded()) return;
  if (transcriptLength() > length) note("the transcript grows with nobody at the line");
  if (modem_) {
    world_->machine.line.setModem(modem_.get());
  } else {
    world_->machine.line.setModem(&world_->modem);
  }
}

std::size_t PanelPlayer::transcriptLength() const {
  return world_->panel.form1.Text1.Text.peek().size();
}

// Who rings does so for ever.
void PanelPlayer::endCalls() {
  const auto done = [this](const char* line) { return modem_->console(line).empty(); };
  while (modem_ && (done("hangup silent") || done("giveup silent"))) {}
}

// What must hold at any moment between two steps.
void PanelPlayer::look() {
  const int depth = world_->handlers().depth();
  longestTranscript_ = std::max(longestTranscript_, transcriptLength());
  note(book_.problem());
  if (depth > kDeepest) note(std::to_string(depth) + " handlers on the stack");
  for (const Window* window : world_->panel.platform.windows) {
    const bool dead = window->Visible.peek() && !window->isLoaded();
    if (dead) note(window->name() + " is on view and not loaded");
  }
  note(transcript_->problem());
  if (depth == 0) note(transcript_->problemAtRest());
  note(end_->look());
}

// The first one counts.
void PanelPlayer::note(const std::string& problem) {
  if (problem_.empty()) problem_ = problem;
}

}  // namespace gsm
