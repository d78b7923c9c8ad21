// Sessions with a modem far away, played back: tests/records holds for each what a user did
// (.requests), the record of the line (.record) and what the windows showed then (.answers).

#include <cstdlib>
#include <fstream>
#include <iterator>
#include <memory>
#include <sstream>

#include "simulator/host/simulated_modem.h"
#include "tests/driver/driver_fixture.h"
#include "tests/support/rows.h"

namespace gsm::driver {
namespace {

struct RecordRow {
  std::string name;  // of the files too
  std::string comFile;
  std::vector<int> ports;
  simulator::ModemOptions modem;

  friend void PrintTo(const RecordRow& row, std::ostream* out) { *out << row.name; }
};

class ReplayedRecord : public ::testing::TestWithParam<RecordRow> {
 protected:
  static std::string path(const std::string& kind) {
    return std::string(RECORDS) + "/" + GetParam().name + "." + kind;
  }
  static std::string read(const std::string& kind) {
    std::ifstream file(path(kind), std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
  }
  static std::vector<Json> requests() {
    std::istringstream text(read("requests"));
    std::vector<Json> all;
    for (std::string line; std::getline(text, line);) all.push_back(Json::parse(line));
    return all;
  }
  Json startRequest(const Json& ports) const {
    return {{"op", "start"},
            {"folder", folder_.path().string()},
            {"now", "2026-03-01 10:00:00"},
            {"ports", ports}};
  }
  /// Lays the files that the program found at its start.
  void layFiles(Session& session) {
    folder_.write("COM.txt", GetParam().comFile);
    std::filesystem::remove(folder_.path() / "phonebook.mdb");
    for (const char* table : {R"("DATA","rows":[{"Index":"1","Number":"0261914728","Name":"ANNA"},)"
                              R"({"Index":"2","Number":"112","Name":"HELP"}])",
                              R"("Details","rows":[{"TotalIndex":"250","UsedIndex":"2"}])"}) {
      ASSERT_EQ(session.answer(R"({"op":"store","folder":")" + folder_.path().string() +
                               R"(","table":)" + table + "}"),
                R"({"ok":true})");
    }
  }
  /// What the driver answers to the session's requests, a line for each.
  static std::string answers(Session& session, SimulatedModem* modem = nullptr) {
    std::string all;
    for (const Json& request : requests()) {
      if (request["op"] == "console") {
        // What happened at the modem's end is in the record.
        if (modem != nullptr) modem->console(request["line"].get<std::string>());
        continue;
      }
      Json answer = Json::parse(session.answer(request.dump()));
      answer.erase("replay");
      all += answer.dump() + "\n";
    }
    return all;
  }
  /// Takes the session anew against the simulated modem, and keeps its record and what it showed.
  void takeAnew() {
    std::shared_ptr<SimulatedModem> modem;
    Session session([&modem](HeadlessPlatform& machine) {
      modem = std::make_shared<SimulatedModem>(machine.time, machine.line, GetParam().modem);
      return modem;
    });
    layFiles(session);
    Json ports = Json::array();
    for (const int number : GetParam().ports) ports.push_back({{"number", number}});
    Json start = startRequest(ports);
    start["modem"] = {{"port", GetParam().ports.back()}};
    start["record"] = path("record");
    ASSERT_EQ(session.answer(start.dump()), R"({"ok":true})");
    std::ofstream(path("answers"), std::ios::binary) << answers(session, modem.get());
    modem.reset();
  }

