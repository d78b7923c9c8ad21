#pragma once

#include <string>
#include <vector>

#include "controls/control.h"

namespace gsm {

struct TabStripDesign {
  std::vector<std::string> Tabs;
  Control* In = nullptr;
  bool Visible = true;
  bool Enabled = true;
};

/// A row of tabs, counted from 1. It holds nothing itself: its `Click` shows and hides frames.
class TabStrip : public Control {
 public:
  using Design = TabStripDesign;
  TabStrip(Window& window, std::string name, Design design = {}, int index = kNoIndex);

  /// The selected tab. A value that is no tab's fails with `invalidPropertyValue`.
  Property<int> Value;

  /// Comes with every click on a tab, the selected one too.
  Event Click{*this};

  const std::vector<std::string>& tabs() const { return tabs_; }

  /// The user clicks tab `tab`. False when the strip or the tab is out of reach.
  bool userTab(int tab);

 private:
  bool holds(int tab) const { return tab >= 1 && tab <= static_cast<int>(tabs_.size()); }

  const std::vector<std::string> tabs_;
};

}  // namespace gsm
