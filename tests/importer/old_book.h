#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "importer/jet_file.h"
#include "tests/importer/jet_writer.h"
#include "tests/support/temporary_folder.h"

namespace gsm::jet {

/// An entry's row with its three columns as texts.
Row entry(Version version, const std::string& index, const std::string& number,
          const std::string& name);

/// The tables of a phone book with columns of texts: `DATA` with these rows, `Details` with 50 and
/// 7.
Database oldBook(Version version, std::vector<Row> entries);

/// Both tables of a phone book, as they are asked for.
const std::vector<JetTable>& bookTables();

/// Lays a file of these bytes into the folder and reads both tables of it.
std::vector<std::vector<JetRow>> readBook(const TemporaryFolder& folder, const std::string& bytes,
                                          const JetBounds& bounds = {});

/// The description with which reading the bytes as a phone book fails; empty when it doesn't.
std::string failureOfBook(const TemporaryFolder& folder, const std::string& bytes,
                          const JetBounds& bounds = {});

/// For the names of tests that run with both versions.
std::string nameOf(Version version);

}  // namespace gsm::jet
