#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace gsm::jet {

// Makes small genuine Jet databases, so that no test needs one in the repository.

enum class Version { jet3, jet4 };

enum class ColumnType : std::uint8_t { int16 = 3, int32 = 4, text = 10, ole = 11, memo = 12 };

struct Column {
  std::string name;  // ASCII
  ColumnType type = ColumnType::text;
};

/// A column's bytes as they stand in the row: see the functions below. Nothing for NULL.
using Cell = std::optional<std::string>;

struct Row {
  enum class State {
    live,
    deleted,  // its bytes are still there
    moved,    // a pointer stands in its place, and the row after all others
  };
  std::vector<Cell> cells;
  State state = State::live;
};

struct Table {
  std::string name;
  std::vector<Column> columns;
  std::vector<Row> rows;
  int type = 1;                           // in the catalogue: a table; 6 is a link to one
  std::optional<std::uint32_t> declared;  // rows that the definition counts, if not all live ones
};

struct Database {
  Version version = Version::jet4;
  std::vector<Table> tables;
  /// Rows of page 1 from `kFirstLooseRow` on, to which a memo may point.
  std::vector<std::string> looseRows;
  /// Pages are scrambled with this key; 0 for plain ones.
  std::uint32_t key = 0;
};

constexpr std::uint32_t kFirstLooseRow = 8;

/// The file's bytes: header, usage maps (page 1), the catalogue's definition and its rows, then
/// each table's definition with its data pages after it.
std::string fileOf(const Database& database);

/// The size of a page in bytes.
std::size_t pageSize(Version version);

// Values as they are stored.
std::string int16(int value);
std::string int32(std::uint32_t value);
/// Jet 3: a text in Windows-1252 is stored as it is. Jet 4: two bytes a character.
std::string text(Version version, const std::string& windows1252);
/// Jet 4's short form: one byte a character, and a zero before and after each run of those whose
/// second byte is not zero.
std::string compressedText(const std::u16string& characters);
/// A memo of `size` bytes spread over rows, the first of which is a row of page 1.
std::string memoIn(std::uint32_t row, std::uint32_t size);

}  // namespace gsm::jet
