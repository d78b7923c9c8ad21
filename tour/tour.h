#pragma once

#include <QDir>
#include <QImage>
#include <cstddef>
#include <map>
#include <memory>
#include <optional>
#include <string>

#include "panel/panel.h"
#include "platform/qt/desktop.h"
#include "tour/routes.h"
#include "ui/views/binder.h"

namespace gsm {

/// A user who waits, clicks and takes pictures. It ends the process: with success when everything
/// came as expected, else with failure and the reason on standard error.
class Tour {
 public:
  /// The pictures go into the folder `shots`: of each stop, the windows that look different by
  /// then, as "09-phone-book-Form3.png".
  Tour(Desktop& desktop, Panel& panel, const Binder& screen, const QDir& shots, Route route);

  /// Sets out; goes on while the desktop's event loop runs.
  void begin();

  [[noreturn]] void fail(const std::string& reason);

 private:
  void setOut();
  void look();
  bool isNextEager() const;
  void takeShots();
  void tell(const Window& window) const;
  [[noreturn]] void finish();
  [[noreturn]] void leave(int status);

  Platform& platform_;
  Panel& panel_;
  const Binder& screen_;
  const QDir shots_;
  const Route route_;
  std::size_t stop_ = 0;
  Instant since_{};
  std::optional<Instant> arrivedAt_;
  std::unique_ptr<Repetition> looking_;
  std::map<const Window*, QImage> pictures_;  // the last of each
};

}  // namespace gsm
