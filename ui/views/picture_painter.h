#pragma once

#include <QObject>
#include <QSvgRenderer>
#include <QWidget>
#include <optional>

namespace gsm {

/// Paints a drawing on a widget, as large as fits in the drawing's own proportions, and nothing
/// else. A form names the drawing in the widget's property `picture`.
class PicturePainter : public QObject {
 public:
  static constexpr const char* kProperty = "picture";

  /// Belongs to `widget` from now on.
  explicit PicturePainter(QWidget& widget);

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QWidget& widget_;
  std::optional<QSvgRenderer> drawing_;  // read when it is first seen
};

}  // namespace gsm
