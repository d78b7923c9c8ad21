#pragma once

#include <chrono>
#include <cstddef>
#include <filesystem>
#include <string>
#include <vector>

namespace gsm {

/// What to read of a Jet file: a table and some of its columns. Names ignore case.
struct JetTable {
  std::string name;
  std::vector<std::string> columns;
};

/// The texts of a row in UTF-8, in the order in which the columns were asked for. Numbers come as
/// their digits; a column that holds nothing is an empty text.
using JetRow = std::vector<std::string>;

/// How much reading a file may take before it counts as damaged.
struct JetBounds {
  std::chrono::milliseconds time = std::chrono::seconds(30);
  std::size_t memory = std::size_t{512} << 20;  // bytes
  std::size_t texts = std::size_t{64} << 20;    // bytes, all tables together
};

/// Refuses what plainly isn't a Jet 3 or Jet 4 database, or lacks its end, before any of it is
/// given to the library: a `RuntimeFailure`.
void checkJetHeader(const std::filesystem::path& file);

/// Reads tables of a Jet 3 or Jet 4 database, in whatever state it is; the file is opened for
/// reading only. One list of rows for each of `tables`.
///
/// A `RuntimeFailure` with a text for the user when there is no such file, when it isn't a Jet
/// database, lacks a table or a column, or is damaged. A table of which fewer rows can be read than
/// it should have counts as damage.
std::vector<std::vector<JetRow>> readJetFile(const std::filesystem::path& file,
                                             const std::vector<JetTable>& tables,
                                             const JetBounds& bounds = {});

}  // namespace gsm
