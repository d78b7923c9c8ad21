#pragma once

#include <string>

#include "settings/form14.h"
#include "tests/support/feature_window_test.h"

namespace gsm {

inline constexpr const char* kChecking = "Checking Current Value";

/// The window of data and fax over an open port with a scripted modem.
class DataTest : public FeatureWindowTest {
 protected:
  void type(ComboBox& combo, const std::string& text) {
    inPanel([&combo, text] { combo.userEdit(text); });
    run(0);
  }

  Window& window() override { return form(); }
  Form14& form() { return panel().form14; }
  std::string bearer() { return caption(form().Label1); }
  std::string modes() { return caption(form().Label4); }
  std::string fax() { return caption(form().Label5); }
  /// The pages on view.
  Texts pages() { return shownOf({&form().Frame1, &form().Frame2, &form().Frame3}); }
};

}  // namespace gsm
