#include "platform/posix/ini_settings_store.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>

#include "platform/runtime_failure.h"
#include "tests/support/temporary_folder.h"

namespace gsm {
namespace {

TEST(IniSettingsStore, KeepsValuesUnderKeysOfSections) {
  const TemporaryFolder folder;
  IniSettingsStore store(folder.path() / "settings.ini");
  store.save("MSComm1", "Port", "3");
  store.save("MSComm1", "Handshaking", "0");
  EXPECT_EQ(folder.read("settings.ini"), "[MSComm1]\nHandshaking=0\nPort=3\n");
}

TEST(IniSettingsStore, ReplacesAnOldValue) {
  const TemporaryFolder folder;
  IniSettingsStore(folder.path() / "settings.ini").save("MSComm1", "Port", "3");
  IniSettingsStore(folder.path() / "settings.ini").save("MSComm1", "Port", "4");
  EXPECT_EQ(folder.read("settings.ini"), "[MSComm1]\nPort=4\n");
}

TEST(IniSettingsStore, KeepsCommasInOneValue) {
  const TemporaryFolder folder;
  IniSettingsStore(folder.path() / "settings.ini").save("MSComm1", "Settings", "9600,N,8,1");
  EXPECT_EQ(folder.read("settings.ini"), "[MSComm1]\nSettings=\"9600,N,8,1\"\n");
}

TEST(IniSettingsStore, FailsWhenTheValueCantBeKept) {
  const TemporaryFolder folder;
  IniSettingsStore store(folder.path() / "no folder" / "\x01" / "settings.ini");
  folder.write("no folder", "a file in the folder's place");
  EXPECT_THROW(store.save("MSComm1", "Port", "3"), RuntimeFailure);
}

}  // namespace
}  // namespace gsm
