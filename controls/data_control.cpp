#include "controls/data_control.h"

#include "controls/window.h"

namespace gsm {

DataControl::DataControl(Window& window, std::string name, Design design, int index)
    : Control(window, std::move(name), index, nullptr, /*visible=*/true, /*enabled=*/true),
      databaseName_(std::move(design.DatabaseName)),
      recordSource_(std::move(design.RecordSource)) {
  setUnseen(true);
}

void DataControl::Refresh() {
  reference();
  recordset_.reset();
  database_ = platform().database.OpenDatabase(platform().files.path(databaseName_));
  recordset_ = database_->openRecordSet(recordSource_);
}

RecordSet& DataControl::Recordset() {
  reference();
  if (recordset_ == nullptr) Refresh();
  return *recordset_;
}

void DataControl::unloaded() {
  recordset_.reset();
  database_.reset();
}

}  // namespace gsm
