#include "importer/jet_file.h"

#include <gtest/gtest.h>

#include "platform/code_page.h"
#include "tests/importer/old_book.h"

namespace gsm::jet {
namespace {

using Rows = std::vector<JetRow>;

class JetFile : public ::testing::TestWithParam<Version> {
 protected:
  Row entryOf(const std::string& index, const std::string& number, const std::string& name) const {
    return entry(GetParam(), index, number, name);
  }
  Database book(std::vector<Row> entries) const { return oldBook(GetParam(), std::move(entries)); }
  // The rows of DATA in a file.
  Rows entriesOf(const Database& database) const {
    return readBook(folder_, fileOf(database)).at(0);
  }

  TemporaryFolder folder_;
};

INSTANTIATE_TEST_SUITE_P(Versions, JetFile, ::testing::Values(Version::jet3, Version::jet4),
                         [](const auto& tested) { return nameOf(tested.param); });

TEST_P(JetFile, GivesTheRowsOfBothTablesInTheirOrder) {
  const auto tables = readBook(
      folder_, fileOf(book({entryOf("1", "112", "Emergency"), entryOf("2", "+4930123", "Anna")})));
  EXPECT_EQ(tables, (std::vector<Rows>{{{"1", "112", "Emergency"}, {"2", "+4930123", "Anna"}},
                                       {{"50", "7"}}}));
}

TEST_P(JetFile, GivesNoRowsOfEmptyTables) {
  Database empty = book({});
  empty.tables[1].rows.clear();
  EXPECT_EQ(readBook(folder_, fileOf(empty)), (std::vector<Rows>{{}, {}}));
}

TEST_P(JetFile, NamesOfTablesAndColumnsIgnoreCase) {
  Database other = book({entryOf("1", "112", "Emergency")});
  other.tables[0].name = "data";
  other.tables[0].columns = {{"INDEX"}, {"number"}, {"nAME"}};
  other.tables[1].name = "DETAILS";
  EXPECT_EQ(entriesOf(other), (Rows{{"1", "112", "Emergency"}}));
}

TEST_P(JetFile, ColumnsAreFoundByNameWhateverElseThereIs) {
  Database other = book({});
  other.tables[0].columns = {{"Name"}, {"Key", ColumnType::int32}, {"Index"}, {"Note"}, {"Number"}};
  const auto cell = [](const std::string& words) { return text(GetParam(), words); };
  other.tables[0].rows = {
      {.cells = {cell("Anna"), int32(77), cell("3"), cell("a note"), cell("123")}}};
  other.tables.insert(other.tables.begin(),
                      {.name = "Other", .columns = {{"Index"}}, .rows = {{.cells = {cell("9")}}}});
  EXPECT_EQ(entriesOf(other), (Rows{{"3", "123", "Anna"}}));
}

TEST_P(JetFile, LettersOfTheCodePageComeInUtf8) {
  EXPECT_EQ(entriesOf(book({entryOf("1", "1", "\xC4rger \x80\xDF\x9F")})),
            (Rows{{"1", "1", "Ärger €ßŸ"}}));
}

TEST_P(JetFile, EveryByteOfTheCodePageThatIsALetterComesAsItIs) {
  for (int byte = 0x20; byte <= 0xFF; ++byte) {
    // The code page leaves these five open.
    if (byte == 0x81 || byte == 0x8D || byte == 0x8F || byte == 0x90 || byte == 0x9D) continue;
    const std::string name(3, static_cast<char>(byte));
    const Rows rows = entriesOf(book({entryOf("1", "1", name)}));
    EXPECT_EQ(rows, (Rows{{"1", "1", toUtf8(name)}})) << "byte " << byte;
  }
}

TEST_P(JetFile, NullIsAnEmptyText) {
  EXPECT_EQ(entriesOf(book({{.cells = {text(GetParam(), "1"), std::nullopt, std::nullopt}},
                            {.cells = {std::nullopt, text(GetParam(), "2"), ""}}})),
            (Rows{{"1", "", ""}, {"", "2", ""}}));
}

TEST_P(JetFile, DeletedRowsAreLeftOut) {
  Database deleted =
      book({entryOf("1", "111", "Anna"), entryOf("2", "222", "Bert"), entryOf("3", "333", "Cora")});
  deleted.tables[0].rows[0].state = Row::State::deleted;
  deleted.tables[0].rows[2].state = Row::State::deleted;
  EXPECT_EQ(entriesOf(deleted), (Rows{{"2", "222", "Bert"}}));
}

TEST_P(JetFile, ARowThatWasMovedComesOnce) {
  Database moved = book({entryOf("1", "111", "Anna"), entryOf("2", "222", "Bert")});
  moved.tables[0].rows[0].state = Row::State::moved;
  EXPECT_EQ(entriesOf(moved), (Rows{{"2", "222", "Bert"}, {"1", "111", "Anna"}}));
}

TEST_P(JetFile, NumbersComeAsTheirDigits) {
  Database numbers = book({});
  numbers.tables[0].columns[0].type = ColumnType::int16;
  const auto row = [](int index) -> Row {
    return {.cells = {int16(index), text(GetParam(), "112"), text(GetParam(), "Anna")}};
  };
  numbers.tables[0].rows = {row(1), row(250), row(-1)};
  numbers.tables[1].columns = {{"TotalIndex", ColumnType::int32}, {"UsedIndex", ColumnType::int16}};
  numbers.tables[1].rows = {{.cells = {int32(70000), int16(7)}}};
  const auto tables = readBook(folder_, fileOf(numbers));
  EXPECT_EQ(tables[0], (Rows{{"1", "112", "Anna"}, {"250", "112", "Anna"}, {"-1", "112", "Anna"}}));
  EXPECT_EQ(tables[1], (Rows{{"70000", "7"}}));
}

TEST_P(JetFile, RowsOfSeveralPagesComeInTheirOrder) {
  std::vector<Row> entries;
  Rows expected;
  for (int index = 1; index <= 500; ++index) {
    const std::string digits = std::to_string(index);
    entries.push_back(entryOf(digits, "+49170" + digits, "Name " + digits));
    expected.push_back({digits, "+49170" + digits, "Name " + digits});
  }
  const std::string file = fileOf(book(entries));
  ASSERT_GT(file.size() / pageSize(GetParam()), 8u);
  EXPECT_EQ(readBook(folder_, file)[0], expected);
}

TEST_P(JetFile, AScrambledFileIsRead) {
  Database scrambled = book({entryOf("1", "112", "Emergency")});
  scrambled.key = 0x1234ABCD;
  EXPECT_EQ(entriesOf(scrambled), (Rows{{"1", "112", "Emergency"}}));
}

TEST_P(JetFile, MoreRowsThanTheDefinitionReportsAreTaken) {
  Database notClosed = book({entryOf("1", "111", "Anna"), entryOf("2", "222", "Bert")});
  notClosed.tables[0].declared = 0;
  EXPECT_EQ(entriesOf(notClosed).size(), 2u);
}

TEST_P(JetFile, AMemoIsAText) {
  Database memos = book({});
  memos.tables[0].columns[2].type = ColumnType::memo;
  const std::string memo = text(GetParam(), "Anna");
  memos.looseRows = {std::string(4, '\0') + memo};
  memos.tables[0].rows = {
      {.cells = {text(GetParam(), "1"), text(GetParam(), "2"),
                 memoIn(kFirstLooseRow, static_cast<std::uint32_t>(memo.size()))}}};
  EXPECT_EQ(entriesOf(memos), (Rows{{"1", "2", "Anna"}}));
}

TEST_P(JetFile, TheFileStaysAsItIs) {
  const std::string bytes = fileOf(book({entryOf("1", "112", "Emergency")}));
  folder_.write("old.mdb", bytes);
  const auto path = folder_.path() / "old.mdb";
  const auto longAgo = std::filesystem::file_time_type::clock::now() - std::chrono::hours(1000);
  std::filesystem::last_write_time(path, longAgo);
  const auto before = std::filesystem::last_write_time(path);
  readJetFile(path, bookTables());
  EXPECT_EQ(folder_.read("old.mdb"), bytes);
  EXPECT_EQ(std::filesystem::last_write_time(path), before);
}

TEST(Jet4File, ShortenedTextsAreRead) {
  const TemporaryFolder folder;
  Database book = oldBook(Version::jet4, {});
  const auto row = [](const std::u16string& name) -> Row {
    return {.cells = {text(Version::jet4, "1"), compressedText(u"112"), compressedText(name)}};
  };
  book.tables[0].rows = {row(u"Ärger"), row(u"50 € für Ÿ"), row(u"€€")};
  EXPECT_EQ(readBook(folder, fileOf(book))[0],
            (Rows{{"1", "112", "Ärger"}, {"1", "112", "50 € für Ÿ"}, {"1", "112", "€€"}}));
}

}  // namespace
}  // namespace gsm::jet
