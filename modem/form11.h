#pragma once

#include "platform/controls.h"
#include "platform/window.h"

namespace gsm {

class Panel;

/// A picture that tells of a new message for some seconds.
class Form11 : public Window {
 public:
  explicit Form11(Panel& panel);

  Picture Image1{*this, "Image1"};
};

}  // namespace gsm
