#include "tests/support/feature_window_test.h"

#include "controls/list_controls.h"

namespace gsm {

void FeatureWindowTest::beginLoad() {
  assign([this] { window().Show(); });
}

void FeatureWindowTest::openWindow() {
  beginLoad();
  settle();
  sent();
}

void FeatureWindowTest::closeWindow() {
  assign([this] { window().userClose(); });
}

void FeatureWindowTest::closePort() {
  assign([this] { form1().MSComm1.PortOpen = false; });
}

void FeatureWindowTest::pick(ComboBox& combo, int index) {
  act([&combo, index] { combo.userSelect(index); });
}

void FeatureWindowTest::act(const std::function<void()>& deed) {
  world().time().after(Duration::zero(), deed);
  run(0);
}

void FeatureWindowTest::assign(const std::function<void()>& assignment) {
  inPanel(assignment);
  run(0);
}

void FeatureWindowTest::replyWithoutEcho(const std::string& command, const std::string& text) {
  world().modem.add(
      {.write = command + "\r", .replies = {{{ModemScript::kDefaultDelay, text}}}, .echo = false});
}

void FeatureWindowTest::expectBox(const std::string& text, const std::string& title) {
  const auto shown = machine().boxes.takeShown();
  ASSERT_EQ(shown.size(), 1U);
  EXPECT_EQ(shown[0].text, text);
  EXPECT_EQ(shown[0].title, title);
  EXPECT_EQ(shown[0].icon, BoxIcon::none);
}

void FeatureWindowTest::expectAtRest() {
  EXPECT_EQ(waiting(), 0);
  EXPECT_EQ(boxes(), Texts{});
  EXPECT_FALSE(ended());
}

Texts FeatureWindowTest::shownOf(const std::vector<const Control*>& parts) {
  Texts shown;
  for (const Control* part : parts) {
    if (part->Visible.peek()) shown.push_back(part->name());
  }
  return shown;
}

}  // namespace gsm
