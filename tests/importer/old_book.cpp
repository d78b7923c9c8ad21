#include "tests/importer/old_book.h"

#include "platform/runtime_failure.h"

namespace gsm::jet {

Row entry(Version version, const std::string& index, const std::string& number,
          const std::string& name) {
  return {.cells = {text(version, index), text(version, number), text(version, name)}};
}

Database oldBook(Version version, std::vector<Row> entries) {
  return {.version = version,
          .tables = {{.name = "DATA",
                      .columns = {{"Index"}, {"Number"}, {"Name"}},
                      .rows = std::move(entries)},
                     {.name = "Details",
                      .columns = {{"TotalIndex"}, {"UsedIndex"}},
                      .rows = {{.cells = {text(version, "50"), text(version, "7")}}}}},
          .looseRows = {}};
}

const std::vector<JetTable>& bookTables() {
  static const std::vector<JetTable> tables = {{"DATA", {"Index", "Number", "Name"}},
                                               {"Details", {"TotalIndex", "UsedIndex"}}};
  return tables;
}

std::vector<std::vector<JetRow>> readBook(const TemporaryFolder& folder, const std::string& bytes,
                                          const JetBounds& bounds) {
  folder.write("old.mdb", bytes);
  return readJetFile(folder.path() / "old.mdb", bookTables(), bounds);
}

std::string failureOfBook(const TemporaryFolder& folder, const std::string& bytes,
                          const JetBounds& bounds) {
  try {
    readBook(folder, bytes, bounds);
  } catch (const RuntimeFailure& failure) {
    return failure.description();
  }
  return "";
}

std::string nameOf(Version version) { return version == Version::jet3 ? "Jet3" : "Jet4"; }

}  // namespace gsm::jet
