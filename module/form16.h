#pragma once

#include "panel/feature_window.h"

namespace gsm {

/// The menu of the module's own features.
class Form16 : public FeatureWindow {
 public:
  explicit Form16(Panel& panel);
};

}  // namespace gsm
