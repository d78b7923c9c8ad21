// The program itself: lines in, lines out.

#include <gtest/gtest.h>

#include <cstdlib>
#include <sstream>
#include <string>
#include <vector>

#include "panel/form1.h"
#include "tests/support/temporary_folder.h"

namespace gsm {
namespace {

class PanelDriverProgram : public ::testing::Test {
 protected:
  /// Runs the program on `input`; the lines of its output. `status_` is what it ended with.
  std::vector<std::string> linesFor(const std::string& input) {
    folder_.write("input", input);
    const std::string folder = folder_.path().string();
    status_ = std::system((PANEL_DRIVER " <" + folder + "/input >" + folder + "/output").c_str());
    std::istringstream output(folder_.read("output").value_or(""));
    std::vector<std::string> lines;
    for (std::string line; std::getline(output, line);) lines.push_back(line);
    return lines;
  }
  std::string startLine() const {
    return R"({"op":"start","folder":")" + folder_.path().string() +
           R"(","now":"2026-03-01 10:00:00","ports":[{"number":3}],)" +
           R"("modem":{"port":3,"speed":9600}})" + "\n";
  }

  TemporaryFolder folder_;
  int status_ = -1;
};

TEST_F(PanelDriverProgram, AnswersEachLineInOrderAndEndsWithItsInput) {
  folder_.write("COM.txt", "9600,N,8,1 3\r\n");
  const auto lines = linesFor(startLine() +
                              R"({"op":"run","seconds":0.5}
{"op":"sent"}
nonsense
{"op":"get","property":"Form1.Caption"}
{"op":"close","window":"Form1"}
{"op":"settle"}
{"op":"sent"}
)");
  EXPECT_EQ(status_, 0);
  ASSERT_EQ(lines.size(), 8u);
  EXPECT_EQ(lines[0], R"({"ok":true})");
  EXPECT_EQ(lines[1], R"({"ok":true,"at":0.5,"waiting":2,"ended":false})");
  EXPECT_EQ(lines[2], R"({"ok":true,"writes":[{"at":0.0,"text":"AT+CGSN\r"}]})");
  EXPECT_EQ(lines[3].substr(0, 10), R"({"error":")");
  EXPECT_EQ(lines[4], R"({"ok":true,"value":"GSM-APPLICATION"})");
  EXPECT_EQ(lines[5], R"({"ok":true})");
  EXPECT_EQ(lines[6], R"({"ok":true,"at":2.505208333,"waiting":0,"ended":true})");
  EXPECT_EQ(lines[7], R"({"ok":true,"writes":[{"at":0.5,"text":"AT&W\r"}]})");
}

TEST_F(PanelDriverProgram, WithoutInputSaysNothing) {
  EXPECT_TRUE(linesFor("").empty());
  EXPECT_EQ(status_, 0);
}

TEST_F(PanelDriverProgram, EndsWellWithHandlersStillWaiting) {
  folder_.write("COM.txt", "9600,N,8,1 3\r\n");
  EXPECT_EQ(linesFor(startLine() + "{\"op\":\"run\",\"seconds\":0.5}\n").size(), 2u);
  EXPECT_EQ(status_, 0);
}

TEST_F(PanelDriverProgram, ALastLineWithoutAnEndIsALine) {
  EXPECT_EQ(linesFor("nonsense").size(), 1u);
  EXPECT_EQ(status_, 0);
}

TEST_F(PanelDriverProgram, AnEmptyLineIsAnsweredToo) {
  EXPECT_EQ(linesFor("\n\n").size(), 2u);
  EXPECT_EQ(status_, 0);
}

// It is told PINs and passwords.
TEST_F(PanelDriverProgram, CantLeaveACoreFile) {
  const std::string program = PANEL_DRIVER;
  const std::string look = "grep 'core file' /proc/$!/limits";
  folder_.write("look", "mkfifo in out; " + program + " <in >out & exec 3>in 4<out\n" +
                            "echo nonsense >&3; read -r answer <&4; " + look + " >limit\n");
  const std::string folder = folder_.path().string();
  EXPECT_EQ(std::system(("cd " + folder + " && ulimit -S -c $(ulimit -H -c) && sh look").c_str()),
            0);
  const std::string limit = folder_.read("limit").value_or("");
  EXPECT_TRUE(limit.find(" 1 ") != std::string::npos || limit.find(" 0 ") != std::string::npos)
      << limit;
}

TEST_F(PanelDriverProgram, AFloodOfLineChangesLeavesAProgramThatRuns) {
  // A line that flickers, or noise that the port reports as framing errors: each is an event, and
  // each event waits two seconds.
  std::string input = startLine();
  for (int change = 0; change < 100'000; ++change) input += "{\"op\":\"event\",\"value\":3}\n";
  input += "{\"op\":\"settle\"}\n";
  EXPECT_EQ(linesFor(input).size(), 100'002u);
  EXPECT_EQ(status_, 0);
}

}  // namespace
}  // namespace gsm
