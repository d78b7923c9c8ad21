#include <gtest/gtest.h>

#include <random>

#include "panel/form1.h"
#include "tests/support/modem_bytes.h"
#include "tests/support/panel_fixture.h"
#include "tests/support/rows.h"
#include "tests/support/seed.h"
#include "tests/support/start_up_words.h"

namespace gsm {
namespace {

using Texts = std::vector<std::string>;
using namespace std::string_literals;

// What start-up makes of the bytes of the file with the saved port.
class ComFile : public PanelTest {
 protected:
  std::string portNumber() { return form1().Label2.Caption.peek(); }
  std::string portSettings() { return form1().Label3.Caption.peek(); }

  void expectThatNothingWasStarted() {
    EXPECT_EQ(log(), Texts{kWelcome});
    EXPECT_FALSE(form1().Label9.Caption.peek().empty());
    EXPECT_EQ(boxes(), Texts{});
    EXPECT_EQ(sent(), Texts{});
    EXPECT_FALSE(form1().MSComm1.PortOpen);
    EXPECT_EQ(form1().Label1.Caption.peek() + portNumber() + portSettings(), "");
    EXPECT_TRUE(form1().Visible.peek());
    EXPECT_TRUE(form1().Command7.Enabled.peek());
    EXPECT_FALSE(ended());
  }
};

TEST_F(ComFile, ThatIsMissingStartsNothing) {
  start();
  settle();
  expectThatNothingWasStarted();
  EXPECT_EQ(file("COM.txt"), std::nullopt);
}

TEST_F(ComFile, ThatIsAFolderStartsNothing) {
  std::filesystem::create_directory(folder() / "COM.txt");
  start();
  settle();
  expectThatNothingWasStarted();
}

struct BytesRow {
  std::string name;
  std::string bytes;
};

class ComFileThatStartsNothing : public ComFile, public ::testing::WithParamInterface<BytesRow> {};

TEST_P(ComFileThatStartsNothing, EndsTheLoadSilently) {
  layComFile(GetParam().bytes);
  start();
  settle();
  expectThatNothingWasStarted();
  EXPECT_EQ(file("COM.txt"), GetParam().bytes);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, ComFileThatStartsNothing,
    ::testing::Values(BytesRow{"Empty", ""},                                //
                      BytesRow{"NoBlank", "9600,N,8,1\r\n"},                //
                      BytesRow{"NoBlankAtAll", "x"},                        //
                      BytesRow{"ATabForTheBlank", "9600,N,8,1\t3\r\n"},     //
                      BytesRow{"BlankFirst", " 9600,N,8,1 3\r\n"},          //
                      BytesRow{"TwoBlanks", "9600,N,8,1  3\r\n"},           //
                      BytesRow{"NothingBehindTheBlank", "9600,N,8,1 "},     //
                      BytesRow{"PortZero", "9600,N,8,1 0\r\n"},             //
                      BytesRow{"PortWord", "9600,N,8,1 x\r\n"},             //
                      BytesRow{"PortMinus", "9600,N,8,1 -1\r\n"},           //
                      BytesRow{"PortByteZero", "9600,N,8,1 \0\r\n"s},       //
                      BytesRow{"SettingsWithByteZero", "9600,N\0,8,1 3"s},  //
                      BytesRow{"BytesZeroAlone", std::string(100, '\0')},   //
                      BytesRow{"SettingsOfAnUnknownSpeed", "9601,N,8,1 3\r\n"},
                      BytesRow{"SettingsOfAnUnknownParity", "9600,X,8,1 3\r\n"},
                      BytesRow{"SettingsOfNoDataBits", "9600,N,,1 3\r\n"},
                      BytesRow{"SettingsOfThreeStopBits", "9600,N,8,3 3\r\n"},
                      BytesRow{"SettingsOfThreeFields", "9600,N,8 3\r\n"},
                      BytesRow{"SettingsOfAWord", "settings 3\r\n"},
                      BytesRow{"SavedPortThatIsGone", "9600,N,8,1 4\r\n"},
                      BytesRow{"SavedPortOfThreeDigitsThatIsGone", "9600,N,8,1 256\r\n"},
                      BytesRow{"SavedPortOfFiveDigitsThatIsGone", "9600,N,8,1 99999\r\n"},
                      BytesRow{"BadLineBeforeAGoodOne", "nothing\r\n9600,N,8,1 3\r\n"}),
    RowName());

TEST_F(ComFile, OfAPortThatIsGoneSweepsNoOther) {
  layComFile("9600,N,8,1 4\r\n");
  start({.ports = {{.number = 3}}});
  reply("AT+CGSN", kImeiReply);
  settle();
  expectThatNothingWasStarted();
}

TEST_F(ComFile, OfAPortThatFailsForAnotherReasonSweepsNoOther) {
  for (const char* reason : {"Permission denied", "Port already open ", "port already open"}) {
    layComFile("9600,N,8,1 4\r\n");
    start({.ports = {{.number = 3}, {.number = 4, .fails = reason}}});
    settle();
    expectThatNothingWasStarted();
  }
}

TEST_F(ComFile, OfRefusedSettingsHasAlreadySetThePort) {
  layComFile("settings 7\r\n");
  start();
  settle();
  EXPECT_EQ(form1().MSComm1.CommPort, 7);
  EXPECT_EQ(std::string(form1().MSComm1.Settings), "9600,n,8,1");
}

struct PortRow {
  std::string name;
  std::string bytes;
  int port;
};

class ComFilePort : public ComFile, public ::testing::WithParamInterface<PortRow> {};

TEST_P(ComFilePort, IsOneDigitLong) {
  layComFile(GetParam().bytes);
  start({.ports = {{.number = 1}, {.number = 2}, {.number = 9}, {.number = 12}},
         .modemPort = GetParam().port});
  reply("AT+CGSN", kImeiReply);
  settle();
  EXPECT_EQ(portNumber(), "Port " + std::to_string(GetParam().port));
  EXPECT_EQ(portSettings(), "9600,N,8,1");
}

INSTANTIATE_TEST_SUITE_P(Rows, ComFilePort,
                         ::testing::Values(PortRow{"One", "9600,N,8,1 1\r\n", 1},
                                           PortRow{"Nine", "9600,N,8,1 9", 9},
                                           PortRow{"TwelveReadsBackAsOne", "9600,N,8,1 12\r\n", 1},
                                           PortRow{"TwoHundredFiftySixAsTwo", "9600,N,8,1 256", 2},
                                           PortRow{"FiveNinesAsNine", "9600,N,8,1 99999\r\n", 9},
                                           PortRow{"FollowedByText", "9600,N,8,1 2 and so on", 2}),
                         RowName());

struct LineEndRow {
  std::string name;
  std::string end;
};

class ComFileLineEnd : public ComFile, public ::testing::WithParamInterface<LineEndRow> {};

TEST_P(ComFileLineEnd, PartsTheLines) {
  layComFile("9600,N,8,1 3" + GetParam().end + "14400,N,8,1 4" + GetParam().end);
  start({.ports = {{.number = 3}, {.number = 4}}, .modemPort = 4, .modemSpeed = 14400});
  reply("AT+CGSN", kImeiReply);
  settle();
  EXPECT_EQ(portNumber(), "Port 4");
  EXPECT_EQ(portSettings(), "14400,N,8,1");
}

TEST_P(ComFileLineEnd, AloneIsAnEmptyLine) {
  layComFile(GetParam().end);
  start();
  settle();
  EXPECT_EQ(form1().Label5.Caption.peek(), "No Modem Device Found.Set The Comm Ports");
  EXPECT_EQ(log(), (Texts{kWelcome, "Checking For Available Communication Ports", "Found  1 Ports",
                          "Detecting Modem Present.."}));
}

TEST_P(ComFileLineEnd, AtTheEndMakesNoFurtherLine) {
  layComFile("9600,N,8,1 3" + GetParam().end);
  start();
  settle();
  EXPECT_EQ(log().size(), 4U);  // one sweep
}

INSTANTIATE_TEST_SUITE_P(Rows, ComFileLineEnd,
                         ::testing::Values(LineEndRow{"CarriageReturnLineFeed", "\r\n"},
                                           LineEndRow{"CarriageReturn", "\r"},
                                           LineEndRow{"LineFeed", "\n"}),
                         RowName());

TEST_F(ComFile, WhoseLastLineHasNoEndIsReadWhole) {
  layComFile("9600,N,8,1 3");
  start();
  reply("AT+CGSN", kImeiReply);
  settle();
  EXPECT_EQ(portNumber(), "Port 3");
}

TEST_F(ComFile, WithABadLineAfterASweepEndsTheLoadSilently) {
  layComFile("\r\nno-blank\r\n9600,N,8,1 3\r\n");
  start();
  settle();
  EXPECT_EQ(sent().size(), 10U);  // the sweep's, and none for the third line
  EXPECT_EQ(boxes(), Texts{});
  EXPECT_FALSE(form1().MSComm1.PortOpen);
}

TEST_F(ComFile, OfEightKilobytesOfNoiseIsSurvived) {
  std::mt19937 random(newSeed());
  for (int round = 0; round < 50; ++round) {
    std::string noise;
    while (noise.size() < 8192) noise += static_cast<char>(random() & 0xFFU);
    layComFile(noise);
    start();
    run(3600);
    EXPECT_FALSE(ended());
    EXPECT_EQ(boxes(), Texts{});
    EXPECT_TRUE(form1().Visible.peek());
    EXPECT_FALSE(form1().MSComm1.PortOpen);
    EXPECT_EQ(waiting(), 0);
    EXPECT_EQ(file("COM.txt"), noise);
  }
}

}  // namespace
}  // namespace gsm
