#include "simulator/line/cutter.h"

#include <gtest/gtest.h>

namespace gsm::simulator {
namespace {

std::vector<std::string> pieces(const Cutter& cutter, const std::string& bytes) {
  std::vector<std::string> found;
  for (const Chunk& chunk : cutter.cut(bytes)) found.push_back(chunk.bytes);
  return found;
}

using Pieces = std::vector<std::string>;

TEST(Cutter, WholeLeavesTheBytesTogether) {
  EXPECT_EQ(pieces(Cutter::whole(), "\r\nOK\r\n"), Pieces{"\r\nOK\r\n"});
}

TEST(Cutter, RealCutsAfterEveryLineEnd) {
  EXPECT_EQ(pieces(Cutter::real(), "\r\n+CSQ: 17,0\r\n\r\nOK\r\n"),
            (Pieces{"\r", "\n", "+CSQ: 17,0\r", "\n", "\r", "\n", "OK\r", "\n"}));
  EXPECT_EQ(pieces(Cutter::real(), "\r\n> "), (Pieces{"\r", "\n", "> "}));
}

TEST(Cutter, RealWaitsOnceBeforeTheText) {
  const auto chunks = Cutter::real().cut("\r\nA\r\n\r\nOK\r\n");
  int waits = 0;
  for (const Chunk& chunk : chunks) waits += chunk.pause.count() > 0 ? 1 : 0;
  EXPECT_EQ(waits, 1);
  EXPECT_GT(chunks[2].pause.count(), 0);
}

TEST(Cutter, EveryCutsByNumber) {
  EXPECT_EQ(pieces(Cutter::every(4), "\r\nOK\r\n"), (Pieces{"\r\nOK", "\r\n"}));
  EXPECT_EQ(pieces(Cutter::every(64), "\r\nOK\r\n"), Pieces{"\r\nOK\r\n"});
}

TEST(Cutter, CutsNothingIntoNothing) {
  for (const auto& cutter : {Cutter::whole(), Cutter::real(), Cutter::every(1)}) {
    EXPECT_TRUE(cutter.cut("").empty());
  }
}

TEST(Cutter, NamesAndParserAgree) {
  for (const char* name : {"whole", "real", "1", "62"}) {
    const auto cutter = Cutter::parse(name);
    ASSERT_TRUE(cutter) << name;
    EXPECT_EQ(cutter->name(), name);
  }
  for (const char* bad : {"", "0", "-1", "half", "3x"}) EXPECT_FALSE(Cutter::parse(bad)) << bad;
}

}  // namespace
}  // namespace gsm::simulator
