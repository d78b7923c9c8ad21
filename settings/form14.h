#pragma once

#include "panel/feature_window.h"

namespace gsm {

/// Data bearer, compression, error correction and fax.
class Form14 : public FeatureWindow {
 public:
  explicit Form14(Panel& panel);
};

}  // namespace gsm
