#include "platform/sqlite/database_failure.h"

#include <gtest/gtest.h>

#include <new>

namespace gsm {
namespace {

TEST(DatabaseFailure, ADetailStandsWhereTheWordsLeaveRoomForIt) {
  const RuntimeFailure missing = databaseFailure(DatabaseFault::noTable, "SMS");
  EXPECT_EQ(missing.number(), 3078);
  EXPECT_EQ(missing.description(), "Could not find the input table or query 'SMS'.");
  EXPECT_EQ(databaseFailure(DatabaseFault::diskFull, "50 % left").description(),
            "Disk full: 50 % left");
  EXPECT_EQ(databaseFailure(DatabaseFault::readOnly, "detail").description(),
            "Can't update. Database or object is read-only.");
}

TEST(DatabaseFailure, OtherWordsKeepTheNumber) {
  const RuntimeFailure failure = databaseFailureSaying(DatabaseFault::badFormat, "Strange.");
  EXPECT_EQ(failure.number(), 3343);
  EXPECT_EQ(failure.description(), "Strange.");
}

TEST(DatabaseFailure, WhatAHandlerAsksForInVainIsNotTheFiles) {
  for (const DatabaseFault fault : {DatabaseFault::noEdit, DatabaseFault::noCurrentRecord,
                                    DatabaseFault::badExpression, DatabaseFault::recordDeleted}) {
    EXPECT_FALSE(isOfTheFile(databaseFailure(fault))) << static_cast<int>(fault);
  }
  for (const DatabaseFault fault : {DatabaseFault::noFile, DatabaseFault::locked,
                                    DatabaseFault::badFormat, DatabaseFault::noColumn}) {
    EXPECT_TRUE(isOfTheFile(databaseFailure(fault))) << static_cast<int>(fault);
  }
}

TEST(DatabaseFailure, WantOfMemoryIsAFailureLikeAnyOther) {
  EXPECT_EQ(withinMemory([] { return 7; }), 7);
  try {
    withinMemory([] { throw std::bad_alloc(); });
    FAIL();
  } catch (const RuntimeFailure& failure) {
    EXPECT_EQ(failure.number(), 7);
    EXPECT_EQ(failure.description(), "Out of memory");
  }
}

}  // namespace
}  // namespace gsm
