#pragma once

#include <string>

#include "module/form16.h"
#include "module/form17.h"
#include "tests/support/feature_window_test.h"

namespace gsm {

/// The window of the maker's own features over an open port with a scripted modem.
class MakersFeaturesTest : public FeatureWindowTest {
 protected:
  static constexpr const char* kWaiting = "Wait..Checking Status";

  void typeInto(ComboBox& combo, const std::string& text) {
    inPanel([&combo, text] { combo.userEdit(text); });
    run(0);
  }

  /// A box without a title of its own has come up.
  void expectBox(const std::string& text) {
    FeatureWindowTest::expectBox(text, MessageBoxes::kDefaultTitle);
  }

  Window& window() override { return form(); }
  Form16& menu() { return panel().form16; }
  Form17& form() { return panel().form17; }
  std::string indicators() { return caption(form().Label14); }
  /// The frames of the pages that are on view.
  Texts pages() {
    return shownOf({&form().Frame1, &form().Frame5, &form().Frame6, &form().Frame9});
  }
};

/// How a change ends on a status label, by what the modem says.
struct OutcomeRow {
  std::string name;
  std::string reply;
  std::string shown;
};

}  // namespace gsm
