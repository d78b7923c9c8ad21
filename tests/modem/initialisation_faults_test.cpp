#include <gtest/gtest.h>

#include "modem/form2.h"
#include "panel/form1.h"
#include "panel/form7.h"
#include "tests/support/healthy_modem_test.h"

namespace gsm {
namespace {

struct Exchange {
  std::string name;
  std::string command;
  std::string reply;
};

const std::vector<Exchange> kFull = {
    {"ErrorFormat", "AT+CMEE=0", kOk},
    {"RingFormat", "AT+CRC=0", kOk},
    {"CallerNumber", "AT+CLIP=1", kOk},
    {"Indications", "AT+WIND=0", kOk},
    {"TextMode", "AT+CMGF=1", kOk},
    {"Attention", "AT", kOk},
    {"Signal", "AT+CSQ", information("+CSQ: 29,0")},
    {"Registration", "AT+CREG?", information("+CREG: 0,1")},
    {"Speaker", "AT+SPEAKER=1", kOk},
    {"Echo", "ATE1", kOk},
    {"Manufacturer", "ATI0", kManufacturerReply},
    {"Revision", "ATI3", information(kRevision)},
    {"CellDump", "AT+CCED=2", kOk},
    {"AutoAnswer", "ATS0?", information("000")},
    {"Speed", "AT+IPR?", information("+IPR: 9600")},
    {"Framing", "AT+ICF?", information("+ICF: 3,4")},
};
const std::vector<Exchange> kReduced = {
    {"ErrorFormat", "AT+CMEE=0", kOk},
    {"RingFormat", "AT+CRC=0", kOk},
    {"Indications", "AT+WIND=0", kOk},
    {"Speaker", "AT+SPEAKER=1", kOk},
    {"Echo", "ATE1", kOk},
    {"CellDump", "AT+CCED=2", kOk},
    {"Manufacturer", "ATI0", kManufacturerReply},
    {"Revision", "ATI3", information(kRevision)},
    {"Speed", "AT+IPR?", information("+IPR: 9600")},
    {"Framing", "AT+ICF?", information("+ICF: 3,4")},
};
// What comes before them in a start-up.
const std::vector<Exchange> kStartUp = {
    {"Imei", "AT+CGSN", kImeiReply},
    {"FirstAttention", "AT", kOk},
    {"SimStatus", "AT+CPIN?", unsolicited("+CPIN: READY")},
};

constexpr const char* kRuns = "Intializing Settings....";

// A modem that answers the first rows of a sequence and is silent from then on.
class SilentFromARowOn : public HealthyModemTest,
                         public ::testing::WithParamInterface<std::size_t> {
 protected:
  // Runs `sequence` with `rows`, of which the modem answers those before the row of the test.
  void runSequence(const std::vector<Exchange>& rows, void (Form1::*sequence)()) {
    start({.now = {2026, 3, 1, 0, 0, 0}});
    settle();
    for (std::size_t i = 0; i < GetParam(); ++i) reply(rows[i].command, rows[i].reply);
    inPanel([this, sequence] {
      form1().MSComm1.CommPort = 3;
      form1().MSComm1.PortOpen = true;
      (form1().*sequence)();
    });
    settle();
  }

  // The rows that went out, each with how long its exchange lasted.
  void expectRows(const std::vector<Exchange>& rows, bool signalAsked) {
    const auto writes = sentWithTimes();
    std::size_t next = 0;
    for (std::size_t i = 0; i < rows.size(); ++i) {
      const bool signal = rows[i].name == "Signal" || rows[i].name == "Registration";
      if (signal && !signalAsked) continue;
      ASSERT_LT(next, writes.size()) << rows[i].name;
      EXPECT_EQ(writes[next].text, rows[i].command + "\r");
      if (next + 1 < writes.size()) {
        const double lineTime = static_cast<double>(writes[next].text.size()) * 10 / 9600;
        EXPECT_NEAR(toSeconds(writes[next + 1].at - writes[next].at),
                    i < GetParam() ? 2.05 : 2 + lineTime, 0.002)
            << rows[i].name;
      }
      ++next;
    }
    EXPECT_EQ(next, writes.size());
  }

  bool answered(const std::vector<Exchange>& rows, const std::string& name) {
    for (std::size_t i = 0; i < GetParam(); ++i) {
      if (rows[i].name == name) return true;
    }
    return false;
  }

  void expectEnd(const std::vector<Exchange>& rows) {
    const bool identity = answered(rows, "Manufacturer");
    EXPECT_EQ(statusLine(), identity ? "" : kRuns);
    EXPECT_EQ(panel().form2.Label5.Caption.peek().empty(), !identity);
    EXPECT_EQ(file("Model.txt").has_value(), answered(rows, "Revision"));
    EXPECT_EQ(form1().Label6.Caption.peek(), answered(rows, "Speed") ? "9600" : "");
    EXPECT_EQ(form1().Label7.Caption.peek(), "");
    expectLocked();
    expectAtRest();
  }
};

class SilentFromARowOnWithoutSim : public SilentFromARowOn {};

TEST_P(SilentFromARowOn, DoesntStopTheFullSequence) {
  runSequence(kFull, &Form1::InitialiseModem);
  // The signal query is content with the "OK" of the row before, which nothing has cleared.
  expectRows(kFull, answered(kFull, "TextMode"));
  expectEnd(kFull);
  EXPECT_EQ(log(), (Texts{"                      Welcome To Ormalin Telecom Application",
                          "Setting to Text Mode", "Speaker Set ", "Echo Enabled",
                          "Checking Modem Speed"}));
}

TEST_P(SilentFromARowOnWithoutSim, DoesntStopTheReducedSequence) {
  runSequence(kReduced, &Form1::InitialiseModemNoSim);
  expectRows(kReduced, false);
  expectEnd(kReduced);
  EXPECT_EQ(log(), (Texts{"                      Welcome To Ormalin Telecom Application",
                          "Speaker Set ", "Echo Enabled", "Checking Modem Speed"}));
}

INSTANTIATE_TEST_SUITE_P(Rows, SilentFromARowOn, ::testing::Range<std::size_t>(0, kFull.size()),
                         [](const auto& row) { return kFull[row.param].name; });
INSTANTIATE_TEST_SUITE_P(Rows, SilentFromARowOnWithoutSim,
                         ::testing::Range<std::size_t>(0, kReduced.size()),
                         [](const auto& row) { return kReduced[row.param].name; });

// How the panel ends up.
enum class End { locked, noSim, working };

struct GarbageRow {
  std::string name;
  std::string command;
  std::size_t occurrence;  // of the command in the start-up, from 0
  End afterNoise;
  End afterError;
  End afterKeys;  // after a text that stops every routing
};

// A modem that answers garbage to one command of the start-up, and well to all others.
class GarbageInOneRow : public HealthyModemTest, public ::testing::WithParamInterface<GarbageRow> {
 protected:
  void startWith(const std::string& garbage, bool echo) {
    startHealthy();
    ModemScript::Rule rule = {.write = GetParam().command + "\r", .echo = false};
    const std::string front = rule.write;
    for (std::size_t i = 0; i < GetParam().occurrence; ++i) {
      rule.replies.push_back({{ModemScript::kDefaultDelay, front + kOk}});
    }
    rule.replies.push_back({{ModemScript::kDefaultDelay, (echo ? front : "") + garbage}});
    if (GetParam().command == "AT" && GetParam().occurrence == 0) {
      rule.replies.push_back({{ModemScript::kDefaultDelay, front + kOk}});
    }
    world().modem.add(rule);
    settle();
  }

