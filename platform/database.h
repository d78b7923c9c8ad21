#pragma once

#include <filesystem>
#include <memory>
#include <string>

namespace gsm {

/// The rows of one table as a handler walks them: live and updatable. It has the rows that there
/// were when it was opened and those that were added through it, in the order in which they were
/// added. Names of tables and columns ignore case; texts are Windows-1252.
///
/// There is a current row unless the set is at an end. Every failure is a `RuntimeFailure` with the
/// engine's description.
class RecordSet {
 public:
  virtual ~RecordSet() = default;

  // Where the walk stands. An empty set is at both ends.
  virtual bool isBof() const = 0;
  virtual bool isEof() const = 0;
  virtual void MoveFirst() = 0;
  virtual void MoveNext() = 0;

  /// Moves to the first row that meets `criterion`: a column, or `right(column,n)`, an equals sign
  /// and a quoted text. Texts are compared without regard to case and to trailing blanks. A
  /// criterion that isn't of that form is a failure, and is never run as anything else. A blank
  /// text is met by no row.
  virtual void FindFirst(const std::string& criterion) = 0;
  /// Whether the last `FindFirst` found none. The current row is then as before.
  virtual bool NoMatch() const = 0;

  /// A column of the current row, or of the one that is being added; an empty text where it holds
  /// nothing.
  virtual std::string field(const std::string& column) = 0;

  // A row is added with AddNew, changed with Edit; its columns are set, and Update stores it. What
  // Update has stored is on the disk when it returns.
  virtual void AddNew() = 0;
  virtual void Edit() = 0;
  virtual void setField(const std::string& column, const std::string& value) = 0;
  virtual void Update() = 0;
  /// Removes the current row.
  virtual void Delete() = 0;
};

/// An open database.
class Database {
 public:
  virtual ~Database() = default;

  /// Runs one SQL statement that returns no rows.
  virtual void Execute(const std::string& statement) = 0;
  /// The rows of a table, or those that a query `select COLUMNS from TABLE` gives, in which the
  /// columns are an asterisk or names with commas between them. A query of another form is a
  /// failure, and is never run as anything else.
  virtual std::unique_ptr<RecordSet> openRecordSet(const std::string& source) = 0;
};

class DatabaseEngine {
 public:
  virtual ~DatabaseEngine() = default;

  /// Opens the file, of which the last part of the name ignores case: every spelling means the same
  /// file. It never makes one: a file that isn't there, or is no database, is a failure.
  virtual std::shared_ptr<Database> OpenDatabase(const std::filesystem::path& file) = 0;
};

}  // namespace gsm
