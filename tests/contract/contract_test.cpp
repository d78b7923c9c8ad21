#include <gtest/gtest.h>

#include <algorithm>
#include <string>

#include "controls/controls.h"
#include "panel/form1.h"
#include "platform/runtime_failure.h"
#include "tests/contract/handlers.h"
#include "tests/support/panel_fixture.h"
#include "tests/support/rows.h"

namespace gsm {
namespace {

using Texts = std::vector<std::string>;

// The control of that name, which may carry an index in brackets.
Control& controlNamed(Window& window, const std::string& name) {
  const auto bracket = name.find('(');
  const int index =
      bracket == std::string::npos ? Control::kNoIndex : std::stoi(name.substr(bracket + 1));
  return *window.control(name.substr(0, bracket), index);
}

// The user clicks on `control`, of whichever kind it is.
void userClicks(Control& control) {
  if (auto* button = dynamic_cast<CommandButton*>(&control)) {
    button->userClick();
  } else if (auto* label = dynamic_cast<Label*>(&control)) {
    label->userClick();
  } else if (auto* picture = dynamic_cast<Picture*>(&control)) {
    picture->userClick();
  } else if (auto* option = dynamic_cast<OptionButton*>(&control)) {
    option->userClick();
  } else if (auto* tabs = dynamic_cast<TabStrip*>(&control)) {
    tabs->userTab(tabs->Value.peek());
  } else if (auto* combo = dynamic_cast<ComboBox*>(&control)) {
    combo->userSelect(0);
  } else {
    ADD_FAILURE() << control.fullName() << " is nothing that a user clicks";
  }
}

/// A handler's window on view over an open port, with a modem that says nothing.
class Contract : public PanelTest, public ::testing::WithParamInterface<HandlerRow> {
 protected:
  void open(LocalTime clock = {2026, 3, 1, 0, 0, 0}) {
    start({.now = clock});
    settle();
    inPanel([this] {
      form1().MSComm1.CommPort = 3;
      form1().MSComm1.SThreshold = 1;
      form1().MSComm1.RThreshold = 1;
      form1().MSComm1.PortOpen = true;
      form1().Frame5.Visible = false;
      window().Show();
    });
    settle();
    inPanel([this] {
      form1().Label1.Caption = "Open";
      control().Enabled = true;
      control().Visible = true;
      if (GetParam().prepare) GetParam().prepare(panel());
    });
    settle();
    sent();
    boxes();
  }

  Window& window() { return *windowNamed(panel().platform, GetParam().window); }
  Control& control() { return controlNamed(window(), GetParam().control); }

  /// The modem answers whatever it hears with its echo and `text`.
  void answerAll(const std::string& text) {
    world().modem.setOtherwise({.replies = {{{ModemScript::kDefaultDelay, text}}}});
  }

  void press() {
    world().time().after(Duration::zero(), [this] {
      pressed_ = control().isReachable();
      userClicks(control());  // which returns when the handler has ended
    });
    run(0);
  }

  // What every handler leaves, however it was treated.
  void expectAtRest() {
    settle();
    EXPECT_EQ(waiting(), 0);
    for (const Window* each : panel().platform.windows) {
      EXPECT_TRUE(each->isLoaded() || !each->Visible.peek()) << each->name();
    }
  }
  void expectGoesOn() {
    expectAtRest();
    EXPECT_FALSE(ended());
  }
  // A failure with this text has come up in the handler.
  void expectFailure(const RuntimeFailure& failure) {
    settle();
    const bool trapped = GetParam().trap == Trap::silent;
    EXPECT_EQ(boxes(), trapped ? Texts{} : Texts{failure.description()});
    EXPECT_EQ(ended(), !trapped);
    if (trapped) expectAtRest();
  }

