#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "tests/importer/jet_writer.h"

namespace gsm::jet {

/// The lowest `size` bytes of a number, the lowest first.
std::string number(std::size_t value, std::size_t size);

/// A page's bytes with zeros up to its end.
std::string padded(std::string bytes, Version version);

/// The page with which a file begins. Its middle is scrambled, as the engine does it; among it are
/// the code page, 1252, and the key of all other pages.
std::string headerPage(Version version, std::uint32_t key);

/// Scrambles bytes with the stream cipher of the engine; a second time brings them back.
void scramble(std::string& bytes, std::uint32_t key);

/// A page of rows, which fill it from its end.
class DataPage {
 public:
  DataPage(Version version, std::uint32_t definition)
      : version_(version), definition_(definition), free_(pageSize(version)) {}

  bool fits(const std::string& row) const;
  void add(const std::string& row, std::uint16_t flags);
  std::string bytes() const;

 private:
  std::size_t headSize() const { return version_ == Version::jet4 ? 14 : 10; }

  Version version_;
  std::uint32_t definition_;
  std::size_t free_;                   // where the last row begins
  std::vector<std::uint16_t> places_;  // of the rows, with their flags
  std::string rows_;                   // from the last to the first
};

}  // namespace gsm::jet
