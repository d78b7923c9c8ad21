// Every window that sends a PIN, a PUK, a password or the tone of a key, with a record of the line
// and a modem that refuses what it is given, however the line cuts its echo.

#include <gtest/gtest.h>

#include <memory>
#include <sstream>
#include <string>
#include <tuple>

#include "modem/form10.h"
#include "panel/form1.h"
#include "phonebook/form3.h"
#include "security/form9.h"
#include "services/form12.h"
#include "simulator/host/simulated_modem.h"
#include "tests/support/panel_fixture.h"

namespace gsm {
namespace {

// Is there before the panel and goes after it, since the panel's end is in the record too.
struct KeptRecord {
  std::ostringstream record_;
};

class RecordedSecrets : protected KeptRecord,
                        public PanelTest,
                        public ::testing::WithParamInterface<std::size_t> {
 protected:
  void begin(simulator::SimStatus sim) {
    layComFile("9600,N,8,1 3\r\n");
    Machine machine;
    machine.record = &record_;
    start(machine);
    modem_ = std::make_unique<SimulatedModem>(
        world().machine.time, world().machine.line,
        simulator::ModemOptions{
            .speed = 9600, .sim = sim, .cutter = simulator::Cutter::every(GetParam())});
    settle();
  }
  void TearDown() override {
    world().time().abandon();
    modem_.reset();
  }

  /// Shows `window` with every control within the user's reach.
  void open(Window& window) {
    inPanel([&window] { window.Show(); });
    settle();
    for (Control* control : window.controls()) control->Visible = true;
    settle();
  }
  template <class Clickable>
  void press(Clickable& control) {
    click(control);
    settle();
  }

  /// The record as it stands.
  std::string written() const { return record_.str(); }
  void expectCommand(const std::string& shown) {
    EXPECT_NE(written().find("\"out\":\"" + shown + "\\r\""), std::string::npos) << shown;
  }
  /// No two characters of `secret` that follow one another are in anything that the record says
  /// went over the line after `from`.
  void expectHidden(const std::string& secret, std::size_t from) {
    std::istringstream lines(written().substr(from));
    std::string texts;
    for (std::string line; std::getline(lines, line);) {
      for (const char* field : {"\"out\":\"", "\"in\":\""}) {
        const auto begin = line.find(field);
        if (begin == std::string::npos) continue;
        const auto text = begin + std::string(field).size();
        texts += line.substr(text, line.find('"', text) - text);
      }
    }
    for (std::size_t i = 0; i + 2 <= secret.size(); ++i) {
      EXPECT_EQ(texts.find(secret.substr(i, 2)), std::string::npos) << secret << " in " << texts;
    }
  }

  std::unique_ptr<SimulatedModem> modem_;
};

TEST_P(RecordedSecrets, OfThePinPromptAreBlottedOut) {
  begin(simulator::SimStatus::kPinWanted);
  const std::size_t from = written().size();
  panel().form10.Text1.Text = "9753";
  press(panel().form10.Command1);
  EXPECT_EQ(form1().Text2.Text.peek(), "1") << "one was refused";
  expectCommand("AT+CPIN=****");
  expectHidden("9753", from);
}

TEST_P(RecordedSecrets, OfThePukPromptAreBlottedOut) {
  begin(simulator::SimStatus::kPukWanted);
  const std::size_t from = written().size();
  panel().form10.Text2.Text = "97538642";
  panel().form10.Text1.Text = "7539";
  press(panel().form10.Command1);
  expectCommand("AT+CPIN=*************");
  expectHidden("97538642", from);
  expectHidden("7539", from);
}

TEST_P(RecordedSecrets, OfTheLocksAreBlottedOut) {
  begin(simulator::SimStatus::kReady);
  Form9& locks = panel().form9;
  open(locks);
  const std::size_t from = written().size();
  for (const auto& [option, box, apply] :
       {std::tuple{&locks.Option1, &locks.Text1, &locks.Command1},
        std::tuple{&locks.Option4, &locks.Text4, &locks.Command5},
        std::tuple{&locks.Option7, &locks.Text7, &locks.Command8}}) {
    press(*option);
    for (Control* control : locks.controls()) control->Visible = true;
    box->Text = "97538642";
    press(*apply);
  }
  expectCommand(R"(AT+CLCK=\"PS\",1,********)");
  expectCommand(R"(AT+CLCK=\"SC\",1,********)");
  expectCommand(R"(AT+CLCK=\"PN\",1,********)");
  expectHidden("97538642", from);
}

TEST_P(RecordedSecrets, OfThePasswordsOldAndNewAreBlottedOut) {
  begin(simulator::SimStatus::kReady);
  Form9& locks = panel().form9;
  open(locks);
  const std::size_t from = written().size();
  for (const auto& [oldBox, newBox, apply] :
       {std::tuple{&locks.Text2, &locks.Text3, &locks.Command3},
        std::tuple{&locks.Text5, &locks.Text6, &locks.Command6},
        std::tuple{&locks.Text8, &locks.Text9, &locks.Command9}}) {
    oldBox->Text = "97538642";
    newBox->Text = "86427539";
    press(*apply);
  }
  expectCommand(R"(AT+CPWD=\"PS\",*****************)");
  expectCommand(R"(AT+CPWD=\"PN\",*****************)");
  expectCommand(R"(AT+CPWD=\"SC\",*****************)");
  expectHidden("97538642", from);
  expectHidden("86427539", from);
}

TEST_P(RecordedSecrets, OfTheBarringAreBlottedOut) {
  begin(simulator::SimStatus::kReady);
  Form12& services = panel().form12;
  open(services);
  const std::size_t from = written().size();
  for (OptionButton* option : {&services.Option17, &services.Option23, &services.Option28}) {
    press(*option);
  }
  services.Text2.Text = "9753";
  press(services.Command3);
  expectCommand(R"(AT+CLCK=\"AO\",1,******)");
  expectHidden("9753", from);
}

TEST_P(RecordedSecrets, OfTheKeysInACallAndOfDialledCodesAreBlottedOut) {
  begin(simulator::SimStatus::kReady);
  Form3& calls = panel().form3;
  open(calls);
  const std::size_t from = written().size();
  press(calls.Image[7]);
  expectCommand("AT+VTS=*");
  calls.Text1.Text = "**04*9753*8642*8642#";
  inPanel([&calls] { calls.Command1.userClick(); });
  settle();
  expectHidden("9753", from);
  expectHidden("8642", from);
}

INSTANTIATE_TEST_SUITE_P(EverySoManyBytes, RecordedSecrets,
                         ::testing::Values(1u, 2u, 3u, 5u, 7u, 64u));

}  // namespace
}  // namespace gsm
