#include "tests/manual/design_words.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <sstream>
#include <string_view>

#include "tests/manual/manual_page.h"

namespace gsm::manual {
namespace {

struct Title {
  std::string_view window;
  std::string_view title;
};

// Where the design's own is none, or another one comes before anybody sees it: what is seen.
constexpr std::array kOtherTitles = {
    Title{.window = "Form10", .title = "SIM PIN"},
    Title{.window = "Form11", .title = "New Message Received"},
    Title{.window = "Form18", .title = "GSM-SIM TOOLKIT Facility"},
    Title{.window = "Form19", .title = "GSM-GPRS Configuration"},
    Title{.window = "Form20", .title = "Press <<Signal>> Button To Refresh Signal Strength"},
    Title{.window = "frmSettings", .title = "Communications Port Settings"},
};

struct Unseen {
  std::string_view window;
  std::string_view part;  // of the control's line
};

// No tab leads to the melodies; the label is written before it comes up.
constexpr std::array kUnseen = {
    Unseen{.window = "Form6", .part = "in Frame12"},
    Unseen{.window = "Form6", .part = "Frame12: frame"},
    Unseen{.window = "Form17", .part = "Label14: label"},
};

bool isSeen(const std::string& window, const std::string& line) {
  return std::none_of(kUnseen.begin(), kUnseen.end(), [&](const Unseen& unseen) {
    return unseen.window == window && line.find(unseen.part) != std::string::npos;
  });
}

// What stands between quotes behind `key` on the line; there may be several, with commas between.
std::vector<std::string> quotedBehind(const std::string& line, const std::string& key) {
  std::vector<std::string> texts;
  auto at = line.find(key);
  if (at == std::string::npos) return texts;
  at += key.size();
  while (at < line.size() && line[at] == '"') {
    const auto end = line.find('"', at + 1);
    texts.push_back(line.substr(at + 1, end - at - 1));
    at = end + 1;
    if (at < line.size() && line[at] == ',') ++at;
  }
  return texts;
}

// A wide gap parts two headings in one.
void addWords(std::string caption, SeenWindow& window) {
  std::erase(caption, '&');
  caption = caption.substr(std::min(caption.size(), caption.find_first_not_of(' ')));
  const auto gap = caption.find("   ");
  for (const std::string& part :
       {singleBlanks(caption.substr(0, gap)),
        gap == std::string::npos ? std::string() : singleBlanks(caption.substr(gap))}) {
    const bool isNumber = std::all_of(part.begin(), part.end(),
                                      [](unsigned char each) { return std::isdigit(each) != 0; });
    if (!isNumber) window.words.push_back(part);
  }
}

SeenWindow windowOf(const std::string& line) {
  SeenWindow window{.name = line.substr(0, line.find(' ')), .title = {}, .words = {}};
  const auto captions = quotedBehind(line, " Caption=");
  if (!captions.empty()) window.title = captions[0];
  for (const Title& other : kOtherTitles) {
    if (other.window == window.name) window.title = other.title;
  }
  return window;
}

}  // namespace

std::vector<SeenWindow> seenWindows() {
  std::vector<SeenWindow> windows;
  std::istringstream design(readText(PROJECT_FOLDER "/tests/design/design.txt"));
  for (std::string line; std::getline(design, line);) {
    if (line.empty()) continue;
    if (line[0] != ' ') {
      windows.push_back(windowOf(line));
    } else if (isSeen(windows.back().name, line)) {
      for (const char* key : {" Caption=", " Tabs="}) {
        for (const std::string& caption : quotedBehind(line, key)) {
          addWords(caption, windows.back());
        }
      }
    }
  }
  return windows;
}

}  // namespace gsm::manual
