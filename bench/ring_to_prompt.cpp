// ring-to-prompt [RINGS]: how long it takes in real time from somebody's call, as the simulated
// modem's console is told of it, to the first paint of the prompt with the caller's name; and how
// much of that is beyond what is demanded: the bytes' time on the line and the two seconds that the
// routing waits after the last of them.

#include <QApplication>
#include <QEvent>
#include <QLabel>
#include <optional>

#include "bench/desktop_bench.h"
#include "phonebook/form5.h"
#include "ui/views/look.h"

namespace gsm {
namespace {

using namespace std::chrono_literals;
using Clock = DesktopBench::Clock;
using Milliseconds = DesktopBench::Milliseconds;

constexpr const char* kCaller = "0146290800";
constexpr const char* kWords = "Call Received From  ALICE";

// The two lines of a ring, and the time in which the modem puts each together.
constexpr int kBytes = 8 + 27;
constexpr Milliseconds kLine = kBytes * 10 * 1000ms / 9600.0 + 2 * 16ms;
constexpr Milliseconds kDemanded = kLine + 2s;

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

class RingBench : public DesktopBench {
 public:
  RingBench() {
    const auto entries =
        platform().database.OpenDatabase(folder_.path() / "phonebook.mdb")->openRecordSet("DATA");
    entries->AddNew();
    entries->setField("Number", kCaller);
    entries->setField("Name", "ALICE");
    entries->Update();
    exchange("AT+CLIP=1");
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
  // The call is over, its poll has ended, and nothing of either is left.
  void hangUp() {
    act([this] { panel_.form5.Command2.userClick(); });
    runUntil([this] { return !panel_.form1.Timer2.Enabled.peek(); }, 20s);
    if (panel_.form1.Timer2.Enabled.peek()) fail("the poll goes on");
    act([this] { panel_.form1.Text1.clear(); });
  }
};

}  // namespace
}  // namespace gsm

int main(int count, char** arguments) {
  const QApplication application(count, arguments);
  gsm::dressApplication();
  const int rings = count > 1 ? std::atoi(arguments[1]) : 5;
  gsm::RingBench bench;
  std::vector<gsm::Milliseconds> times;
  while (static_cast<int>(times.size()) < rings) times.push_back(bench.ring());
  gsm::tellAll("from the call to the prompt's paint", times, gsm::kDemanded);
}
