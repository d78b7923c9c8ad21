#include "phonebook/book_row.h"

#include "link/text.h"
#include "platform/runtime_failure.h"

namespace gsm {
namespace {

constexpr std::size_t kNumberWidth = 20;

// `text` up to and including its first blank, without the blanks around it.
std::string firstWord(const std::string& text) { return trim(slice(text, 1, position(" ", text))); }

}  // namespace

std::string bookRow(const std::string& index, const std::string& number, const std::string& name) {
  if (number.size() > kNumberWidth) throw failure::invalidArgument();
  return index + "  " + number + std::string(kNumberWidth - number.size(), ' ') + name;
}

std::string rowIndex(const std::string& row) { return firstWord(row); }

std::string rowNumber(const std::string& row) {
  const int index = static_cast<int>(rowIndex(row).size());
  return firstWord(trim(slice(row, index + 1, static_cast<int>(row.size()))));
}

}  // namespace gsm
