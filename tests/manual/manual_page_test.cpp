// How the manual is read: what the other tests rely on.

#include "tests/manual/manual_page.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "tests/manual/design_words.h"

namespace gsm::manual {
namespace {

const Section* sectionNamed(const Page& page, std::string_view heading) {
  for (const Section& section : page.sections) {
    if (section.heading == heading) return &section;
  }
  return nullptr;
}

TEST(ManualPage, HasItsSectionsWithTheSmallerOnesInThem) {
  const Page page = readPage("a.md", "# A\n`one`\n## B\n`two`\n### C\n`three`\n## D\n`four`\n");
  ASSERT_EQ(page.sections.size(), 3u);
  EXPECT_EQ(page.whole.words.size(), 4u);
  const Section* b = sectionNamed(page, "B");
  ASSERT_NE(b, nullptr);
  EXPECT_TRUE(b->names("two"));
  EXPECT_TRUE(b->names("three"));
  EXPECT_FALSE(b->names("one"));
  EXPECT_FALSE(b->names("four"));
}

TEST(ManualPage, WordsStandBetweenBackticks) {
  const Page page = readPage("a.md", "# The Title\nRead `2  Bit`, `a\nb` and Cancel.\n");
  EXPECT_TRUE(page.whole.names("2 Bit"));
  EXPECT_TRUE(page.whole.names("a b"));
  EXPECT_FALSE(page.whole.names("Cancel"));
  EXPECT_FALSE(page.whole.names("Bit"));
  EXPECT_FALSE(page.whole.names("Title"));
}

TEST(ManualPage, IsAboutTheWindowAtTheEndOfItsHeadingOrBetweenBackticks) {
  const Page page = readPage("a.md", "# Calls: GSM-Call\nIt opens `GSM-N/W`.\n");
  EXPECT_TRUE(page.whole.isAbout("GSM-Call"));
  EXPECT_TRUE(page.whole.isAbout("GSM-N/W"));
  EXPECT_FALSE(page.whole.isAbout("Calls"));
  EXPECT_FALSE(page.whole.isAbout("GSM-Call Control"));
}

TEST(ManualPage, BlocksOfCodeHoldNoWordsAndNoLinks) {
  const Page page = readPage("a.md", "Text\n\n    `no` [a](b)\n    `neither`\n\n- x\n    `yes`\n");
  EXPECT_FALSE(page.whole.names("no"));
  EXPECT_FALSE(page.whole.names("neither"));
  EXPECT_TRUE(page.whole.names("yes"));
  EXPECT_TRUE(page.whole.links.empty());
}

TEST(ManualPage, KnowsPicturesFromLinks) {
  const Page page = readPage("a.md", "See [the\nwindow](b.md) ![it](../c.png).\n");
  ASSERT_EQ(page.whole.links.size(), 2u);
  EXPECT_EQ(page.whole.links[0].target, "b.md");
  EXPECT_FALSE(page.whole.links[0].isPicture);
  EXPECT_EQ(page.whole.links[1].target, "../c.png");
  EXPECT_TRUE(page.whole.links[1].isPicture);
  EXPECT_TRUE(page.whole.hasPicture());
}

TEST(SeenWindows, AreTheDesignsAsTheyAreSeen) {
  const auto windows = seenWindows();
  const auto named = [&](std::string_view name) {
    return *std::find_if(windows.begin(), windows.end(),
                         [&](const SeenWindow& window) { return window.name == name; });
  };
  EXPECT_EQ(windows.size(), 20u);
  EXPECT_EQ(named("Form4").title, "GSM-Add NUmbers To PhoneBook");
  EXPECT_EQ(named("Form14").title, "GSM-DATA&FAX SETUP");
  EXPECT_EQ(named("frmSettings").title, "Communications Port Settings");
  const auto has = [&](std::string_view name, std::string_view word) {
    const auto words = named(name).words;
    return std::find(words.begin(), words.end(), word) != words.end();
  };
  EXPECT_TRUE(has("Form1", "Voice Call"));
  EXPECT_TRUE(has("Form6", "AutoAnswer"));
  EXPECT_TRUE(has("Form6", "Tone/Echo Control"));
  EXPECT_TRUE(has("Form14", "Data Compression"));
  EXPECT_TRUE(has("Form14", "Error Correction Mode"));
  EXPECT_FALSE(has("Form6", "Ring Melody"));
  EXPECT_FALSE(has("Form6", "255"));
}

}  // namespace
}  // namespace gsm::manual
