#include "tests/support/healthy_modem_test.h"

#include "modem/form20.h"

namespace gsm {

void HealthyModemTest::startHealthy(const std::string& simReply, const std::string& comFile) {
  layComFile(comFile);
  start({.now = {2026, 3, 1, 0, 0, 0}});
  answerEverything(simReply);
}

void HealthyModemTest::startUnlocked() {
  startHealthy();
  settle();
  sent();
}

void HealthyModemTest::answerEverything(const std::string& simReply) {
  for (const char* command : {"AT", "AT+CMEE=0", "AT+CRC=0", "AT+CLIP=1", "AT+WIND=0", "AT+CMGF=1",
                              "AT+SPEAKER=1", "ATE1", "AT+CCED=2", "AT&F", "AT&W"}) {
    reply(command, kOk);
  }
  reply("AT+CGSN", kImeiReply);
  reply("AT+CPIN?", simReply);
  reply("AT+CSQ", information("+CSQ: 29,0"));
  reply("AT+CREG?", information("+CREG: 0,1"));
  reply("ATI0", kManufacturerReply);
  reply("ATI3", information(kRevision));
  reply("ATS0?", information("000"));
  reply("AT+IPR?", information("+IPR: 9600"));
  reply("AT+ICF?", information("+ICF: 3,4"));
  reply("AT&V", kProfileReply);
  reply("AT+CNMI?", information("+CNMI: 0,1,0,0,0"));
}

void HealthyModemTest::close(Window& window) {
  inPanel([&window] { window.userClose(); });
  settle();
}

void HealthyModemTest::closePort() {
  inPanel([this] { form1().MSComm1.PortOpen = false; });
  run(0);
}

std::vector<CommandButton*> HealthyModemTest::buttons() {
  Form1& form = form1();
  return {&form.Command1,  &form.Command2,  &form.Command3, &form.Command4, &form.Command5,
          &form.Command6,  &form.Command7,  &form.Command8, &form.Command9, &form.Command10,
          &form.Command11, &form.Command12, &form.Command13};
}

std::vector<int> HealthyModemTest::enabledButtons() {
  std::vector<int> numbers;
  int number = 0;
  for (const CommandButton* button : buttons()) {
    ++number;
    if (button->Enabled.peek()) numbers.push_back(number);
  }
  return numbers;
}

void HealthyModemTest::expectLocked() {
  EXPECT_EQ(enabledButtons(), (std::vector<int>{7, 8, 9, 13}));
  EXPECT_TRUE(form1().Frame5.Visible.peek());
  EXPECT_FALSE(panel().form20.Timer1.Enabled.peek());
}

void HealthyModemTest::expectWorking() {
  EXPECT_EQ(enabledButtons(), (std::vector<int>{1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13}));
  EXPECT_FALSE(form1().Frame5.Visible.peek());
  EXPECT_TRUE(panel().form20.Timer1.Enabled.peek());
}

void HealthyModemTest::expectNoSim() {
  EXPECT_EQ(enabledButtons(), (std::vector<int>{1, 6, 7, 8, 9, 10, 11, 12, 13}));
  EXPECT_FALSE(form1().Frame5.Visible.peek());
}

void HealthyModemTest::expectAtRest() {
  EXPECT_EQ(waiting(), 0);
  EXPECT_EQ(boxes(), Texts{});
  EXPECT_FALSE(ended());
}

void HealthyModemTest::expectBox(const std::string& text, const std::string& title, BoxIcon icon) {
  const auto shown = machine().boxes.takeShown();
  ASSERT_EQ(shown.size(), 1U);
  EXPECT_EQ(shown[0].text, text);
  EXPECT_EQ(shown[0].title, title);
  EXPECT_EQ(shown[0].icon, icon);
}

void HealthyModemTest::expectEndedBy(const std::string& failure) {
  expectBox(failure, MessageBoxes::kDefaultTitle);
  EXPECT_TRUE(ended());
}

void HealthyModemTest::silence(const std::string& command) {
  world().modem.add({.write = command + "\r"});
}

}  // namespace gsm
