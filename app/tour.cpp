#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QFile>
#include <QKeyEvent>
#include <QListWidget>
#include <QMessageBox>
#include <QMouseEvent>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include "app/panel.h"
#include "platform/code_page.h"
#include "platform/qt/binder.h"
#include "platform/qt/desktop.h"
#include "platform/qt/text_codec.h"

// A tour of the panel: the same windows on the same desktop, with a user who waits, clicks and
// takes pictures. It ends with 0 when everything came as expected.
namespace gsm {
namespace {

using namespace std::chrono_literals;

constexpr Duration kLook = 200ms;     // of the panel's clock, as all of these
constexpr Duration kPatience = 240s;  // for what a stop expects
constexpr Duration kAfterwards = 2s;  // until the pictures, for what comes with it

// What the user does on the way to a stop.
using Deed = std::function<void(const Binder& screen)>;

struct Stop {
  const char* name;
  Deed deed;  // none: only looks on
  const char* expectation;
  std::function<bool()> arrived;
};

QWidget& onView(const Binder& screen, const Control& control) {
  QWidget* widget = screen.widget(control);
  if (widget == nullptr || !widget->isVisible()) {
    throw std::runtime_error(control.fullName() + " is not on view");
  }
  return *widget;
}

Deed click(const Control& control) {
  return [&control](const Binder& screen) {
    QWidget& widget = onView(screen, control);
    const QPoint at = widget.rect().center();
    for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
      const bool isPress = type == QEvent::MouseButtonPress;
      QMouseEvent event(type, at, widget.mapToGlobal(at), Qt::LeftButton,
                        isPress ? Qt::LeftButton : Qt::NoButton, Qt::NoModifier);
      QApplication::sendEvent(&widget, &event);
    }
  };
}

Deed type(const Control& control, const char* keys) {
  return [&control, keys](const Binder& screen) {
    for (const QChar key : QString(keys)) {
      QKeyEvent event(QEvent::KeyPress, key.toUpper().unicode(), Qt::NoModifier, key);
      QApplication::sendEvent(&onView(screen, control), &event);
    }
  };
}

// Picks the item at `index`, counted from 0, by its place on the screen.
Deed pick(const Control& list, int index) {
  return [&list, index](const Binder& screen) {
    auto& widget = dynamic_cast<QListWidget&>(onView(screen, list));
    const QPoint at = widget.visualItemRect(widget.item(index)).center();
    for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
      const bool isPress = type == QEvent::MouseButtonPress;
      QMouseEvent event(type, at, widget.viewport()->mapToGlobal(at), Qt::LeftButton,
                        isPress ? Qt::LeftButton : Qt::NoButton, Qt::NoModifier);
      QApplication::sendEvent(widget.viewport(), &event);
    }
  };
}

Deed close(const Window& window) {
  return [&window](const Binder& screen) { screen.widget(window)->close(); };
}

bool isUnlocked(const Form1& form1) {
  return form1.Label1.Caption.peek() == "Open" && form1.Command3.Enabled.peek();
}

