#pragma once

#include "controls/simple_controls.h"
#include "controls/timer.h"
#include "controls/window.h"

namespace gsm {

struct Panel;

/// A picture with advice about the signal, which comes up for some seconds now and then.
class Form20 : public Window {
 public:
  explicit Form20(Panel& panel);

  Picture Image1{*this, "Image1"};
  Timer Timer1{*this, "Timer1", {.Interval = 50000, .Enabled = false}};

 private:
  void comeUp();

  Panel& panel_;
};

}  // namespace gsm
