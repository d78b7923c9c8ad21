#include "platform/chunk_gatherer.h"

#include <gtest/gtest.h>

namespace gsm {
namespace {

using namespace std::chrono_literals;

TEST(ChunkGatherer, HasNothingToGiveBeforeSomethingHasCome) {
  ChunkGatherer gatherer;
  gatherer.setLine({});
  EXPECT_EQ(gatherer.end(), std::nullopt);
  EXPECT_EQ(gatherer.take(), "");
}

TEST(ChunkGatherer, JoinsWhatComesBeforeTheLineHasBeenQuiet) {
  ChunkGatherer gatherer;
  gatherer.setLine({.baud = 115200});
  gatherer.add("\r\nO", 1s);
  EXPECT_EQ(gatherer.end(), 1s + 20ms);
  gatherer.add("K\r\n", 1s + 19ms);
  EXPECT_EQ(gatherer.end(), 1s + 39ms);
  EXPECT_EQ(gatherer.take(), "\r\nOK\r\n");
  EXPECT_EQ(gatherer.end(), std::nullopt);
}

struct Line {
  const char* name;
  LineSettings settings;
  Duration quiet;
};

TEST(ChunkGatherer, IsQuietForThreeAndAHalfCharactersAndTwentyMillisecondsAtLeast) {
  const Line rows[] = {
      {.name = "ten bits at 300 baud", .settings = {.baud = 300}, .quiet = fromSeconds(35.0 / 300)},
      {.name = "at 1200", .settings = {.baud = 1200}, .quiet = fromSeconds(35.0 / 1200)},
      {.name = "parity and a second stop bit",
       .settings = {.baud = 300, .parity = Parity::even, .stopBits = StopBits::two},
       .quiet = fromSeconds(42.0 / 300)},
      {.name = "five data bits and one and a half stop bits",
       .settings = {.baud = 110, .dataBits = 5, .stopBits = StopBits::oneAndHalf},
       .quiet = fromSeconds(3.5 * 7.5 / 110)},
      {.name = "a fast line", .settings = {.baud = 9600}, .quiet = 20ms},
  };
  for (const Line& row : rows) {
    ChunkGatherer gatherer;
    gatherer.setLine(row.settings);
    gatherer.add("x", 5s);
    EXPECT_EQ(gatherer.end(), 5s + row.quiet) << row.name;
  }
}

TEST(ChunkGatherer, AChunkOfFourKibibytesWaitsForNothing) {
  ChunkGatherer gatherer;
  gatherer.setLine({.baud = 300});
  gatherer.add(std::string(4095, 'x'), 1s);
  EXPECT_GT(gatherer.end(), 1s);
  gatherer.add("x", 2s);
  EXPECT_EQ(gatherer.end(), 2s);
  EXPECT_EQ(gatherer.take().size(), 4096u);
}

}  // namespace
}  // namespace gsm
