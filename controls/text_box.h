#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "controls/control.h"

namespace gsm {

struct TextBoxDesign {
  std::string Text;
  Control* In = nullptr;
  int MaxLength = 0;    // in characters; 0: no limit
  bool Masked = false;  // shows "*" for each character
  bool MultiLine = false;
  bool Visible = true;
  bool Enabled = true;
  bool Unseen = false;  // a place for data
};

/// What a box of one line takes of `text` when the user types or pastes it: all up to the first
/// line break, without control characters. They would become commands once they are sent.
std::string singleLine(std::string_view text);

/// A box of text that the user types into, or, when it has no view, a text that handlers share.
class TextBox : public Control {
 public:
  using Design = TextBoxDesign;
  TextBox(Window& window, std::string name, Design design = {}, int index = kNoIndex);

  /// An assigned text is cut to `MaxLength`. The caret stays within it.
  Property<std::string> Text;
  Property<int> MaxLength;
  /// The caret: how many characters lie before it.
  Property<int> SelStart;

  /// Runs after each change of the text, by code or by the user.
  Event Change{*this};

  static constexpr int kBackspace = 8;
  /// Filters what the user types: takes a key's character code and returns the one to go on with,
  /// 0 to discard the key. Without it every key passes.
  std::function<int(int)> KeyPress;

  // What the user does. False when the box is out of reach. A box that isn't `MultiLine` ends at
  // the first line break and takes no control characters.

  /// Types `keys` at the end of the text, one by one; `kBackspace` takes the last character away,
  /// or the last line end. A line break ends the typing into a box of one line; in a box of lines
  /// it is the Enter key, whichever characters it is spelled with, and puts in a whole line end.
  bool userType(std::string_view keys);
  /// Empties the box.
  bool userErase();
  /// Has edited the text to `text` with the caret at `caret`, by means of the view's own.
  bool userEdit(std::string text, int caret);

  /// What the box takes of an edit of its text to `text`: of what the edit puts in, as much as
  /// `MaxLength` leaves room for. What stood there before stays, even beyond the limit.
  std::string admitted(std::string text) const;

  bool isMasked() const { return masked_; }
  bool isMultiLine() const { return multiLine_; }

 protected:
  void stored(PropertyId property) override;

 private:
  void typeKey(int key);
  std::string cut(std::string text) const;
  void moveCaret(int position);

  const bool masked_;
  const bool multiLine_;
};

}  // namespace gsm