  TemporaryFolder folder_;
};

TEST_P(ReplayedRecord, ShowsWhatTheWindowsShowedThen) {
  if (std::getenv("GSM_REWRITE_RECORDS") != nullptr) takeAnew();
  Session session;
  layFiles(session);
  const Json replay =
      Json::parse(session.answer(Json{{"op", "replay"}, {"file", path("record")}}.dump()));
  ASSERT_EQ(replay.value("ok", false), true) << replay.dump();
  EXPECT_EQ(replay["port"], GetParam().ports.back());
  ASSERT_EQ(session.answer(startRequest(replay["ports"]).dump()), R"({"ok":true})");
  EXPECT_EQ(answers(session), read("answers"));
  const Json state = Json::parse(session.answer(R"({"op":"state"})"));
  EXPECT_EQ(state["replay"]["strayed"], 0);
  EXPECT_EQ(state["replay"]["left"], 0);
}

TEST_P(ReplayedRecord, HoldsNoSecret) {
  const std::string record = read("record");
  EXPECT_NE(record, "");
  for (const char* secret : {"9999", "1234"}) {
    std::istringstream lines(record);
    for (std::string line; std::getline(lines, line);) {
      const auto command = line.find("+CPIN=");
      if (command == std::string::npos) continue;
      EXPECT_EQ(line.find(secret, command), std::string::npos) << line;
    }
  }
}

INSTANTIATE_TEST_SUITE_P(
    Rows, ReplayedRecord,
    ::testing::Values(RecordRow{.name = "start-up",
                                .comFile = "9600,N,8,1 3\r\n",
                                .ports = {3, 4},
                                .modem = {.speed = 19200,
                                          .sim = simulator::SimStatus::kPinWanted,
                                          .cutter = simulator::Cutter::every(16)}},
                      RecordRow{.name = "call",
                                .comFile = "9600,N,8,1 3\r\n",
                                .ports = {3},
                                .modem = {.speed = 9600}},
                      RecordRow{.name = "message",
                                .comFile = "9600,N,8,1 3\r\n",
                                .ports = {3},
                                .modem = {.speed = 9600}}),
    [](const auto& row) {
      std::string name = row.param.name;
      std::erase(name, '-');
      return name;
    });

class Replay : public DriverTest {
 protected:
  /// A request that plays back a record of these lines.
  Json requestFor(const std::string& lines) {
    folder().write("record", lines);
    return {{"op", "replay"}, {"file", (folder().path() / "record").string()}};
  }
};

constexpr const char* kBegin = "{\"record\":1,\"started\":\"01/03/2026 10:00:00\"}\n";
constexpr const char* kOpen =
    "{\"at\":1,\"open\":3,\"settings\":\"9600,N,8,1\",\"handshaking\":0}\n";

TEST_F(Replay, TellsWhatTheStartWantsOfThatMachine) {
  const Json answer =
      tell(requestFor(std::string(kBegin) +
                      "{\"at\":0,\"open\":4,\"settings\":\"9600,N,8,1\",\"handshaking\":0,"
                      "\"failed\":\"Port already open\"}\n" +
                      kOpen + "{\"at\":1,\"out\":\"AT\\r\"}\n{\"at\":2,\"in\":\"OK\"}\n"));
  EXPECT_EQ(answer.dump(),
            R"({"ok":true,"ports":[{"number":4,"fails":"Port already open"},{"number":3}],)"
            R"("port":3,"writes":1,"full":false})");
}

TEST_F(Replay, AnswersInTheMiddleOfARunToo) {
  startWithOpenPort();
  tell(requestFor(std::string(kBegin) + kOpen +
                  "{\"at\":5,\"out\":\"AT\\r\"}\n{\"at\":5.25,\"in\":\"one\"}\n"
                  "{\"at\":7,\"in\":\"two\"}\n"));
  click("Form1.Label8");
  run(0.249);
  EXPECT_EQ(transcript(), "");
  run(0.002);
  EXPECT_EQ(transcript(), "one");
  EXPECT_EQ(state()["replay"].dump(), R"({"answered":1,"strayed":0,"left":0})");
}

TEST_F(Replay, SaysWhatTheModemSaidBeforeAnythingWasWritten) {
  startWithOpenPort();
  tell(requestFor(std::string(kBegin) + kOpen + "{\"at\":1.5,\"in\":\"hello\"}\n"));
  run(1.4);
  EXPECT_EQ(transcript(), "");
  run(0.2);
  EXPECT_EQ(transcript(), "hello");
}

TEST_F(Replay, ALastLineThatWasCutOffIsPassedOver) {
  const Json answer = tell(requestFor(std::string(kBegin) + kOpen +
                                      "{\"at\":1,\"out\":\"AT\\r\"}\n{\"at\":2,\"in\":\"O"));
  EXPECT_EQ(answer["writes"], 1);
}

TEST_F(Replay, ARecordThatIsNoneIsRefusedWithItsLine) {
  const std::string begin = std::string(kBegin) + kOpen;
  for (const std::string& lines :
       {std::string(), std::string("nonsense\n"), std::string("[]\n"), std::string(kOpen),
        begin + "nonsense\n" + kOpen, begin + "[]\n", begin + "{\"at\":-1,\"in\":\"x\"}\n",
        begin + "{\"at\":1,\"in\":2}\n", begin + "{\"at\":1,\"configured\":\"fast\"}\n",
        begin + "{\"at\":1,\"out\":\"AT\\r\",\"blotted\":[[0,4]]}\n",
        begin + "{\"at\":1,\"out\":\"AT\\r\",\"blotted\":[[-1,1]]}\n",
        begin + "{\"at\":1,\"out\":\"AT\\r\",\"blotted\":7}\n"}) {
    EXPECT_TRUE(isRefused(requestFor(lines).dump())) << lines;
  }
  EXPECT_TRUE(isRefused(R"({"op":"replay","file":"/no/such/file"})"));
  EXPECT_TRUE(isRefused(R"({"op":"replay","file":3})"));
  EXPECT_TRUE(isRefused(R"({"op":"replay"})"));
}

TEST_F(Replay, AStartMayKeepARecordThatCanBePlayedBack) {
  Json request = startRequest();
  request["record"] = (folder().path() / "kept").string();
  layComFile("9600,N,8,1 3\r\n");
  tell(request);
  run(10);
  const std::string kept = folder().read("kept").value_or("");
  EXPECT_TRUE(kept.starts_with(kBegin)) << kept;
  EXPECT_NE(kept.find("\"out\":\"AT+CGSN\\r\""), std::string::npos) << kept;
  EXPECT_EQ(tell({{"op", "replay"}, {"file", request["record"]}})["ports"].dump(),
            R"([{"number":3}])");
}

TEST_F(Replay, ARecordThatCanNotBeKeptKeepsTheProgramFromStarting) {
  Json request = startRequest();
  request["record"] = (folder().path() / "none" / "kept").string();
  EXPECT_TRUE(isRefused(request.dump()));
  request["record"] = 3;
  EXPECT_TRUE(isRefused(request.dump()));
  start();
}

}  // namespace
}  // namespace gsm::driver
