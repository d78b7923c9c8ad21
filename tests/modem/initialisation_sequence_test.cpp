#include <gtest/gtest.h>

#include <cmath>

#include "modem/form10.h"
#include "modem/form2.h"
#include "modem/form20.h"
#include "panel/form1.h"
#include "panel/form7.h"
#include "phonebook/form5.h"
#include "settings/form15.h"
#include "tests/support/healthy_modem_test.h"
#include "tests/support/property_watch.h"
#include "tests/support/start_up_words.h"

namespace gsm {
namespace {

// With the echo and a reply 50 milliseconds after the write, each exchange lasts two seconds more.
constexpr double kExchange = 2.05;

const Texts kFullStart = {"AT+CGSN\r",  "AT\r",        "AT+CPIN?\r",  "AT+CMEE=0\r",
                          "AT+CRC=0\r", "AT+CLIP=1\r", "AT+WIND=0\r", "AT+CMGF=1\r",
                          "AT\r",       "AT+CSQ\r",    "AT+CREG?\r",  "AT+SPEAKER=1\r",
                          "ATE1\r",     "ATI0\r",      "ATI3\r",      "AT+CCED=2\r",
                          "ATS0?\r",    "AT+IPR?\r",   "AT+ICF?\r"};
const Texts kStartWithoutSim = {"AT+CGSN\r",   "AT\r",        "AT+CPIN?\r",     "AT+CMEE=0\r",
                                "AT+CRC=0\r",  "AT+WIND=0\r", "AT+SPEAKER=1\r", "ATE1\r",
                                "AT+CCED=2\r", "ATI0\r",      "ATI3\r",         "AT+IPR?\r",
                                "AT+ICF?\r"};

// Both sequences, in the start-up that leads to them.
class InitialisationSequence : public HealthyModemTest {
 protected:
  struct Line {
    double at;
    std::string text;
  };

  void startWatched(const std::string& simReply) {
    startHealthy(simReply);
    watch_ = std::make_unique<PropertyWatch>(form1().List1, [this](PropertyId property) {
      if (property == PropertyId::List) lines_.push_back({now(), log().back()});
    });
    settle();
  }
  void TearDown() override { watch_.reset(); }

  void expectWrites(const Texts& commands) {
    const auto writes = sentWithTimes();
    Texts texts;
    for (const auto& write : writes) texts.push_back(write.text);
    ASSERT_EQ(texts, commands);
    EXPECT_EQ(writes[0].at, Instant::zero());
    for (std::size_t i = 1; i < writes.size(); ++i) {
      EXPECT_NEAR(toSeconds(writes[i].at - writes[i - 1].at), kExchange, 0.002) << writes[i].text;
    }
    times_ = {};
    for (const auto& write : writes) times_.push_back(toSeconds(write.at));
    times_.push_back(times_.back() + kExchange);  // the end of the last one
  }

  // The log holds `lines`, each with the number of exchanges that have ended when it comes.
  void expectLog(const std::vector<std::pair<std::size_t, std::string>>& lines) {
    ASSERT_EQ(lines_.size(), lines.size());
    for (std::size_t i = 0; i < lines.size(); ++i) {
      EXPECT_EQ(lines_[i].text, lines[i].second);
      EXPECT_NEAR(lines_[i].at, times_[lines[i].first], 0.002) << lines[i].second;
    }
  }

  std::vector<Line> lines_;
  std::vector<double> times_;

