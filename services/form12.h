#pragma once

#include "panel/feature_window.h"

namespace gsm {

/// The network's supplementary services.
class Form12 : public FeatureWindow {
 public:
  explicit Form12(Panel& panel);
};

}  // namespace gsm
