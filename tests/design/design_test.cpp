// Every control of every window with its design state, compared with a file, so that a change of
// the design shows in review. GSM_REWRITE_DESIGN=1 writes the file anew.

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <sstream>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "app/windows.h"
#include "controls/controls.h"
#include "controls/data_control.h"
#include "controls/window.h"
#include "platform/headless/headless_platform.h"
#include "tests/support/temporary_folder.h"

namespace gsm {
namespace {

using Lines = std::vector<std::string>;

constexpr const char* kFile = PROJECT_FOLDER "/tests/design/design.txt";

template <class Kind>
bool is(const Control& control) {
  return dynamic_cast<const Kind*>(&control) != nullptr;
}

struct KindName {
  bool (*is)(const Control& control);
  const char* name;
};
constexpr std::array kKinds = {KindName{.is = is<Label>, .name = "label"},
                               KindName{.is = is<CommandButton>, .name = "button"},
                               KindName{.is = is<Picture>, .name = "picture"},
                               KindName{.is = is<Shape>, .name = "shape"},
                               KindName{.is = is<Frame>, .name = "frame"},
                               KindName{.is = is<OptionButton>, .name = "option"},
                               KindName{.is = is<TextBox>, .name = "text box"},
                               KindName{.is = is<ComboBox>, .name = "combo"},
                               KindName{.is = is<ListBox>, .name = "list box"},
                               KindName{.is = is<Slider>, .name = "slider"},
                               KindName{.is = is<TabStrip>, .name = "tab strip"},
                               KindName{.is = is<Timer>, .name = "timer"},
                               KindName{.is = is<DataControl>, .name = "data control"}};

std::string kindOf(const Control& control) {
  const auto* const kind = std::find_if(kKinds.begin(), kKinds.end(),
                                        [&](const KindName& each) { return each.is(control); });
  return kind == kKinds.end() ? "something else" : kind->name;
}

// On one line, between quotes that show the blanks at both ends.
std::string quoted(const std::string& text) {
  std::string line = "\"";
  for (const char each : text) {
    if (each == '\r') {
      line += "\\r";
    } else if (each == '\n') {
      line += "\\n";
    } else {
      line += each;
    }
  }
  return line + "\"";
}

std::string quoted(const Lines& texts) {
  std::string line;
  for (const std::string& text : texts) line += (line.empty() ? "" : ",") + quoted(text);
  return line;
}

std::string hexadecimal(int colour) {
  std::array<char, 16> digits{};
  std::snprintf(digits.data(), digits.size(), "%06X", static_cast<unsigned>(colour));
  return digits.data();
}

bool isColour(PropertyId id) { return id == PropertyId::BackColor || id == PropertyId::ForeColor; }

// What nobody would mention: nothing there, nothing set; a window hidden, a control on view and
// enabled; the usual colours.
bool isPlain(const PropertyOwner& owner, PropertyId id, const PropertyValue& value) {
  const bool isWindow = dynamic_cast<const Window*>(&owner) != nullptr;
  switch (id) {
    case PropertyId::Visible:
    case PropertyId::Enabled: return std::get<bool>(value) != isWindow;
    case PropertyId::ListIndex: return std::get<int>(value) == -1;
    case PropertyId::BackColor: return std::get<int>(value) == kButtonGrey;
    default: break;
  }
  return std::visit([](const auto& held) { return held == std::decay_t<decltype(held)>{}; }, value);
}

std::string shown(PropertyId id, const PropertyValue& value) {
  if (const auto* number = std::get_if<int>(&value)) {
    return isColour(id) ? hexadecimal(*number) : std::to_string(*number);
  }
  if (const auto* yes = std::get_if<bool>(&value)) return *yes ? "yes" : "no";
  if (const auto* text = std::get_if<std::string>(&value)) return quoted(*text);
  return quoted(std::get<Lines>(value));
}

std::string propertiesOf(const PropertyOwner& owner) {
  std::string all;
  for (const PropertyBase* property : owner.properties()) {
    const PropertyValue value = property->value();
    if (isPlain(owner, property->id(), value)) continue;
    all += " " + std::string(nameOf(property->id())) + "=" + shown(property->id(), value);
  }
  return all;
}

// What is of the design too, but no property.
std::string restOf(const Control& control) {
  std::string rest;
  if (const auto* box = dynamic_cast<const TextBox*>(&control)) {
    if (box->isMasked()) rest += " Masked";
    if (box->isMultiLine()) rest += " MultiLine";
  }
  if (const auto* combo = dynamic_cast<const ComboBox*>(&control)) {
    if (!combo->isEditable()) rest += " DropDownList";
  }
  if (const auto* slider = dynamic_cast<const Slider*>(&control)) {
    rest += " SmallChange=" + std::to_string(slider->smallChange());
    rest += " LargeChange=" + std::to_string(slider->largeChange());
  }
  if (const auto* strip = dynamic_cast<const TabStrip*>(&control)) {
    rest += " Tabs=" + quoted(strip->tabs());
  }
  if (const auto* data = dynamic_cast<const DataControl*>(&control)) {
    rest += " DatabaseName=" + quoted(data->databaseName());
    rest += " RecordSource=" + quoted(data->recordSource());
  }
  return rest;
}

std::string lineOf(const Control& control) {
  std::string line = "  " + control.fullName() + ": " + kindOf(control);
  if (control.container() != nullptr) line += " in " + control.container()->fullName();
  return line + propertiesOf(control) + restOf(control);
}

Lines describe(const std::vector<Window*>& windows) {
  Lines lines;
  for (const Window* window : windows) {
    if (!lines.empty()) lines.emplace_back();
    lines.push_back(window->name() + propertiesOf(*window));
    for (const Control* control : window->controls()) lines.push_back(lineOf(*control));
  }
  return lines;
}

Lines readFile() {
  std::ifstream file(kFile);
  Lines lines;
  for (std::string line; std::getline(file, line);) lines.push_back(line);
  return lines;
}

void writeFile(const Lines& lines) {
  std::ofstream file(kFile);
  for (const std::string& line : lines) file << line << "\n";
}

// The lines of `all` that aren't in `others`.
std::string missing(const Lines& all, const Lines& others) {
  std::string found;
  for (const std::string& line : all) {
    const bool known = std::find(others.begin(), others.end(), line) != others.end();
    if (!known) found += line + "\n";
  }
  return found;
}

class Design : public ::testing::Test {
 protected:
  TemporaryFolder folder_;
  HeadlessPlatform machine_{folder_.path(), {2026, 3, 1, 10, 0, 0}};
  Windows windows_{machine_.platform()};
};

TEST_F(Design, OfAllWindowsIsAsItIsWrittenDown) {
  const Lines lines = describe(machine_.platform().windows);
  if (std::getenv("GSM_REWRITE_DESIGN") != nullptr) writeFile(lines);
  const Lines written = readFile();
  EXPECT_TRUE(lines == written) << "GSM_REWRITE_DESIGN=1 writes " << kFile << " anew.\n"
                                << "Only in the windows:\n"
                                << missing(lines, written) << "Only in the file:\n"
                                << missing(written, lines);
}

TEST_F(Design, NamesEveryKindOfControl) {
  for (const Window* window : machine_.platform().windows) {
    for (const Control* control : window->controls()) {
      EXPECT_NE(kindOf(*control), "something else") << window->name() << "." << control->fullName();
    }
  }
}

// A look must not load what it looks at.
TEST_F(Design, IsReadWithoutLoadingAWindow) {
  describe(machine_.platform().windows);
  for (const Window* window : machine_.platform().windows) {
    EXPECT_FALSE(window->isLoaded()) << window->name();
  }
}

}  // namespace
}  // namespace gsm
