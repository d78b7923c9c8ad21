// ring-to-prompt [RINGS]: how long it takes in real time from somebody's call, as the simulated
// modem's console is told of it, to the first paint of the prompt with the caller's name; and how
// much of that is beyond what is demanded: the bytes' time on the line and the two seconds that the
// routing waits after the last of them.

#include <QApplication>
#include <QEvent>
#include <QLabel>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "app/windows.h"
#include "panel/form1.h"
#include "phonebook/form5.h"
#include "platform/qt/desktop.h"
#include "platform/sqlite/phone_book_file.h"
#include "tests/support/desktop/simulated_modem.h"
#include "tests/support/temporary_folder.h"
#include "ui/views/binder.h"
#include "ui/views/look.h"

namespace gsm {
namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;
using Milliseconds = std::chrono::duration<double, std::milli>;

constexpr const char* kCaller = "0146290800";
constexpr const char* kWords = "Call Received From  ALICE";

// The two lines of a ring, and the time in which the modem puts each together.
constexpr int kBytes = 8 + 27;
constexpr Milliseconds kLine = kBytes * 10 * 1000ms / 9600.0 + 2 * 16ms;
constexpr Milliseconds kDemanded = kLine + 2s;

[[noreturn]] void fail(const char* reason) {
  std::fprintf(stderr, "ring-to-prompt: %s\n", reason);
  std::_Exit(EXIT_FAILURE);  // handlers may wait on the stack
}

// Notes when a widget is first painted.
class PaintWatch : public QObject {
 public:
  explicit PaintWatch(QWidget& widget) : widget_(widget) { widget.installEventFilter(this); }

  std::optional<Clock::time_point> paintedAt() const { return paintedAt_; }

 private:
  bool eventFilter(QObject* object, QEvent* event) override {
    if (event->type() != QEvent::Paint || paintedAt_) return false;
    // The paint comes first, and is done when it returns.
    object->removeEventFilter(this);
    QCoreApplication::sendEvent(object, event);
    paintedAt_ = Clock::now();
    widget_.installEventFilter(this);
    return true;
  }

  QWidget& widget_;
  std::optional<Clock::time_point> paintedAt_;
};

class Bench {
 public:
  Bench() : modem_(port(), /*speed=*/1, {.speed = 9600}) {
    createPhoneBook(folder_.path() / "phonebook.mdb");
    const auto entries =
        platform().database.OpenDatabase(folder_.path() / "phonebook.mdb")->openRecordSet("DATA");
    entries->AddNew();
    entries->setField("Number", kCaller);
    entries->setField("Name", "ALICE");
    entries->Update();
    screen_.bind(desktop_.platform().windows);
    start(panel_);
    // Without a saved port nothing else goes on in the panel.
    act([this] {
      panel_.form1.MSComm1.CommPort = 1;
      panel_.form1.MSComm1.PortOpen = true;
      panel_.form1.modem.exchange("AT+CLIP=1");
      panel_.form1.Text1.clear();
    });
  }

  Milliseconds ring() {
    auto& words = dynamic_cast<QLabel&>(*screen_.widget(panel_.form5.Label1));
    PaintWatch watch(words);
    const auto begin = Clock::now();
    modem_.command(std::string("ring ") + kCaller);
    runUntil([&] { return watch.paintedAt().has_value(); }, 10s);
    if (!watch.paintedAt()) fail("the prompt has not come up");
    if (words.text() != kWords) fail("the prompt tells another caller");
    const Milliseconds took = *watch.paintedAt() - begin;
    hangUp();
    return took;
  }

 private:
  Platform& platform() { return desktop_.platform(); }

  std::filesystem::path port() const {
    std::filesystem::create_directory(folder_.path() / "ports");
    return folder_.path() / "ports" / "COM1";
  }

  void runUntil(const std::function<bool()>& condition, Clock::duration limit) {
    const auto alarm = platform().loop.every(5ms, [] {});  // keeps a pass from sleeping too long
    for (const auto end = Clock::now() + limit; !condition() && Clock::now() < end;) {
      platform().loop.pass();
    }
  }

  // Runs `action` as a handler, to its end.
  void act(const std::function<void()>& action) {
    bool done = false;
    platform().loop.post([&] {
      platform().handlers.run(action);
      done = true;
    });
    runUntil([&done] { return done; }, 10s);
    if (!done) fail("a handler doesn't end");
  }

  // The call is over, its poll has ended, and nothing of either is left.
  void hangUp() {
    act([this] { panel_.form5.Command2.userClick(); });
    runUntil([this] { return !panel_.form1.Timer2.Enabled.peek(); }, 20s);
    if (panel_.form1.Timer2.Enabled.peek()) fail("the poll goes on");
    act([this] { panel_.form1.Text1.clear(); });
  }

  const TemporaryFolder folder_;
  SimulatedModem modem_;
  Desktop desktop_{{.programFolder = folder_.path()}};
  Windows windows_{desktop_.platform()};
  Panel& panel_ = windows_.panel;
  Binder screen_{desktop_.platform().loop};
};

void tell(const char* what, Milliseconds time) { std::printf("%s: %.1f ms\n", what, time.count()); }

}  // namespace
}  // namespace gsm

int main(int count, char** arguments) {
  const QApplication application(count, arguments);
  gsm::dressApplication();
  const int rings = count > 1 ? std::atoi(arguments[1]) : 5;
  gsm::Bench bench;
  std::vector<gsm::Milliseconds> times;
  for (int ring = 0; ring < rings; ++ring) {
    times.push_back(bench.ring());
    gsm::tell("from the call to the prompt's paint", times.back());
  }
  std::sort(times.begin(), times.end());
  gsm::tell("demanded", gsm::kDemanded);
  gsm::tell("median beyond it", times[times.size() / 2] - gsm::kDemanded);
  gsm::tell("longest beyond it", times.back() - gsm::kDemanded);
  std::fflush(nullptr);
  std::_Exit(EXIT_SUCCESS);
}
