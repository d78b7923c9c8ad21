#include "phonebook/book_row.h"

#include <algorithm>

#include "link/text.h"
#include "platform/runtime_failure.h"

namespace gsm {
namespace {

constexpr std::size_t kGap = 2;
constexpr std::size_t kNumberWidth = 20;

bool isControl(char character) {
  return static_cast<unsigned char>(character) < 0x20 || character == 0x7F;
}

bool hasControls(const std::string& text) {
  return std::any_of(text.begin(), text.end(), isControl);
}

// `text` up to and including its first blank, without the blanks around it.
std::string firstWord(const std::string& text) { return trim(slice(text, 1, position(" ", text))); }

}  // namespace

std::string bookRow(const std::string& index, const std::string& number, const std::string& name) {
  if (number.size() > kNumberWidth) throw failure::invalidArgument();
  return index + std::string(kGap, ' ') + number + std::string(kNumberWidth - number.size(), ' ') +
         name;
}

std::string rowIndex(const std::string& row) { return firstWord(row); }

std::string rowNumber(const std::string& row) {
  const std::size_t index = rowIndex(row).size();
  const std::string number = firstWord(trim(row.substr(index)));
  // Where the number stands, what comes after its first blank included.
  const std::string place = row.substr(0, index + kGap + kNumberWidth);
  return hasControls(place) || hasControls(number) ? std::string{} : number;
}

std::string oneLine(const std::string& text) {
  std::string line = text.substr(0, text.find_first_of("\r\n"));
  std::erase_if(line, isControl);
  return line;
}

}  // namespace gsm
