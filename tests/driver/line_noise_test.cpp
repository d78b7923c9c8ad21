// A modem that says anything: every byte, noise for minutes, replies cut anywhere, floods.

#include <random>

#include "platform/code_page.h"
#include "tests/driver/driver_fixture.h"

namespace gsm::driver {
namespace {

/// The handlers that may stand on top of a full stack: a click, a timer, a send event.
constexpr int kFewHandlers = 10;
constexpr int kDeepest = 200 + kFewHandlers;

class LineNoise : public DriverTest {
 protected:
  void SetUp() override { startWithOpenPort(); }

  void expectAlive() {
    EXPECT_EQ(state()["ended"], false);
    EXPECT_EQ(state()["waiting"], 0);
    sent();
    click("Form1.Label8");
    settle();
    EXPECT_EQ(sent().at(0), "AT\r");
  }
};

TEST_F(LineNoise, EveryByteIsKept) {
  std::string bytes;
  for (int byte = 0; byte < 256; ++byte) {
    const std::string utf8 = toUtf8(std::string(1, static_cast<char>(byte)));
    bytes += utf8;
    receive(utf8, byte * 0.01);
  }
  settle();
  EXPECT_EQ(transcript(), bytes);
  expectAlive();
}

TEST_F(LineNoise, EveryByteInOneChunkIsKept) {
  std::string bytes;
  for (int byte = 0; byte < 256; ++byte) bytes += static_cast<char>(byte);
  receive(toUtf8(bytes));
  settle();
  EXPECT_EQ(transcript(), toUtf8(bytes));
  expectAlive();
}

TEST_F(LineNoise, NoiseForMinutesLosesNoByteAndEndsNothing) {
  std::mt19937 random(20260301);
  std::string all;
  for (int chunk = 0; chunk < 6000; ++chunk) {  // five minutes
    std::string bytes(1 + random() % 16, '\0');
    for (char& byte : bytes) byte = static_cast<char>(random());
    all += bytes;
    receive(toUtf8(bytes), chunk * 0.05);
  }
  settle();
  EXPECT_EQ(transcript(), toUtf8(all));
  expectAlive();
}

TEST_F(LineNoise, LinesAtRandomEndNothing) {
  // Keys and pieces of replies, in any order and cut anywhere.
  const std::vector<std::string> pieces = {
      "OK\r\n",   "ERROR\r\n", "CMTI",    "+CCWA:",   "\"",        "NO CARRIER", "ATI0",
      "ATI3",     "AT+CPBS?",  "AT+VGR=", "AT+VGT=",  "VGR: ",     "VGT:",       "ECHO:",
      "AT+ECHO=", "SIDET: ",   "CSQ: ",   "CREG: ",   "AT+CSCA?",  "RING\r\n",   "+CDS:",
      ",",        "1",         "99",      "\r",       "AT+SIDET=", "+CLIP:",     "31,0\r\n",
      "BUSY",     "NO ANSWER", "-5",      "0,5\r\nOK"};
  std::mt19937 random(7);
  for (int chunk = 0; chunk < 3000; ++chunk) {
    receive(pieces[random() % pieces.size()], chunk * 0.3);
  }
  tell({{"op", "settle"}, {"limit", 5000}});
  EXPECT_EQ(state()["ended"], false);
  EXPECT_EQ(state()["waiting"], 0);
}

class CutReply : public ::testing::Test {
 protected:
  /// What the signal window shows when the reply to `command` comes in two pieces, the second
  /// beginning after `cut` characters, `gap` seconds later.
  Json shownWhenCut(const std::string& command, const std::string& reply, std::size_t cut,
                    double gap) {
    DrivenPanel panel;
    panel.startWithOpenPort();
    panel.tell({{"op", "reply"}, {"write", "AT\r"}, {"text", "\r\nOK\r\n"}});
    panel.tell({{"op", "reply"},
                {"write", command},
                {"echo", false},
                {"chunks", Json::array({Json::array({0.05, reply.substr(0, cut)}),
                                        Json::array({0.05 + gap, reply.substr(cut)})})}});
    panel.click("Form1.Label8");
    panel.settle();
    Json all;
    for (const char* property :
         {"Form7.Label4.Caption", "Form7.Label5.Caption", "Form7.Image1.Visible",
          "Form7.Image2.Visible", "Form7.Image3.Visible", "Form7.Image4.Visible",
          "Form7.Image5.Visible", "Form1.Text1.Text"}) {
      all[property] = panel.get(property);
    }
    all["sent"] = panel.sent();
    return all;
  }

  void expectSameAtEachCut(const std::string& command, const std::string& reply,
                           const std::string& property, const std::string& caption) {
    const Json whole = shownWhenCut(command, reply, reply.size(), 0.1);
    ASSERT_EQ(whole[property], caption);
    for (const double gap : {0.1, 0.9, 1.9}) {
      for (std::size_t cut = 1; cut < reply.size(); ++cut) {
        EXPECT_EQ(shownWhenCut(command, reply, cut, gap).dump(), whole.dump())
            << "cut at " << cut << ", " << gap << " seconds between";
      }
    }
  }
};

TEST_F(CutReply, OfTheSignalShowsTheSameWhereverItIsCut) {
  expectSameAtEachCut("AT+CSQ\r", "AT+CSQ\r\r\n+CSQ: 31,99\r\n\r\nOK\r\n", "Form7.Label4.Caption",
                      "31,99");
}

TEST_F(CutReply, OfTheRegistrationShowsTheSameWhereverItIsCut) {
  expectSameAtEachCut("AT+CREG?\r", "AT+CREG?\r\r\n+CREG: 0,5\r\n\r\nOK\r\n",
                      "Form7.Label5.Caption", "Registered/Roaming");
}

class Flood : public LineNoise {
 protected:
  static constexpr int kChunks = 100'000;

  /// Lets the flood's chunks arrive, `gap` seconds apart; gives all that they hold.
  std::string flood(double gap) {
    std::string all;
    for (int chunk = 0; chunk < kChunks; ++chunk) {
      const std::string bytes = std::to_string(chunk) + ";";
      all += bytes;
      receive(bytes, chunk * gap);
    }
    return all;
  }
};

TEST_F(Flood, WithoutAGapLosesNoByteAndStillAnswersClicks) {
  const std::string all = flood(0);
  EXPECT_LE(run(0)["waiting"], kDeepest);
  click("Form1.Label8");
  EXPECT_LE(run(0)["waiting"], kDeepest);
  EXPECT_EQ(sent(), Texts({"AT\r"}));
  settle();
  EXPECT_EQ(state()["waiting"], 0);
  EXPECT_EQ(transcript(), all);
  expectAlive();
}

TEST_F(Flood, ThatGoesOnLosesNoByteAndStillAnswersClicks) {
  const std::string all = flood(0.001);
  for (int second = 0; second < 100; ++second) {
    const bool userClicks = second % 25 == 10;
    if (userClicks) click("Form1.Label8");
    EXPECT_LE(run(1)["waiting"], kDeepest) << "after " << second << " seconds";
    if (userClicks) {
      EXPECT_EQ(sent(), Texts({"AT\r"}));
    }
  }
  settle();
  EXPECT_EQ(state()["waiting"], 0);
  EXPECT_EQ(transcript(), all);
  expectAlive();
}

}  // namespace
}  // namespace gsm::driver
