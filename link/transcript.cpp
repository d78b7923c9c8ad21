#include "link/transcript.h"

#include <algorithm>
#include <limits>

#include "platform/scoped_value.h"

namespace gsm {

void Transcript::append(std::string_view text) {
  reference();
  const ScopedValue guard(appending_, true);
  Text.change([text](std::string& whole) { whole += text; });
}

void Transcript::clear() {
  constexpr std::size_t kEveryday = 64 * 1024;  // more than any dialogue of the panel's comes to
  Text = "";
  if (Text.peek().capacity() > kEveryday) {
    Text.change([](std::string& whole) { whole.shrink_to_fit(); });
  }
}

void Transcript::stored(PropertyId property) {
  if (property == PropertyId::Text && !appending_) searches_.clear();
  TextBox::stored(property);
}

Position Transcript::position(std::string_view key) const {
  const std::string& text = Text;
  auto entry = searches_.find(key);
  if (entry == searches_.end()) entry = searches_.emplace(key, Search{}).first;

  Search& search = entry->second;
  if (search.found == 0 && search.searched < text.size()) {
    // A key may have begun in the part already searched and end in the new one.
    const std::size_t overlap = std::min(search.searched, key.empty() ? 0 : key.size() - 1);
    const auto found = text.find(key, search.searched - overlap);
    if (found != std::string::npos) search.found = static_cast<Position>(found) + 1;
    search.searched = text.size();
  }
  return search.found;
}

int Transcript::length() const {
  constexpr std::size_t kMost = std::numeric_limits<int>::max();
  return static_cast<int>(std::min(Text.get().size(), kMost));
}

std::string Transcript::slice(Position start, Position length) const {
  return gsm::slice(Text.get(), start, length);
}

}  // namespace gsm