// Through the windows of a panel whose SIM is ready.
std::vector<Stop> panelRoute(Panel& panel) {
  Form1& form1 = panel.form1;
  Form2& form2 = panel.form2;
  Form3& calls = panel.form3;
  Form4& entry = panel.form4;
  Form7& form7 = panel.form7;
  frmSettings& settings = panel.settings;
  return {
      {"start-up",
       {},
       "the port is open and the panel's buttons work",
       [&] { return isUnlocked(form1); }},
      {"signal asked for", click(form1.Label8), "the status window is up and empty",
       [&] { return form7.Visible.peek() && form7.Label5.Caption.peek().empty(); }},
      {"signal shown",
       {},
       "the status window tells signal and registration",
       [&] {
         return !form7.Label4.Caption.peek().empty() && !form7.Label5.Caption.peek().empty();
       }},
      {"details opened", click(form1.Command1), "the details window is up in the panel's place",
       [&] { return form2.Visible.peek() && !form1.Visible.peek(); }},
      {"details closed", close(form2), "the panel is back",
       [&] { return form1.Visible.peek() && !form2.isLoaded(); }},
      {"details opened again", click(form1.Command1), "the details window has lost its texts",
       [&] { return form2.Visible.peek() && form2.Label6.Caption.peek().empty(); }},
      {"details viewed", click(form2.Command1), "they are back from the saved file",
       [&] {
         return !form2.Label3.Caption.peek().empty() && !form2.Label6.Caption.peek().empty();
       }},
      {"details left", close(form2), "the panel is back", [&] { return form1.Visible.peek(); }},
      {"phone book", click(form1.Command2), "the call window lists the SIM's phone book",
       [&] {
         return calls.Visible.peek() && calls.List1.List.peek().size() >= 8 &&
                form1.Text1.Text.peek().empty();
       }},
      {"number picked", pick(calls.List1, 1), "its number stands in the dial box",
       [&] { return !calls.Text1.Text.peek().empty(); }},
      {"call placed", click(calls.Command1), "the other side answers",
       [&] { return calls.Label3.Caption.peek().starts_with("Connected SuccessFully-"); }},
      {"call ended", click(calls.Command4), "the dial box is empty again",
       [&] { return calls.Label3.Caption.peek() == "DisConnected "; }},
      {"new entry", click(calls.Command2), "its window is up in the call window's place",
       [&] { return entry.Visible.peek() && !calls.Visible.peek(); }},
      {"number typed", type(entry.Text3, "0146290800"), "the box holds it",
       [&] { return entry.Text3.Text.peek() == "0146290800"; }},
      {"name typed", type(entry.Text4, "Fred"), "the box holds it",
       [&] { return entry.Text4.Text.peek() == "Fred"; }},
      {"entry added", click(entry.Command1), "the list has it",
       [&] { return calls.Label3.Caption.peek() == "New Entry  0146290800"; }},
      {"calls left", close(calls), "the call window is gone", [&] { return !calls.isLoaded(); }},
      {"port settings", click(form1.Command7), "the port settings list the ports",
       [&] { return settings.isLoaded() && settings.cmdAction[0].Enabled.peek(); }},
      {"port settings left", close(settings), "the port stays closed",
       [&] { return !settings.isLoaded() && !form1.MSComm1.PortOpen; }},
  };
}

// Past the prompt for the SIM's code.
std::vector<Stop> pinRoute(Panel& panel) {
  Form1& form1 = panel.form1;
  Form10& prompt = panel.form10;
  return {
      {"code asked for",
       {},
       "the prompt for the SIM's code is up",
       [&] { return prompt.Visible.peek() && prompt.Text1.Visible.peek(); }},
      {"code typed", type(prompt.Text1, "1234"), "the box holds it",
       [&] { return prompt.Text1.Text.peek().size() == 4; }},
      {"code sent", click(prompt.Command1), "the SIM takes it and the panel's buttons work",
       [&] { return !prompt.Visible.peek() && isUnlocked(form1); }},
  };
}

class Tour {
 public:
  Tour(Desktop& desktop, Panel& panel, const Binder& screen, const QDir& shots,
       std::vector<Stop> route)
      : platform_(desktop.platform()),
        panel_(panel),
        screen_(screen),
        shots_(shots),
        stops_(std::move(route)) {}

  void begin() {
    // Handlers wait on top of one another, so the tour looks on from an event among theirs.
    setOut();
    looking_ = platform_.loop.every(kLook, [this] { look(); });
  }

  [[noreturn]] void fail(const std::string& reason) {
    takeShots();
    std::fprintf(stderr, "panel-tour: %s: %s\n", stops_[stop_].name, reason.c_str());
    leave(EXIT_FAILURE);
  }

 private:
  void setOut() {
    since_ = platform_.clock.now();
    arrivedAt_.reset();
    try {
      if (stops_[stop_].deed) stops_[stop_].deed(screen_);
    } catch (const std::runtime_error& reason) {
      fail(reason.what());
    }
  }

  void look() {
    if (const auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
      fail("a message box has come up: " + box->text().toStdString());
    }
    const Instant now = platform_.clock.now();
    if (!arrivedAt_ && stops_[stop_].arrived()) arrivedAt_ = now;
    if (!arrivedAt_) {
      if (now - since_ > kPatience) fail(std::string("not seen: ") + stops_[stop_].expectation);
      return;
    }
    if (now - *arrivedAt_ < kAfterwards && !isNextEager()) return;
    std::printf("%s: %s\n", stops_[stop_].name, stops_[stop_].expectation);
    takeShots();
    if (++stop_ == stops_.size()) finish();
    setOut();
  }

