#pragma once

#include <filesystem>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace gsm::manual {

/// A link of a page, or a picture on it.
struct Link {
  std::string target;  // as it is written
  bool isPicture = false;
};

/// A heading with all that stands under it, smaller headings and all.
struct Section {
  std::string heading;          // without its hashes
  std::set<std::string> words;  // what stands between backticks, with single blanks
  std::vector<Link> links;

  bool hasPicture() const;
  /// Whether `sought` stands between backticks in it.
  bool names(std::string_view sought) const;
  /// Whether it is about the window of that title: its heading ends with it, or it names it.
  bool isAbout(std::string_view title) const;
};

/// A file in Markdown. What stands in blocks of code is no word and no link of it.
struct Page {
  std::string name;  // of the file
  Section whole;
  std::vector<Section> sections;  // under each heading but the page's own
};

/// `text` without blanks at its ends, and with single ones in it.
std::string singleBlanks(std::string_view text);

/// Reads a page out of its text.
Page readPage(std::string name, std::string_view text);

/// Reads the page in a file. Throws std::runtime_error when there is none.
Page readPageIn(const std::filesystem::path& file);

/// The pages of the manual.
const std::vector<Page>& manualPages();

/// The page of the manual in the file of that name. Throws std::runtime_error when there is none.
const Page& manualPage(std::string_view name);

/// The whole text of a file. Throws std::runtime_error when it can't be read.
std::string readText(const std::filesystem::path& file);

/// The folder in which the manual's pages lie.
std::filesystem::path manualFolder();

}  // namespace gsm::manual
