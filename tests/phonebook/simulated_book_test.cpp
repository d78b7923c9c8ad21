#include "tests/phonebook/simulated_book_test.h"

#include <gtest/gtest.h>

#include "phonebook/form3.h"
#include "phonebook/form4.h"

namespace gsm {
namespace {

class SimulatedBook : public SimulatedBookTest {};

TEST_F(SimulatedBook, KeepsAnAddedEntryThroughAReload) {
  openCalls();
  const std::string before = used();
  ASSERT_FALSE(before.empty());
  click(calls().Command2);
  panel().form4.Text3.Text = "0146290899";
  panel().form4.Text4.Text = "Zed";
  click(panel().form4.Command1);
  settle();
  EXPECT_EQ(used(), std::to_string(std::stoi(before) + 1));
  click(calls().Command5);
  settle();
  EXPECT_EQ(used(), std::to_string(std::stoi(before) + 1));
  ASSERT_FALSE(storedEntries().empty());
  EXPECT_EQ(storedEntries().back(), (BookRow{used(), "0146290899", " Zed"}));
  EXPECT_EQ(rows().back(), used() + "  0146290899           Zed");
}

TEST_F(SimulatedBook, RedialsTheNumberOfTheLastCall) {
  openCalls();
  calls().Text1.Text = "0146290800";
  click(calls().Command1);
  settle();
  click(calls().Command4);
  settle();
  EXPECT_EQ(dialBox(), "");
  click(calls().Command8);
  run(3);
  EXPECT_EQ(dialBox(), "0146290800");
}

}  // namespace
}  // namespace gsm