 private:
  std::unique_ptr<PropertyWatch> watch_;
};

TEST_F(InitialisationSequence, OfAUsableSimIsSentByteForByteInItsTime) {
  startWatched(unsolicited("+CPIN: READY"));
  expectWrites(kFullStart);
  expectLog({{0, kWelcome},
             {2, "Check SIM PIN"},
             {8, "Setting to Text Mode"},
             {12, "Speaker Set "},
             {13, "Echo Enabled"},
             {18, "Checking Modem Speed"}});
  expectWorking();
  expectAtRest();
}

TEST_F(InitialisationSequence, WithoutASimIsSentByteForByteInItsTime) {
  startWatched(kError);
  expectWrites(kStartWithoutSim);
  expectLog({{0, kWelcome},
             {2, "Check SIM PIN"},
             {3, "SIM Not Found !.Insert SIM Properly"},
             {7, "Speaker Set "},
             {8, "Echo Enabled"},
             {12, "Checking Modem Speed"}});
  expectNoSim();
  expectAtRest();
}

TEST_F(InitialisationSequence, TakesItsWholeTimeAlthoughTheAnswersComeAtOnce) {
  startHealthy();
  run(3 * kExchange + 0.1);
  ASSERT_EQ(sent().back(), "AT+CMEE=0\r");
  run(16 * kExchange - 0.2);
  expectLocked();
  run(0.2);
  expectWorking();
}

TEST_F(InitialisationSequence, ShowsThatItRunsUntilTheIdentityHasCome) {
  startHealthy();
  run(6.1);
  EXPECT_EQ(statusLine(), "Please Wait...");
  run(0.1);
  EXPECT_EQ(sent().back(), "AT+CMEE=0\r");
  EXPECT_EQ(statusLine(), "Intializing Settings....");
  run(13 * kExchange - 6.2);
  EXPECT_EQ(statusLine(), "Intializing Settings....");
  run(kExchange + 0.1);
  EXPECT_EQ(sent().back(), "ATI3\r");
  EXPECT_EQ(statusLine(), "");
}

TEST_F(InitialisationSequence, ShowsThatItRunsBeforeItsFirstRow) {
  startHealthy();
  Texts written;
  PropertyWatch watch(form1().Label5, [&](PropertyId) {
    if (statusLine() == "Intializing Settings....") written = sent();
  });
  settle();
  EXPECT_EQ(written, (Texts{"AT+CGSN\r", "AT\r", "AT+CPIN?\r"}));
}

TEST_F(InitialisationSequence, LeavesTheWholePanelFilled) {
  startHealthy();
  settle();
  EXPECT_EQ(portState(), "Open");
  EXPECT_EQ(portNumber(), "Port 3");
  EXPECT_EQ(portSettings(), "9600,N,8,1");
  EXPECT_EQ(statusLine(), "");
  EXPECT_EQ(form1().Label6.Caption.peek(), "9600");
  EXPECT_EQ(form1().Label7.Caption.peek(),
            "Character Framing:8 Data,1 Stop Parity:NoneECHO:Enabled");
  EXPECT_EQ(panel().form2.Label3.Caption.peek(), "012345678901234");
  EXPECT_EQ(panel().form5.Label2.Caption.peek(), "");
  EXPECT_TRUE(panel().form5.Command1.Enabled.peek());
  EXPECT_EQ(panel().form7.Label4.Caption.peek(), "29,0");
  EXPECT_EQ(panel().form7.Label5.Caption.peek(), "Registered/Home Network");
  EXPECT_EQ(panel().form15.Combo1.Text.peek(), "9600");
  EXPECT_TRUE(panel().form7.Visible.peek());
  EXPECT_FALSE(panel().form10.Visible.peek());
  EXPECT_EQ(transcript(), "");
}

TEST_F(InitialisationSequence, WithoutASimLeavesSignalAndAutoAnswerAlone) {
  startHealthy(kError);
  reply("ATS0?", information("002"));
  settle();
  EXPECT_EQ(panel().form7.Label4.Caption.peek(), "");
  EXPECT_EQ(panel().form5.Label2.Caption.peek(), "");
  EXPECT_TRUE(panel().form5.Command1.Enabled.peek());
  EXPECT_EQ(form1().Label6.Caption.peek(), "9600");
  EXPECT_EQ(panel().form2.Label6.Caption.peek(), std::string(kRevision) + "\r\n\r");
  EXPECT_EQ(statusLine(), "");
}

TEST_F(InitialisationSequence, BringsTheImageWindowUpFiftySecondsAfterItsEnd) {
  startHealthy();
  run(19 * kExchange + 0.1);
  expectWorking();
  run(49.7);
  EXPECT_FALSE(panel().form20.Visible.peek());
  run(0.4);
  EXPECT_TRUE(panel().form20.Visible.peek());
  run(3);
  EXPECT_FALSE(panel().form20.Visible.peek());
}

TEST_F(InitialisationSequence, GoesOnAfterAClickThatAsksTheModemMeanwhile) {
  startHealthy();
  run(5 * kExchange + 0.5);
  ASSERT_EQ(sent().back(), "AT+CLIP=1\r");
  click(form1().Label8);
  run(3 * kExchange);
  EXPECT_EQ(sent(), (Texts{"AT\r", "AT+CSQ\r", "AT+CREG?\r", "AT+WIND=0\r"}));
  settle();
  expectWorking();
  expectAtRest();
}

TEST_F(InitialisationSequence, LosesTheFramingToARingAndLeavesThePanelLocked) {
  startHealthy();
  reply("AT+ICF?", information("+ICF: 3,4") + unsolicited("RING"));
  run(19 * kExchange + 0.1);
  EXPECT_EQ(form1().Label7.Caption.peek(), "");
  expectLocked();
}

TEST_F(InitialisationSequence, LetsTheClockRun) {
  startHealthy();
  run(20.5);
  EXPECT_EQ(form1().Label4.Caption.peek(), "00:00:20");
}

// What the transcript holds as each command goes out, when a text that nobody knows has come during
// every exchange before.
class TranscriptAtEachRow : public HealthyModemTest {
 protected:
  std::vector<std::pair<std::string, std::string>> rowsWithJunk(std::size_t rows) {
    std::vector<std::pair<std::string, std::string>> all;
    while (all.size() < rows && now() < 120) {
      run(0.02);  // below the 50 milliseconds that a reply takes
      for (const std::string& command : sent()) {
        all.emplace_back(command, transcript());
        receive("junk", 1);
      }
    }
    return all;
  }

