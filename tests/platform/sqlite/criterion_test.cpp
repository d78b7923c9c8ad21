#include "platform/sqlite/criterion.h"

#include <gtest/gtest.h>

namespace gsm {
namespace {

struct Good {
  const char* name;
  const char* criterion;
  const char* column;
  std::optional<int> last;
  const char* text;
};

class GoodCriterion : public ::testing::TestWithParam<Good> {};

INSTANTIATE_TEST_SUITE_P(
    Forms, GoodCriterion,
    ::testing::Values(
        Good{"Plain", "Index='5'", "Index", std::nullopt, "5"},
        Good{"BlanksAround", "  name\t=  'Anna'  ", "name", std::nullopt, "Anna"},
        Good{"BlanksInTheTextAreKept", "name = ' Anna  '", "name", std::nullopt, " Anna  "},
        Good{"EmptyText", "Name=''", "Name", std::nullopt, ""},
        Good{"DoubleQuotesInTheText", "Name='\"A\"'", "Name", std::nullopt, "\"A\""},
        Good{"BracketsInTheText", "Name='a)(b'", "Name", std::nullopt, "a)(b"},
        Good{"CommentInTheText", "Name='--'", "Name", std::nullopt, "--"},
        Good{"EqualsSignInTheText", "Name='a=b'", "Name", std::nullopt, "a=b"},
        Good{"OtherLettersInTheText", "Name='\xC4\x80\n'", "Name", std::nullopt, "\xC4\x80\n"},
        Good{"DigitsAndUnderscoresInTheColumn", "_a1='x'", "_a1", std::nullopt, "x"},
        Good{"Right", "right(number,10) = '0123456789 '", "number", 10, "0123456789 "},
        Good{"RightInCapitals", "RIGHT(Number,4)='1234'", "Number", 4, "1234"},
        Good{"RightWithBlanks", " Right ( Number , 4 ) = '1' ", "Number", 4, "1"},
        Good{"RightOfNothing", "right(number,0)=''", "number", 0, ""},
        Good{"RightAsAColumn", "right='x'", "right", std::nullopt, "x"},
        Good{"RightAsItsColumn", "right(right,1)='x'", "right", 1, "x"}),
    [](const auto& tested) { return tested.param.name; });

TEST_P(GoodCriterion, IsRead) {
  const auto read = parseCriterion(GetParam().criterion);
  ASSERT_TRUE(read.has_value());
  EXPECT_EQ(read->column, GetParam().column);
  EXPECT_EQ(read->last, GetParam().last);
  EXPECT_EQ(read->text, GetParam().text);
}

struct Bad {
  const char* name;
  const char* criterion;
};

class BadCriterion : public ::testing::TestWithParam<Bad> {};

INSTANTIATE_TEST_SUITE_P(
    Forms, BadCriterion,
    ::testing::Values(
        Bad{"Empty", ""}, Bad{"Blank", "  "}, Bad{"ColumnOnly", "Name"}, Bad{"NoText", "Name="},
        Bad{"NoColumn", "='x'"}, Bad{"UnquotedText", "Index=5"},
        Bad{"DoubleQuotedText", "Name=\"x\""}, Bad{"OpenText", "Name='x"},
        Bad{"ApostropheInTheText", "Name='O'Neil'"}, Bad{"DoubledApostrophe", "Name='O''Neil'"},
        Bad{"ApostropheAtTheEnd", "Name='Neil''"}, Bad{"Injection", "Name='x' or '1'='1'"},
        Bad{"SecondStatement", "Name='x'; delete from data"}, Bad{"Comment", "Name='x' --"},
        Bad{"SomethingBehind", "Name='x' and"}, Bad{"OtherComparison", "Name<>'x'"},
        Bad{"TwoEqualsSigns", "Name=='x'"}, Bad{"Like", "Name like 'x'"},
        Bad{"QuotedColumn", "\"Name\"='x'"}, Bad{"BracketedColumn", "[Name]='x'"},
        Bad{"ColumnOfDigits", "1='x'"}, Bad{"ColumnOfOtherLetters", "N\xE4me='x'"},
        Bad{"TwoColumns", "Name Number='x'"}, Bad{"OtherFunction", "left(number,2)='x'"},
        Bad{"RightWithoutCount", "right(number)='x'"},
        Bad{"RightWithoutNumber", "right(number,)='x'"},
        Bad{"RightOfANegativeCount", "right(number,-1)='x'"},
        Bad{"RightOfAHugeCount", "right(number,99999999999)='x'"},
        Bad{"RightOfAFraction", "right(number,1.5)='x'"},
        Bad{"RightWithoutColumn", "right(,1)='x'"}, Bad{"RightUnclosed", "right(number,1='x'"},
        Bad{"RightInRight", "right(right(number,2),1)='x'"}),
    [](const auto& tested) { return tested.param.name; });

TEST_P(BadCriterion, IsRefused) { EXPECT_FALSE(parseCriterion(GetParam().criterion).has_value()); }

struct Met {
  const char* name;
  std::optional<int> last;
  std::string text;
  std::string value;
  bool met;
};

class MetCriterion : public ::testing::TestWithParam<Met> {};

INSTANTIATE_TEST_SUITE_P(
    Texts, MetCriterion,
    ::testing::Values(Met{"Equal", {}, "Anna", "Anna", true},
                      Met{"AnotherCase", {}, "ANNA \xC4\x8A\x9F", "anna \xE4\x9A\xFF", true},
                      Met{"BlanksBehindEither", {}, "Anna ", "Anna   ", true},
                      Met{"BlankInFront", {}, " Anna", "Anna", false},
                      Met{"LongerText", {}, "Annas", "Anna", false},
                      Met{"LongerValue", {}, "Anna", "Annas", false},
                      Met{"Empty", {}, "", "", false}, Met{"Blank", {}, "  ", "  ", false},
                      Met{"BlankOfAnEmptyValue", 10, " ", "", false},
                      Met{"MultiplicationAndDivision", {}, "\xD7", "\xF7", false},
                      Met{"SharpSAndY", {}, "\xDF", "\xFF", false},
                      Met{"Last", 3, "567", "1234567", true},
                      Met{"LastOfAShorterValue", 10, "112", "112", true},
                      Met{"LastIsTakenBeforeTheBlanksGo", 3, "7", "4567  ", true},
                      Met{"NotMoreThanTheLast", 3, "4567", "4567", false},
                      Met{"LastOfNothing", 0, "", "4567", false}),
    [](const auto& tested) { return tested.param.name; });

TEST_P(MetCriterion, IsMetByTextsThatAreEqual) {
  const Criterion criterion{"Name", GetParam().last, GetParam().text};
  EXPECT_EQ(criterion.isMetBy(GetParam().value), GetParam().met);
}

TEST(Criterion, AZeroByteAfterTheTextIsRefused) {
  EXPECT_FALSE(parseCriterion(std::string_view("Name='x'\0", 9)).has_value());
}

}  // namespace
}  // namespace gsm
