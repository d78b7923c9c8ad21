#include "simulator/dialogue/command.h"

#include <algorithm>

#include "simulator/text/text.h"

namespace gsm::simulator {

namespace {

// The body without what doesn't count in it.
std::string normalised(std::string_view body) {
  std::string text;
  bool quoted = false;
  for (const char c : body) {
    if (c == '"') quoted = !quoted;
    if (quoted) {
      text += c;
    } else if (c != ' ') {
      text += upper(c);
    }
  }
  return text;
}

// The end of the command that starts `text`: its semicolon outside quotes, or the end.
std::size_t endOfExtended(std::string_view text) {
  bool quoted = false;
  for (std::size_t at = 0; at < text.size(); ++at) {
    if (text[at] == '"') quoted = !quoted;
    if (text[at] == ';' && !quoted) return at;
  }
  return text.size();
}

// Reads commands off the front of a normalised body.
class CommandReader {
 public:
  explicit CommandReader(std::string_view text) : text_(text) {}

  bool atEnd() const { return text_.empty(); }

  Command next() {
    const char first = text_.front();
    const bool marked = first == '&' || first == '%' || first == '\\';
    if (!isLetter(first) && !marked) return extended();
    if (first == 'D') return dial();
    return basic(marked ? 2 : 1);
  }

 private:
  std::string take(std::size_t count) {
    std::string taken(text_.substr(0, count));
    text_.remove_prefix(taken.size());
    return taken;
  }

  std::string takeDigits() {
    const auto stop = std::find_if_not(text_.begin(), text_.end(), isDigit);
    return take(static_cast<std::size_t>(stop - text_.begin()));
  }

  bool takeIf(char c) {
    if (!text_.starts_with(c)) return false;
    text_.remove_prefix(1);
    return true;
  }

  Command extended() {
    const std::string whole = take(endOfExtended(text_));
    takeIf(';');
    const std::size_t nameEnd = whole.find_first_of("=?");
    if (nameEnd == std::string::npos) return {whole, Command::Form::kExecute, {}};
    const std::string name = whole.substr(0, nameEnd);
    const std::string rest = whole.substr(nameEnd);
    if (rest == "?") return {name, Command::Form::kQuery, {}};
    if (rest == "=?") return {name, Command::Form::kTest, {}};
    if (rest.front() == '?') return {whole, Command::Form::kExecute, {}};
    return {name, Command::Form::kSet, Arguments(std::string_view(rest).substr(1))};
  }

  Command dial() {
    const std::string number = take(text_.size()).substr(1);
    return {"D", Command::Form::kExecute, Arguments(number)};
  }

  // A letter, perhaps marked, and its digits. S has the digits in its name, and its value apart.
  Command basic(std::size_t nameSize) {
    Command command{take(nameSize), Command::Form::kExecute, {}};
    const std::string digits = takeDigits();
    const bool isRegister = command.name == "S";
    if (isRegister) command.name += digits;
    if (takeIf('?')) {
      command.form = Command::Form::kQuery;
    } else if (isRegister && takeIf('=')) {
      command.form = Command::Form::kSet;
      command.arguments = Arguments(takeDigits());
    } else if (!isRegister) {
      command.arguments = Arguments(digits);
    }
    takeIf(';');
    return command;
  }

  std::string_view text_;
};

}  // namespace

std::vector<Command> parseCommands(std::string_view body) {
  const std::string text = normalised(body);
  std::vector<Command> commands;
  for (CommandReader reader(text); !reader.atEnd();) commands.push_back(reader.next());
  return commands;
}

}  // namespace gsm::simulator
