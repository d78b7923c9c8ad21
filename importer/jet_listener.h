#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "importer/jet_file.h"
#include "platform/runtime_failure.h"

namespace gsm {

/// Makes rows of all that the reading process has said of `tables`; it may have crashed on the way
/// or talk nonsense. One list of rows for each of `tables`, each row with a text for every column.
///
/// A `RuntimeFailure` that names `file` when it told of a problem, or didn't come to its end.
std::vector<std::vector<JetRow>> rowsTold(const std::filesystem::path& file,
                                          const std::vector<JetTable>& tables,
                                          std::string_view said);

/// The failure to read `file` as what it seemed to be. `how` is the end of a sentence.
RuntimeFailure damagedJetFile(const std::filesystem::path& file, const std::string& how);

}  // namespace gsm
