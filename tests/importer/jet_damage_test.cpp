#include <gtest/gtest.h>
#include <sys/stat.h>

#include <chrono>
#include <cstdlib>
#include <random>

#include "platform/runtime_failure.h"
#include "tests/importer/old_book.h"

namespace gsm::jet {
namespace {

class JetDamage : public ::testing::TestWithParam<Version> {
 protected:
  static Database book() {
    std::vector<Row> entries;
    for (int index = 1; index <= 120; ++index) {
      entries.push_back(entry(GetParam(), std::to_string(index),
                              "+49170123" + std::to_string(index), "Somebody"));
    }
    return oldBook(GetParam(), entries);
  }
  std::string failureOf(const std::string& bytes, const JetBounds& bounds = {}) const {
    return failureOfBook(folder_, bytes, bounds);
  }
  std::string path() const { return "'" + (folder_.path() / "old.mdb").string() + "'"; }

  TemporaryFolder folder_;
};

INSTANTIATE_TEST_SUITE_P(Versions, JetDamage, ::testing::Values(Version::jet3, Version::jet4),
                         [](const auto& tested) { return nameOf(tested.param); });

TEST_P(JetDamage, AMissingTableIsNamed) {
  Database without = book();
  without.tables.pop_back();
  EXPECT_EQ(failureOf(fileOf(without)), path() + " has no table 'Details'.");
}

TEST_P(JetDamage, ALinkToATableElsewhereIsNoTable) {
  Database linked = book();
  linked.tables[0].type = 6;
  EXPECT_EQ(failureOf(fileOf(linked)), path() + " has no table 'DATA'.");
}

TEST_P(JetDamage, AMissingColumnIsNamed) {
  Database without = book();
  without.tables[0].columns[1].name = "Phone";
  EXPECT_EQ(failureOf(fileOf(without)), path() + " has no column 'Number' in its table 'DATA'.");
}

TEST_P(JetDamage, AColumnOfPicturesIsRefused) {
  Database pictures = book();
  pictures.tables[0].columns[2].type = ColumnType::ole;
  EXPECT_EQ(failureOf(fileOf(pictures)),
            path() + " has neither texts nor numbers in column 'Name' in its table 'DATA'.");
}

TEST_P(JetDamage, FewerRowsThanTheDefinitionReportsAreDamage) {
  Database lost = book();
  lost.tables[0].declared = 121;
  EXPECT_EQ(failureOf(fileOf(lost)),
            path() + " is damaged: of the 121 rows of table 'DATA' only 120 can be read.");
}

// The rows that a page lost would otherwise be rows of nothing.
TEST_P(JetDamage, AFileThatEndsWithinAPageIsRefused) {
  const std::string whole = fileOf(book());
  EXPECT_EQ(failureOf(whole.substr(0, whole.size() - 1)),
            path() + " is damaged: its end is missing.");
}

TEST_P(JetDamage, AFileCutOffAnywhereIsRefused) {
  const std::string whole = fileOf(book());
  ASSERT_EQ(failureOf(whole), "");
  for (std::size_t size = 0; size < whole.size(); size += 509) {
    EXPECT_NE(failureOf(whole.substr(0, size)), "") << "cut at " << size;
  }
  for (std::size_t size = 0; size < whole.size(); size += pageSize(GetParam())) {
    EXPECT_NE(failureOf(whole.substr(0, size)), "") << "cut at " << size;
  }
}

// Whatever is after the header, it is rows or a failure, and soon.
TEST_P(JetDamage, GarbageIsSurvived) {
  const char* given = std::getenv("GSM_SEED");
  const unsigned seed = given != nullptr ? static_cast<unsigned>(std::strtoul(given, nullptr, 10))
                                         : std::random_device{}();
  std::cout << "seed " << seed << ", to be given back as GSM_SEED\n";
  std::mt19937 random(seed);
  const std::string whole = fileOf(book());
  const auto below = [&random](std::size_t end) {
    return std::uniform_int_distribution<std::size_t>(0, end - 1)(random);
  };
  int refused = 0;
  for (int round = 0; round < 150; ++round) {
    std::string bytes = whole;
    const std::size_t begin = pageSize(GetParam()) + below(3 * pageSize(GetParam()));
    const std::size_t count = round % 3 == 0 ? bytes.size() : 1 + below(30);
    for (std::size_t i = 0; i < count; ++i) {
      const std::size_t place =
          round % 3 == 1 ? begin + i
                         : pageSize(GetParam()) + below(bytes.size() - pageSize(GetParam()));
      bytes.at(place) = static_cast<char>(below(256));
    }
    if (!failureOf(bytes, {.time = std::chrono::seconds(2)}).empty()) ++refused;
  }
  EXPECT_GE(refused, 50);  // every third was garbage all over
}

// The library follows a memo from row to row, and this one's row is followed by itself for ever.
TEST_P(JetDamage, AFileWithoutAnEndIsGivenUp) {
  Database endless = book();
  endless.tables[0].columns[2].type = ColumnType::memo;
  endless.looseRows = {int32(1 << 8 | kFirstLooseRow)};
  for (Row& row : endless.tables[0].rows) row.cells[2] = memoIn(kFirstLooseRow, 100);
  const auto before = std::chrono::steady_clock::now();
  EXPECT_EQ(failureOf(fileOf(endless), {.time = std::chrono::milliseconds(300)}),
            path() + " is damaged: reading it takes too long.");
  EXPECT_LT(std::chrono::steady_clock::now() - before, std::chrono::seconds(20));
}

TEST_P(JetDamage, MoreTextThanAllowedIsRefused) {
  EXPECT_EQ(failureOf(fileOf(book()), {.texts = 1000}),
            path() + " is damaged: it can't be read to its end.");
}

TEST(NoJetFile, AnythingElseIsRefused) {
  const TemporaryFolder folder;
  const std::string whole = fileOf(oldBook(Version::jet4, {}));
  std::string laterVersion = whole;
  laterVersion[0x14] = 2;
  std::string otherMark = whole;
  otherMark.replace(4, 12, "Standard ACE");
  const std::string refusal =
      "'" + (folder.path() / "old.mdb").string() + "' isn't a Jet 3 or Jet 4 database.";
  for (const std::string& bytes :
       {std::string(), std::string("Standard Jet DB"), std::string("SQLite format 3"),
        std::string(8192, '\0'), whole.substr(1), laterVersion, otherMark}) {
    EXPECT_EQ(failureOfBook(folder, bytes), refusal);
  }
}

TEST(NoJetFile, AMissingFileAFolderAndAPipeAreRefused) {
  const TemporaryFolder folder;
  const auto pipe = folder.path() / "pipe";
  ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
  for (const auto& path : {folder.path() / "none.mdb", folder.path(), pipe}) {
    try {
      readJetFile(path, bookTables());
      ADD_FAILURE() << path << " was read";
    } catch (const RuntimeFailure& failure) {
      EXPECT_EQ(failure.description(), "Could not find file '" + path.string() + "'.");
    }
  }
}

}  // namespace
}  // namespace gsm::jet
