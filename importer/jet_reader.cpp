#include "importer/jet_reader.h"

#include <mdbtools.h>

#include <cstring>
#include <memory>

namespace gsm {
namespace {

void tell(JetMessageWriter& out, JetMessage message) {
  out.number(static_cast<std::uint32_t>(message));
}

// What keeps a table from being read.
struct Problem {
  JetProblem what;
  std::size_t table = 0;
  std::size_t column = 0;
};

// Nothing in a phone book is anything else, and the library's text of a picture is none.
bool hasText(const MdbColumn& column) {
  switch (column.col_type) {
    case MDB_BYTE:
    case MDB_INT:
    case MDB_LONGINT:
    case MDB_MONEY:
    case MDB_FLOAT:
    case MDB_DOUBLE:
    case MDB_NUMERIC:
    case MDB_TEXT:
    case MDB_MEMO: return true;
    default: return false;
  }
}

// Where the library lays a column of the row that it has fetched, as a text with a zero after it.
class Cell {
 public:
  Cell() : bytes_(std::make_unique<char[]>(MDB_BIND_SIZE)) {}

  char* begin() { return bytes_.get(); }
  std::string_view text() const { return {bytes_.get(), strnlen(bytes_.get(), MDB_BIND_SIZE)}; }

 private:
  std::unique_ptr<char[]> bytes_;
};

class TableReader {
 public:
  TableReader(MdbHandle& file, const JetTable& wanted, std::size_t index) : index_(index) {
    MdbCatalogEntry* entry = mdb_get_catalogentry_by_name(&file, wanted.name.c_str());
    if (entry == nullptr) throw Problem{JetProblem::noTable, index_};
    table_ = mdb_read_table(entry);
    if (table_ == nullptr || mdb_read_columns(table_) == nullptr) {
      throw Problem{JetProblem::unreadable, index_};
    }
    for (std::size_t column = 0; column < wanted.columns.size(); ++column) {
      bind(wanted.columns[column], column);
    }
  }

  void tellRows(JetMessageWriter& out) {
    tell(out, JetMessage::table);
    out.number(table_->num_rows);
    mdb_rewind_table(table_);
    while (mdb_fetch_row(table_) != 0) {
      tell(out, JetMessage::row);
      for (const Cell& cell : cells_) out.text(cell.text());
    }
  }

 private:
  void bind(const std::string& name, std::size_t column) {
    cells_.emplace_back();
    std::string changeable = name;  // as the library wants it
    const int place =
        mdb_bind_column_by_name(table_, changeable.data(), cells_.back().begin(), nullptr);
    if (place < 1) throw Problem{JetProblem::noColumn, index_, column};
    const auto* found = static_cast<const MdbColumn*>(table_->columns->pdata[place - 1]);
    if (!hasText(*found)) throw Problem{JetProblem::noText, index_, column};
  }

  const std::size_t index_;
  MdbTableDef* table_ = nullptr;
  std::vector<Cell> cells_;
};

}  // namespace

void tellTables(const std::filesystem::path& file, const std::vector<JetTable>& tables,
                JetMessageWriter& out) {
  try {
    MdbHandle* const handle = mdb_open(file.c_str(), MDB_NOFLAGS);
    if (handle == nullptr || mdb_read_catalog(handle, MDB_TABLE) == nullptr) {
      throw Problem{JetProblem::unreadable};
    }
    for (std::size_t index = 0; index < tables.size(); ++index) {
      TableReader(*handle, tables[index], index).tellRows(out);
    }
    tell(out, JetMessage::end);
  } catch (const Problem& problem) {
    tell(out, JetMessage::problem);
    out.number(static_cast<std::uint32_t>(problem.what));
    out.number(static_cast<std::uint32_t>(problem.table));
    out.number(static_cast<std::uint32_t>(problem.column));
  }
  out.flush();
}

}  // namespace gsm
