#include "importer/jet_file.h"

#include <array>
#include <fstream>
#include <string>
#include <string_view>

#include "importer/child_process.h"
#include "importer/jet_listener.h"
#include "importer/jet_messages.h"
#include "importer/jet_reader.h"
#include "platform/sqlite/database_failure.h"

namespace gsm {

namespace fs = std::filesystem;

void checkJetHeader(const fs::path& file) {
  const std::string name = "'" + file.string() + "'";
  std::error_code error;
  if (!fs::is_regular_file(file, error)) {
    throw databaseFailure(DatabaseFault::noFile, file.string());
  }
  std::ifstream stream(file, std::ios::binary);
  if (!stream)
    throw databaseFailureSaying(DatabaseFault::cannotOpen,
                                "Couldn't open " + name + " for reading.");

  constexpr std::string_view kMark("\0\1\0\0Standard Jet DB\0", 20);
  std::array<char, kMark.size() + 1> head{};
  stream.read(head.data(), static_cast<std::streamsize>(head.size()));
  const auto version = static_cast<unsigned char>(head.back());
  if (!stream || std::string_view(head.data(), kMark.size()) != kMark || version > 1) {
    throw databaseFailureSaying(DatabaseFault::badFormat,
                                name + " isn't a Jet 3 or Jet 4 database.");
  }
  // The library takes what lies after the end for zeros, and so for tables without rows.
  const std::uintmax_t pageSize = version == 0 ? 2048 : 4096;
  const std::uintmax_t size = fs::file_size(file, error);
  if (error || size % pageSize != 0) throw damagedJetFile(file, "its end is missing");
}

std::vector<std::vector<JetRow>> readJetFile(const fs::path& file,
                                             const std::vector<JetTable>& tables,
                                             const JetBounds& bounds) {
  checkJetHeader(file);
  const auto said = runInChild(
      [&](int descriptor) {
        JetMessageWriter out(descriptor);
        tellTables(file, tables, out);
      },
      {.time = bounds.time, .memory = bounds.memory, .output = bounds.texts});
  if (!said) throw damagedJetFile(file, "reading it takes too long");
  return rowsTold(file, tables, *said);
}

}  // namespace gsm
