// The whole panel against the simulated modem: a user who opens every window, presses each of its
// buttons once and closes it. Told are the panel's time, the bytes on the line and how many buttons
// were pressed; those out of his reach are named.

#include <benchmark/benchmark.h>

#include <algorithm>
#include <functional>
#include <iostream>
#include <set>
#include <string>

#include "app/headless_panel.h"
#include "controls/list_controls.h"
#include "controls/option_button.h"
#include "controls/simple_controls.h"
#include "controls/tab_strip.h"
#include "controls/text_box.h"
#include "modem/form10.h"
#include "module/form16.h"
#include "module/form17.h"
#include "panel/form1.h"
#include "phonebook/form5.h"
#include "platform/sqlite/phone_book_file.h"
#include "simulator/host/simulated_modem.h"
#include "startup/frm_settings.h"
#include "tests/support/temporary_folder.h"

namespace gsm {
namespace {

constexpr const char* kCode = "1234";  // of the card

// For which the user waits at most, as while a call is up, of which the panel asks again and again.
constexpr Duration kPatience = std::chrono::minutes(1);

class Visitor {
 public:
  explicit Visitor(const TemporaryFolder& folder)
      : world_(folder.path(), {2026, 3, 1, 10, 0, 0}),
        modem_(world_.time(), world_.machine.line,
               {.speed = 9600, .sim = simulator::SimStatus::kPinWanted}) {
    world_.machine.ports.set({{.number = 3}});
    world_.machine.line.plug(3);
    world_.machine.line.watch([this](std::string_view bytes) { received_ += bytes.size(); });
  }
  ~Visitor() {
    world_.time().abandon();
    world_.machine.line.watch({});
  }
  Visitor(const Visitor&) = delete;
  Visitor& operator=(const Visitor&) = delete;

  /// From the start of the program to its end by the modem's switch.
  void visitAll() {
    Panel& panel = world_.panel;
    visited_.insert(&panel.form1);  // comes last
    world_.start();
    settle();
    visit(panel.form10, [] {});  // the card wants its code
    modem_.console("message +33639984477 Come at once");
    settle();
    modem_.console("ring 0146290800");  // the first one downloads the phone book
    world_.time().run(kPatience);
    visit(panel.form5, [] {});
    endCalls();
    visit(panel.form1, [] {});
    for (CommandButton* button : {&panel.form1.Command12, &panel.form16.Command1,
                                  &panel.form17.Command5, &panel.form17.Command4}) {
      press(*button);
    }
  }

  bool hasEnded() const { return world_.machine.time.hasEnded(); }
  double seconds() const { return toSeconds(world_.machine.time.now()); }
  std::size_t pressed() const { return pressed_.size(); }
  std::size_t received() const { return received_; }
  std::size_t sent() {
    for (const auto& write : world_.machine.line.takeWrites()) sent_ += write.text.size();
    return sent_;
  }

  std::size_t windows() const { return visited_.size(); }
  std::string outOfReach() const {
    std::string names;
    for (const Window* window : world_.panel.platform.windows) {
      for (const Control* control : window->controls()) {
        if (dynamic_cast<const CommandButton*>(control) == nullptr) continue;
        if (!pressed_.contains(control)) names += " " + window->name() + "." + control->fullName();
      }
    }
    return names;
  }

 private:
  void settle() { world_.time().settle(kPatience); }

  // The main window's handler waits for as long as the port settings are open.
  void act(std::function<void()> action) {
    world_.time().after(Duration::zero(), std::move(action));
    world_.time().run(Duration::zero());
    if (!world_.panel.settings.isLoaded()) settle();
  }

  void press(CommandButton& button) {
    pressed_.insert(&button);
    act([&button] { button.userClick(); });
  }

  void endCalls() {
    while (modem_.console("hangup").empty() || modem_.console("giveup").empty()) {}
    world_.time().run(std::chrono::seconds(20));
    settle();
  }

  // Exit and the modem's switch end the program.
  bool isHeldBack(const CommandButton& button) const {
    return &button == &world_.panel.form1.Command8 || &button == &world_.panel.form17.Command4;
  }

  // What lies in a frame comes before the buttons that turn to another page.
  CommandButton* next(const Window& window) const {
    CommandButton* found = nullptr;
    for (Control* control : window.controls()) {
      auto* button = dynamic_cast<CommandButton*>(control);
      if (button == nullptr || !button->isReachable() || isHeldBack(*button)) continue;
      if (pressed_.contains(button)) continue;
      if (button->container() != nullptr) return button;
      if (found == nullptr) found = button;
    }
    return found;
  }

