// A fuzz target: what is read of a file of an old machine, whatever its bytes. The pages are read
// by a library in a process of its own, so its part here is what that process may have said. The
// first byte decides which of the two the others are.

#include <cstddef>
#include <cstdint>
#include <fstream>
#include <string_view>

#include "fuzz/must_hold.h"
#include "importer/jet_listener.h"
#include "tests/support/temporary_folder.h"

namespace gsm {
namespace {

// A failure that its user can do something with names the file.
bool names(const RuntimeFailure& failure, const std::filesystem::path& file) {
  return failure.description().find(file.string()) != std::string::npos;
}

void lookAtFile(std::string_view bytes) {
  static const TemporaryFolder folder;
  const std::filesystem::path file = folder.path() / "old.mdb";
  std::ofstream(file, std::ios::binary) << bytes;
  try {
    checkJetHeader(file);
    mustHold(bytes.size() >= 2048 && bytes.size() % 2048 == 0);
    mustHold(bytes.substr(4).starts_with("Standard Jet DB"));
  } catch (const RuntimeFailure& failure) {
    mustHold(names(failure, file));
  }
}

void listen(std::string_view said) {
  const std::filesystem::path file = "old.mdb";
  const std::vector<JetTable> tables = {{"DATA", {"Index", "Number", "Name"}},
                                        {"Details", {"TotalIndex", "UsedIndex"}}};
  try {
    const auto rows = rowsTold(file, tables, said);
    mustHold(rows.size() == tables.size());
    std::size_t bytes = 0;
    for (std::size_t table = 0; table < tables.size(); ++table) {
      for (const JetRow& row : rows[table]) {
        mustHold(row.size() == tables[table].columns.size());
        for (const std::string& text : row) bytes += text.size();
      }
    }
    mustHold(bytes <= said.size());
  } catch (const RuntimeFailure& failure) {
    mustHold(names(failure, file));
  }
}

}  // namespace
}  // namespace gsm

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size == 0) return 0;
  const std::string_view rest(reinterpret_cast<const char*>(data) + 1, size - 1);
  data[0] % 2 == 0 ? gsm::lookAtFile(rest) : gsm::listen(rest);
  return 0;
}
