// A fuzz target: any text is a criterion or none, and one that is read means what it says.

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "fuzz/must_hold.h"
#include "platform/sqlite/criterion.h"

namespace gsm {
namespace {

// Written as plainly as can be.
std::string written(const Criterion& criterion) {
  const std::string column =
      criterion.last ? "right(" + criterion.column + "," + std::to_string(*criterion.last) + ")"
                     : criterion.column;
  return column + "='" + criterion.text + "'";
}

void read(std::string_view text) {
  const auto criterion = parseCriterion(text);
  if (!criterion) return;
  const auto again = parseCriterion(written(*criterion));
  mustHold(again && again->column == criterion->column && again->last == criterion->last &&
           again->text == criterion->text);

  const std::string& wanted = criterion->text;
  const bool comparesAll =
      !criterion->last || static_cast<std::size_t>(*criterion->last) >= wanted.size();
  // A blank text is met by nothing, itself included.
  const bool isBlank = wanted.find_first_not_of(' ') == std::string::npos;
  if (comparesAll) mustHold(criterion->isMetBy(wanted) == !isBlank);
  // What stands in front of the last characters makes no difference.
  if (criterion->last) {
    const auto last = static_cast<std::size_t>(*criterion->last);
    if (last <= wanted.size()) {
      mustHold(criterion->isMetBy(wanted) == criterion->isMetBy("x" + wanted));
    }
  }
  // Being the same text works both ways.
  const std::string other(text);
  if (isBlank || other.find_first_not_of(' ') == std::string::npos) return;
  mustHold(Criterion{"c", {}, wanted}.isMetBy(other) == Criterion{"c", {}, other}.isMetBy(wanted));
}

}  // namespace
}  // namespace gsm

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  gsm::read({reinterpret_cast<const char*>(data), size});
  return 0;
}
