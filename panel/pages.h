#pragma once

#include <initializer_list>

#include "controls/simple_controls.h"

namespace gsm {

/// Shows the frame `shown` and hides the other ones of `pages`, which lie on one place.
inline void showPage(std::initializer_list<Frame*> pages, const Frame& shown) {
  for (Frame* page : pages) page->Visible = page == &shown;
}

}  // namespace gsm
