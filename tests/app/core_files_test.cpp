// The desktop program itself, which has secrets in its boxes.

#include <gtest/gtest.h>
#include <poll.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <filesystem>
#include <fstream>
#include <string>

#include "simulator/host/pseudo_terminal.h"
#include "tests/support/temporary_folder.h"

namespace gsm {
namespace {

// The program with its port open on a device that never answers, on a machine that keeps core
// files.
class CoreFiles : public ::testing::Test {
 protected:
  CoreFiles() {
    std::filesystem::create_directory(folder_.path() / "ports");
    std::filesystem::create_symlink(device_.device(), folder_.path() / "ports/COM3");
    folder_.write("COM.txt", "9600,N,8,1 3\r\n");
    id_ = ::fork();
    if (id_ == 0) start();
    while (!HasFailure() && heard_.find("AT+CGSN\r") == std::string::npos) listen();
  }
  ~CoreFiles() override {
    if (id_ > 0) end(SIGKILL);
  }

  // The limit that is in force for it, as "1 1 bytes": what it has, and what it could take.
  std::string coreLimit() const {
    constexpr std::string_view kName = "Max core file size";
    std::ifstream limits("/proc/" + std::to_string(id_) + "/limits");
    std::string limit;
    for (std::string line; std::getline(limits, line);) {
      if (line.starts_with(kName)) limit = line.substr(kName.size());
    }
    std::erase(limit, ' ');
    return limit;
  }

  // Ends it, and returns how it ended.
  int end(int signal) {
    int status = 0;
    ::kill(id_, signal);
    ::waitpid(id_, &status, 0);
    id_ = -1;
    return status;
  }

 private:
  [[noreturn]] void start() {
    rlimit limit{};
    ::getrlimit(RLIMIT_CORE, &limit);
    limit.rlim_cur = limit.rlim_max;
    ::setrlimit(RLIMIT_CORE, &limit);
    ::setenv("QT_QPA_PLATFORM", "offscreen", 1);
    const std::string folder = folder_.path();
    if (::chdir(folder.c_str()) == 0) {
      ::execl(GSM_APPLICATION, GSM_APPLICATION, "--folder", folder.c_str(), nullptr);
    }
    ::_exit(127);
  }

  void listen() {
    pollfd written{.fd = device_.descriptor(), .events = POLLIN, .revents = 0};
    ::poll(&written, 1, 100);
    heard_ += device_.read();
    EXPECT_EQ(::waitpid(id_, nullptr, WNOHANG), 0) << "the program has ended";
  }

  TemporaryFolder folder_;
  pty::PseudoTerminal device_;
  std::string heard_;
  pid_t id_ = -1;
};

TEST_F(CoreFiles, CantLeaveACoreFile) {
  EXPECT_TRUE(coreLimit() == "11bytes" || coreLimit() == "00bytes") << coreLimit();
  const int status = end(SIGABRT);
  EXPECT_TRUE(WIFSIGNALED(status));
  EXPECT_FALSE(WCOREDUMP(status));
}

}  // namespace
}  // namespace gsm
