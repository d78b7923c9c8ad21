#include "importer/jet_messages.h"

#include <gtest/gtest.h>

#include "importer/child_process.h"

namespace gsm {
namespace {

std::string written(const std::function<void(JetMessageWriter&)>& write) {
  return runInChild(
             [&write](int descriptor) {
               JetMessageWriter out(descriptor);
               write(out);
               out.flush();
             },
             {.time = std::chrono::seconds(60), .memory = 1 << 30, .output = 1 << 30})
      .value();
}

TEST(JetMessages, NumbersAndTextsComeAsTheyWereWritten) {
  const std::string large(200'000, 'x');
  const std::string bytes = written([&large](JetMessageWriter& out) {
    out.number(0);
    out.number(0xFFFFFFFF);
    out.text("");
    out.text(std::string("a\0b", 3));
    out.text(large);
  });
  JetMessageReader reader(bytes);
  EXPECT_EQ(reader.number(), 0u);
  EXPECT_EQ(reader.number(), 0xFFFFFFFFu);
  EXPECT_EQ(reader.text(), "");
  EXPECT_EQ(reader.text(), std::string("a\0b", 3));
  EXPECT_FALSE(reader.atEnd());
  EXPECT_EQ(reader.text(), large);
  EXPECT_TRUE(reader.atEnd());
}

TEST(JetMessages, NothingIsReadBeyondTheEnd) {
  EXPECT_EQ(JetMessageReader("").number(), std::nullopt);
  EXPECT_EQ(JetMessageReader("abc").number(), std::nullopt);
  EXPECT_EQ(JetMessageReader("").text(), std::nullopt);
  EXPECT_EQ(JetMessageReader(std::string_view("\4\0\0\0abc", 7)).text(), std::nullopt);
  EXPECT_EQ(JetMessageReader("\xFF\xFF\xFF\xFF").text(), std::nullopt);
}

}  // namespace
}  // namespace gsm
