#pragma once

#include <QPointer>
#include <QWidget>
#include <vector>

namespace gsm {

/// The pointer over the program: busy while something is going on that the user has begun, unless
/// the program waits for its user.
class BusyPointer {
 public:
  BusyPointer() = default;
  ~BusyPointer();
  BusyPointer(const BusyPointer&) = delete;
  BusyPointer& operator=(const BusyPointer&) = delete;

  // What is going on is begun and ended like handlers, the newest first.
  void begin();
  void end();

  // The program asks its user for something: what has been going on until then doesn't count.
  // Questions may be answered in any order.
  void ask(const void* question);
  void answered(const void* question);

  /// Whether something is going on, asked or not.
  bool isGoingOn() const { return going_ > 0; }

 private:
  struct Question {
    const void* question;
    int going;  // so many things went on beneath it
  };

  void show();

  int going_ = 0;
  std::vector<Question> questions_;
  bool shown_ = false;
};

/// Shows for as long as it lives that something is going on: the pointer is busy, and the widget
/// that began it has the property `busy`, by which it looks pressed.
class GoingOn {
 public:
  static constexpr const char* kProperty = "busy";

  /// `pointer` must outlive it.
  GoingOn(BusyPointer& pointer, QWidget& begun);
  ~GoingOn();
  GoingOn(const GoingOn&) = delete;
  GoingOn& operator=(const GoingOn&) = delete;

 private:
  BusyPointer& pointer_;
  const QPointer<QWidget> begun_;
};

/// Shows for as long as it lives that the request to close a window was taken: its form is veiled.
class Veil {
 public:
  explicit Veil(QWidget& form);
  ~Veil();
  Veil(const Veil&) = delete;
  Veil& operator=(const Veil&) = delete;

 private:
  const QPointer<QWidget> veil_;
};

}  // namespace gsm
