// The pictures of the manual and of the pages in front of it.

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <set>
#include <string>

#include "tests/manual/manual_page.h"

namespace gsm::manual {
namespace {

namespace fs = std::filesystem;

const fs::path kProject = PROJECT_FOLDER;

std::set<std::string> picturesOn(const Page& page) {
  std::set<std::string> names;
  for (const Link& link : page.whole.links) {
    if (link.isPicture) names.insert(fs::path(link.target).filename().string());
  }
  return names;
}

TEST(Pictures, AreAllShownInTheManual) {
  std::set<std::string> shown;
  for (const Page& page : manualPages()) shown.merge(picturesOn(page));
  for (const auto& entry : fs::directory_iterator(kProject / "docs/pictures")) {
    EXPECT_TRUE(shown.contains(entry.path().filename().string())) << entry.path().filename();
  }
}

TEST(Pictures, AreSmallTogether) {
  std::uintmax_t bytes = 0;
  for (const auto& entry : fs::directory_iterator(kProject / "docs/pictures")) {
    bytes += entry.file_size();
  }
  EXPECT_GT(bytes, 100'000u);
  EXPECT_LT(bytes, 1'500'000u);
}

TEST(Readme, ShowsThreePictures) {
  EXPECT_EQ(picturesOn(readPageIn(kProject / "README.md")).size(), 3u);
}

TEST(PagesInFront, LeadSomewhereByEachLink) {
  for (const char* name : {"README.md", "ARCHITECTURE.md", "CONTRIBUTING.md"}) {
    for (const Link& link : readPageIn(kProject / name).whole.links) {
      EXPECT_TRUE(fs::exists(kProject / link.target)) << name << " leads to " << link.target;
    }
  }
}

}  // namespace
}  // namespace gsm::manual
