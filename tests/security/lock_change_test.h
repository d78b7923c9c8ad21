#pragma once

#include <string>

#include "tests/security/security_test.h"

namespace gsm {

inline constexpr int kDarkBlue = 0x400000;
inline constexpr int kDarkRed = 0xC0;

/// The window with everything on view and words of the test's own on the status lines.
class LockChange : public SecurityTest {
 protected:
  void SetUp() override {
    SecurityTest::SetUp();
    openWindow();
    setAll(true);
    inPanel([this] {
      form().Label2.Caption = "phone";
      form().Label6.Caption = "pin";
      form().Label10.Caption = "network";
    });
    run(0);
  }
  /// Of the three status lines only `own` tells `words`, and has `colour`.
  void expectTold(const Label& own, const std::string& words, int colour) {
    for (const Label* label : {&form().Label2, &form().Label6, &form().Label10}) {
      EXPECT_EQ(caption(*label) == words, label == &own) << caption(*label);
      EXPECT_EQ(label->ForeColor.peek(), label == &own ? colour : kBlack);
    }
  }
  void expectNothingTold() {
    EXPECT_EQ(states(), (Texts{"phone", "pin", "network"}));
    for (const Label* label : {&form().Label2, &form().Label6, &form().Label10}) {
      EXPECT_EQ(label->ForeColor.peek(), kBlack);
    }
  }
};

}  // namespace gsm
