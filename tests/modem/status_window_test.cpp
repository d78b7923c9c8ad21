#include <gtest/gtest.h>

#include "panel/form7.h"
#include "tests/support/routing_test.h"

namespace gsm {
namespace {

class StatusWindow : public RoutingTest {};

TEST_F(StatusWindow, HoldsNothingThatTheUserCouldPress) {
  Form7& window = panel().form7;
  inPanel([&] { window.Show(); });
  run(0);
  for (const Control* control : window.controls()) {
    EXPECT_EQ(dynamic_cast<const CommandButton*>(control), nullptr) << control->name();
    EXPECT_EQ(dynamic_cast<const TextBox*>(control), nullptr) << control->name();
  }
}

TEST_F(StatusWindow, KeepsItsStateWhileHiddenAndLosesItWhenClosed) {
  Form7& window = panel().form7;
  inPanel([&] {
    window.Show();
    window.Label4.Caption = "15,99";
    window.Image1.Visible = true;
    window.Hide();
    window.Show();
  });
  run(0);
  EXPECT_EQ(signal(), "15,99");
  EXPECT_EQ(bars(), "#....");
  inPanel([&] {
    window.userClose();
    window.Show();
  });
  run(0);
  EXPECT_EQ(signal(), "");
  EXPECT_EQ(bars(), ".....");
}

}  // namespace
}  // namespace gsm
