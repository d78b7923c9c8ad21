#pragma once

#include <string>
#include <vector>

#include "audio/form6.h"
#include "tests/support/feature_window_test.h"

namespace gsm {

enum AudioTab { gains = 1, toneAndEcho = 2, answerAndDtmf = 3, melodies = 4 };

inline const Texts kGainReads = {"AT+VGR?\r", "AT+VGT?\r"};
inline const Texts kEchoReads = {"AT+ECHO?\r", "AT+SIDET?\r"};
inline const Texts kAnswerReads = {"ATS0?\r", "AT+VTD?\r"};

/// The audio window over an open port with a scripted modem.
class AudioTest : public FeatureWindowTest {
 protected:
  void SetUp() override {
    FeatureWindowTest::SetUp();
    // Send events would stretch each wait to two seconds, and what is to be seen is its own.
    assign([this] { form1().MSComm1.SThreshold = 0; });
  }

  /// The user clicks a tab, and no time passes. The page without a tab comes up by itself.
  void clickTab(AudioTab tab) {
    if (tab == melodies) {
      inPanel([this] { form().turnPage(melodies); });
    } else {
      world().time().after(Duration::zero(), [this, tab] { form().TabStrip1.userTab(tab); });
    }
    run(0);
  }
  /// The user clicks a tab, and what follows ends.
  void turnTo(AudioTab tab) {
    clickTab(tab);
    settle();
  }
  void move(Slider& slider, int value) {
    act([&slider, value] { slider.userMove(value); });
  }

  Window& window() override { return form(); }
  Form6& form() { return panel().form6; }
  std::string status() { return caption(form().Label7); }
  void setStatus(const std::string& text) {
    assign([this, text] { form().Label7.Caption = text; });
  }
  /// The frames of the pages that are on view.
  Texts pages() {
    return shownOf({&form().Frame1, &form().Frame2, &form().Frame10, &form().Frame12});
  }
};

/// What the dispatcher says of a change of echo or side tone.
struct DispatchedRow {
  std::string name;
  std::string reply;
  std::string status;
};
inline const std::vector<DispatchedRow> kDispatchedOutcomes = {
    {"Success", kOk, "Changes SuccessFul"},
    {"Refusal", kError, "UnSuccessFul.Try Again"},
    {"BothWords", "\r\nERROR\r\n\r\nOK\r\n", "Changes SuccessFul"},
    {"TheEchoAlone", "", "UnSuccessFul.Try Again"},
};

}  // namespace gsm
