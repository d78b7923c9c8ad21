#include "importer/phone_book_import.h"

#include "platform/code_page.h"
#include "platform/sqlite/phone_book_file.h"
#include "platform/sqlite/sqlite_engine.h"
#include "platform/sqlite/unfinished_file.h"

namespace gsm {
namespace {

namespace fs = std::filesystem;

std::vector<JetTable> wantedTables() {
  std::vector<JetTable> tables;
  for (const PhoneBookTable& table : phoneBookTables()) {
    tables.push_back({table.name, table.columns});
  }
  return tables;
}

// A control character in what goes into a command would end it and begin another.
bool goesIntoCommands(const std::string& column) { return column != "Name"; }

bool isControl(char character) {
  return static_cast<unsigned char>(character) < 0x20 || character == 0x7F;
}

void store(Database& book, const JetTable& table, const std::vector<JetRow>& rows,
           PhoneBookImport& result) {
  const auto set = book.openRecordSet(table.name);
  for (const JetRow& row : rows) {
    set->AddNew();
    for (std::size_t column = 0; column < row.size(); ++column) {
      std::string text = fromUtf8(row[column]);
      if (toUtf8(text) != row[column]) ++result.unknownLetters;
      if (goesIntoCommands(table.columns[column]) && std::erase_if(text, isControl) > 0) {
        ++result.controlCharacters;
      }
      set->setField(table.columns[column], text);
    }
    set->Update();
  }
  result.tables.push_back({table.name, rows.size()});
}

}  // namespace

PhoneBookImport importPhoneBook(const fs::path& oldFile, const fs::path& newFile,
                                const JetBounds& bounds) {
  UnfinishedFile::removeLeftovers(newFile);
  checkPlaceForPhoneBook(newFile);
  const std::vector<JetTable> tables = wantedTables();
  const auto rows = readJetFile(oldFile, tables, bounds);

  PhoneBookImport result;
  createPhoneBook(newFile, [&](const fs::path& unfinished) {
    const auto book = SqliteEngine().OpenDatabase(unfinished);
    book->Execute("begin");  // one write to the disk instead of one for each row
    for (std::size_t index = 0; index < tables.size(); ++index) {
      store(*book, tables[index], rows[index], result);
    }
    book->Execute("commit");
  });
  return result;
}

}  // namespace gsm
