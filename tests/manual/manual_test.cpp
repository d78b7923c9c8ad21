// The manual tells of all that a person can meet, and sends nobody astray.

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cctype>
#include <cstdio>
#include <memory>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "simulator/console/console_table.h"
#include "tests/manual/design_words.h"
#include "tests/manual/manual_page.h"

namespace gsm::manual {
namespace {

namespace fs = std::filesystem;

// The section that shows the window: the shortest with a picture that is about it.
const Section* sectionOf(const SeenWindow& window) {
  const Section* found = nullptr;
  for (const Page& page : manualPages()) {
    for (const Section& section : page.sections) {
      if (!section.hasPicture() || !section.isAbout(window.title)) continue;
      if (section.heading.ends_with(window.title)) return &section;
      if (found == nullptr || section.words.size() < found->words.size()) found = &section;
    }
  }
  return found;
}

class WindowInManual : public ::testing::TestWithParam<SeenWindow> {};

TEST_P(WindowInManual, IsShownUnderItsTitle) {
  ASSERT_NE(GetParam().title, "");
  EXPECT_NE(sectionOf(GetParam()), nullptr)
      << "no section has a picture and names " << GetParam().title;
}

TEST_P(WindowInManual, HasAllItsWordsExplained) {
  const Section* section = sectionOf(GetParam());
  ASSERT_NE(section, nullptr);
  for (const std::string& word : GetParam().words) {
    EXPECT_TRUE(section->names(word)) << "\"" << word << "\" isn't under " << section->heading;
  }
}

INSTANTIATE_TEST_SUITE_P(Of, WindowInManual, ::testing::ValuesIn(seenWindows()),
                         [](const auto& window) { return window.param.name; });

std::string helpOf(const std::string& program) {
  const std::unique_ptr<FILE, int (*)(FILE*)> output(::popen((program + " --help").c_str(), "r"),
                                                     ::pclose);
  std::string text;
  std::array<char, 4096> part{};
  while (output && std::fgets(part.data(), part.size(), output.get()) != nullptr) {
    text += part.data();
  }
  return text;
}

bool isOption(std::string_view word) {
  const auto areLetters = [](std::string_view name) {
    return !name.empty() && std::all_of(name.begin(), name.end(), [](unsigned char each) {
      return std::islower(each) != 0 || each == '-';
    });
  };
  if (word.starts_with("--")) return areLetters(word.substr(2));
  return word.size() == 2 && word[0] == '-' && areLetters(word.substr(1));
}

// The options among the words of a text.
std::set<std::string> optionsIn(std::string text) {
  for (char& each : text) {
    if (std::string_view("[],;=<>").find(each) != std::string_view::npos) each = ' ';
  }
  std::istringstream words(text);
  std::set<std::string> options;
  for (std::string word; words >> word;) {
    if (isOption(word)) options.insert(word);
  }
  return options;
}

struct Program {
  std::string name;
  std::string file;
  std::vector<std::string> known;  // some of its options
};

class ProgramInManual : public ::testing::TestWithParam<Program> {};

TEST_P(ProgramInManual, HasAllItsOptionsTold) {
  const std::set<std::string> options = optionsIn(helpOf(GetParam().file));
  for (const std::string& known : GetParam().known) EXPECT_TRUE(options.contains(known)) << known;
  std::string told;
  for (const std::string& words : manualPage("command-line.md").whole.words) told += words + " ";
  const std::set<std::string> toldOptions = optionsIn(told);
  for (const std::string& option : options) {
    EXPECT_TRUE(toldOptions.contains(option)) << option;
  }
}

TEST_P(ProgramInManual, HasAllItsOptionsOnItsManualPage) {
  std::string page =
      readText(fs::path(PROJECT_FOLDER "/packaging/man") / (GetParam().name + ".1.in"));
  std::erase(page, '\\');
  std::replace(page.begin(), page.end(), '"', ' ');
  const std::set<std::string> told = optionsIn(page);
  for (const std::string& option : optionsIn(helpOf(GetParam().file))) {
    if (option == "--help-all") continue;  // the toolkit's
    EXPECT_TRUE(told.contains(option)) << option;
  }
}

const std::vector<Program>& programs() {
  static const std::vector<Program> all = {
#ifdef GSM_APPLICATION
      {.name = "gsm-application",
       .file = GSM_APPLICATION,
       .known = {"--folder", "--port", "--record", "--version", "-v"}},
#endif
      {.name = "phonebook-import", .file = PHONEBOOK_IMPORT, .known = {}},
      {.name = "phonebook-create", .file = PHONEBOOK_CREATE, .known = {"--unless-there"}},
      {.name = "modem-simulator",
       .file = MODEM_SIMULATOR,
       .known = {"--link", "--time-factor", "--silent", "--help"}},
  };
  return all;
}

INSTANTIATE_TEST_SUITE_P(Of, ProgramInManual, ::testing::ValuesIn(programs()),
                         [](const auto& program) {
                           std::string name = program.param.name;
                           std::replace(name.begin(), name.end(), '-', '_');
                           return name;
                         });

TEST(Manual, NamesEachProgram) {
  for (const Program& program : programs()) {
    EXPECT_TRUE(manualPage("command-line.md").whole.names(program.name)) << program.name;
  }
  EXPECT_TRUE(manualPage("command-line.md").whole.names("panel-driver"));
}

TEST(Manual, TellsEachWordOfTheSimulatedModemsConsole) {
  std::set<std::string> told;
  for (const std::string& words : manualPage("simulated-modem.md").whole.words) {
    told.insert(words.substr(0, words.find(' ')));
  }
  std::istringstream help(simulator::consoleHelp());
  int count = 0;
  for (std::string line; std::getline(help, line) && !line.starts_with("answered by");) {
    const std::string word = line.substr(0, line.find(' '));
    EXPECT_TRUE(told.contains(word)) << word;
    ++count;
  }
  EXPECT_GT(count, 30);
}

TEST(Manual, LeadsSomewhereByEachLink) {
  for (const Page& page : manualPages()) {
    for (const Link& link : page.whole.links) {
      EXPECT_TRUE(fs::is_regular_file(manualFolder() / link.target))
          << page.name << " leads to " << link.target;
    }
  }
}

TEST(Manual, IsReachedAsAWholeFromItsFirstPage) {
  std::vector<std::string> toRead = {"index.md"};
  std::set<std::string> reached;
  while (!toRead.empty()) {
    const std::string name = toRead.back();
    toRead.pop_back();
    if (!reached.insert(name).second) continue;
    for (const Link& link : manualPage(name).whole.links) {
      if (link.target.ends_with(".md")) toRead.push_back(link.target);
    }
  }
  for (const Page& page : manualPages()) EXPECT_TRUE(reached.contains(page.name)) << page.name;
}

}  // namespace

void PrintTo(const SeenWindow& window, std::ostream* out) { *out << window.name; }

}  // namespace gsm::manual
