// The desktop program on a device that talks too much, in real time:
//   talkative-device exit [SECONDS]   how long "Exit" takes when the device has said a line each
//                                     second for so long
//   talkative-device flood [SECONDS]  what noise as fast as the line takes it, for so long, costs

#include <poll.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <string>

#include "simulator/host/pseudo_terminal.h"
#include "tests/support/temporary_folder.h"

namespace gsm {
namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

double secondsSince(Clock::time_point start) {
  return std::chrono::duration<double>(Clock::now() - start).count();
}

// The program with its port open on a device that answers the first question of start-up.
class RunningPanel {
 public:
  RunningPanel() {
    std::filesystem::create_directory(folder_.path() / "ports");
    std::filesystem::create_symlink(device_.device(), folder_.path() / "ports/COM3");
    folder_.write("COM.txt", "9600,N,8,1 3\r\n");
    id_ = ::fork();
    if (id_ == 0) {
      ::setenv("QT_QPA_PLATFORM", "offscreen", 1);
      ::execl(PANEL, PANEL, "--folder", folder_.path().c_str(), nullptr);
      ::_exit(127);
    }
    std::string heard;
    while (heard.find("AT+CGSN\r") == std::string::npos) {
      ::poll(nullptr, 0, 10);
      heard += device_.read();
    }
    device_.write("AT+CGSN\r\r\n012345678901234\r\n\r\nOK\r\n");
  }
  ~RunningPanel() {
    ::kill(id_, SIGKILL);
    ::waitpid(id_, nullptr, 0);
  }
  RunningPanel(const RunningPanel&) = delete;
  RunningPanel& operator=(const RunningPanel&) = delete;

  std::size_t say(const std::string& bytes) { return device_.write(bytes); }

  // Lets `duration` pass; what the panel writes is thrown away.
  void rest(std::chrono::milliseconds duration) {
    ::poll(nullptr, 0, static_cast<int>(duration.count()));
    while (!device_.read().empty()) {}
  }

  void askToEnd() { ::kill(id_, SIGTERM); }
  bool hasEnded() {
    siginfo_t info{};
    ::waitid(P_PID, static_cast<id_t>(id_), &info, WEXITED | WNOHANG | WNOWAIT);
    return info.si_pid == id_;
  }

  double processorSeconds() const {
    std::string word;
    std::ifstream stat("/proc/" + std::to_string(id_) + "/stat");
    for (int field = 1; field <= 13; ++field) stat >> word;
    long user = 0;
    long system = 0;
    stat >> user >> system;
    return static_cast<double>(user + system) / static_cast<double>(::sysconf(_SC_CLK_TCK));
  }
  // A line of the process's status that reports an amount of memory, in MB.
  double memory(const std::string& name) const {
    std::ifstream status("/proc/" + std::to_string(id_) + "/status");
    for (std::string line; std::getline(status, line);) {
      if (line.starts_with(name)) return std::atof(line.c_str() + name.size() + 1) / 1024;
    }
    return 0;
  }

 private:
  TemporaryFolder folder_;
  pty::PseudoTerminal device_;
  pid_t id_ = -1;
};

void measureExit(int seconds) {
  RunningPanel panel;
  auto sayOneASecond = [&panel, last = Clock::now()]() mutable {
    if (Clock::now() - last < 1s) return;
    last += 1s;
    panel.say("$GPRMC,123519,A,4807.038,N,01131.000,E,022.4,084.4,230394,003.1,W*6A\r\n");
  };
  for (const auto start = Clock::now(); secondsSince(start) < seconds; panel.rest(20ms)) {
    sayOneASecond();
  }
  panel.askToEnd();
  const auto asked = Clock::now();
  for (; !panel.hasEnded(); panel.rest(20ms)) sayOneASecond();
  std::printf("asked to end after %d s: ended after %.1f s\n", seconds, secondsSince(asked));
}

void measureFlood(int seconds) {
  RunningPanel panel;
  panel.rest(3000ms);
  const double quiet = panel.memory("VmRSS");
  const double before = panel.processorSeconds();
  std::string noise;
  while (noise.size() < 64 * 1024) noise += std::to_string(noise.size()) + ",";
  std::size_t taken = 0;
  for (const auto start = Clock::now(); secondsSince(start) < seconds;) {
    const std::size_t more = panel.say(noise);
    taken += more;
    if (more == 0) panel.rest(1ms);
  }
  const double used = panel.processorSeconds() - before;
  std::printf("%d s of noise: %.1f MB taken, %.1f s of processor time, peak %.0f MB\n", seconds,
              static_cast<double>(taken) / 1e6, used, panel.memory("VmHWM"));
  panel.rest(5000ms);
  // The dispatcher clears the whole transcript after this one, two seconds later.
  panel.say("\r\n+CSQ: 20,0\r\n");
  panel.rest(12'000ms);
  std::printf("10 s after a clearing: %.0f MB (before the noise %.0f MB)\n", panel.memory("VmRSS"),
              quiet);
}

}  // namespace
}  // namespace gsm

int main(int count, char** arguments) {
  const std::string what = count > 1 ? arguments[1] : "";
  const int seconds = count > 2 ? std::atoi(arguments[2]) : what == "exit" ? 5 : 60;
  if (what == "exit") {
    gsm::measureExit(seconds);
  } else if (what == "flood") {
    gsm::measureFlood(seconds);
  } else {
    std::fprintf(stderr, "usage: talkative-device exit|flood [SECONDS]\n");
    return 2;
  }
  return 0;
}
