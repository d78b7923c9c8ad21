#include "platform/secret_blots.h"

#include <algorithm>
#include <ostream>

#include "tests/support/platform_fixture.h"
#include "tests/support/rows.h"

namespace gsm {
namespace {

class SecretBlotsTest : public PlatformTest {
 protected:
  static std::string blotted(std::string text, const std::vector<Blot>& blots) {
    for (const auto& [first, size] : blots) text.replace(first, size, size, '*');
    return text;
  }
  std::string sent(const std::string& bytes) { return blotted(bytes, blots_.sent(bytes)); }
  std::string received(const std::string& bytes) { return blotted(bytes, blots_.received(bytes)); }

  SecretBlots blots_{time()};
};

// Every way in which a command carries a secret.
struct CommandRow {
  std::string name;
  std::string command;
  std::string shown;  // as a record may show it

  friend void PrintTo(const CommandRow& row, std::ostream* out) { *out << row.name; }
};

class SecretInCommand : public SecretBlotsTest, public ::testing::WithParamInterface<CommandRow> {};

const std::vector<CommandRow>& commands() {
  static const std::vector<CommandRow> rows = {
      {"Pin", "AT+CPIN=1234\r", "AT+CPIN=****\r"},
      {"PinInQuotes", "AT+CPIN=\"1234\"\r", "AT+CPIN=******\r"},
      {"PinInSmallLetters", "at+cpin=1234\r", "at+cpin=****\r"},
      {"PinBetweenBlanks", "AT + CPIN = 1234\r", "AT + CPIN =*****\r"},
      {"PukAndNewPin", "AT+CPIN=12345678,4321\r", "AT+CPIN=*************\r"},
      {"SecondPin", "AT+CPIN2=1234\r", "AT+CPIN2=****\r"},
      {"PhoneLock", "AT+CLCK=\"PS\",1,87654321\r", "AT+CLCK=\"PS\",1,********\r"},
      {"SimLock", "AT+CLCK=\"SC\",0,1234\r", "AT+CLCK=\"SC\",0,****\r"},
      {"NetworkLock", "AT+CLCK=\"PN\",1,secret 1\r", "AT+CLCK=\"PN\",1,********\r"},
      {"PasswordWithACommaOfALock", "AT+CLCK=\"PN\",1,1234,678\r", "AT+CLCK=\"PN\",1,********\r"},
      {"Barring", "AT+CLCK=\"AO\",1,0000,7\r", "AT+CLCK=\"AO\",1,******\r"},
      {"NewPasswordOfTheNetwork", "AT+CPWD=\"PN\",12345678,abc,efgh\r",
       "AT+CPWD=\"PN\",*****************\r"},
      {"NewPin", "AT+CPWD=\"SC\",1234,5678\r", "AT+CPWD=\"SC\",*********\r"},
      {"TonesOfAMailbox", "AT+VTS=7\r", "AT+VTS=*\r"},
      {"BarringByDialling", "ATD*33*1234#;\r", "ATD*33*******\r"},
      {"NoBarringByDialling", "ATD#33*1234#;\r", "ATD#33*******\r"},
      {"BarringAskedByDialling", "ATD*#33*1234#;\r", "ATD*#33*******\r"},
      {"NewPinByDialling", "ATD**04*1234*5678*5678#;\r", "ATD**04*****************\r"},
      {"BarringTheModemDialsOnceMore", "*33*1234#;\r", "*33*******\r"},
      {"NoBarringTheModemDialsOnceMore", "#33*1234#;\r", "#33*******\r"},
      {"BehindAnotherCommand", "AT+CMEE=1;+CPIN=1234\r", "AT+CMEE=1;+CPIN=****\r"},
  };
  return rows;
}

TEST_P(SecretInCommand, IsBlottedOutOfWhatIsSent) {
  EXPECT_EQ(sent(GetParam().command), GetParam().shown);
}

TEST_P(SecretInCommand, IsBlottedOutOfItsEcho) {
  sent(GetParam().command);
  EXPECT_EQ(received(GetParam().command + "\r\nERROR\r\n"), GetParam().shown + "\r\nERROR\r\n");
}

TEST_P(SecretInCommand, IsBlottedOutOfAnEchoThatNobodySent) {
  // The record has begun after the command.
  EXPECT_EQ(received(GetParam().command + "\r\nOK\r\n"), GetParam().shown + "\r\nOK\r\n");
}

TEST_P(SecretInCommand, IsBlottedOutOfAnEchoCutAnywhereInTwo) {
  const std::string& command = GetParam().command;
  for (std::size_t cut = 1; cut < command.size(); ++cut) {
    SecretBlots blots(time());
    const std::string first = command.substr(0, cut);
    const std::string second = command.substr(cut);
    std::string shown = blotted(first, blots.received(first));
    shown += blotted(second, blots.received(second));
    EXPECT_EQ(shown, GetParam().shown) << "cut behind " << first;
  }
}

TEST_P(SecretInCommand, IsBlottedOutByteByByte) {
  std::string shownOut;
  std::string shownIn;
  for (const char byte : GetParam().command) shownOut += sent({byte});
  EXPECT_EQ(shownOut, GetParam().shown);
  SecretBlots others(time());
  for (const char byte : GetParam().command)
    shownIn += blotted({byte}, others.received({&byte, 1}));
  EXPECT_EQ(shownIn, GetParam().shown);
}

INSTANTIATE_TEST_SUITE_P(Rows, SecretInCommand, ::testing::ValuesIn(commands()), RowName());

TEST(SecretCommands, EachIsTested) {
  for (const SecretCommand& command : secretCommands()) {
    EXPECT_TRUE(std::ranges::any_of(commands(), [&command](const CommandRow& row) {
      return command.beginsLine ? row.command.starts_with(command.name)
                                : row.command.find(command.name) != std::string::npos;
    })) << command.name;
  }
}

// Commands and replies that look like them and have nothing to hide.
class PlainText : public SecretBlotsTest, public ::testing::WithParamInterface<const char*> {};

TEST_P(PlainText, StaysAsItIs) {
  const std::string text = GetParam();
  EXPECT_EQ(sent(text), text);
  EXPECT_EQ(received(text), text);
}

INSTANTIATE_TEST_SUITE_P(Rows, PlainText,
                         ::testing::Values("AT+CPIN?\r", "\r\n+CPIN: SIM PIN\r\n", "AT+CLCK?\r",
                                           "AT+CLCK=\"SC\",2\r", "\r\n+CLCK: 1,7\r\n",
                                           "ATD0261914728;\r", "ATD*#21#;\r", "ATD#21#;\r",
                                           "ATDL\r", "*21#;\r", "two * three * four\r",
                                           "AT+CCFC=0,3,\"0261914728\",145,1\r",
                                           "AT+CPBW=3,\"0261914728\",,\" ANNA\"\r",
                                           "\r\nRING\r\n"));

TEST_F(SecretBlotsTest, WhatFollowsOnTheNextLineIsShown) {
  EXPECT_EQ(sent("AT+CPIN=1234\rAT+CSQ\r"), "AT+CPIN=****\rAT+CSQ\r");
  EXPECT_EQ(received("AT+CPIN=1234\r\r\nERROR\r\n"), "AT+CPIN=****\r\r\nERROR\r\n");
}

TEST_F(SecretBlotsTest, AnEchoThatLostItsBeginningIsKnownByTheSecret) {
  sent("AT+CPIN=1234\r");
  EXPECT_EQ(received("N1234\r\r\nERROR\r\n"), "N****\r\r\nERROR\r\n");
}

TEST_F(SecretBlotsTest, AReplyThatTellsTheWrongOneDoesNotShowIt) {
  sent("AT+CPWD=\"SC\",1234,5678\r");
  EXPECT_EQ(received("\r\n+CME ERROR: not 1234 to 5678\r\n"),
            "\r\n+CME ERROR: not **** to ****\r\n");
}

TEST_F(SecretBlotsTest, TextThatAWrongOneLeftIsBlottedOutOfALaterCommand) {
  sent("AT+CPIN=12345678,4321\r");
  EXPECT_EQ(sent("AT+CPBR=12345678\r"), "AT+CPBR=********\r");
  EXPECT_EQ(sent("AT+CPBR=4321\r"), "AT+CPBR=****\r");
}

TEST_F(SecretBlotsTest, ASecretCutBetweenDeliveriesIsBlottedOutOfBoth) {
  sent("AT+CPIN=1234\r");
  EXPECT_EQ(received("\r\nwrong: 12"), "\r\nwrong: **");
  EXPECT_EQ(received("34, try again"), "**, try again");
}

TEST_F(SecretBlotsTest, ASecretThatOverlapsItselfIsBlottedOutWhole) {
  sent("AT+CPIN=1212\r");
  EXPECT_EQ(received(" 121212 "), " ****** ");
}

TEST_F(SecretBlotsTest, ASecretIsForgottenAfterAMinute) {
  // What has its digits by chance would tell them, if it were blotted out for ever.
  sent("AT+CPIN=1234\r");
  run(60);
  EXPECT_EQ(received("\r\n1234\r\n"), "\r\n****\r\n");
  run(0.001);
  EXPECT_EQ(received("\r\n1234\r\n"), "\r\n1234\r\n");
}

TEST_F(SecretBlotsTest, ShortSecretsAreKnownByTheirPlaceAlone) {
  sent("AT+CLCK=\"AO\",1,1,7\r");
  EXPECT_EQ(received("\r\n+CSQ: 17,1\r\n"), "\r\n+CSQ: 17,1\r\n");
}

TEST_F(SecretBlotsTest, ANewlyOpenedPortBeginsALine) {
  sent("AT+CPIN=12");
  received("AT+CPIN=12");
  blots_.beginLines();
  EXPECT_EQ(sent("AT\r"), "AT\r");
  EXPECT_EQ(received("\r\nOK\r\n"), "\r\nOK\r\n");
}

}  // namespace
}  // namespace gsm
