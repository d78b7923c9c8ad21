#include "tests/house/house_rules.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace gsm::house {
namespace {

const Tree& project() {
  static const Tree tree = readTree(PROJECT_FOLDER);
  return tree;
}

class HouseRule : public ::testing::TestWithParam<Rule> {};

TEST_P(HouseRule, IsKept) {
  for (const std::string& finding : GetParam().check(project())) ADD_FAILURE() << finding;
}

// A rule that can't fail would be kept by anything.
TEST_P(HouseRule, CatchesEachPlantedExample) {
  const Rule& rule = GetParam();
  ASSERT_FALSE(rule.planted.empty());
  for (const SourceFile& example : rule.planted) {
    Tree tree = rule.setting;
    tree.push_back(example);
    const Findings findings = rule.check(tree);
    ASSERT_EQ(findings.size(), 1u) << example.path << ": " << example.lines.at(0);
    EXPECT_TRUE(findings[0].starts_with(example.path + ":")) << findings[0];
  }
}

TEST_P(HouseRule, LeavesTheInnocentAlone) {
  const Rule& rule = GetParam();
  Tree tree = rule.setting;
  tree.insert(tree.end(), rule.innocent.begin(), rule.innocent.end());
  EXPECT_EQ(rule.check(tree), Findings());
}

INSTANTIATE_TEST_SUITE_P(Of, HouseRule, ::testing::ValuesIn(rules()),
                         [](const auto& rule) { return rule.param.name; });

TEST(SourceTree, HoldsTheProject) {
  const auto holds = [](const char* path) {
    return std::any_of(project().begin(), project().end(),
                       [path](const SourceFile& file) { return file.path == path; });
  };
  for (const char* path :
       {"CMakeLists.txt", "panel/form1.h", "dispatch/routing.cpp", "platform/clock.h",
        "simulator/modem.cpp", "tests/house/house_rules.h"}) {
    EXPECT_TRUE(holds(path)) << path;
  }
  EXPECT_GT(project().size(), 100u);
}

TEST(SourceTree, CommentsAreNoCode) {
  EXPECT_EQ(withoutComment("int a;  // time(nullptr)"), "int a;  ");
  EXPECT_EQ(withoutComment("int a;"), "int a;");
  EXPECT_EQ(withoutComment("// all"), "");
  EXPECT_EQ(withoutComment("\"http://a.b\""), "\"http://a.b\"");
}

TEST(SourceTree, IncludesAreReadWithTheirQuotes) {
  EXPECT_EQ(includeOf("#include <vector>"), "<vector>");
  EXPECT_EQ(includeOf("#include \"app/panel.h\"  // why"), "\"app/panel.h\"");
  EXPECT_EQ(includeOf("int include;"), "");
  EXPECT_EQ(includeOf("#include"), "");
}

}  // namespace
}  // namespace gsm::house
