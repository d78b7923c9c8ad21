#include <gtest/gtest.h>
#include <signal.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "tests/simulator/serial_host.h"
#include "tests/support/temporary_folder.h"

namespace gsm::pty {
namespace {

constexpr int kPatience = 10'000;  // milliseconds, for a machine that is busy

// The program itself, with its three standard streams here.
class Program {
 public:
  explicit Program(std::vector<std::string> arguments) {
    std::array<std::array<int, 2>, 3> pipes{};
    for (auto& pipe : pipes) {
      if (::pipe(pipe.data()) != 0) throwSystemError("no pipe");
    }
    input_ = Descriptor(pipes[0][1]);
    output_ = Descriptor(pipes[1][0]);
    complaints_ = Descriptor(pipes[2][0]);
    const Descriptor theirs[] = {Descriptor(pipes[0][0]), Descriptor(pipes[1][1]),
                                 Descriptor(pipes[2][1])};
    posix_spawn_file_actions_t actions;
    ::posix_spawn_file_actions_init(&actions);
    for (int i = 0; i < 3; ++i) {
      ::posix_spawn_file_actions_adddup2(&actions, theirs[i].number(), i);
    }
    for (const Descriptor* ours : {&input_, &output_, &complaints_}) {
      ::posix_spawn_file_actions_addclose(&actions, ours->number());
    }
    arguments.insert(arguments.begin(), MODEM_SIMULATOR);
    std::vector<char*> pointers;
    for (std::string& argument : arguments) pointers.push_back(argument.data());
    pointers.push_back(nullptr);
    EXPECT_EQ(
        ::posix_spawn(&process_, MODEM_SIMULATOR, &actions, nullptr, pointers.data(), environ), 0);
    ::posix_spawn_file_actions_destroy(&actions);
  }

  ~Program() {
    if (process_ <= 0) return;
    ::kill(process_, SIGKILL);
    ::waitpid(process_, nullptr, 0);
  }

  Program(const Program&) = delete;
  Program& operator=(const Program&) = delete;

  // The next line of standard output; empty when none comes.
  std::string line() { return lineOf(output_); }

  // The next line of standard error.
  std::string complaint() { return lineOf(complaints_); }

  void type(std::string_view text) {
    EXPECT_EQ(::write(input_.number(), text.data(), text.size()),
              static_cast<ssize_t>(text.size()));
  }

  void closeInput() { input_.reset(); }
  void signal(int number) { ::kill(process_, number); }

  // The exit status, once the program has ended by itself; minus the signal when one ended it.
  int exitStatus() {
    line();  // the end of its output is the end of it
    int status = 0;
    ::waitpid(process_, &status, 0);
    process_ = -1;
    return WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status);
  }

 private:
  static std::string lineOf(const Descriptor& stream) {
    std::string line;
    pollfd watched{.fd = stream.number(), .events = POLLIN, .revents = 0};
    for (char c = 0; ::poll(&watched, 1, kPatience) > 0 && ::read(stream.number(), &c, 1) == 1;) {
      if (c == '\n') break;
      line += c;
    }
    return line;
  }

  pid_t process_ = -1;
  Descriptor input_;
  Descriptor output_;
  Descriptor complaints_;
};

class ProgramTest : public testing::Test {
 protected:
  bool linkIsThere() const {
    return std::filesystem::exists(std::filesystem::symlink_status(link_));
  }

