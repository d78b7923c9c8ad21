#include "platform/qt/text_codec.h"

#include <QFile>
#include <QList>
#include <cstdint>

#include "platform/code_page.h"

namespace gsm {

QString toQt(std::string_view text) {
  QString result;
  result.reserve(static_cast<qsizetype>(text.size()));
  for (const char byte : text) result += QChar(windows1252()[static_cast<std::uint8_t>(byte)]);
  return result;
}

std::string fromQt(const QString& text) {
  // An accent that follows its letter as a character of its own belongs to the letter.
  const QString composed = text.normalized(QString::NormalizationForm_C);
  std::string result;
  result.reserve(static_cast<std::size_t>(composed.size()));
  for (const char32_t character : composed.toUcs4()) result += toWindows1252(character);
  return result;
}

std::string fromFileName(const std::filesystem::path& file) {
  return fromQt(QFile::decodeName(file.c_str()));
}

}  // namespace gsm
