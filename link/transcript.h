#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <unordered_map>

#include "controls/text_box.h"
#include "link/text.h"

namespace gsm {

/// All text received since the last clearing, in a text box that nobody sees. It is the receive
/// buffer and the routing key at once: whoever waits for a reply searches it from position 1.
///
/// Received text is only ever appended, and the same few keys are looked for again and again. So it
/// remembers for each key where it was found, or up to where it has been searched; a search costs
/// the new text, not the whole.
class Transcript : public TextBox {
 public:
  using TextBox::TextBox;

  void append(std::string_view text);
  /// Empties the text, and gives back the memory of one that had grown large.
  void clear();

  /// Where `key` first stands, as `gsm::position` says it.
  Position position(std::string_view key) const;
  bool holds(std::string_view key) const { return position(key) != 0; }

  /// As `gsm::slice` of the text.
  std::string slice(Position start, Position length) const;

  /// The length of the text, in characters, as far as a caret can tell it.
  int length() const;

 protected:
  void stored(PropertyId property) override;

 private:
  struct Search {
    Position found = 0;
    std::size_t searched = 0;  // so many characters hold no occurrence
  };
  struct Hash : std::hash<std::string_view> {
    using is_transparent = void;
  };

  // Invariant: every entry is true of the text as it stands, or of a beginning of it.
  mutable std::unordered_map<std::string, Search, Hash, std::equal_to<>> searches_;
  bool appending_ = false;
};

}  // namespace gsm
