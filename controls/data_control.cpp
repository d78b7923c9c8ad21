#include "controls/data_control.h"

#include "controls/window.h"
#include "platform/files.h"
#include "platform/platform.h"

namespace gsm {

DataControl::DataControl(Window& window, std::string name, Design design, int index)
    : Control(window, std::move(name), index, nullptr, /*visible=*/true, /*enabled=*/true),
      RecordSource(*this, std::move(design.RecordSource)),
      databaseName_(std::move(design.DatabaseName)) {
  setUnseen(true);
}

DataControl::Source& DataControl::Source::operator=(std::string text) {
  control_.reference();
  text_ = std::move(text);
  return *this;
}

DataControl::Source::operator const std::string&() const {
  control_.reference();
  return text_;
}

void DataControl::Refresh() {
  reference();
  recordset_.reset();
  database_ = platform().database.OpenDatabase(platform().files.path(databaseName_));
  recordset_ = database_->openRecordSet(RecordSource.text_);
}

RecordSet& DataControl::Recordset() {
  reference();
  if (recordset_ == nullptr) Refresh();
  return *recordset_;
}

void DataControl::unloaded() {
  recordset_.reset();
  database_.reset();
  RecordSource.text_ = RecordSource.design_;
}

}  // namespace gsm
