#include "importer/jet_listener.h"

#include <gtest/gtest.h>

#include <cstring>

#include "importer/jet_messages.h"

namespace gsm {
namespace {

using Rows = std::vector<std::vector<JetRow>>;

std::string number(std::uint32_t value) {
  std::string bytes(sizeof value, '\0');
  std::memcpy(bytes.data(), &value, sizeof value);
  return bytes;
}
std::string text(const std::string& words) {
  return number(static_cast<std::uint32_t>(words.size())) + words;
}
std::string kind(JetMessage message) { return number(static_cast<std::uint32_t>(message)); }
std::string table(std::uint32_t rows) { return kind(JetMessage::table) + number(rows); }
std::string row(const std::string& a, const std::string& b) {
  return kind(JetMessage::row) + text(a) + text(b);
}
std::string problem(std::uint32_t what, std::uint32_t table, std::uint32_t column) {
  return kind(JetMessage::problem) + number(what) + number(table) + number(column);
}
const std::string kEnd = kind(JetMessage::end);

Rows listenTo(const std::string& said) {
  return rowsTold("old.mdb", {{"ONE", {"A", "B"}}, {"TWO", {"C", "D"}}}, said);
}

TEST(JetListener, MakesRowsOfWhatWasSaid) {
  EXPECT_EQ(listenTo(table(2) + row("a", "") + row("c", "d") + table(0) + kEnd),
            (Rows{{{"a", ""}, {"c", "d"}}, {}}));
}

TEST(JetListener, TakesMoreRowsThanWereDeclared) {
  EXPECT_EQ(listenTo(table(0) + row("a", "b") + table(1) + row("c", "d") + kEnd),
            (Rows{{{"a", "b"}}, {{"c", "d"}}}));
}

struct Failing {
  const char* name;
  std::string said;
  const char* failure;
};

constexpr const char* kNonsense = "'old.mdb' is damaged: it can't be read to its end.";

class FailingReader : public ::testing::TestWithParam<Failing> {};

INSTANTIATE_TEST_SUITE_P(
    Words, FailingReader,
    ::testing::Values(
        Failing{"SaysNothing", "", kNonsense}, Failing{"SaysTheEndOnly", kEnd, kNonsense},
        Failing{"StopsBeforeTheEnd", table(0) + table(0), kNonsense},
        Failing{"ForgetsATable", table(0) + kEnd, kNonsense},
        Failing{"HasATableTooMany", table(0) + table(0) + table(0) + kEnd, kNonsense},
        Failing{"SpeaksOnBehindTheEnd", table(0) + table(0) + kEnd + "x", kNonsense},
        Failing{"HasARowOfNoTable", row("a", "b") + table(0) + table(0) + kEnd, kNonsense},
        Failing{"SpeaksOfAnUnknownKind", number(9), kNonsense},
        Failing{"StopsWithinANumber", table(1).substr(0, 6), kNonsense},
        Failing{"StopsWithinAText", table(1) + kind(JetMessage::row) + text("abc").substr(0, 6),
                kNonsense},
        Failing{"HasAHugeText", table(1) + kind(JetMessage::row) + number(0xFFFFFFFF) + "abc",
                kNonsense},
        Failing{"LacksARow", table(2) + row("a", "b") + table(0) + kEnd,
                "'old.mdb' is damaged: of the 2 rows of table 'ONE' only 1 can be read."},
        Failing{"LacksARowOfTheLastTable", table(0) + table(1) + kEnd,
                "'old.mdb' is damaged: of the 1 rows of table 'TWO' only 0 can be read."},
        Failing{"CannotReadTheFile", problem(1, 0, 0), kNonsense},
        Failing{"FindsNoTable", problem(2, 1, 0), "'old.mdb' has no table 'TWO'."},
        Failing{"FindsNoColumn", problem(3, 0, 1),
                "'old.mdb' has no column 'B' in its table 'ONE'."},
        Failing{"FindsNoText", problem(4, 1, 0),
                "'old.mdb' has neither texts nor numbers in column 'C' in its table 'TWO'."},
        Failing{"FindsNoSuchTable", problem(2, 2, 0), kNonsense},
        Failing{"FindsNoSuchColumn", problem(3, 0, 2), kNonsense}),
    [](const auto& tested) { return tested.param.name; });

TEST_P(FailingReader, IsAFailureThatNamesTheFile) {
  try {
    listenTo(GetParam().said);
    ADD_FAILURE() << "it was believed";
  } catch (const RuntimeFailure& failure) {
    EXPECT_EQ(failure.description(), GetParam().failure);
  }
}

}  // namespace
}  // namespace gsm
