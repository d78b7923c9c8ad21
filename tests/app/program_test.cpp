// The desktop program as it is started.

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <thread>
#include <vector>

#include "simulator/host/pseudo_terminal.h"
#include "tests/support/temporary_folder.h"

namespace gsm {
namespace {

class DesktopProgram : public ::testing::Test {
 protected:
  void TearDown() override {
    if (copy_ > 0) endCopy(SIGKILL);
  }

  std::string at(const std::string& name) const { return (folder_.path() / name).string(); }

  /// Runs the program to its end; the status that it ended with.
  int runWith(const std::string& words, const std::string& screen = "offscreen") {
    const std::string line = "QT_QPA_PLATFORM=" + screen + " " GSM_APPLICATION " " + words + " >" +
                             at("output") + " 2>" + at("trouble");
    const int status = std::system(line.c_str());
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
  }
  std::string output() const { return folder_.read("output").value_or(""); }
  std::string trouble() const { return folder_.read("trouble").value_or(""); }

  /// Starts a copy that goes on running.
  void startCopy(std::vector<std::string> words) {
    words.insert(words.begin(), GSM_APPLICATION);
    std::vector<char*> arguments;
    for (std::string& word : words) arguments.push_back(word.data());
    arguments.push_back(nullptr);
    copy_ = ::fork();
    if (copy_ != 0) return;
    ::setenv("QT_QPA_PLATFORM", "offscreen", 1);
    ::execv(GSM_APPLICATION, arguments.data());
    ::_exit(127);
  }
  /// Sends the copy `signal`; the status that it ended with.
  int endCopy(int signal) {
    int status = -1;
    ::kill(copy_, signal);
    ::waitpid(copy_, &status, 0);
    copy_ = -1;
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
  }
  /// Waits until `condition` holds, or for half a minute. Whether it came to hold.
  template <class Condition>
  static bool comesTrue(Condition condition) {
    for (int i = 0; i < 600; ++i) {
      if (condition()) return true;
      std::this_thread::sleep_for(std::chrono::milliseconds(50));
    }
    return false;
  }

  TemporaryFolder folder_;
  pid_t copy_ = -1;
};

TEST_F(DesktopProgram, TellsItsVersionAndItsOptionsWithoutADisplay) {
  EXPECT_EQ(runWith("--version", "no-such-screen"), 0);
  EXPECT_EQ(output(), "gsm-application " GSM_VERSION "\n");
  EXPECT_EQ(runWith("--help", "no-such-screen"), 0);
  EXPECT_NE(output().find("--record"), std::string::npos) << output();
}

TEST_F(DesktopProgram, RefusesWhatItCanNotDo) {
  EXPECT_EQ(runWith("--colour"), 2);
  EXPECT_EQ(runWith("--folder " + at("missing")), 2);
  EXPECT_TRUE(trouble().ends_with("gsm-application: there is no folder " + at("missing") + "\n"))
      << trouble();
  EXPECT_EQ(runWith("--folder " + at("") + " --port /dev/ttyUSB99"), 1);
  EXPECT_NE(trouble().find("there is no device /dev/ttyUSB99"), std::string::npos) << trouble();
  EXPECT_EQ(runWith("--folder " + at("") + " --record " + at("missing/file")), 1);
  EXPECT_TRUE(trouble().ends_with("gsm-application: there can't be a record in " +
                                  at("missing/file") + "\n"))
      << trouble();
}

TEST_F(DesktopProgram, ASecondCopyInAFolderTellsWhoHasItAndEndsWithOne) {
  startCopy({"--folder", folder_.path().string(), "--record", at("record")});
  ASSERT_TRUE(comesTrue([this] { return folder_.read("record").has_value(); }));
  EXPECT_EQ(runWith("--folder " + at("")), 1);
  EXPECT_NE(trouble().find("is in use by process " + std::to_string(copy_) + " (gsm-applicatio"),
            std::string::npos)
      << trouble();
  EXPECT_EQ(endCopy(SIGTERM), 0);
}

TEST_F(DesktopProgram, RecordsTheLineOfTheDeviceThatItIsGiven) {
  pty::PseudoTerminal modem;
  startCopy(
      {"--folder", folder_.path().string(), "--port", modem.device(), "--record", at("record")});
  const auto record = [this] { return folder_.read("record").value_or(""); };
  EXPECT_TRUE(comesTrue([&] {
    return record().find("\"out\":\"AT+CGSN\\r\"}\n") != std::string::npos;
  })) << record();
  EXPECT_EQ(record().find("{\"record\":1,\"started\":\""), 0u);
  EXPECT_NE(record().find("\"open\":1,\"settings\":\"9600,N,8,1\",\"handshaking\":0}\n"),
            std::string::npos)
      << record();
  EXPECT_EQ(endCopy(SIGTERM), 0);
  EXPECT_TRUE(record().ends_with("\"close\":1}\n")) << record();
  using std::filesystem::perms;
  EXPECT_EQ(
      std::filesystem::status(at("record")).permissions() & (perms::group_all | perms::others_all),
      perms::none);
}

}  // namespace
}  // namespace gsm
