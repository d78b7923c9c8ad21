#include "controls/text_box.h"

#include "controls/window.h"

#include <algorithm>
#include <utility>

namespace gsm {

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
                 auto& box = static_cast<TextBox&>(owner);
                 const int length = static_cast<int>(box.Text.peek().size());
                 box.SelStart.store(std::clamp(position, 0, length));
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

bool TextBox::userType(std::string_view keys) {
  if (!isReachable()) return false;
  for (const char key : keys) {
    if (!isReachable()) return false;  // a handler of the key before may have hidden the box
    typeKey(static_cast<unsigned char>(key));
  }
  return true;
}

void TextBox::typeKey(int key) {
  if (KeyPress) key = KeyPress(key);
  std::string text = Text.peek();
  if (key == 0) return;
  if (key == kBackspace) {
    if (text.empty()) return;
    text.pop_back();
  } else {
    text += static_cast<char>(key);
    if (text != cut(text)) return;  // a full box takes no more keys
  }
  const int end = static_cast<int>(text.size());
  Text.store(std::move(text));
  SelStart.store(end);
}

bool TextBox::userErase() { return userEdit("", 0); }

bool TextBox::userEdit(std::string text, int caret) {
  if (!isReachable()) return false;
  Text.store(cut(std::move(text)));
  SelStart.store(caret);
  return true;
}

void TextBox::stored(PropertyId property) {
  Control::stored(property);
  if (property == PropertyId::Text && window().isLoaded()) Change.raise();
}

}  // namespace gsm
