#pragma once

#include <QLabel>

#include "controls/simple_controls.h"
#include "ui/views/control_view.h"

namespace gsm {

/// A plain text, never markup, with "&" as it stands. A click, or Enter or the space bar when the
/// form lets it have the focus, is the user's click.
class LabelView : public ViewOf<Label, QLabel> {
 public:
  LabelView(Label& control, QLabel& widget, const UserActions& actions);

  void press() override;

  bool eventFilter(QObject* watched, QEvent* event) override;

 protected:
  void show(PropertyId property) override;

 private:
  void showCaption();

  const QString formStyle_;
};

/// A picture, which `PicturePainter` paints. Its place stays free while it is hidden.
class PictureView : public ViewOf<Picture, QWidget> {
 public:
  PictureView(Picture& control, QWidget& widget, const UserActions& actions);

  void press() override;

  bool eventFilter(QObject* watched, QEvent* event) override;

 protected:
  void show(PropertyId) override {}
};

/// A figure, which the form draws.
class ShapeView : public ViewOf<Shape, QWidget> {
 public:
  ShapeView(Shape& control, QWidget& widget, const UserActions& actions)
      : ViewOf(control, widget, actions) {}

 protected:
  void show(PropertyId) override {}
};

/// A frame. Its caption is shown as it stands; a widget without a title shows none.
class FrameView : public ViewOf<Frame, QWidget> {
 public:
  FrameView(Frame& control, QWidget& widget, const UserActions& actions)
      : ViewOf(control, widget, actions) {}

 protected:
  void show(PropertyId property) override;
};

}  // namespace gsm
