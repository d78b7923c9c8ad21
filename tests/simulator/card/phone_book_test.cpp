#include "simulator/card/phone_book.h"

#include <gtest/gtest.h>

#include <random>

#include "simulator/card/phone_book_text.h"

namespace gsm::simulator {
namespace {

PhoneBook bookOf(PhoneBookEntries entries) { return {std::move(entries), kLongestNameRoom, {}}; }

TEST(PhoneBook, FactoryEntriesFitEveryCard) {
  const PhoneBookEntries entries = factoryPhoneBook();
  EXPECT_EQ(entries.size(), 8u);
  for (const auto& [location, entry] : entries) {
    EXPECT_TRUE(isPhoneBookLocation(location));
    EXPECT_EQ(flawOf(entry, kShortestNameRoom), std::nullopt) << entry.name;
  }
}

TEST(PhoneBook, FirstFreeLocationIsTheLowestHole) {
  EXPECT_EQ(bookOf({}).firstFree(), 1);
  EXPECT_EQ(bookOf({{1, {"1", ""}}, {2, {"2", ""}}, {4, {"4", ""}}}).firstFree(), 3);
  PhoneBookEntries full;
  for (int location = 1; location <= kPhoneBookLocations; ++location) full[location] = {"1", "x"};
  EXPECT_EQ(bookOf(full).firstFree(), std::nullopt);
  full.erase(250);
  EXPECT_EQ(bookOf(full).firstFree(), 250);
}

TEST(PhoneBook, EveryChangeIsKeptAsText) {
  std::vector<std::string> kept;
  PhoneBook book({{3, {"123", "Anna"}}}, kLongestNameRoom, [&kept](std::string_view text) {
    kept.emplace_back(text);
    return true;
  });
  EXPECT_TRUE(book.store(1, {"+4", " Ben"}));
  EXPECT_TRUE(book.store(3, {"5", ""}));
  EXPECT_TRUE(book.erase(1));
  EXPECT_TRUE(book.erase(1)) << "an empty location has nothing to keep";
  EXPECT_EQ(kept, (std::vector<std::string>{"1\t+4\t Ben\n3\t123\tAnna\n", "1\t+4\t Ben\n3\t5\t\n",
                                            "3\t5\t\n"}));
}

TEST(PhoneBook, ChangeThatCantBeKeptDoesntHappen) {
  const PhoneBookEntries entries = {{1, {"1", "Anna"}}};
  PhoneBook book(entries, kLongestNameRoom, [](std::string_view) { return false; });
  EXPECT_FALSE(book.store(2, {"2", "Ben"}));
  EXPECT_FALSE(book.erase(1));
  EXPECT_EQ(book.entries(), entries);
}

TEST(PhoneBook, FlawsHaveTheirLimits) {
  const std::string twenty(20, '1');
  EXPECT_EQ(flawOf({twenty, ""}, 10), std::nullopt);
  EXPECT_EQ(flawOf({"+" + twenty, ""}, 10), std::nullopt);
  EXPECT_EQ(flawOf({twenty + "1", ""}, 10), EntryFlaw::kNumberTooLong);
  EXPECT_EQ(flawOf({"1", "tenletters"}, 10), std::nullopt);
  EXPECT_EQ(flawOf({"1", "eleven char"}, 10), EntryFlaw::kNameTooLong);
  EXPECT_EQ(flawOf({"1", "eleven char"}, 11), std::nullopt);
  EXPECT_EQ(flawOf({"", "Anna"}, 10), std::nullopt);
  EXPECT_EQ(flawOf({"", ""}, 10), EntryFlaw::kEmpty);
  EXPECT_EQ(flawOf({"12x", ""}, 10), EntryFlaw::kNumberMalformed);
  EXPECT_EQ(flawOf({"1", "a\"b"}, 10), EntryFlaw::kNameMalformed);
  EXPECT_EQ(flawOf({"1", "a\tb"}, 10), EntryFlaw::kNameMalformed);
}

TEST(PhoneBookText, ComesBackAsItWas) {
  const PhoneBookEntries entries = {
      {1, {"112", "Emergency"}}, {7, {"+1", " An, na "}}, {250, {"", "x\xE9"}}, {9, {"*#", ""}}};
  const PhoneBookReading reading = readPhoneBook(toText(entries), kLongestNameRoom);
  EXPECT_EQ(reading.entries, entries);
  EXPECT_TRUE(reading.complaints.empty());
}

TEST(PhoneBookText, BearsForeignLineEndsEmptyLinesAndNamesLeftOut) {
  const PhoneBookReading reading = readPhoneBook("\r\n1\t112\tHelp\r\n\n2\t113", 14);
  EXPECT_EQ(reading.entries, (PhoneBookEntries{{1, {"112", "Help"}}, {2, {"113", ""}}}));
  EXPECT_TRUE(reading.complaints.empty());
}

TEST(PhoneBookText, PassesOverWhatIsNoEntryAndSaysWhy) {
  const PhoneBookReading reading = readPhoneBook(
      "0\t1\ta\n251\t1\ta\nx\t1\ta\n1 \t1\ta\n1\t\t\n1\t12a\tb\n1\t123456789012345678901\tb\n"
      "1\t1\televen char\n1\t1\ta\"b\n1\t1\ta\tb\n1\t5\tgood\n1\t6\tlate\n",
      10);
  EXPECT_EQ(reading.entries, (PhoneBookEntries{{1, {"5", "good"}}}));
  EXPECT_EQ(reading.complaints,
            (std::vector<std::string>{"line 1: the location isn't a number from 1 to 250",
                                      "line 2: the location isn't a number from 1 to 250",
                                      "line 3: the location isn't a number from 1 to 250",
                                      "line 4: the location isn't a number from 1 to 250",
                                      "line 5: there is neither a number nor a name",
                                      "line 6: the number isn't one",
                                      "line 7: the number is longer than 20 digits",
                                      "line 8: the name is longer than 10 characters",
                                      "line 9: the name has a character that can't be in one",
                                      "line 10: the name has a character that can't be in one",
                                      "line 12: location 1 has an entry already"}));
}

TEST(PhoneBookText, HoldsOnlyGoodEntriesWhateverItIsMadeOf) {
  std::mt19937_64 generator(11);
  for (int run = 0; run < 2000; ++run) {
    std::string text;
    for (std::size_t size = generator() % 60; text.size() < size;) {
      text += "12\t\t\n\r+#a\"\x01\xFF"[generator() % 12];
    }
    for (const auto& [location, entry] : readPhoneBook(text, 14).entries) {
      ASSERT_TRUE(isPhoneBookLocation(location)) << text;
      ASSERT_EQ(flawOf(entry, 14), std::nullopt) << text;
    }
  }
}

}  // namespace
}  // namespace gsm::simulator
