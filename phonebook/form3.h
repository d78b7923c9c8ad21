#pragma once

#include "app/feature_window.h"

namespace gsm {

/// Voice calls, and the phone book beside the dial pad.
class Form3 : public FeatureWindow {
 public:
  explicit Form3(Panel& panel);
};

}  // namespace gsm
