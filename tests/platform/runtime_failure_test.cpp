#include "platform/runtime_failure.h"

#include <gtest/gtest.h>

#include "platform/scoped_value.h"

namespace gsm {
namespace {

TEST(RuntimeFailure, CarriesTheRunTimesNumbersAndTexts) {
  const struct {
    RuntimeFailure failure;
    int number;
    const char* description;
  } rows[] = {
      {failure::invalidArgument(), 5, "Invalid procedure call or argument"},
      {failure::overflow(), 6, "Overflow"},
      {failure::outOfMemory(), 7, "Out of memory"},
      {failure::typeMismatch(), 13, "Type mismatch"},
      {failure::badFileNumber(), 52, "Bad file name or number"},
      {failure::fileNotFound(), 53, "File not found"},
      {failure::fileAlreadyOpen(), 55, "File already open"},
      {failure::deviceError(), 57, "Device I/O error"},
      {failure::diskFull(), 61, "Disk full"},
      {failure::inputPastEnd(), 62, "Input past end of file"},
      {failure::permissionDenied(), 70, "Permission denied"},
      {failure::fileAccessError(), 75, "Path/File access error"},
      {failure::objectNotSet(), 91, "Object variable or With block variable not set"},
      {failure::invalidPropertyValue(), 380, "Invalid property value"},
      {failure::noSuchProperty(), 438, "Object doesn't support this property or method"},
      {failure::invalidWhileOpen(), 8000, "Operation not valid while the port is opened"},
      {failure::invalidPortNumber(), 8002, "Invalid Port Number"},
      {failure::portAlreadyOpen(), 8005, "Port already open"},
      {failure::invalidUnlessOpen(), 8018, "Operation valid only when the port is open"},
  };
  for (const auto& [failure, number, description] : rows) {
    EXPECT_EQ(failure.number(), number);
    EXPECT_EQ(failure.description(), description);
  }
}

TEST(ScopedValue, GivesTheOldValueBackHoweverTheScopeIsLeft) {
  int value = 1;
  {
    const ScopedValue guard(value, 2);
    EXPECT_EQ(value, 2);
  }
  EXPECT_EQ(value, 1);
  try {
    const ScopedValue guard(value, 3);
    throw failure::overflow();
  } catch (const RuntimeFailure&) {
    EXPECT_EQ(value, 1);
  }
}

}  // namespace
}  // namespace gsm
