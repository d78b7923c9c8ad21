#include "platform/posix/end_signals.h"

#include <gtest/gtest.h>
#include <poll.h>
#include <signal.h>
#include <unistd.h>

#include <tuple>

namespace gsm {
namespace {

bool hasCome(const EndSignals& signals) {
  pollfd descriptor{signals.descriptor(), POLLIN, 0};
  return ::poll(&descriptor, 1, 0) == 1;
}

TEST(EndSignals, ReportTheFirstThatComes) {
  for (const int number : {SIGTERM, SIGINT, SIGHUP}) {
    const EndSignals signals;
    EXPECT_FALSE(hasCome(signals)) << number;
    ::raise(number);
    EXPECT_TRUE(hasCome(signals)) << number;
  }
}

TEST(EndSignalsDeathTest, TheNextEndsAtOnceWhicheverItIs) {
  const auto signalled = [](int first, int second) {
    const EndSignals signals;
    ::raise(first);
    ::raise(second);
    ::_exit(0);
  };
  EXPECT_EXIT(signalled(SIGTERM, SIGTERM), ::testing::KilledBySignal(SIGTERM), "");
  EXPECT_EXIT(signalled(SIGTERM, SIGINT), ::testing::KilledBySignal(SIGINT), "");
  EXPECT_EXIT(signalled(SIGHUP, SIGTERM), ::testing::KilledBySignal(SIGTERM), "");
}

TEST(EndSignalsDeathTest, WhatTheProgramWasStartedToIgnoreStaysIgnored) {
  const auto ignoring = [] {
    ::signal(SIGHUP, SIG_IGN);
    const EndSignals signals;
    ::raise(SIGHUP);
    ::_exit(hasCome(signals) ? 1 : 0);
  };
  EXPECT_EXIT(ignoring(), ::testing::ExitedWithCode(0), "");
}

TEST(EndSignalsDeathTest, AReaderThatHasGoneEndsNothing) {
  const auto writing = [] {
    const EndSignals signals;
    int ends[2] = {-1, -1};
    std::ignore = ::pipe(ends);
    ::close(ends[0]);
    ::_exit(::write(ends[1], "x", 1) < 0 ? 7 : 1);
  };
  EXPECT_EXIT(writing(), ::testing::ExitedWithCode(7), "");
}

TEST(EndSignalsDeathTest, EverythingIsPutBack) {
  const auto afterwards = [](int number) {
    { const EndSignals signals; }
    ::raise(number);
    ::_exit(0);
  };
  EXPECT_EXIT(afterwards(SIGTERM), ::testing::KilledBySignal(SIGTERM), "");
  EXPECT_EXIT(afterwards(SIGPIPE), ::testing::KilledBySignal(SIGPIPE), "");
}

}  // namespace
}  // namespace gsm