  // A stop that only watches goes on from what is there now, which may be gone after a rest.
  bool isNextEager() const { return stop_ + 1 < stops_.size() && !stops_[stop_ + 1].deed; }

  // One picture a window, of its last stop on view.
  void takeShots() {
    for (Window* window : panel_.windows()) {
      QWidget* widget = screen_.widget(*window);
      if (!widget->isVisible()) continue;
      const QString file = shots_.filePath(QString::fromStdString(window->name()) + ".png");
      if (!widget->grab().save(file)) {
        std::fprintf(stderr, "panel-tour: can't write %s\n", QFile::encodeName(file).constData());
        leave(EXIT_FAILURE);
      }
    }
  }

  [[noreturn]] void finish() {
    for (Window* window : panel_.windows()) {
      if (screen_.widget(*window)->isVisible()) tell(*window);
    }
    leave(EXIT_SUCCESS);
  }

  // What stands on the window, a line for each control with a caption.
  void tell(const Window& window) const {
    std::printf("%s \"%s\"\n", window.name().c_str(), toUtf8(window.Caption.peek()).c_str());
    for (const Control* control : window.controls()) {
      const auto* caption = control->property("Caption");
      if (caption == nullptr) continue;
      const std::string text = std::get<std::string>(caption->value());
      if (text.empty()) continue;
      std::printf("  %s: \"%s\"\n", control->fullName().c_str(), toUtf8(text).c_str());
    }
  }

  // Handlers are waiting on the stack; there is no way back through them.
  [[noreturn]] void leave(int status) {
    platform_.serialDevice.close();
    std::fflush(nullptr);
    std::_Exit(status);
  }

  Platform& platform_;
  Panel& panel_;
  const Binder& screen_;
  const QDir shots_;
  const std::vector<Stop> stops_;
  std::size_t stop_ = 0;
  Instant since_{};
  std::optional<Instant> arrivedAt_;
  std::unique_ptr<Repetition> looking_;
};

struct Options {
  QString folder;
  QString shots;
  QString route;
  double speed = 1;
};

const std::map<QString, std::vector<Stop> (*)(Panel&)> kRoutes = {{"panel", panelRoute},
                                                                  {"pin", pinRoute}};

// Says what is wrong, and ends, when the command line can't be used.
Options readOptions(const QStringList& arguments) {
  QCommandLineParser parser;
  parser.setApplicationDescription("Shows the panel at work and takes pictures of its windows.");
  parser.addHelpOption();
  parser.addOptions(
      {{"folder", "The folder of the program's files.", "DIR"},
       {"shots", "Where to put the pictures.", "DIR"},
       {"route", "Where to go: panel, or pin (with a SIM that wants its code).", "NAME", "panel"},
       {"speed", "How much faster than real the clock runs.", "FACTOR", "1"}});
  parser.process(arguments);
  bool isNumber = false;
  Options options{parser.value("folder"), parser.value("shots"), parser.value("route"),
                  parser.value("speed").toDouble(&isNumber)};
  const bool usable = QDir(options.folder).exists() && !options.folder.isEmpty() &&
                      !options.shots.isEmpty() && kRoutes.contains(options.route) && isNumber &&
                      options.speed > 0;
  if (!usable) parser.showHelp(EXIT_FAILURE);
  return options;
}

}  // namespace
}  // namespace gsm

int main(int count, char** arguments) {
  const QApplication application(count, arguments);
  const gsm::Options options = gsm::readOptions(QCoreApplication::arguments());
  QDir().mkpath(options.shots);
  gsm::Tour* running = nullptr;
  gsm::Desktop desktop({.programFolder = QFile::encodeName(options.folder).toStdString(),
                        .speed = options.speed,
                        .atEnd = [&] { running->fail("the program has ended by itself"); }});
  gsm::Panel panel(desktop.platform());
  gsm::Binder screen(desktop.platform().loop);
  screen.bind(panel.windows());
  gsm::Tour tour(desktop, panel, screen, QDir(options.shots),
                 gsm::kRoutes.at(options.route)(panel));
  running = &tour;
  panel.start();
  tour.begin();
  desktop.run();
}
