#pragma once

#include <string>

#include "panel/feature_window.h"

namespace gsm {

/// A window that the menu of the module's own features opens in its own place: closing it brings
/// the menu back.
class ModuleWindow : public FeatureWindow {
 protected:
  /// `title` is the window's until another one gives it its own.
  ModuleWindow(Panel& panel, std::string name, std::string title);

  void Form_Unload() override;
};

}  // namespace gsm
