#include <gtest/gtest.h>

#include <algorithm>

#include "tests/settings/data_test.h"

namespace gsm {
namespace {

struct ExchangeRow {
  std::string name;
  CommandButton Form14::*page;    // whose page is up,
  CommandButton Form14::*button;  // and what the user presses on it
  Texts commands;
  Label Form14::*status;
  std::string polled;  // what the status line says when only the poll is answered
  std::string rung;    // and when each reply comes with a ring
};

// Each exchange of the window, with a poll in the middle of it and with a ring behind its reply.
class InterruptedData : public DataTest, public ::testing::WithParamInterface<ExchangeRow> {
 protected:
  void SetUp() override {
    DataTest::SetUp();
    openWindow();
    press(form().*GetParam().page);
    for (ComboBox* combo : {&form().Combo1, &form().Combo2, &form().Combo3, &form().Combo4,
                            &form().Combo5, &form().Combo6, &form().Combo7}) {
      if (combo->isReachable()) pick(*combo, 0);
    }
    (form().*GetParam().status).Caption = "before";
    sent();
  }
  std::string shown() { return caption(form().*GetParam().status); }
};

TEST_P(InterruptedData, APollsReplyIsTakenForTheModems) {
  reply("AT+CIND?", information("+CIND: 5,4,1,0,1,0,0"));
  inPanel([this] { form1().Timer2.Enabled = true; });
  run(1.5);  // the poll falls into the middle
  click(form().*GetParam().button);
  run(20);
  EXPECT_EQ(shown(), GetParam().polled);
  inPanel([this] { form1().Timer2.Enabled = false; });
  settle();
  Texts commands = sent();
  std::erase(commands, "AT+CIND?\r");
  EXPECT_EQ(commands, GetParam().commands);
  expectAtRest();
}

TEST_P(InterruptedData, ARingTakesEachReplyThatItComesWith) {
  for (const std::string& command : GetParam().commands) {
    reply(command.substr(0, command.size() - 1),
          "\r\n+CBST: 1,0,1\r\n+FCLASS: 1\r\n\r\nOK\r\n" + unsolicited("RING"));
  }
  click(form().*GetParam().button);
  run(10);
  EXPECT_EQ(shown(), GetParam().rung);
  EXPECT_TRUE(form1().Timer2.Enabled.peek());
}

TEST_P(InterruptedData, PressedTwiceItIsSentTwice) {
  click(form().*GetParam().button);
  run(0.02);
  // A list that was filled anew has lost its choice.
  click(form().*GetParam().button);
  settle();
  Texts commands = GetParam().commands;
  commands.insert(commands.begin(), GetParam().commands.begin(), GetParam().commands.end());
  Texts written = sent();
  std::sort(written.begin(), written.end());
  std::sort(commands.begin(), commands.end());
  EXPECT_EQ(written, commands);
  expectAtRest();
}

INSTANTIATE_TEST_SUITE_P(Of, InterruptedData,
                         ::testing::Values(ExchangeRow{"BearerRead",
                                                       &Form14::Command1,
                                                       &Form14::Command1,
                                                       {"AT+CBST?\r"},
                                                       &Form14::Label1,
                                                       kChecking,
                                                       kChecking},
                                           ExchangeRow{"BearerChange",
                                                       &Form14::Command1,
                                                       &Form14::Command6,
                                                       {"AT+CBST=0,0,0\r"},
                                                       &Form14::Label1,
                                                       "Changes SuccessFul",
                                                       "before"},
                                           ExchangeRow{
                                               "CompressionRead",
                                               &Form14::Command2,
                                               &Form14::Command2,
                                               {"AT%C?\r", "AT\\N?\r"},
                                               &Form14::Label4,
                                               "Compression Default , Error Correction 0 Default",
                                               "Compression  , Error Correction "},
                                           ExchangeRow{"CompressionChange",
                                                       &Form14::Command2,
                                                       &Form14::Command7,
                                                       {"AT%C0\r"},
                                                       &Form14::Label4,
                                                       "Changes SuccessFul-Compression",
                                                       "before"},
                                           ExchangeRow{"CorrectionChange",
                                                       &Form14::Command2,
                                                       &Form14::Command8,
                                                       {"AT\\N0\r"},
                                                       &Form14::Label4,
                                                       "Changes SuccessFul-Error Correction",
                                                       "before"},
                                           ExchangeRow{"FaxRead",
                                                       &Form14::Command3,
                                                       &Form14::Command3,
                                                       {"AT+FCLASS?\r"},
                                                       &Form14::Label5,
                                                       kChecking,
                                                       kChecking},
                                           ExchangeRow{"FaxChange",
                                                       &Form14::Command3,
                                                       &Form14::Command4,
                                                       {"AT+FCLASS=0\r"},
                                                       &Form14::Label5,
                                                       "Changes SuccessFul-FCLASS",
                                                       ""},
                                           ExchangeRow{"TransmitChange",
                                                       &Form14::Command3,
                                                       &Form14::Command5,
                                                       {"AT+FTM=24\r"},
                                                       &Form14::Label5,
                                                       "Changes SuccessFul-Transmit ",
                                                       ""},
                                           ExchangeRow{"ReceiveChange",
                                                       &Form14::Command3,
                                                       &Form14::Command9,
                                                       {"AT+FRM=24\r"},
                                                       &Form14::Label5,
                                                       "Changes SuccessFul-Receive",
                                                       ""}),
                         RowName());

}  // namespace
}  // namespace gsm
