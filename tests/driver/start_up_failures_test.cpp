// What is wrong with COM.txt, and what the start-up makes of it.

#include <optional>
#include <random>

#include "tests/driver/driver_fixture.h"
#include "tests/support/start_up_words.h"

namespace gsm::driver {
namespace {

constexpr const char* kImeiReply = "\r\n012345678901234\r\n\r\nOK\r\n";

class StartUp : public DrivenPanel {
 public:
  void startWith(const std::optional<std::string>& comFile) {
    if (comFile) layComFile(*comFile);
    start();
  }
  void modemAnswers() { tell({{"op", "reply"}, {"write", "AT+CGSN\r"}, {"text", kImeiReply}}); }
  Texts log() { return get("Form1.List1.List").get<Texts>(); }

  /// Holds of a load that has ended without a word: the user has the settings' button.
  void expectSilentEnd() {
    EXPECT_EQ(log(), Texts({kWelcome}));
    EXPECT_EQ(get("Form1.Label9.Caption"), "System Started  01/03/2026,10:00:00");
    EXPECT_EQ(get("Form1.Command7.Enabled"), true);
    EXPECT_EQ(state()["port"]["open"], false);
    EXPECT_EQ(state()["shown"], Json::array({"Form1"}));
    EXPECT_EQ(sent(), Texts());
    EXPECT_EQ(shown(), Texts());
    expectAlive();
  }
  void expectAlive() {
    EXPECT_EQ(state()["ended"], false);
    const std::string clock = get("Form1.Label4.Caption").dump();
    run(2);
    EXPECT_NE(get("Form1.Label4.Caption").dump(), clock);
    EXPECT_EQ(state()["waiting"], 0);
  }
};

class StartUpFailures : public ::testing::Test, public StartUp {};

TEST_F(StartUpFailures, EndSilentlyWhereNothingCanBeMadeOfTheFile) {
  const struct {
    const char* what;
    std::optional<std::string> comFile;
  } rows[] = {
      {"missing", std::nullopt},
      {"empty", ""},
      {"no blank", "9600,N,8,1\r\n"},
      {"a blank first", " 9600,N,8,1 3\r\n"},
      {"no number", "9600,N,8,1 \r\n"},
      {"two blanks", "9600,N,8,1  3\r\n"},
      {"a word for a number", "9600,N,8,1 three\r\n"},
      {"number zero", "9600,N,8,1 0\r\n"},
      {"a port that isn't there", "9600,N,8,1 4\r\n"},
      {"settings refused", "9601,N,8,1 3\r\n"},
      {"settings of another kind", "fast 3\r\n"},
      {"NUL bytes", std::string(8192, '\0')},
      {"a NUL in the settings", std::string("9600,N,8,1\0 3\r\n", 15)},
      {"one long line", std::string(1 << 20, 'x')},
      {"a page of UTF-16", std::string("\xFF\xFE"
                                       "9\0006\0000\0000\0",
                                       10)},
  };
  for (const auto& [what, comFile] : rows) {
    SCOPED_TRACE(what);
    StartUp panel;
    panel.startWith(comFile);
    panel.settle();
    panel.expectSilentEnd();
  }
}

TEST_F(StartUpFailures, AFolderOfThatNameIsNoFile) {
  std::filesystem::create_directory(folder().path() / "COM.txt");
  start();
  settle();
  expectSilentEnd();
}

TEST_F(StartUpFailures, OfThePortOneDigitCounts) {
  startWith("9600,N,8,1 35\r\n");
  modemAnswers();
  settle();
  EXPECT_EQ(get("Form1.Label2.Caption"), "Port 3");
  EXPECT_EQ(get("Form2.Label3.Caption"), "012345678901234");
}

TEST_F(StartUpFailures, AnEmptyFirstLineSweeps) {
  for (const char* comFile : {"\r\n", "\n", "\r", "\r\n9600,N,8,1 3\r\n"}) {
    StartUp panel;
    panel.startWith(comFile);
    panel.modemAnswers();
    panel.settle();
    EXPECT_EQ(panel.get("Form1.Label3.Caption"), "9600,N,8,1");
    EXPECT_EQ(panel.get("Form1.Label2.Caption"), "Port 3");
    const StartUp::Texts log = panel.log();
    ASSERT_GE(log.size(), 4u);
    EXPECT_EQ(Texts(log.begin(), log.begin() + 4),
              Texts({kWelcome, "Checking For Available Communication Ports", "Found  1 Ports",
                     "Detecting Modem Present.."}));
    panel.expectAlive();
  }
}

TEST_F(StartUpFailures, AHeldPortSweepsTheOthers) {
  layComFile("9600,N,8,1 5\r\n");
  Json request = startRequest();
  request["ports"].push_back({{"number", 5}, {"held", true}});
  tell(request);
  modemAnswers();
  settle();
  EXPECT_EQ(log().at(1), "Port Selected Already Open in Other Application");
  EXPECT_EQ(get("Form1.Label2.Caption"), "Port 3");
  EXPECT_EQ(get("Form1.Label1.Caption"), "Open");
}

TEST_F(StartUpFailures, SeveralLinesAreTriedInTurnWhileNoModemIsAccepted) {
  // The modem listens at a speed that no sweep tries, so the second line alone finds it.
  layComFile("9600,N,8,1 3\r\n14400,N,8,1 3\r\n300,N,8,1 3\r\n");
  Json request = startRequest();
  request["modem"]["speed"] = 14400;
  tell(request);
  modemAnswers();
  settle();
  EXPECT_EQ(get("Form1.Label3.Caption"), "14400,N,8,1");
  EXPECT_EQ(get("Form1.Label1.Caption"), "Open");
  // One probe of the first line, the sweep of ten speeds after it, one probe of the second line;
  // the third isn't read.
  const Texts writes = sent();
  EXPECT_EQ(std::count(writes.begin(), writes.end(), "AT+CGSN\r"), 12);
}

TEST_F(StartUpFailures, APortAcceptedAtTheStartIsNotSaved) {
  startWith("\r\n");
  modemAnswers();
  settle();
  EXPECT_EQ(get("Form1.Label1.Caption"), "Open");
  EXPECT_EQ(folder().read("COM.txt"), "\r\n");
}

TEST_F(StartUpFailures, TheSweepFindsAModemOnASecondPortAtTheHighestSpeed) {
  layComFile("9600,N,8,1 3\r\n");
  Json request = startRequest();
  request["ports"].push_back({{"number", 5}});
  request["modem"] = {{"port", 5}, {"speed", 115200}};
  tell(request);
  modemAnswers();
  settle();
  EXPECT_EQ(get("Form1.Label1.Caption"), "Open");
  EXPECT_EQ(get("Form1.Label2.Caption"), "Port 5");
  EXPECT_EQ(get("Form1.Label3.Caption"), "115200,N,8,1");
  EXPECT_EQ(get("Form2.Label2.Caption"), "IMEI: ");
  EXPECT_EQ(get("Form2.Label3.Caption"), "012345678901234");
  EXPECT_EQ(state()["port"].dump(),
            R"({"open":true,"number":5,"settings":"115200,n,8,1","handshaking":0})");
  // The saved port once, then ten speeds of each port.
  const Texts writes = sent();
  EXPECT_EQ(std::count(writes.begin(), writes.end(), "AT+CGSN\r"), 21);
}

TEST_F(StartUpFailures, ASweepThatFindsNothingSaysSo) {
  startWith("9600,N,8,1 3\r\n");
  settle();
  EXPECT_EQ(get("Form1.Label5.Caption"), "No Modem Device Found.Set The Comm Ports");
  EXPECT_EQ(state()["port"]["open"], false);
  EXPECT_EQ(shown(), Texts());
  expectAlive();
}

TEST_F(StartUpFailures, NoiseInTheFileLeavesAProgramThatRuns) {
  for (unsigned seed = 1; seed <= 30; ++seed) {
    SCOPED_TRACE("seed " + std::to_string(seed));
    std::mt19937 random(seed);
    std::string noise(8192, '\0');
    for (char& byte : noise) byte = static_cast<char>(random());
    StartUp panel;
    panel.startWith(noise);
    // Each empty line begins a sweep, which takes its time.
    panel.tell({{"op", "settle"}, {"limit", 40'000}});
    EXPECT_EQ(panel.log().at(0), kWelcome);
    panel.expectAlive();
  }
}

}  // namespace
}  // namespace gsm::driver
