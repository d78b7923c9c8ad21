#include "importer/jet_listener.h"

#include <optional>

#include "importer/jet_messages.h"
#include "platform/sqlite/database_failure.h"

namespace gsm {
namespace {

namespace fs = std::filesystem;

std::string quoted(const fs::path& file) { return "'" + file.string() + "'"; }

// Makes rows of what the reading process has said.
class Listener {
 public:
  Listener(const fs::path& file, const std::vector<JetTable>& tables, std::string_view said)
      : file_(file), tables_(tables), said_(said) {}

  std::vector<std::vector<JetRow>> listen() {
    for (;;) {
      switch (static_cast<JetMessage>(number())) {
        case JetMessage::table: beginTable(); break;
        case JetMessage::row: addRow(); break;
        case JetMessage::problem: throw problem();
        case JetMessage::end:
          endTable();
          if (rows_.size() != tables_.size() || !said_.atEnd()) throw nonsense();
          return std::move(rows_);
        default: throw nonsense();
      }
    }
  }

 private:
  RuntimeFailure nonsense() const { return damagedJetFile(file_, "it can't be read to its end"); }

  std::uint32_t number() {
    const auto value = said_.number();
    if (!value) throw nonsense();
    return *value;
  }

  void beginTable() {
    endTable();
    declared_ = number();
    if (rows_.size() == tables_.size()) throw nonsense();
    rows_.emplace_back();
  }

  // A file that was not closed properly may declare fewer rows than it has, never more.
  void endTable() const {
    if (rows_.empty() || rows_.back().size() >= declared_) return;
    throw damagedJetFile(file_, "of the " + std::to_string(declared_) + " rows of table '" +
                                    tables_[rows_.size() - 1].name + "' only " +
                                    std::to_string(rows_.back().size()) + " can be read");
  }

  void addRow() {
    if (rows_.empty()) throw nonsense();
    JetRow row;
    while (row.size() < tables_[rows_.size() - 1].columns.size()) {
      auto text = said_.text();
      if (!text) throw nonsense();
      row.push_back(std::move(*text));
    }
    rows_.back().push_back(std::move(row));
  }

  RuntimeFailure problem() {
    const auto what = static_cast<JetProblem>(number());
    const std::uint32_t table = number();
    const std::uint32_t column = number();
    if (what == JetProblem::unreadable || table >= tables_.size()) return nonsense();
    const JetTable& wanted = tables_[table];
    if (what == JetProblem::noTable) {
      return databaseFailureSaying(DatabaseFault::noTable,
                                   quoted(file_) + " has no table '" + wanted.name + "'.");
    }
    if (column >= wanted.columns.size()) return nonsense();
    const std::string name =
        "column '" + wanted.columns[column] + "' in its table '" + wanted.name + "'.";
    const std::string has =
        what == JetProblem::noColumn ? " has no " : " has neither texts nor numbers in ";
    return databaseFailureSaying(DatabaseFault::noColumn, quoted(file_) + has + name);
  }

  const fs::path& file_;
  const std::vector<JetTable>& tables_;
  JetMessageReader said_;
  std::uint32_t declared_ = 0;  // rows that the last table should have
  std::vector<std::vector<JetRow>> rows_;
};

}  // namespace

std::vector<std::vector<JetRow>> rowsTold(const fs::path& file, const std::vector<JetTable>& tables,
                                          std::string_view said) {
  return Listener(file, tables, said).listen();
}

RuntimeFailure damagedJetFile(const fs::path& file, const std::string& how) {
  return databaseFailureSaying(DatabaseFault::badFormat,
                               quoted(file) + " is damaged: " + how + ".");
}

}  // namespace gsm
