#pragma once

#include "panel/feature_window.h"

namespace gsm {

/// Phone lock, SIM PIN and network lock.
class Form9 : public FeatureWindow {
 public:
  explicit Form9(Panel& panel);
};

}  // namespace gsm
