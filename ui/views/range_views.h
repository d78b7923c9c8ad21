#pragma once

#include <QSlider>
#include <QTabBar>

#include "controls/slider.h"
#include "controls/tab_strip.h"
#include "ui/views/control_view.h"

namespace gsm {

class SliderView : public ViewOf<Slider, QSlider> {
 public:
  SliderView(Slider& control, QSlider& widget, const UserActions& actions);

 protected:
  void show(PropertyId property) override;

 private:
  bool take();
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
