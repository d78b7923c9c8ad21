#include "platform/qt/qt_settings_store.h"

#include <QFile>
#include <QSettings>
#include <utility>

#include "platform/qt/text_codec.h"
#include "platform/runtime_failure.h"

namespace gsm {

QtSettingsStore::QtSettingsStore(std::filesystem::path file) : file_(std::move(file)) {}

void QtSettingsStore::save(const std::string& section, const std::string& key,
                           const std::string& value) {
  QSettings settings(QFile::decodeName(file_.c_str()), QSettings::IniFormat);
  settings.beginGroup(toQt(section));
  settings.setValue(toQt(key), toQt(value));
  settings.endGroup();
  settings.sync();
  if (settings.status() != QSettings::NoError) throw failure::fileAccessError();
}

}  // namespace gsm
