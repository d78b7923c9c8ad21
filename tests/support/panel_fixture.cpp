#include "tests/support/panel_fixture.h"

#include <utility>

namespace gsm {

void PanelTest::start(const Machine& machine) {
  world_ =
      std::make_unique<HeadlessPanel>(folder_.path(), machine.now, database_.get(), machine.record);
  world_->machine.ports.set(machine.ports);
  world_->machine.line.plug(machine.modemPort);
  world_->modem.setSpeed(machine.modemSpeed);
  world_->start();
}

void PanelTest::startWithModem() {
  layComFile("9600,N,8,1 3\r\n");
  start();
  reply("AT+CGSN", "\r\n012345678901234\r\n\r\nOK\r\n");
  settle();
  sent();
}

void PanelTest::reply(const std::string& command, const std::string& text, Duration after) {
  world_->modem.add({.write = command + "\r", .replies = {{{after, text}}}});
}

void PanelTest::receive(const std::string& bytes, double after) {
  world_->time().after(fromSeconds(after), [this, bytes] { world_->machine.line.arrive(bytes); });
}

void PanelTest::inPanel(std::function<void()> action, double after) {
  world_->time().after(fromSeconds(after), [this, action = std::move(action)] {
    world_->machine.handlers().run(action);
  });
}

std::vector<std::string> PanelTest::sent() {
  std::vector<std::string> texts;
  for (auto& write : sentWithTimes()) texts.push_back(std::move(write.text));
  return texts;
}

std::vector<std::string> PanelTest::boxes() {
  std::vector<std::string> texts;
  for (auto& box : world_->machine.boxes.takeShown()) texts.push_back(std::move(box.text));
  return texts;
}

}  // namespace gsm
