#pragma once

#include "controls/simple_controls.h"
#include "controls/window.h"

namespace gsm {

struct Panel;

/// A picture that reports a new message for some seconds.
class Form11 : public Window {
 public:
  explicit Form11(Panel& panel);

  Picture Image1{*this, "Image1"};
};

}  // namespace gsm
