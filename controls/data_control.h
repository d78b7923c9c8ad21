#pragma once

#include <memory>
#include <string>

#include "controls/control.h"
#include "platform/database.h"

namespace gsm {

struct DataControlDesign {
  std::string DatabaseName;
  std::string RecordSource;  // a table
};

/// A control bound to rows of a database file in the program's folder. It has no view.
class DataControl : public Control {
 public:
  using Design = DataControlDesign;
  DataControl(Window& window, std::string name, Design design, int index = kNoIndex);

  /// What `Refresh` opens: a table's name, or a query of the form `select COLUMNS from TABLE`. The
  /// rows that are open stay as they are when it is assigned.
  class Source {
   public:
    Source(DataControl& control, std::string design)
        : control_(control), design_(std::move(design)), text_(design_) {}
    Source& operator=(std::string text);
    operator const std::string&() const;

   private:
    friend class DataControl;

    DataControl& control_;
    const std::string design_;
    std::string text_;
  };
  Source RecordSource;

  /// Reopens the record set, so that rows written elsewhere are seen.
  void Refresh();

  /// The record set; opened when it isn't open yet.
  RecordSet& Recordset();

  const std::string& databaseName() const { return databaseName_; }
  const std::string& recordSource() const { return RecordSource.text_; }

  void unloaded() override;

 private:
  const std::string databaseName_;
  std::shared_ptr<Database> database_;
  std::unique_ptr<RecordSet> recordset_;
};

}  // namespace gsm