  // All rows from the fourth write on cleared it, but for those in `kept`.
  static void expectCleared(const std::vector<std::pair<std::string, std::string>>& rows,
                            const std::vector<std::pair<std::size_t, std::string>>& kept) {
    std::size_t next = 0;
    for (std::size_t i = 3; i < rows.size(); ++i) {
      const bool keeps = next < kept.size() && kept[next].first == i;
      EXPECT_EQ(rows[i].second, keeps ? kept[next].second : "") << i << ' ' << rows[i].first;
      if (keeps) ++next;
    }
    EXPECT_EQ(next, kept.size());
  }
};

TEST_F(TranscriptAtEachRow, IsClearedByAllRowsButTheSignalsFirstAndTheFraming) {
  startHealthy();
  const auto rows = rowsWithJunk(kFullStart.size());
  ASSERT_EQ(rows.size(), kFullStart.size());
  for (std::size_t i = 0; i < rows.size(); ++i) EXPECT_EQ(rows[i].first, kFullStart[i]);
  expectCleared(
      rows, {{8, "AT+CMGF=1\r\r\nOK\r\njunk"}, {18, "AT+IPR?\r\r\n+IPR: 9600\r\n\r\nOK\r\njunk"}});
  settle();
  EXPECT_EQ(transcript(), "");
  expectWorking();
}

TEST_F(TranscriptAtEachRow, IsClearedByAllRowsButTheFramingWithoutASim) {
  startHealthy(kError);
  const auto rows = rowsWithJunk(kStartWithoutSim.size());
  ASSERT_EQ(rows.size(), kStartWithoutSim.size());
  for (std::size_t i = 0; i < rows.size(); ++i) EXPECT_EQ(rows[i].first, kStartWithoutSim[i]);
  expectCleared(rows, {{12, "AT+IPR?\r\r\n+IPR: 9600\r\n\r\nOK\r\njunk"}});
  settle();
  EXPECT_EQ(transcript(), "");
  expectNoSim();
}

TEST_F(TranscriptAtEachRow, ATextThatComesAfterTheFramingQueryIsClearedWithTheReply) {
  startHealthy();
  reply("AT+ICF?", kError);
  settle();
  EXPECT_EQ(transcript(), "");
  expectLocked();
}

}  // namespace
}  // namespace gsm
