#pragma once

#include <string>
#include <vector>

#include "audio/form6.h"
#include "panel/form1.h"
#include "tests/support/modem_bytes.h"
#include "tests/support/routing_test.h"
#include "tests/support/rows.h"

namespace gsm {

using Texts = std::vector<std::string>;

enum AudioTab { gains = 1, toneAndEcho = 2, answerAndDtmf = 3, melodies = 4 };

inline const Texts kGainReads = {"AT+VGR?\r", "AT+VGT?\r"};
inline const Texts kEchoReads = {"AT+ECHO?\r", "AT+SIDET?\r"};
inline const Texts kAnswerReads = {"ATS0?\r", "AT+VTD?\r"};

/// The audio window over an open port with a scripted modem.
class AudioTest : public RoutingTest {
 protected:
  void SetUp() override {
    RoutingTest::SetUp();
    // Send events would stretch each wait to two seconds, and what is to be seen is its own.
    assign([this] { form1().MSComm1.SThreshold = 0; });
  }

  /// Shows the window, and lets no time pass.
  void beginLoad() {
    inPanel([this] { form().Show(); });
    run(0);
  }
  /// Shows the window with a modem that says nothing, and lets its reads end.
  void openWindow() {
    beginLoad();
    settle();
    sent();
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
  template <class Clickable>
  void press(Clickable& control) {
    click(control);
    settle();
  }
  void move(Slider& slider, int value) {
    world().time().after(Duration::zero(), [&slider, value] { slider.userMove(value); });
    run(0);
  }
  void choose(ComboBox& combo, int item) {
    world().time().after(Duration::zero(), [&combo, item] { combo.userSelect(item); });
    run(0);
  }
  /// The user types `text` into `box` in the place of what stood there.
  template <class Box>
  void fill(Box& box, const std::string& text) {
    world().time().after(Duration::zero(), [&box, text] {
      box.userErase();
      box.userType(text);
    });
    run(0);
  }
  void assign(const std::function<void()>& assignment) {
    inPanel(assignment);
    run(0);
  }
  void closePort() {
    inPanel([this] { form1().MSComm1.PortOpen = false; });
    run(0);
  }
  void closeWindow() {
    inPanel([this] { form().userClose(); });
    run(0);
  }

  /// The modem answers `command` without its echo.
  void replyWithoutEcho(const std::string& command, const std::string& text) {
    world().modem.add({.write = command + "\r",
                       .replies = {{{ModemScript::kDefaultDelay, text}}},
                       .echo = false});
  }

  void expectBox(const std::string& text) {
    const auto shown = machine().boxes.takeShown();
    ASSERT_EQ(shown.size(), 1U);
    EXPECT_EQ(shown[0].text, text);
    EXPECT_EQ(shown[0].title, "GSM");
    EXPECT_EQ(shown[0].icon, BoxIcon::none);
  }
  /// No handler waits, no box came up, and the program goes on.
  void expectAtRest() {
    EXPECT_EQ(waiting(), 0);
    EXPECT_EQ(boxes(), Texts{});
    EXPECT_FALSE(ended());
  }

  Form6& form() { return panel().form6; }
  std::string caption(const Label& label) { return label.Caption.peek(); }
  std::string status() { return caption(form().Label7); }
  void setStatus(const std::string& text) {
    assign([this, text] { form().Label7.Caption = text; });
  }
  /// The frames of the pages that are on view.
  Texts pages() {
    Texts shown;
    for (const Frame* frame : {&form().Frame1, &form().Frame2, &form().Frame10, &form().Frame12}) {
      if (frame->Visible.peek()) shown.push_back(frame->name());
    }
    return shown;
  }
};

}  // namespace gsm
