#pragma once

#include <QPointer>
#include <QWidget>

namespace gsm {

/// Shows for as long as it lives that something is going on: the pointer over the program is busy,
/// and the widget that began it has the property `busy`, by which it looks pressed.
class GoingOn {
 public:
  static constexpr const char* kProperty = "busy";

  explicit GoingOn(QWidget& begun);
  ~GoingOn();
  GoingOn(const GoingOn&) = delete;
  GoingOn& operator=(const GoingOn&) = delete;

 private:
  QPointer<QWidget> begun_;
};

/// Shows for as long as it lives that the program waits for its user, whatever is going on beneath.
class WaitingForUser {
 public:
  WaitingForUser();
  ~WaitingForUser();
  WaitingForUser(const WaitingForUser&) = delete;
  WaitingForUser& operator=(const WaitingForUser&) = delete;

 private:
  const bool wasBusy_;
};

/// Shows for as long as it lives that the request to close a window was taken: its form is veiled,
/// and something is going on.
class Closing {
 public:
  explicit Closing(QWidget& form);
  ~Closing();
  Closing(const Closing&) = delete;
  Closing& operator=(const Closing&) = delete;

 private:
  GoingOn goingOn_;
  QPointer<QWidget> veil_;
};

}  // namespace gsm
