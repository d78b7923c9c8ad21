#include "simulator/host/pty_server.h"

#include <gtest/gtest.h>

#include <array>

#include "tests/simulator/serial_host.h"
#include "tests/support/temporary_folder.h"

namespace gsm::pty {
namespace {

using std::chrono::milliseconds;

// The delays are real here; this factor makes them short.
constexpr double kFast = 20;

class PtyServerTest : public testing::Test {
 protected:
  PtyServerOptions options(int speed = 9600) const {
    return {.modem = {.speed = speed}, .link = link_, .timeFactor = kFast};
  }

  // Serves until `wanted` has arrived at the host, for two seconds at most.
  std::string serveUntil(PtyServer& server, SerialHost& host, std::string_view wanted) {
    std::string received;
    for (int i = 0; i < 400 && received.find(wanted) == std::string::npos; ++i) {
      server.step(milliseconds(5));
      received += host.read();
    }
    return received;
  }

  // Serves for a while and returns all that arrives.
  std::string serve(PtyServer& server, SerialHost& host) {
    std::string received;
    for (int i = 0; i < 20; ++i) {
      server.step(milliseconds(5));
      received += host.read();
    }
    return received;
  }

  TemporaryFolder folder_;
  const std::string link_ = (folder_.path() / "modem").string();
  simulator::MemoryProfileStore store_;
};

TEST_F(PtyServerTest, AnswersThroughItsLink) {
  PtyServer server(store_, options());
  EXPECT_EQ(std::filesystem::read_symlink(link_), server.device());
  SerialHost host(link_, B9600);
  ASSERT_TRUE(host.write("AT\r"));
  EXPECT_EQ(serveUntil(server, host, "OK\r\n"), "AT\r\r\nOK\r\n");
}

TEST_F(PtyServerTest, AnswersAtTheRightSpeedOnly) {
  PtyServer server(store_, options(115200));
  SerialHost host(link_, B9600);
  host.write("AT\r");
  EXPECT_EQ(serve(server, host), "");
  host.setSpeed(B115200);
  host.write("AT\r");
  EXPECT_EQ(serveUntil(server, host, "OK\r\n"), "AT\r\r\nOK\r\n");
}

TEST_F(PtyServerTest, AnswersAtEverySpeedOfAModem) {
  const std::pair<speed_t, int> kSpeeds[] = {
      {B300, 300},   {B600, 600},     {B1200, 1200},   {B2400, 2400},   {B4800, 4800},
      {B9600, 9600}, {B19200, 19200}, {B38400, 38400}, {B57600, 57600}, {B115200, 115200}};
  for (const auto& [code, speed] : kSpeeds) {
    PtyServer server(store_, options(speed));
    SerialHost host(link_, code);
    host.write("AT\r");
    EXPECT_EQ(serveUntil(server, host, "OK\r\n"), "AT\r\r\nOK\r\n") << speed;
  }
}

TEST_F(PtyServerTest, HearsNothingAtASpeedThatNoModemHas) {
  PtyServer server(store_, options(simulator::kAutobaud));
  SerialHost host(link_, B460800);
  host.write("AT\r");
  EXPECT_EQ(serve(server, host), "");
}

TEST_F(PtyServerTest, SpeedThatWasNeverSetCountsAsTheModemsOwn) {
  for (const int speed : {19200, 115200, simulator::kAutobaud}) {
    PtyServer server(store_, options(speed));
    SerialHost host(link_, B0);
    host.write("AT\r");
    EXPECT_EQ(serveUntil(server, host, "OK\r\n"), "AT\r\r\nOK\r\n") << speed;
    server.console("line RING");
    EXPECT_EQ(serveUntil(server, host, "RING\r\n"), "\r\nRING\r\n") << speed;
  }
}

TEST_F(PtyServerTest, FollowsTheModemToAnotherSpeed) {
  PtyServer server(store_, options());
  SerialHost host(link_, B9600);
  host.write("AT+IPR=57600\r");
  EXPECT_EQ(serveUntil(server, host, "OK\r\n"), "AT+IPR=57600\r\r\nOK\r\n");
  EXPECT_EQ(server.speed(), 57600);
  host.setSpeed(B57600);
  host.write("AT\r");
  EXPECT_EQ(serveUntil(server, host, "OK\r\n"), "AT\r\r\nOK\r\n");
}

TEST_F(PtyServerTest, SendsNothingToAHostAtAnotherSpeed) {
  PtyServer server(store_, options());
  SerialHost host(link_, B19200);
  server.console("line RING");
  EXPECT_EQ(serve(server, host), "");
}

TEST_F(PtyServerTest, LineCarriesEveryByteUnchanged) {
  PtyServer server(store_, options());
  SerialHost host(link_, B9600);
  std::string all;
  std::string line = "say \"";
  for (int value = 0; value < 256; ++value) {
    constexpr const char* kDigits = "0123456789abcdef";
    all += static_cast<char>(value);
    line += std::string("\\x") + kDigits[value / 16] + kDigits[value % 16];
  }
  EXPECT_EQ(server.console(line + "\""), "");
  EXPECT_EQ(serveUntil(server, host, "\xFE\xFF"), all);
}

TEST_F(PtyServerTest, ServesOneHostAfterTheOther) {
  PtyServer server(store_, options());
  for (int i = 0; i < 3; ++i) {
    SerialHost host(link_, B9600);
    host.write("AT\r");
    EXPECT_EQ(serveUntil(server, host, "OK\r\n"), "AT\r\r\nOK\r\n");
  }
}

TEST_F(PtyServerTest, UnplugHangsUpAndTakesTheLinkAway) {
  PtyServer server(store_, options());
  SerialHost host(link_, B9600);
  EXPECT_FALSE(host.hungUp());
  EXPECT_EQ(server.console("unplug"), "");
  EXPECT_TRUE(host.hungUp());
  EXPECT_FALSE(std::filesystem::exists(std::filesystem::symlink_status(link_)));
  EXPECT_TRUE(server.step(milliseconds(1)));
}

TEST_F(PtyServerTest, PlugBringsAnotherPortUnderTheSameLink) {
  PtyServer server(store_, options());
  server.console("unplug");
  EXPECT_EQ(server.console("plug"), "");
  SerialHost host(link_, B9600);
  host.write("AT\r");
  EXPECT_EQ(serveUntil(server, host, "OK\r\n"), "AT\r\r\nOK\r\n");
}

TEST_F(PtyServerTest, UnplugLosesTheReplyUnderWay) {
  PtyServer server(store_, options());
  {
    SerialHost host(link_, B9600);
    host.write("AT\r");
    server.step(milliseconds(5));
  }
  server.console("unplug");
  server.console("plug");
  SerialHost host(link_, B9600);
  serve(server, host);
  host.write("AT\r");
  EXPECT_EQ(serveUntil(server, host, "OK\r\n"), "AT\r\r\nOK\r\n");
}

TEST_F(PtyServerTest, RemovesItsLinkAtTheEnd) {
  { const PtyServer server(store_, options()); }
  EXPECT_FALSE(std::filesystem::exists(std::filesystem::symlink_status(link_)));
}

TEST_F(PtyServerTest, WorksWithoutALink) {
  PtyServer server(store_, {.modem = {.speed = 9600}, .timeFactor = kFast});
  SerialHost host(server.device(), B9600);
  host.write("AT\r");
  EXPECT_EQ(serveUntil(server, host, "OK\r\n"), "AT\r\r\nOK\r\n");
}

TEST_F(PtyServerTest, NeverBlocksOnAHostThatDoesntRead) {
  PtyServer server(store_, options());
  for (int i = 0; i < 200; ++i) {
    server.console("say \"" + std::string(4000, 'x') + "\"");
    server.step(milliseconds(0));
  }
  for (int i = 0; i < 400; ++i) server.step(milliseconds(5));
  SerialHost host(link_, B9600);
  const std::string stale = serve(server, host);
  EXPECT_FALSE(stale.empty());
  EXPECT_EQ(stale.find_first_not_of('x'), std::string::npos);
}

TEST_F(PtyServerTest, QuitEndsIt) {
  PtyServer server(store_, options());
  server.console("quit");
  EXPECT_FALSE(server.step(milliseconds(1)));
}

// A pipe whose reading end the server watches.
struct Pipe {
  Pipe() {
    std::array<int, 2> ends{};
    if (::pipe(ends.data()) != 0) throwSystemError("no pipe");
    reading = Descriptor(ends[0]);
    writing = Descriptor(ends[1]);
  }
  void write(std::string_view bytes) {
    EXPECT_EQ(::write(writing.number(), bytes.data(), bytes.size()),
              static_cast<ssize_t>(bytes.size()));
  }
  Descriptor reading;
  Descriptor writing;
};

TEST_F(PtyServerTest, ConsoleTakesItsLinesFromADescriptor) {
  Pipe console;
  auto chosen = options();
  chosen.consoleInput = console.reading.number();
  PtyServer server(store_, chosen);
  console.write("echo off\nfoo\nqui");
  testing::internal::CaptureStdout();
  EXPECT_TRUE(server.step(milliseconds(100)));
  EXPECT_EQ(testing::internal::GetCapturedStdout(), "error: no command 'foo'; 'help' lists them\n");
  console.write("t\n");
  EXPECT_FALSE(server.step(milliseconds(100)));
}

TEST_F(PtyServerTest, EndOfTheConsoleIsNotTheEndOfTheServer) {
  Pipe console;
  auto chosen = options();
  chosen.consoleInput = console.reading.number();
  PtyServer server(store_, chosen);
  console.write("echo off");
  console.writing.reset();
  EXPECT_TRUE(server.step(milliseconds(100)));
  SerialHost host(link_, B9600);
  EXPECT_TRUE(server.step(milliseconds(100)));
  host.write("AT\r");
  EXPECT_EQ(serveUntil(server, host, "OK\r\n"), "\r\nOK\r\n");
}

TEST_F(PtyServerTest, StopDescriptorEndsIt) {
  Pipe stop;
  auto chosen = options();
  chosen.stopDescriptor = stop.reading.number();
  PtyServer server(store_, chosen);
  EXPECT_TRUE(server.step(milliseconds(1)));
  stop.write("x");
  server.run();
  EXPECT_FALSE(server.step(milliseconds(1)));
}

}  // namespace
}  // namespace gsm::pty
