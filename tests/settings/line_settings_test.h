#pragma once

#include <initializer_list>
#include <string>

#include "settings/form15.h"
#include "tests/support/feature_window_test.h"

namespace gsm {

inline const Texts kLineCommands = {"AT+IPR=9600", "AT+ICF=3,4", "AT+IFC=2,2", "AT&C1",
                                    "AT&D1",       "AT&S0",      "ATE1",       "AT&W"};

/// What a refused step leaves on the status line; nothing for the last.
inline const Texts kStepFailures = {" Changes UnsuccessFul-IPR ",
                                    " Changes UnsuccessFul-Character Framing ",
                                    "Changes UnsuccessFul-DCE-DTE Flow Control",
                                    "Changes UnsuccessFul-DCD signal",
                                    "Changes UnsuccessFul-DTR signal",
                                    "Changes UnsuccessFul-DSR signal",
                                    "Changes UnsuccessFul-ECHO",
                                    ""};

inline constexpr const char* kSaving = "Please Wait...Saving The Setting";
inline constexpr const char* kSaved = "Changes SuccessFul";
inline constexpr const char* kFramingShown = "Character Framing:8 Data,1 Stop Parity:None";

/// The status line when `step`, counted from 0, has failed and no other.
inline std::string afterFailureOf(std::size_t step) {
  return kStepFailures[step].empty() ? kSaved : kStepFailures[step];
}

/// The window of the line settings over an open port with a scripted modem. The port tells of
/// nothing that it has sent, so that a step under a silent modem takes its second and no more.
class LineSettingsTest : public FeatureWindowTest {
 protected:
  void SetUp() override {
    FeatureWindowTest::SetUp();
    openWindow();
  }

  void openWindow() {
    inPanel([this] {
      form1().MSComm1.SThreshold = 0;
      form().Show();
    });
    run(0);
    form1().Label6.Caption = "before";
    form1().Label7.Caption = "before";
  }

  /// The user fills in what `kLineCommands` carry.
  void fillIn() {
    form().Combo1.userEdit("9600");
    choose({&form().Option4, &form().Option12, &form().Option15, &form().Option19, &form().Option23,
            &form().Option25, &form().Option20, &form().Option28});
  }
  void choose(std::initializer_list<OptionButton*> options) {
    for (OptionButton* option : options) click(*option);
  }
  /// The user types `rate`, whatever stood there.
  void typeRate(const std::string& rate) {
    form().Combo1.userEdit("");
    form().Combo1.userType(rate);
  }

  /// The user presses "Save Configurations", and no time passes.
  void press() { click(form().Command1); }
  void save() {
    press();
    settle();
  }

  /// The modem answers each of the steps with its echo and `text`.
  void answerAll(const std::string& text) {
    for (const std::string& command : kLineCommands) reply(command, text);
  }

  Window& window() override { return form(); }
  Form15& form() { return panel().form15; }
  std::string status() { return form().Label1.Caption.peek(); }
  std::string speedShown() { return form1().Label6.Caption.peek(); }
  std::string framingShown() { return form1().Label7.Caption.peek(); }

  /// What was written to the port, without the carriage returns that end each command.
  Texts commands() {
    Texts all = sent();
    for (std::string& each : all) {
      EXPECT_TRUE(each.ends_with('\r')) << each;
      each.pop_back();
    }
    return all;
  }

  std::vector<OptionButton*> options() {
    Form15& window = form();
    return {&window.Option1,  &window.Option2,  &window.Option3,  &window.Option4,
            &window.Option5,  &window.Option6,  &window.Option7,  &window.Option8,
            &window.Option9,  &window.Option10, &window.Option11, &window.Option12,
            &window.Option13, &window.Option14, &window.Option15, &window.Option16,
            &window.Option17, &window.Option18, &window.Option19, &window.Option20,
            &window.Option21, &window.Option22, &window.Option23, &window.Option24,
            &window.Option25, &window.Option26, &window.Option27, &window.Option28};
  }
  /// The numbers of the options that are set.
  std::vector<int> set() {
    std::vector<int> numbers;
    int number = 0;
    for (const OptionButton* option : options()) {
      ++number;
      if (option->Value.peek()) numbers.push_back(number);
    }
    return numbers;
  }
};

}  // namespace gsm
