// What the windows' data controls show of the phone book, by their record source.

#include <gtest/gtest.h>

#include "phonebook/form3.h"
#include "platform/sqlite/phone_book_file.h"
#include "tests/support/phone_book_test.h"

namespace gsm {
namespace {

class RecordSource : public PhoneBookTest {
 protected:
  void SetUp() override {
    PhoneBookTest::SetUp();
    layEntries({{"1", "111", "ONE"}, {"2", "112", "TWO"}});
    openCalls();
  }
  DataControl& data() { return calls().Data1; }
  int failureOf(const std::function<void()>& action) {
    int number = 0;
    inPanel([&] {
      try {
        action();
      } catch (const RuntimeFailure& failure) {
        number = failure.number();
      }
    });
    run(0);
    return number;
  }
  Texts names() {
    Texts names;
    inPanel([&] {
      RecordSet& set = data().Recordset();
      for (set.MoveFirst(); !set.isEof(); set.MoveNext()) names.push_back(set.field("name"));
    });
    run(0);
    return names;
  }
};

TEST_F(RecordSource, IsTheTableOfTheDesign) {
  inPanel([this] { EXPECT_EQ(static_cast<const std::string&>(data().RecordSource), "DATA"); });
  run(0);
}

TEST_F(RecordSource, IsOpenedByItsFirstUseWhereTheLoadOfItsWindowCouldNot) {
  inPanel([this] { calls().Unload(); });
  run(0);
  removeBook();
  openCalls();
  createPhoneBook(bookFile());
  layEntries({{"1", "113", "THREE"}});
  EXPECT_EQ(names(), Texts{"THREE"});
}

TEST_F(RecordSource, CountsFromTheNextRefreshOn) {
  inPanel([this] { data().RecordSource = "select name from data"; });
  run(0);
  EXPECT_EQ(failureOf([this] {
              data().Recordset().MoveFirst();
              EXPECT_EQ(data().Recordset().field("number"), "111");
            }),
            0);
  EXPECT_EQ(failureOf([this] {
              data().Refresh();
              data().Recordset().field("number");
            }),
            3265);
  EXPECT_EQ(names(), (Texts{"ONE", "TWO"}));
}

TEST_F(RecordSource, MayBeAssignedAgain) {
  EXPECT_EQ(failureOf([this] {
              data().RecordSource = "select name from data";
              data().Refresh();
              data().RecordSource = "select * from data";
              data().Refresh();
              data().Recordset().FindFirst("name = 'TWO ' ");
              EXPECT_FALSE(data().Recordset().NoMatch());
              EXPECT_EQ(data().Recordset().field("number"), "112");
            }),
            0);
}

TEST_F(RecordSource, OfWhatIsNoQueryFailsAtTheRefresh) {
  EXPECT_EQ(failureOf([this] { data().RecordSource = "delete from data"; }), 0);
  EXPECT_EQ(failureOf([this] { data().Refresh(); }), 3078);
  EXPECT_EQ(storedEntries().size(), 2U);
}

TEST_F(RecordSource, KeepsTheRowsUntilTheNextRefresh) {
  inPanel([this] {
    data().RecordSource = "select name from data";
    data().Refresh();
  });
  run(0);
  layEntries({{"3", "113", "THREE"}});
  EXPECT_EQ(names(), (Texts{"ONE", "TWO"}));
  inPanel([this] { data().Refresh(); });
  run(0);
  EXPECT_EQ(names(), (Texts{"ONE", "TWO", "THREE"}));
}

TEST_F(RecordSource, IsTheDesignsAgainWhenTheWindowIsLoadedAnew) {
  inPanel([this] { data().RecordSource = "select name from data"; });
  run(0);
  inPanel([this] { calls().userClose(); });
  settle();
  openCalls();
  EXPECT_EQ(failureOf([this] { data().Recordset().field("number"); }), 3021);  // after the walk
  EXPECT_EQ(rows().size(), 2U);
}

TEST_F(RecordSource, IsAReferenceWhichLoadsTheWindow) {
  inPanel([this] { calls().userClose(); });
  settle();
  inPanel([this] { data().RecordSource = "select name from data"; });
  settle();
  EXPECT_TRUE(calls().isLoaded());
}

}  // namespace
}  // namespace gsm
