#pragma once

#include <filesystem>
#include <vector>

#include "importer/jet_file.h"
#include "importer/jet_messages.h"

namespace gsm {

/// Reads the tables through mdbtools and tells `out` of them. To be run in a process that ends with
/// it: the library may crash or never return on a damaged file, and nothing is given back.
void tellTables(const std::filesystem::path& file, const std::vector<JetTable>& tables,
                JetMessageWriter& out);

}  // namespace gsm
