#include "tests/manual/manual_page.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <sstream>
#include <stdexcept>

namespace gsm::manual {
namespace {

namespace fs = std::filesystem;

// A line of a block of code, which stands in by four blanks at least, behind an empty line or
// another such line.
bool isCode(std::string_view line, bool behindCodeOrNothing) {
  return behindCodeOrNothing && line.starts_with("    ") &&
         line.find_first_not_of(' ') != std::string_view::npos;
}

// The lines without those of code.
std::vector<std::string> proseOf(std::string_view text) {
  std::vector<std::string> lines;
  std::istringstream stream{std::string(text)};
  bool behindCodeOrNothing = true;
  for (std::string line; std::getline(stream, line);) {
    const bool code = isCode(line, behindCodeOrNothing);
    behindCodeOrNothing = code || line.empty();
    if (!code) lines.push_back(std::move(line));
  }
  return lines;
}

// The rank of the heading that the line is: 1 for the highest; 0 for no heading.
std::size_t rankOf(std::string_view line) {
  const std::size_t hashes = line.find_first_not_of('#');
  return hashes != std::string_view::npos && line[hashes] == ' ' ? hashes : 0;
}

void findWords(std::string_view text, Section& section) {
  for (auto begin = text.find('`'); begin != std::string_view::npos;) {
    const auto end = text.find('`', begin + 1);
    if (end == std::string_view::npos) return;
    section.words.insert(singleBlanks(text.substr(begin + 1, end - begin - 1)));
    begin = text.find('`', end + 1);
  }
}

void findLinks(std::string_view text, Section& section) {
  for (auto middle = text.find("]("); middle != std::string_view::npos;
       middle = text.find("](", middle + 1)) {
    const auto begin = text.rfind('[', middle);
    const auto end = text.find(')', middle);
    if (begin == std::string_view::npos || end == std::string_view::npos) continue;
    section.links.push_back({.target = std::string(text.substr(middle + 2, end - middle - 2)),
                             .isPicture = begin > 0 && text[begin - 1] == '!'});
  }
}

using Lines = std::vector<std::string>;

Section sectionOf(Lines::const_iterator begin, Lines::const_iterator end) {
  Section section;
  std::string text;
  for (auto line = begin; line != end; ++line) text += *line + "\n";
  if (begin != end) section.heading = singleBlanks(begin->substr(rankOf(*begin)));
  findWords(text, section);
  findLinks(text, section);
  return section;
}

}  // namespace

bool Section::hasPicture() const {
  return std::any_of(links.begin(), links.end(), [](const Link& link) { return link.isPicture; });
}

bool Section::names(std::string_view sought) const { return words.contains(std::string(sought)); }

bool Section::isAbout(std::string_view title) const {
  return heading.ends_with(title) || names(title);
}

std::string singleBlanks(std::string_view text) {
  std::istringstream words{std::string(text)};
  std::string all;
  for (std::string word; words >> word;) all += (all.empty() ? "" : " ") + word;
  return all;
}

Page readPage(std::string name, std::string_view text) {
  const Lines lines = proseOf(text);
  Page page{
      .name = std::move(name), .whole = sectionOf(lines.begin(), lines.end()), .sections = {}};
  for (auto line = lines.begin(); line != lines.end(); ++line) {
    const std::size_t rank = rankOf(*line);
    if (rank < 2) continue;
    const auto next = std::find_if(line + 1, lines.end(), [rank](const std::string& other) {
      return rankOf(other) != 0 && rankOf(other) <= rank;
    });
    page.sections.push_back(sectionOf(line, next));
  }
  return page;
}

std::string readText(const fs::path& file) {
  std::ifstream text(file, std::ios::binary);
  if (!text) throw std::runtime_error("can't read " + file.string());
  return {std::istreambuf_iterator<char>(text), {}};
}

Page readPageIn(const fs::path& file) { return readPage(file.filename().string(), readText(file)); }

const std::vector<Page>& manualPages() {
  static const std::vector<Page> pages = [] {
    std::vector<Page> read;
    for (const auto& entry : fs::directory_iterator(manualFolder())) {
      if (entry.path().extension() == ".md") read.push_back(readPageIn(entry.path()));
    }
    return read;
  }();
  return pages;
}

const Page& manualPage(std::string_view name) {
  for (const Page& page : manualPages()) {
    if (page.name == name) return page;
  }
  throw std::runtime_error("the manual has no page " + std::string(name));
}

fs::path manualFolder() { return PROJECT_FOLDER "/docs/manual"; }

}  // namespace gsm::manual
