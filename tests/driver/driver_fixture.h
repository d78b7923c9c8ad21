#pragma once

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "driver/session.h"
#include "tests/support/temporary_folder.h"

namespace gsm::driver {

/// A session and a folder for the program's files; nothing has been started.
class DrivenPanel {
 public:
  using Texts = std::vector<std::string>;

  /// The answer to one line, as it stands.
  std::string answerTo(std::string_view line) { return session_.answer(line); }

  /// Carries out a request that must succeed, and gives its answer.
  Json tell(const Json& request) {
    Json answer = Json::parse(session_.answer(request.dump()));
    EXPECT_EQ(answer.value("ok", false), true) << request.dump() << " -> " << answer.dump();
    return answer;
  }

  /// Holds when `line` is refused with a reason and nothing else.
  ::testing::AssertionResult isRefused(std::string_view line) {
    const std::string text = session_.answer(line);
    const Json answer = Json::parse(text, nullptr, /*allow_exceptions=*/false);
    const bool refused = answer.is_object() && answer.size() == 1 && answer.contains("error") &&
                         answer["error"].is_string() && !answer["error"].empty();
    if (refused) return ::testing::AssertionSuccess();
    return ::testing::AssertionFailure() << "'" << line.substr(0, 200) << "' was answered " << text;
  }

  void layComFile(const std::string& bytes) { folder_.write("COM.txt", bytes); }
  const TemporaryFolder& folder() const { return folder_; }

  /// The request that starts the program against a modem on port 3 at 9600 baud.
  Json startRequest() const {
    return {{"op", "start"},
            {"folder", folder_.path().string()},
            {"now", "2026-03-01 10:00:00"},
            {"ports", Json::array({Json{{"number", 3}}})},
            {"modem", {{"port", 3}, {"speed", 9600}}}};
  }
  /// Starts without a saved port: `Form1` comes up, and nothing happens on the line.
  void start() { tell(startRequest()); }
  /// Starts against a modem that answers on the saved port and then says no more. The port is open
  /// and the transcript empty.
  void startWithOpenPort() {
    layComFile("9600,N,8,1 3\r\n");
    start();
    tell({{"op", "reply"}, {"write", "AT+CGSN\r"}, {"text", "\r\n012345678901234\r\n\r\nOK\r\n"}});
    settle();
    tell({{"op", "forget"}});
    sent();
  }

  Json run(double seconds) { return tell({{"op", "run"}, {"seconds", seconds}}); }
  Json settle() { return tell({{"op", "settle"}}); }
  void receive(const std::string& utf8, double after = 0) {
    tell({{"op", "receive"}, {"text", utf8}, {"after", after}});
  }
  void click(const std::string& control) { tell({{"op", "click"}, {"control", control}}); }

  Json get(const std::string& property) {
    return tell({{"op", "get"}, {"property", property}})["value"];
  }
  std::string transcript() { return get("Form1.Text1.Text").get<std::string>(); }
  Json state() { return tell({{"op", "state"}}); }

  /// What was written to the port since the last call.
  Texts sent() { return textsOf(tell({{"op", "sent"}})["writes"]); }
  /// The texts of the boxes shown since the last call.
  Texts shown() { return textsOf(tell({{"op", "shown"}})["boxes"]); }

 private:
  static Texts textsOf(const Json& list) {
    Texts texts;
    for (const Json& each : list) texts.push_back(each["text"]);
    return texts;
  }

  TemporaryFolder folder_;
  Session session_;
};

/// A test with a session of its own.
class DriverTest : public ::testing::Test, public DrivenPanel {};

}  // namespace gsm::driver
