#include "tour/tour.h"

#include <QApplication>
#include <QFile>
#include <QMessageBox>
#include <cstdio>
#include <cstdlib>
#include <stdexcept>
#include <utility>
#include <variant>

#include "platform/code_page.h"

namespace gsm {
namespace {

using namespace std::chrono_literals;

constexpr Duration kLook = 200ms;     // of the panel's clock, as all of these
constexpr Duration kPatience = 240s;  // for what a stop expects
constexpr Duration kAfterwards = 2s;  // until the pictures, for what comes with it

}  // namespace

Tour::Tour(Desktop& desktop, Panel& panel, const Binder& screen, const QDir& shots, Route route)
    : platform_(desktop.platform()),
      panel_(panel),
      screen_(screen),
      shots_(shots),
      route_(std::move(route)) {}

// Handlers wait on top of one another, so the tour looks on from an event among theirs.
void Tour::begin() {
  setOut();
  looking_ = platform_.loop.every(kLook, [this] { look(); });
}

void Tour::fail(const std::string& reason) {
  takeShots();
  std::fprintf(stderr, "panel-tour: %s: %s\n", route_[stop_].name, reason.c_str());
  leave(EXIT_FAILURE);
}

void Tour::setOut() {
  since_ = platform_.clock.now();
  arrivedAt_.reset();
  try {
    if (route_[stop_].deed) route_[stop_].deed(screen_);
  } catch (const std::runtime_error& reason) {
    fail(reason.what());
  }
}

void Tour::look() {
  if (const auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
    fail("a message box has come up: " + box->text().toStdString());
  }
  const Instant now = platform_.clock.now();
  if (!arrivedAt_ && route_[stop_].arrived()) arrivedAt_ = now;
  if (!arrivedAt_) {
    if (now - since_ > kPatience) fail(std::string("not seen: ") + route_[stop_].expectation);
    return;
  }
  if (now - *arrivedAt_ < kAfterwards && !isNextEager()) return;
  std::printf("%s: %s\n", route_[stop_].name, route_[stop_].expectation);
  takeShots();
  if (++stop_ == route_.size()) finish();
  setOut();
}

// A stop that only watches goes on from what is there now, which may be gone after a rest.
bool Tour::isNextEager() const { return stop_ + 1 < route_.size() && !route_[stop_ + 1].deed; }

void Tour::takeShots() {
  for (Window* window : panel_.platform.windows) {
    QWidget* widget = screen_.widget(*window);
    if (!widget->isVisible()) continue;
    const QImage picture = widget->grab().toImage();
    if (std::exchange(pictures_[window], picture) == picture) continue;
    const QString file = shots_.filePath(QString("%1-%2-%3.png")
                                             .arg(stop_ + 1, 2, 10, QChar('0'))
                                             .arg(QString(route_[stop_].name).replace(' ', '-'),
                                                  QString::fromStdString(window->name())));
    if (!picture.save(file)) {
      std::fprintf(stderr, "panel-tour: can't write %s\n", QFile::encodeName(file).constData());
      leave(EXIT_FAILURE);
    }
  }
}

void Tour::finish() {
  for (Window* window : panel_.platform.windows) {
    if (screen_.widget(*window)->isVisible()) tell(*window);
  }
  leave(EXIT_SUCCESS);
}

// What stands on the window, a line for each control with a caption.
void Tour::tell(const Window& window) const {
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
void Tour::leave(int status) {
  platform_.serialDevice.close();
  std::fflush(nullptr);
  std::_Exit(status);
}

}  // namespace gsm
