#include "controls/text_box.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "controls/window.h"

namespace gsm {
namespace {

constexpr int kEnter = 13;
constexpr std::string_view kLineEnd = "\r\n";

bool isLineBreak(char character) { return character == '\r' || character == '\n'; }
bool isControl(int code) { return code < ' ' || code == 0x7F; }

}  // namespace

std::string singleLine(std::string_view text) {
  const auto end = std::find_if(text.begin(), text.end(), isLineBreak);
  std::string line;
  std::copy_if(text.begin(), end, std::back_inserter(line),
               [](char each) { return !isControl(static_cast<unsigned char>(each)); });
  return line;
}

TextBox::TextBox(Window& window, std::string name, Design design, int index)
    : Control(window, std::move(name), index, design.In, design.Visible, design.Enabled),
      Text(*this, PropertyId::Text, std::move(design.Text),
           [](PropertyOwner& owner, std::string text) {
             auto& box = static_cast<TextBox&>(owner);
             box.Text.store(box.cut(std::move(text)));
           }),
      MaxLength(*this, PropertyId::MaxLength, design.MaxLength),
      SelStart(*this, PropertyId::SelStart, 0,
               [](PropertyOwner& owner, int position) {
                 static_cast<TextBox&>(owner).moveCaret(position);
               }),
      masked_(design.Masked),
      multiLine_(design.MultiLine) {
  setUnseen(design.Unseen);
}

std::string TextBox::cut(std::string text) const {
  const auto limit = static_cast<std::size_t>(MaxLength.peek());
  if (limit > 0 && text.size() > limit) text.resize(limit);
  return text;
}

void TextBox::moveCaret(int position) {
  SelStart.store(std::clamp(position, 0, static_cast<int>(Text.peek().size())));
}

bool TextBox::userType(std::string_view keys) {
  if (!isReachable()) return false;
  for (std::size_t i = 0; i < keys.size(); ++i) {
    if (!isReachable()) return false;  // a handler of the key before may have hidden the box
    if (!isLineBreak(keys[i])) {
      typeKey(static_cast<unsigned char>(keys[i]));
      continue;
    }
    if (!multiLine_) break;
    typeKey(kEnter);
    if (keys.substr(i, 2) == kLineEnd) ++i;
  }
  return true;
}

void TextBox::typeKey(int key) {
  if (!multiLine_ && isControl(key) && key != kBackspace) return;
  if (KeyPress) key = KeyPress(key);
  std::string text = Text.peek();
  if (key == 0) return;
  if (key == kBackspace) {
    if (text.empty()) return;
    text.resize(text.size() - (text.ends_with(kLineEnd) ? kLineEnd.size() : 1));
  } else {
    if (key == kEnter) {
      text += kLineEnd;
    } else {
      text += static_cast<char>(key);
    }
    if (text != cut(text)) return;  // a full box takes no more keys
  }
  const int end = static_cast<int>(text.size());
  Text.store(std::move(text));
  moveCaret(end);
}

bool TextBox::userErase() { return userEdit("", 0); }

bool TextBox::userEdit(std::string text, int caret) {
  if (!isReachable()) return false;
  Text.store(admitted(multiLine_ ? std::move(text) : singleLine(text)));
  moveCaret(caret);
  return true;
}

std::string TextBox::admitted(std::string text) const {
  const auto limit = static_cast<std::size_t>(MaxLength.peek());
  if (limit == 0 || text.size() <= limit) return text;
  // What was put in lies between the beginning and the end that the text has kept.
  const std::string& old = Text.peek();
  const auto from = std::mismatch(text.begin(), text.end(), old.begin(), old.end()).first;
  const auto kept = std::mismatch(text.rbegin(), std::make_reverse_iterator(from), old.rbegin(),
                                  old.rend() - (from - text.begin()))
                        .first;
  const auto to = kept.base();
  const auto excess = static_cast<std::ptrdiff_t>(text.size() - limit);
  auto end = to - std::min(excess, to - from);
  // No line end goes in by half.
  if (end != from && end != to && *end == '\n' && *(end - 1) == '\r') --end;
  text.erase(end, to);
  return text;
}

void TextBox::stored(PropertyId property) {
  Control::stored(property);
  if (property != PropertyId::Text) return;
  moveCaret(SelStart.peek());
  if (window().isLoaded()) Change.raise();
}

}  // namespace gsm
