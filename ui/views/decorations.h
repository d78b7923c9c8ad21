#pragma once

#include <QLabel>
#include <QObject>
#include <QWidget>
#include <vector>

#include "platform/platform.h"

namespace gsm {

/// What a form shows of its own accord, beside the controls. Its widgets say so in dynamic
/// properties:
/// - `insteadOf`: the name of a widget in whose place this one stands: one or the other is there.
///   This one may be a control's of its own, which is covered while both are on view.
/// - `whileEmpty`: names of labels, with blanks between. Shown while all of them are empty and no
///   handler runs.
/// - `tellsOfDevice`: true for what shows that the port's device has gone, by the property `gone`
///   (for the style) and its tool tip.
class Decorations : public QObject {
 public:
  /// Both must outlive it.
  Decorations(QWidget& form, const Platform& platform);

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  struct Place {
    QWidget* widget;
    QWidget* standIn;
  };
  struct Hint {
    QWidget* widget;
    std::vector<QLabel*> labels;
  };

  void look();
  void showDevice();

  const Platform& platform_;
  std::vector<Place> places_;
  std::vector<Hint> hints_;
  std::vector<QWidget*> badges_;
  bool deviceIsGone_ = false;
};

}  // namespace gsm