  TemporaryFolder folder_;
  const std::string link_ = (folder_.path() / "modem").string();
};

TEST_F(ProgramTest, SaysWhereItIsWhenItIsReady) {
  Program program({"--link", link_, "--speed", "9600", "--seed", "42"});
  const std::string line = program.line();
  EXPECT_EQ(line, "modem on " + std::filesystem::read_symlink(link_).string() + " (linked as " +
                      link_ + "), 9600 baud, seed 42");
}

TEST_F(ProgramTest, SignalsEndItInOrderAndTheLinkGoes) {
  for (const int number : {SIGTERM, SIGINT, SIGHUP}) {
    Program program({"--link", link_, "--speed", "9600"});
    ASSERT_NE(program.line(), "");
    EXPECT_TRUE(linkIsThere());
    program.signal(number);
    EXPECT_EQ(program.exitStatus(), 0);
    EXPECT_FALSE(linkIsThere());
  }
}

TEST_F(ProgramTest, QuitOnTheConsoleEndsItToo) {
  Program program({"--link", link_, "--speed", "0"});
  EXPECT_NE(program.line().find(", autobaud, seed "), std::string::npos);
  program.type("signal 5\nquit\n");
  EXPECT_EQ(program.exitStatus(), 0);
  EXPECT_FALSE(linkIsThere());
}

TEST_F(ProgramTest, EndOfStandardInputLeavesItRunning) {
  Program program({"--link", link_, "--speed", "9600", "--time-factor", "20"});
  ASSERT_NE(program.line(), "");
  program.closeInput();
  SerialHost host(link_, B9600);
  host.write("AT\r");
  EXPECT_EQ(host.readUntil("OK\r\n", kPatience), "AT\r\r\nOK\r\n");
  EXPECT_TRUE(linkIsThere());
}

TEST_F(ProgramTest, BadOptionsEndItWithTwoAndAMessage) {
  Program program({"--speed", "1234"});
  EXPECT_EQ(program.complaint(),
            "modem-simulator: --speed doesn't take '1234': N is wanted (bits per second, 300 to "
            "115200; 0 for any)");
  EXPECT_EQ(program.exitStatus(), 2);
}

TEST_F(ProgramTest, HelpEndsItWell) {
  Program program({"--help"});
  EXPECT_EQ(program.line(), "usage: modem-simulator [OPTION]...");
  EXPECT_EQ(program.exitStatus(), 0);
}

TEST_F(ProgramTest, LinkThatCantBeMadeEndsItWithAMessage) {
  std::ofstream(link_) << "mine";
  Program program({"--link", link_});
  EXPECT_NE(program.complaint().find(link_ + " is there"), std::string::npos);
  EXPECT_EQ(program.exitStatus(), 1);
  EXPECT_TRUE(linkIsThere());
}

TEST_F(ProgramTest, StoredProfileComesBackInTheNextRun) {
  const std::string profile = (folder_.path() / "profile").string();
  std::ofstream(profile) << "+IPR=19200\n";
  Program program({"--link", link_, "--profile", profile});
  EXPECT_NE(program.line().find(", 19200 baud, "), std::string::npos);
}

TEST_F(ProgramTest, PhoneBookOfAFileIsServedAndChangesGoIntoIt) {
  const std::string book = (folder_.path() / "book").string();
  std::ofstream(book) << "2\t+33639981201\tAnna\nnoise\n";
  Program program({"--link", link_, "--speed", "9600", "--time-factor", "20", "--phonebook", book});
  EXPECT_EQ(program.complaint(),
            "phone book " + book + ", line 2: the location isn't a number from 1 to 250");
  ASSERT_NE(program.line(), "");
  SerialHost host(link_, B9600);
  host.write("ATE0\r");
  host.readUntil("OK\r\n", kPatience);
  host.write("AT+CPBW=7,0123456,,\" Ben\"\r");
  EXPECT_EQ(host.readUntil("OK\r\n", kPatience), "\r\nOK\r\n");
  std::ostringstream kept;
  kept << std::ifstream(book).rdbuf();
  EXPECT_EQ(kept.str(), "2\t+33639981201\tAnna\n7\t0123456\t Ben\n");
}

TEST_F(ProgramTest, PhoneBookThatCantBeReadEndsIt) {
  const std::string book = (folder_.path() / "book").string();
  std::filesystem::create_directory(book);
  Program program({"--phonebook", book});
  EXPECT_EQ(program.complaint(), "modem-simulator: phone book " + book + " can't be read");
  EXPECT_EQ(program.exitStatus(), 1);
}

TEST_F(ProgramTest, HostCallsAndIsCalled) {
  Program program({"--link", link_, "--speed", "9600", "--time-factor", "20"});
  ASSERT_NE(program.line(), "");
  SerialHost host(link_, B9600);
  host.write("ATE0\rATD0146290800;\r");
  EXPECT_EQ(host.readUntil("OK\r\n\r\nOK\r\n", kPatience), "ATE0\r\r\nOK\r\n\r\nOK\r\n");
  program.type("hangup\nring 0123\n");
  EXPECT_EQ(host.readUntil("RING\r\n", kPatience), "\r\nNO CARRIER\r\n\r\nRING\r\n");
  program.type("giveup\n");
  EXPECT_NE(host.readUntil("CARRIER\r\n", kPatience).find("\r\nNO CARRIER\r\n"), std::string::npos);
}

}  // namespace
}  // namespace gsm::pty
