#include "tests/importer/jet_page.h"

#include <array>
#include <numeric>
#include <stdexcept>
#include <utility>

namespace gsm::jet {

std::size_t pageSize(Version version) { return version == Version::jet4 ? 4096 : 2048; }

std::string number(std::size_t value, std::size_t size) {
  std::string bytes;
  for (; size > 0; --size, value >>= 8) bytes += static_cast<char>(value & 0xFF);
  return bytes;
}

std::string padded(std::string bytes, Version version) {
  if (bytes.size() > pageSize(version)) throw std::logic_error("too much for a page");
  bytes.resize(pageSize(version));
  return bytes;
}

void scramble(std::string& bytes, std::uint32_t key) {
  const std::string secret = number(key, 4);
  std::array<std::uint8_t, 256> state{};
  std::iota(state.begin(), state.end(), std::uint8_t{0});
  std::uint8_t j = 0;
  for (std::size_t i = 0; i < state.size(); ++i) {
    j = static_cast<std::uint8_t>(j + state[i] + static_cast<std::uint8_t>(secret[i % 4]));
    std::swap(state[i], state[j]);
  }
  std::uint8_t i = 0;
  j = 0;
  for (char& byte : bytes) {
    j = static_cast<std::uint8_t>(j + state[++i]);
    std::swap(state[i], state[j]);
    byte = static_cast<char>(byte ^ state[static_cast<std::uint8_t>(state[i] + state[j])]);
  }
}

std::string headerPage(Version version, std::uint32_t key) {
  std::string head("\0\1\0\0Standard Jet DB\0", 20);
  head += number(version == Version::jet4 ? 1 : 0, 4);
  std::string middle(version == Version::jet4 ? 128 : 126, '\0');
  middle.replace(0x3C - 0x18, 6, number(1252, 2) + number(key, 4));
  scramble(middle, 0x6B39DAC7);
  return padded(head + middle, version);
}

bool DataPage::fits(const std::string& row) const {
  return headSize() + 2 * (places_.size() + 1) + row.size() <= free_;
}

void DataPage::add(const std::string& row, std::uint16_t flags) {
  if (!fits(row)) throw std::logic_error("a row is larger than a page");
  free_ -= row.size();
  places_.push_back(static_cast<std::uint16_t>(free_ | flags));
  rows_.insert(0, row);
}

std::string DataPage::bytes() const {
  const std::size_t gap = free_ - headSize() - 2 * places_.size();
  std::string bytes("\x01\x01", 2);
  bytes += number(gap, 2) + number(definition_, 4);
  if (version_ == Version::jet4) bytes += std::string(4, '\0');
  bytes += number(places_.size(), 2);
  for (const std::uint16_t place : places_) bytes += number(place, 2);
  return bytes + std::string(gap, '\0') + rows_;
}

}  // namespace gsm::jet
