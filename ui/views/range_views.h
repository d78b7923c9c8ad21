#pragma once

#include <QLabel>
#include <QSlider>
#include <QTabBar>
#include <QWheelEvent>
#include <vector>

#include "controls/slider.h"
#include "controls/tab_strip.h"
#include "ui/views/control_view.h"

namespace gsm {

/// A slider moves by the design's steps: the small one by an arrow key or a notch of the wheel, the
/// large one by a page key or a click beside the handle. Labels with its name in their property
/// `valueOf` show where it stands, also while it is dragged.
class SliderView : public ViewOf<Slider, QSlider> {
 public:
  SliderView(Slider& control, QSlider& widget, const UserActions& actions);

 protected:
  void show(PropertyId property) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  bool take();
  void turnWheel(const QWheelEvent& event);
  void tellValue();

  std::vector<QLabel*> valueLabels_;
  int turned_ = 0;  // of the wheel, short of a notch
};

/// A row of tabs: a bar alone, since the strip holds nothing.
class TabView : public ViewOf<TabStrip, QTabBar> {
 public:
  TabView(TabStrip& control, QTabBar& widget, const UserActions& actions);

 protected:
  void show(PropertyId property) override;

 private:
  void choose(int index);
};

}  // namespace gsm
