#include "tests/importer/jet_writer.h"

#include <algorithm>
#include <stdexcept>

#include "platform/code_page.h"
#include "tests/importer/jet_page.h"

namespace gsm::jet {
namespace {

constexpr std::uint32_t kMapPage = 1;
constexpr std::uint32_t kCataloguePage = 2;
constexpr std::uint32_t kCatalogueRows = 3;
constexpr std::uint32_t kFirstFreePage = 4;
constexpr std::uint16_t kDeleted = 0xC000;
constexpr std::uint16_t kPointer = 0x4000;
constexpr std::uint16_t kElsewhere = 0x8000;  // reached by a pointer

bool isFixed(const Column& column) {
  return column.type == ColumnType::int16 || column.type == ColumnType::int32;
}

std::size_t sizeOf(const Column& column) {
  switch (column.type) {
    case ColumnType::int16: return 2;
    case ColumnType::int32: return 4;
    case ColumnType::text: return 254;
    default: return 0;
  }
}

std::size_t countVariable(const Table& table) {
  return static_cast<std::size_t>(std::count_if(table.columns.begin(), table.columns.end(),
                                                [](const Column& each) { return !isFixed(each); }));
}

// The count of columns, the fixed ones, the variable ones, the places of those from the last to the
// first with the end before them, their count, and a bit for each column that isn't NULL.
std::string bytesOf(const Row& row, const Table& table, Version version) {
  const bool four = version == Version::jet4;
  const auto small = [four](std::size_t value) { return number(value, four ? 2 : 1); };
  std::string bytes = small(table.columns.size());
  for (std::size_t i = 0; i < table.columns.size(); ++i) {
    if (!isFixed(table.columns[i])) continue;
    bytes += row.cells[i].value_or(std::string(sizeOf(table.columns[i]), '\0'));
  }
  std::string places;
  for (std::size_t i = 0; i < table.columns.size(); ++i) {
    if (isFixed(table.columns[i])) continue;
    places.insert(0, small(bytes.size()));
    bytes += row.cells[i].value_or("");
  }
  const std::size_t variable = countVariable(table);
  if (variable > 0) bytes += small(bytes.size()) + places + small(variable);
  std::string filled((table.columns.size() + 7) / 8, '\0');
  for (std::size_t i = 0; i < table.columns.size(); ++i) {
    if (row.cells[i]) filled[i / 8] = static_cast<char>(filled[i / 8] | (1 << (i % 8)));
  }
  bytes += filled;
  if (!four && bytes.size() > 256) throw std::logic_error("a Jet 3 row needs a jump table");
  return bytes;
}

// A table's rows on pages from `first` on, each belonging to the definition on `definition`.
std::vector<std::string> dataPages(const Table& table, Version version, std::uint32_t definition,
                                   std::uint32_t first) {
  std::vector<DataPage> pages(1, DataPage(version, definition));
  const auto add = [&](const std::string& bytes, std::uint16_t flags) {
    if (!pages.back().fits(bytes)) pages.emplace_back(version, definition);
    pages.back().add(bytes, flags);
  };
  std::vector<std::string> moved;
  for (const Row& row : table.rows) {
    const std::string bytes = bytesOf(row, table, version);
    switch (row.state) {
      case Row::State::live: add(bytes, 0); break;
      case Row::State::deleted: add(bytes, kDeleted); break;
      case Row::State::moved:
        add(number(first << 8, 4), kPointer);  // where to doesn't matter to a scan of the table
        moved.push_back(bytes);
        break;
    }
  }
  for (const std::string& bytes : moved) add(bytes, kElsewhere);
  std::vector<std::string> bytes;
  for (const DataPage& page : pages) bytes.push_back(page.bytes());
  return bytes;
}

std::string columnOf(const Column& column, std::size_t index, std::size_t variable,
                     std::size_t fixedOffset, Version version) {
  const std::string type = number(static_cast<std::size_t>(column.type), 1);
  const std::string flags = number(isFixed(column) ? 3 : 2, 1);
  const std::string size = number(sizeOf(column), 2);
  if (version == Version::jet3) {
    return type + number(index, 2) + number(variable, 2) + number(index, 2) + std::string(6, '\0') +
           flags + number(fixedOffset, 2) + size;
  }
  return type + std::string(4, '\0') + number(index, 2) + number(variable, 2) + number(index, 2) +
         std::string(4, '\0') + flags + std::string(5, '\0') + number(fixedOffset, 2) + size;
}

std::string definitionOf(const Table& table, Version version, std::uint32_t map) {
  const bool four = version == Version::jet4;
  const auto live = std::count_if(table.rows.begin(), table.rows.end(),
                                  [](const Row& row) { return row.state != Row::State::deleted; });
  const std::string pages = number(kMapPage << 8 | map, 4);
  std::string bytes("\x02\x01VC", 4);
  bytes += std::string(four ? 12 : 8, '\0');
  bytes += number(table.declared.value_or(static_cast<std::uint32_t>(live)), 4);
  bytes += std::string(four ? 20 : 4, '\0') + "N";
  bytes += number(table.columns.size(), 2) + number(countVariable(table), 2) +
           number(table.columns.size(), 2);
  bytes += std::string(8, '\0');  // no indices
  bytes += pages + pages;         // with rows, and with free space
  std::size_t variable = 0;
  std::size_t fixedOffset = 0;
  for (std::size_t i = 0; i < table.columns.size(); ++i) {
    const Column& column = table.columns[i];
    bytes += columnOf(column, i, variable, fixedOffset, version);
    if (isFixed(column)) {
      fixedOffset += sizeOf(column);
    } else {
      ++variable;
    }
  }
  for (const Column& column : table.columns) {
    const std::string name = text(version, column.name);
    bytes += number(name.size(), four ? 2 : 1) + name;
  }
  bytes += "\xFF\xFF";
  return padded(bytes, version);
}

// The pages of a table in a file, as a row of bits from page 0 on.
std::string mapOf(std::uint32_t first, std::size_t count) {
  std::string map(1 + 4 + 64, '\0');
  for (std::size_t page = first; page < first + count; ++page) {
    char& bits = map.at(5 + page / 8);
    bits = static_cast<char>(bits | (1 << (page % 8)));
  }
  return map;
}

Table catalogueOf(const std::vector<Table>& tables, const std::vector<std::uint32_t>& pages,
                  Version version) {
  Table catalogue{.name = "MSysObjects",
                  .columns = {{"Id", ColumnType::int32},
                              {"Name", ColumnType::text},
                              {"Type", ColumnType::int16},
                              {"Flags", ColumnType::int32},
                              {"LvProp", ColumnType::ole}},
                  .rows = {}};
  for (std::size_t i = 0; i < tables.size(); ++i) {
    catalogue.rows.push_back({.cells = {int32(pages[i]), text(version, tables[i].name),
                                        int16(tables[i].type), int32(0), std::nullopt}});
  }
  return catalogue;
}

}  // namespace

std::string fileOf(const Database& database) {
  const Version version = database.version;
  std::vector<std::string> pages(kFirstFreePage);
  std::vector<std::string> maps = {mapOf(kCatalogueRows, 1)};
  std::vector<std::uint32_t> definitions;
  for (const Table& table : database.tables) {
    const auto definition = static_cast<std::uint32_t>(pages.size());
    const auto data = dataPages(table, version, definition, definition + 1);
    definitions.push_back(definition);
    pages.push_back(definitionOf(table, version, static_cast<std::uint32_t>(maps.size())));
    maps.push_back(mapOf(definition + 1, data.size()));
    pages.insert(pages.end(), data.begin(), data.end());
  }
  const Table catalogue = catalogueOf(database.tables, definitions, version);
  pages[0] = headerPage(version, database.key);
  pages[kCataloguePage] = definitionOf(catalogue, version, 0);
  pages[kCatalogueRows] = dataPages(catalogue, version, kCataloguePage, kCatalogueRows).at(0);
  maps.resize(kFirstLooseRow);
  maps.insert(maps.end(), database.looseRows.begin(), database.looseRows.end());
  DataPage mapPage(version, 0);
  for (const std::string& map : maps) mapPage.add(map, 0);
  pages[kMapPage] = mapPage.bytes();

  std::string file;
  for (std::size_t page = 0; page < pages.size(); ++page) {
    if (page > 0 && database.key != 0) {
      scramble(pages[page], static_cast<std::uint32_t>(database.key ^ page));
    }
    file += pages[page];
  }
  return file;
}

std::string int16(int value) { return number(static_cast<std::size_t>(value), 2); }

std::string int32(std::uint32_t value) { return number(value, 4); }

std::string text(Version version, const std::string& windows1252Text) {
  if (version == Version::jet3) return windows1252Text;
  std::string bytes;
  for (const char character : windows1252Text) {
    bytes += number(windows1252()[static_cast<unsigned char>(character)], 2);
  }
  return bytes;
}

std::string compressedText(const std::u16string& characters) {
  std::string bytes = "\xFF\xFE";
  bool compressed = true;
  for (const char16_t character : characters) {
    if (compressed != (character < 0x100)) {
      bytes += '\0';
      compressed = !compressed;
    }
    bytes += number(character, compressed ? 1 : 2);
  }
  return bytes;
}

std::string memoIn(std::uint32_t row, std::uint32_t size) {
  return number(size, 4) + number(kMapPage << 8 | row, 4) + number(0, 4);
}

}  // namespace gsm::jet