  // The same behind options that bring buttons up.
  CommandButton* nextBehindOption(const Window& window) {
    for (Control* control : window.controls()) {
      auto* option = dynamic_cast<OptionButton*>(control);
      if (option == nullptr || !option->isReachable() || !chosen_.insert(option).second) continue;
      act([option] { option->userClick(); });
      if (CommandButton* button = next(window)) return button;
    }
    return nullptr;
  }

  bool hasMore(const Window& window) const {
    const auto& controls = window.controls();
    return std::any_of(controls.begin(), controls.end(), [this](const Control* control) {
      return dynamic_cast<const CommandButton*>(control) != nullptr && !pressed_.contains(control);
    });
  }

  // Something in each drop-down and each box, and one of each group of options.
  void fillIn(const Window& window) {
    std::set<const Control*> answered;
    for (Control* control : window.controls()) {
      if (auto* option = dynamic_cast<OptionButton*>(control)) {
        if (option->Value.peek()) answered.insert(option->container());
      }
    }
    for (Control* control : window.controls()) {
      if (!control->isReachable()) continue;
      if (auto* option = dynamic_cast<OptionButton*>(control)) {
        if (answered.insert(option->container()).second) act([option] { option->userClick(); });
      } else if (auto* list = dynamic_cast<ListControl*>(control)) {
        if (list->ListIndex.peek() < 0) act([list] { list->userSelect(0); });
      } else if (auto* box = dynamic_cast<TextBox*>(control)) {
        if (box->Text.peek().empty()) act([box] { box->userType(kCode); });
      }
    }
  }

  bool turnTab(const Window& window, int tab) {
    bool turned = false;
    for (Control* control : window.controls()) {
      auto* strip = dynamic_cast<TabStrip*>(control);
      if (strip != nullptr) act([strip, tab, &turned] { turned = strip->userTab(tab); });
    }
    return turned;
  }

  // Presses all buttons of a window that is on view, visits the windows that come up with them, and
  // closes it unless the last one has. `open` brings it up again when one of its own buttons has
  // taken it away.
  void visit(Window& window, const std::function<void()>& open) {
    visited_.insert(&window);
    for (int tab = 1; tab == 1 || turnTab(window, tab); ++tab) {
      fillIn(window);
      while (true) {
        CommandButton* button = next(window);
        if (button == nullptr) button = nextBehindOption(window);
        if (button == nullptr) break;
        fillIn(window);
        press(*button);
        visitNewOnes(*button);
        if (window.Visible.peek()) continue;
        if (!hasMore(window)) return;
        open();
      }
    }
    if (&window != &world_.panel.form1) act([&window] { window.userClose(); });
  }

  void visitNewOnes(CommandButton& opener) {
    for (Window* window : world_.panel.platform.windows) {
      if (!window->Visible.peek() || visited_.contains(window)) continue;
      visit(*window, [this, &opener] { press(opener); });
    }
  }

  HeadlessPanel world_;
  SimulatedModem modem_;
  std::set<const Control*> pressed_;
  std::set<const Control*> chosen_;  // options, to see what comes up with them
  std::set<const Window*> visited_;
  std::size_t sent_ = 0;
  std::size_t received_ = 0;
};

void everyButton(benchmark::State& state) {
  std::string outOfReach;
  for (auto _ : state) {
    const TemporaryFolder folder;
    folder.write("COM.txt", "9600,N,8,1 3\r\n");
    createPhoneBook(folder.path() / "phonebook.mdb");
    Visitor visitor(folder);
    visitor.visitAll();
    if (!visitor.hasEnded()) state.SkipWithError("the program goes on without its modem");
    state.counters["panel_seconds"] = visitor.seconds();
    state.counters["windows"] = static_cast<double>(visitor.windows());
    state.counters["buttons"] = static_cast<double>(visitor.pressed());
    state.counters["bytes_sent"] = static_cast<double>(visitor.sent());
    state.counters["bytes_received"] = static_cast<double>(visitor.received());
    outOfReach = visitor.outOfReach();
  }
  std::cerr << "out of reach:" << outOfReach << "\n";
}
BENCHMARK(everyButton)->Unit(benchmark::kMillisecond)->MeasureProcessCPUTime()->UseRealTime();

}  // namespace
}  // namespace gsm