  bool pressed_ = false;
};

TEST_P(Contract, WaitsAsLongAsItSaysWhenTheModemIsSilent) {
  open();
  const double begin = now();
  press();
  ASSERT_TRUE(pressed_);
  settle();
  double seconds = 0;
  // Each command's send event routes the transcript for two seconds on top of the wait.
  for (const float pause : GetParam().pauses) seconds += std::max(pause, 2.0F);
  EXPECT_NEAR(now() - begin, seconds, 0.1 + 0.1 * static_cast<double>(GetParam().pauses.size()));
  EXPECT_EQ(sent().empty(), GetParam().pauses.empty());
  expectGoesOn();
}

// As on a line so slow that a wait is over before its command has gone.
TEST_P(Contract, WaitsNoLongerThanItSaysWhenNoSendEventComes) {
  open();
  inPanel([this] { form1().MSComm1.SThreshold = 0; });
  run(0);
  const double begin = now();
  press();
  ASSERT_TRUE(pressed_);
  settle();
  double seconds = 0;
  for (const float pause : GetParam().pauses) seconds += pause;
  EXPECT_NEAR(now() - begin, seconds, 0.1 * static_cast<double>(GetParam().pauses.size()));
  expectGoesOn();
}

TEST_P(Contract, EndsAsItSaysWhenThePortIsClosed) {
  open();
  inPanel([this] { form1().MSComm1.PortOpen = false; });
  run(0);
  press();
  ASSERT_TRUE(pressed_);
  if (GetParam().usesPort) {
    expectFailure(failure::invalidUnlessOpen());
  } else {
    expectGoesOn();
  }
  EXPECT_EQ(sent(), Texts{});
}

TEST_P(Contract, EndsAsItSaysWhenTheDeviceIsGone) {
  open();
  machine().ports.set({});
  press();
  ASSERT_TRUE(pressed_);
  if (GetParam().pauses.empty()) {
    expectGoesOn();
  } else {
    expectFailure(failure::deviceError());
  }
}

TEST_P(Contract, EndsWhenTheModemAnswersError) {
  open();
  answerAll("\r\nERROR\r\n");
  press();
  expectGoesOn();
}

TEST_P(Contract, EndsWhenTheModemAnswersBothWords) {
  open();
  answerAll("\r\nOK\r\n\r\nERROR\r\n");
  press();
  expectAtRest();
  EXPECT_EQ(ended(), GetParam().endsByOk);
}

TEST_P(Contract, EndsAsItSaysAtMidnight) {
  open({2026, 3, 1, 23, 0, 0});
  // Half a second before midnight, so that the first wait meets it.
  run(3599.5 - now());
  press();
  ASSERT_TRUE(pressed_);
  if (GetParam().pauses.empty()) {
    expectGoesOn();
  } else {
    expectFailure(failure::overflow());
  }
}

TEST_P(Contract, EndsWhenItIsPressedTwice) {
  open();
  press();
  run(0.5);
  press();
  expectGoesOn();
}

/// Of every window but the main one, whose closing ends the program.
class ContractOfAnotherWindow : public Contract {};

TEST_P(ContractOfAnotherWindow, EndsWhenItsWindowIsClosedMeanwhile) {
  open();
  press();
  world().time().after(fromSeconds(0.5), [this] { window().userClose(); });
  expectGoesOn();
}

TEST_P(Contract, IsOutOfReachUnderABox) {
  open();
  machine().boxes.setAnswer(HeadlessBoxes::Answer::hold);
  inPanel([this] { panel().platform.boxes.show("Please wait", "GSM"); });
  run(0);
  press();
  EXPECT_FALSE(pressed_);
  run(5);
  EXPECT_EQ(sent(), Texts{});
}

std::vector<HandlerRow> handlersOfOtherWindows() {
  std::vector<HandlerRow> rows = handlers();
  std::erase_if(rows, [](const HandlerRow& row) { return row.window == "Form1"; });
  return rows;
}

INSTANTIATE_TEST_SUITE_P(Of, Contract, ::testing::ValuesIn(handlers()), RowName());
INSTANTIATE_TEST_SUITE_P(Of, ContractOfAnotherWindow, ::testing::ValuesIn(handlersOfOtherWindows()),
                         RowName());

}  // namespace
}  // namespace gsm