  void expectEnd(End end) {
    if (end == End::locked) expectLocked();
    if (end == End::noSim) expectNoSim();
    if (end == End::working) expectWorking();
    EXPECT_EQ(statusLine(),
              GetParam().command == "AT+CGSN" ? "No Modem Device Found.Set The Comm Ports" : "");
    EXPECT_EQ(machine().files.freeFile(), 1);
    expectAtRest();
  }
};

TEST_P(GarbageInOneRow, OfNoiseEndsAsTold) {
  startWith(std::string("\x00\xff\x80~{noise,\",:", 13), false);
  expectEnd(GetParam().afterNoise);
}

TEST_P(GarbageInOneRow, OfAnErrorEndsAsTold) {
  startWith(kError, true);
  expectEnd(GetParam().afterError);
}

TEST_P(GarbageInOneRow, ThatStopsTheRoutingEndsAsTold) {
  startWith("\r\nCSQ:CREG:SIDET:VGR:\r\n", true);
  expectEnd(GetParam().afterKeys);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, GarbageInOneRow,
    ::testing::Values(
        GarbageRow{"Imei", "AT+CGSN", 0, End::locked, End::locked, End::locked},
        GarbageRow{"FirstAttention", "AT", 0, End::locked, End::noSim, End::locked},
        GarbageRow{"SimStatus", "AT+CPIN?", 0, End::locked, End::noSim, End::locked},
        GarbageRow{"ErrorFormat", "AT+CMEE=0", 0, End::working, End::working, End::working},
        GarbageRow{"RingFormat", "AT+CRC=0", 0, End::working, End::working, End::working},
        GarbageRow{"CallerNumber", "AT+CLIP=1", 0, End::working, End::working, End::working},
        GarbageRow{"Indications", "AT+WIND=0", 0, End::working, End::working, End::working},
        GarbageRow{"TextMode", "AT+CMGF=1", 0, End::working, End::working, End::working},
        GarbageRow{"Attention", "AT", 1, End::working, End::working, End::working},
        GarbageRow{"Signal", "AT+CSQ", 0, End::working, End::working, End::working},
        GarbageRow{"Registration", "AT+CREG?", 0, End::working, End::working, End::working},
        GarbageRow{"Speaker", "AT+SPEAKER=1", 0, End::working, End::working, End::working},
        GarbageRow{"Echo", "ATE1", 0, End::working, End::working, End::working},
        GarbageRow{"Manufacturer", "ATI0", 0, End::working, End::working, End::working},
        GarbageRow{"Revision", "ATI3", 0, End::working, End::working, End::working},
        GarbageRow{"CellDump", "AT+CCED=2", 0, End::working, End::working, End::working},
        GarbageRow{"AutoAnswer", "ATS0?", 0, End::working, End::working, End::working},
        GarbageRow{"Speed", "AT+IPR?", 0, End::working, End::working, End::working},
        GarbageRow{"Framing", "AT+ICF?", 0, End::locked, End::locked, End::locked}),
    RowName());

// A modem that is lost after the answer to one command of the start-up.
class ModemLostInTheMiddle : public HealthyModemTest,
                             public ::testing::WithParamInterface<std::size_t> {
 protected:
  static std::vector<Exchange> rows() {
    std::vector<Exchange> all = kStartUp;
    all.insert(all.end(), kFull.begin(), kFull.end());
    return all;
  }

  // Starts, and returns when the row of the test has been answered.
  void startUpToTheRow() {
    startHealthy();
    while (written_.size() <= GetParam() && now() < 60) {
      run(0.01);
      for (const std::string& text : sent()) written_.push_back(text);
    }
    run(0.1);
  }

  void settleAndCollect() {
    settle();
    for (const std::string& text : sent()) written_.push_back(text);
  }

  bool isLast() { return GetParam() + 1 == rows().size(); }

  Texts written_;
};

TEST_P(ModemLostInTheMiddle, UnpluggedLeavesAPanelAtRest) {
  startUpToTheRow();
  machine().line.plug(std::nullopt);
  settleAndCollect();
  Texts expected;
  for (std::size_t i = 0; i < rows().size(); ++i) {
    const std::string name = rows()[i].name;
    // A silent modem stops the SIM check and the signal query, and nothing else; the latter is
    // content with the "OK" of the row before.
    if (i > GetParam() + 1 && GetParam() < 2) continue;
    const bool signal = name == "Signal" || name == "Registration";
    if (signal && GetParam() < 7) continue;
    expected.push_back(rows()[i].command + "\r");
  }
  EXPECT_EQ(written_, expected);
  EXPECT_EQ(statusLine(), "");
  isLast() ? expectWorking() : expectLocked();
  EXPECT_TRUE(form1().MSComm1.PortOpen);
  expectAtRest();
}

TEST_P(ModemLostInTheMiddle, WithItsPortGoneEndsTheSequenceAtTheNextWrite) {
  startUpToTheRow();
  machine().ports.set({});
  settleAndCollect();
  Texts expected;
  for (std::size_t i = 0; i <= GetParam(); ++i) expected.push_back(rows()[i].command + "\r");
  EXPECT_EQ(written_, expected);
  // The SIM check ends silently as well where its own write fails, and its words stay.
  EXPECT_EQ(statusLine(), GetParam() < 2 ? "Please Wait..." : "");
  EXPECT_TRUE(panel().form7.Visible.peek());
  isLast() ? expectWorking() : expectLocked();
  expectAtRest();
}

INSTANTIATE_TEST_SUITE_P(Rows, ModemLostInTheMiddle,
                         ::testing::Range<std::size_t>(0, kStartUp.size() + kFull.size()),
                         [](const auto& row) {
                           return row.param < kStartUp.size()
                                      ? kStartUp[row.param].name
                                      : kFull[row.param - kStartUp.size()].name;
                         });

// A port that goes in the middle of a sequence, and what its caller does all the same.
class SequenceCutOff : public HealthyModemTest {
 protected:
  // The port goes once `command` has been answered.
  void loseThePortAfter(const std::string& command) {
    bool isWritten = false;
    while (!isWritten && now() < 120) {
      run(0.01);
      for (const std::string& text : sent()) isWritten = isWritten || text == command + "\r";
    }
    ASSERT_TRUE(isWritten);
    run(0.1);
    machine().ports.set({});
    settle();
  }
};

TEST_F(SequenceCutOff, IsClearedAwayByTheRoutingThatBeganIt) {
  startUnlocked();
  receive(unsolicited("+CPIN: READY"));
  loseThePortAfter("AT+IPR?");  // whose reply the next row would leave
  EXPECT_EQ(transcript(), "");
  expectAtRest();
}

TEST_F(SequenceCutOff, NarrowsThePanelWithoutASim) {
  startHealthy(kError);
  loseThePortAfter("AT+WIND=0");
  expectNoSim();
  EXPECT_EQ(statusLine(), "");
  expectAtRest();
}

}  // namespace
}  // namespace gsm
