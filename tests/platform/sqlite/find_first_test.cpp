#include "tests/platform/sqlite/book_fixture.h"

namespace gsm {
namespace {

class FindFirst : public BookTest {
 protected:
  // The index of the row that is found in a fresh set; empty when there is none.
  std::string find(const std::string& criterion) const {
    const auto set = entries();
    set->FindFirst(criterion);
    return set->NoMatch() ? "" : set->field("Index");
  }
  void addNumber(const std::string& index, const std::string& number) const {
    const auto set = entries();
    set->AddNew();
    set->setField("Index", index);
    set->setField("Number", number);
    set->Update();
  }
};

TEST_F(FindFirst, FindsTheFirstOfEqualRows) {
  add({"Anna", "Bert", "Bert"});
  EXPECT_EQ(find("Name='Bert'"), "2");
  EXPECT_EQ(find("Name='Cora'"), "");
}

TEST_F(FindFirst, SearchesFromTheBeginningWhereverTheSetStands) {
  add({"Anna", "Bert", "Anna"});
  const auto set = entries();
  set->MoveNext();
  set->MoveNext();
  set->FindFirst("Name='Anna'");
  EXPECT_EQ(set->field("Index"), "1");
  EXPECT_EQ(rest(*set), (std::vector<std::string>{"Anna", "Bert", "Anna"}));
}

TEST_F(FindFirst, ColumnsIgnoreCase) {
  add({"Anna"});
  EXPECT_EQ(find("INDEX='1'"), "1");
  EXPECT_EQ(find("name = 'Anna'"), "1");
}

TEST_F(FindFirst, TextsIgnoreCase) {
  add({"ANNA", "\xC4rger", "\x8A\x8C\x8E\x9F", "\xFE"});
  EXPECT_EQ(find("Name='anna'"), "1");
  EXPECT_EQ(find("Name='\xE4RGER'"), "2");
  EXPECT_EQ(find("Name='\x9A\x9C\x9E\xFF'"), "3");
  EXPECT_EQ(find("Name='\xDE'"), "4");
}

TEST_F(FindFirst, OtherCharactersThatLookLikePairsAreDifferent) {
  add({"\xD7", "[", "\xDF"});
  EXPECT_EQ(find("Name='\xF7'"), "");  // the signs of multiplication and of division
  EXPECT_EQ(find("Name='{'"), "");
  EXPECT_EQ(find("Name='ss'"), "");
}

TEST_F(FindFirst, BlanksAfterTheTextDoNotMatter) {
  add({"Anna", "Bert  ", " Cora"});
  EXPECT_EQ(find("Name='Anna   '"), "1");
  EXPECT_EQ(find("Name='Bert'"), "2");
  EXPECT_EQ(find("Name='Cora'"), "");
  EXPECT_EQ(find("Name='An na'"), "");
}

TEST_F(FindFirst, OtherWhiteSpaceAfterTheTextMatters) {
  add({"Anna\r", "Anna"});
  EXPECT_EQ(find("Name='Anna'"), "2");
}

TEST_F(FindFirst, ABlankTextFindsNothing) {
  add({"Anna", "", "  "});
  book_->Execute("insert into data values ('4', null, null)");
  for (const char* text : {"", " ", "   "}) {
    EXPECT_EQ(find("Name='" + std::string(text) + "'"), "") << "'" << text << "'";
    EXPECT_EQ(find("right(number,10) = '" + std::string(text) + " '"), "") << "'" << text << "'";
  }
}

TEST_F(FindFirst, TheBlankBeforeTheClosingQuoteDoesNotCount) {
  add({"Anna", "NAME"});
  EXPECT_EQ(find("name = 'NAME ' "), "2");
}

TEST_F(FindFirst, RightComparesTheLastCharacters) {
  addNumber("1", "+491701234567");
  addNumber("2", "112");
  EXPECT_EQ(find("right(number,10) = '1701234567 '"), "1");
  EXPECT_EQ(find("right(number,10) = '1234567 '"), "");
  EXPECT_EQ(find("RIGHT(NUMBER,3)='567'"), "1");
  EXPECT_EQ(find("right(number,1)='2'"), "2");
}

TEST_F(FindFirst, RightTakesAShorterTextWhole) {
  addNumber("1", "112");
  EXPECT_EQ(find("right(number,10)='112'"), "1");
  EXPECT_EQ(find("right(number,3)='112'"), "1");
  EXPECT_EQ(find("right(number,2147483647)='112'"), "1");
}

TEST_F(FindFirst, RightOfNothingIsEmptyAndMeetsNothing) {
  addNumber("1", "112");
  EXPECT_EQ(find("right(number,0)=''"), "");
  EXPECT_EQ(find("right(number,0)='2'"), "");
}

TEST_F(FindFirst, RightCountsCharactersNotBytes) {
  add({"x\xC4\xD6\xDC"});
  EXPECT_EQ(find("right(name,3)='\xE4\xF6\xFC'"), "1");
  EXPECT_EQ(find("right(name,2)='\xD6\xDC'"), "1");
}

TEST_F(FindFirst, NoMatchLeavesTheRow) {
  add({"Anna", "Bert"});
  const auto set = entries();
  set->MoveNext();
  set->FindFirst("Name='Cora'");
  EXPECT_TRUE(set->NoMatch());
  EXPECT_EQ(set->field("Name"), "Bert");
  set->FindFirst("Name='Anna'");
  EXPECT_FALSE(set->NoMatch());
}

TEST_F(FindFirst, AnEmptySetHasNoMatch) {
  const auto set = entries();
  set->FindFirst("Name='Anna'");
  EXPECT_TRUE(set->NoMatch());
  EXPECT_TRUE(set->isEof());
}

TEST_F(FindFirst, AnApostropheIsAFailureAndLeavesTheRow) {
  add({"Anna", "O'Neil"});
  const auto set = entries();
  set->MoveNext();
  const Failed failed = failureOf([&] { set->FindFirst("Name='O'Neil'"); });
  EXPECT_EQ(failed.number, 3077);
  EXPECT_EQ(failed.description, "Syntax error in expression: Name='O'Neil'");
  EXPECT_EQ(set->field("Name"), "O'Neil");
}

TEST_F(FindFirst, WhatLooksLikeAnotherStatementIsNeverRun) {
  add({"Anna"});
  const auto set = entries();
  for (const char* criterion :
       {"Name='x' or 1=1 --'", "Name='x'; delete from data; --'", "1=1",
        "Name=(select Name from DATA)", "right(name,1) or 1 = ''", "\"Name\"='Anna'"}) {
    EXPECT_EQ(failureOf([&] { set->FindFirst(criterion); }).number, 3077) << criterion;
  }
  set->FindFirst("Name='x\" or \"1\"=\"1'");
  EXPECT_TRUE(set->NoMatch());
  set->FindFirst("Name='?1'");
  EXPECT_TRUE(set->NoMatch());
  EXPECT_EQ(stored(), std::vector<std::string>{"Anna"});
}

TEST_F(FindFirst, AnUnknownColumnIsAFailure) {
  add({"Anna"});
  const auto set = entries();
  EXPECT_EQ(failureOf([&] { set->FindFirst("Phone='1'"); }).number, 3265);
  EXPECT_EQ(failureOf([&] { set->FindFirst("rowid='1'"); }).number, 3265);
}

TEST_F(FindFirst, ARowThatAnotherSetAddedIsFoundAfterAReopening) {
  add({"Anna"});
  const auto before = entries();
  add({"Bert"});
  before->FindFirst("Name='Bert'");
  EXPECT_TRUE(before->NoMatch());
  const auto after = entries();
  after->FindFirst("Name='Bert'");
  EXPECT_FALSE(after->NoMatch());
}

TEST_F(FindFirst, ARowThatAnotherSetChangedIsFoundByWhatItHoldsNow) {
  add({"Anna"});
  const auto set = entries();
  book_->Execute("update data set name='Bert'");
  set->FindFirst("Name='Anna'");
  EXPECT_TRUE(set->NoMatch());
  set->FindFirst("Name='Bert'");
  EXPECT_FALSE(set->NoMatch());
}

// Emptied behind the set's back, the table gives the numbers of its first rows to new ones.
TEST_F(FindFirst, RowsAddedAfterTheTableWasEmptiedAreFoundInTheOldSet) {
  add({"a", "b", "c", "d", "e"});
  const auto set = entries();
  book_->Execute("delete from data");
  for (const char* name : {"x", "y", "z"}) {
    set->AddNew();
    set->setField("Name", name);
    set->Update();
  }
  for (const std::string name : {"x", "y", "z"}) {
    set->FindFirst("Name='" + name + "'");
    ASSERT_FALSE(set->NoMatch()) << name;
    EXPECT_EQ(set->field("Name"), name);
  }
}

TEST_F(FindFirst, ColumnsOfNumbersAreComparedAsTexts) {
  book_->Execute("create table counts (Used integer)");
  book_->Execute("insert into counts values (17)");
  const auto set = book_->openRecordSet("counts");
  EXPECT_EQ(set->field("Used"), "17");
  set->FindFirst("Used='17'");
  EXPECT_FALSE(set->NoMatch());
  set->FindFirst("right(used,1)='7'");
  EXPECT_FALSE(set->NoMatch());
}

}  // namespace
}  // namespace gsm
