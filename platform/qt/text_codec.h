#pragma once

#include <QString>
#include <filesystem>
#include <string>
#include <string_view>

namespace gsm {

/// Turns a text of the panel, in which a character is a byte of Windows-1252, into one of Qt's. The
/// five bytes that the code page leaves undefined become the control characters of the same number,
/// so that every byte comes back from `fromQt` as it was.
QString toQt(std::string_view text);

/// Turns a text of Qt's into one of the panel. A character that the code page lacks becomes "?".
std::string fromQt(const QString& text);

/// The name of a file as a text of the panel.
std::string fromFileName(const std::filesystem::path& file);

}  // namespace gsm
