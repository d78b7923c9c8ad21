#include "tests/support/routing_test.h"

#include "audio/form6.h"
#include "panel/form7.h"

namespace gsm {

void RoutingTest::route(const std::string& text) {
  receive(text);
  run(2.1);
}

bool RoutingTest::hearsRing() {
  form1().Timer2.Enabled = false;
  route("\r\nRING\r\n");
  return form1().Timer2.Enabled.peek();
}

void RoutingTest::loadAudio() {
  inPanel([this] { panel().form6.reference(); });
  settle();
  sent();
}

void RoutingTest::clearTranscript() {
  inPanel([this] { form1().Text1.clear(); });
  run(0);
}

std::string RoutingTest::audioStatus() { return panel().form6.Label7.Caption.peek(); }
std::string RoutingTest::speakerGain() { return panel().form6.Label5.Caption.peek(); }
std::string RoutingTest::microphoneGain() { return panel().form6.Label6.Caption.peek(); }
std::string RoutingTest::signal() { return panel().form7.Label4.Caption.peek(); }
std::string RoutingTest::registration() { return panel().form7.Label5.Caption.peek(); }

std::string RoutingTest::bars() {
  std::string all;
  Form7& window = panel().form7;
  for (const Picture* bar :
       {&window.Image1, &window.Image2, &window.Image3, &window.Image4, &window.Image5}) {
    all += bar->Visible.peek() ? '#' : '.';
  }
  return all;
}

void RoutingTest::setBars(const std::string& pattern) {
  Form7& window = panel().form7;
  window.Image1.Visible = pattern[0] == '#';
  window.Image2.Visible = pattern[1] == '#';
  window.Image3.Visible = pattern[2] == '#';
  window.Image4.Visible = pattern[3] == '#';
  window.Image5.Visible = pattern[4] == '#';
}

}  // namespace gsm
