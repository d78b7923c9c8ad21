#include <gtest/gtest.h>

#include <QApplication>

#include "tests/support/desktop/toolkit_messages.h"
#include "ui/views/look.h"

int main(int count, char** arguments) {
  ::testing::InitGoogleTest(&count, arguments);
  // Forked children that die on purpose must not share the application's connections.
  GTEST_FLAG_SET(death_test_style, "threadsafe");
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication application(count, arguments);
  gsm::dressApplication();
  gsm::failOnToolkitMessages();
  return RUN_ALL_TESTS();
}
