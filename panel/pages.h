#pragma once

#include <initializer_list>

#include "controls/simple_controls.h"

namespace gsm {

/// Hides the frames `pages`, which lie on one place, but `shown`, and then shows that one: in this
/// order the screen never needs room for two, and the window doesn't grow.
inline void showPage(std::initializer_list<Frame*> pages, Frame& shown) {
  for (Frame* page : pages) {
    if (page != &shown) page->Visible = false;
  }
  shown.Visible = true;
}

}  // namespace gsm
