#include "importer/child_process.h"

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <stdexcept>

#include "tests/support/temporary_folder.h"

namespace gsm {
namespace {

constexpr ChildBounds kBounds = {
    .time = std::chrono::seconds(60), .memory = std::size_t{1} << 30, .output = 1 << 20};

void say(int descriptor, const std::string& words) {
  ASSERT_EQ(write(descriptor, words.data(), words.size()), static_cast<ssize_t>(words.size()));
}

TEST(ChildProcess, WhatItSaysComesBack) {
  EXPECT_EQ(runInChild([](int descriptor) { say(descriptor, "words"); }, kBounds), "words");
  EXPECT_EQ(runInChild([](int) {}, kBounds), "");
}

TEST(ChildProcess, ItChangesNothingHere) {
  int number = 1;
  runInChild([&number](int) { number = 2; }, kBounds);
  EXPECT_EQ(number, 1);
}

TEST(ChildProcess, ACrashEndsOnlyWhatItSays) {
  EXPECT_EQ(runInChild(
                [](int descriptor) {
                  say(descriptor, "before");
                  std::raise(SIGKILL);
                  say(descriptor, "after");
                },
                kBounds),
            "before");
  EXPECT_EQ(runInChild([](int) { std::abort(); }, kBounds), "");
}

TEST(ChildProcess, AnExceptionStaysThere) {
  EXPECT_EQ(runInChild([](int) { throw std::logic_error("not here"); }, kBounds), "");
}

TEST(ChildProcess, OneThatNeverEndsIsGivenUp) {
  ChildBounds bounds = kBounds;
  bounds.time = std::chrono::milliseconds(200);
  EXPECT_EQ(runInChild(
                [](int descriptor) {
                  say(descriptor, "words");
                  for (;;) pause();
                },
                bounds),
            std::nullopt);
}

TEST(ChildProcess, OneThatFallsSilentForEverIsNotWaitedFor) {
  EXPECT_EQ(runInChild(
                [](int descriptor) {
                  say(descriptor, "words");
                  close(descriptor);
                  for (;;) pause();
                },
                kBounds),
            "words");
}

TEST(ChildProcess, OneThatNeverStopsTalkingIsCutShort) {
  ChildBounds bounds = kBounds;
  bounds.output = 100'000;
  const auto said = runInChild(
      [](int descriptor) {
        for (;;) say(descriptor, std::string(999, 'x'));
      },
      bounds);
  EXPECT_EQ(said, std::string(100'000, 'x'));
}

TEST(ChildProcess, ItsMemoryIsBounded) {
  if (!kChildMemoryIsBounded) GTEST_SKIP() << "not under this sanitizer";
  const auto tryToTake = [](std::size_t bytes) {
    return runInChild(
        [bytes](int descriptor) {
          void* volatile taken = std::malloc(bytes);
          say(descriptor, taken == nullptr ? "none" : "taken");
        },
        kBounds);
  };
  EXPECT_EQ(tryToTake(std::size_t{1} << 20), "taken");
  EXPECT_EQ(tryToTake(std::size_t{1} << 31), "none");
}

TEST(ChildProcess, ItCanWriteNoFiles) {
  const TemporaryFolder folder;
  runInChild([&folder](int) { folder.write("file", "words"); }, kBounds);
  EXPECT_EQ(folder.read("file").value_or(""), "");
}

TEST(ChildProcess, ItHasNoEnvironment) {
  ASSERT_NE(std::getenv("PATH"), nullptr);
  EXPECT_EQ(
      runInChild(
          [](int descriptor) { say(descriptor, std::getenv("PATH") == nullptr ? "none" : "some"); },
          kBounds),
      "none");
}

TEST(ChildProcess, NoneIsLeftBehind) {
  runInChild([](int) {}, kBounds);
  EXPECT_EQ(waitpid(-1, nullptr, WNOHANG), -1);
}

}  // namespace
}  // namespace gsm
