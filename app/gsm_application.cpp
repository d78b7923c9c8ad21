#include <QApplication>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <string>
#include <variant>

#include "app/windows.h"
#include "platform/code_page.h"
#include "platform/posix/core_files.h"
#include "platform/posix/folder_lock.h"
#include "platform/posix/port_entry.h"
#include "platform/posix/process.h"
#include "platform/posix/program_folder.h"
#include "platform/qt/command_line.h"
#include "platform/qt/desktop.h"
#include "platform/runtime_failure.h"
#include "platform/sqlite/phone_book_file.h"
#include "ui/views/binder.h"
#include "ui/views/look.h"

namespace {

constexpr int kFailed = 1;
constexpr int kBadUsage = 2;

// The one that "--port" makes the device's.
constexpr int kGivenPort = 1;

[[noreturn]] void giveUp(const std::string& reason, int status = kFailed) {
  std::cerr << "gsm-application: " << reason << std::endl;
  std::exit(status);
}

gsm::CommandLine givenOptions(int count, char** arguments) {
  const auto read = gsm::readCommandLine(count, arguments, GSM_VERSION);
  if (const auto* answer = std::get_if<gsm::CommandLineAnswer>(&read)) {
    (answer->status == 0 ? std::cout : std::cerr) << answer->text << std::flush;
    std::exit(answer->status);
  }
  gsm::CommandLine options = std::get<gsm::CommandLine>(read);
  std::error_code missing;
  if (options.folder && !std::filesystem::is_directory(*options.folder, missing)) {
    giveUp("there is no folder " + options.folder->string(), kBadUsage);
  }
  return options;
}

void giveUpWithoutFolder(const std::filesystem::path& folder, const gsm::FolderLock& lock) {
  if (lock.isTaken()) return;
  const std::string program = lock.holder() ? gsm::programOf(*lock.holder()) : "";
  const std::string who = lock.holder() ? "process " + std::to_string(*lock.holder()) +
                                              (program.empty() ? "" : " (" + program + ")")
                                        : "another program";
  giveUp("the folder " + folder.string() + " is in use by " + who +
         ". Close that one, or name another folder with --folder.");
}

void tieGivenPort(const std::filesystem::path& folder, const std::filesystem::path& device) {
  if (const std::string wrong = gsm::tiePort(folder, kGivenPort, device); !wrong.empty()) {
    giveUp(wrong);
  }
  gsm::layPortFile(folder, kGivenPort);
}

// It holds the user's numbers and messages.
std::ofstream openRecord(const std::filesystem::path& file) {
  std::ofstream record(file, std::ios::binary);
  if (!record) giveUp("there can't be a record in " + file.string());
  std::error_code ignored;
  if (std::filesystem::is_regular_file(file, ignored)) {
    using std::filesystem::perms;
    std::filesystem::permissions(file, perms::owner_read | perms::owner_write, ignored);
  }
  return record;
}

// Where this user starts the program for the first time there is no phone book yet.
void layPhoneBook(const std::filesystem::path& folder) {
  if (gsm::hasPhoneBook(folder)) return;
  try {
    gsm::createPhoneBook(folder / "phonebook.mdb");
  } catch (const gsm::RuntimeFailure& failure) {
    std::cerr << "gsm-application: " << gsm::toUtf8(failure.description()) << std::endl;
  }
}

}  // namespace

// The panel on the desktop. Qt takes its own options off the command line.
int main(int count, char** arguments) {
  gsm::leaveNoCoreFile();
  if (gsm::asksForWords(count, arguments)) {
    const QCoreApplication withoutDisplay(count, arguments);
    givenOptions(count, arguments);
  }
  const QApplication application(count, arguments);
  // So a desktop finds the entry of the menu, and with it the icon, to the windows.
  QGuiApplication::setDesktopFileName("gsm-application");
  const gsm::CommandLine options = givenOptions(count, arguments);
  const gsm::ProgramFolder folder = gsm::chooseProgramFolder(gsm::placesHere(options.folder));
  const gsm::FolderLock lock(folder.path);
  giveUpWithoutFolder(folder.path, lock);
  if (folder.isUsers) layPhoneBook(folder.path);
  if (options.port) tieGivenPort(folder.path, *options.port);
  std::ofstream record;
  if (options.record) record = openRecord(*options.record);

  gsm::dressApplication();
  gsm::Desktop desktop(
      {.programFolder = folder.path, .record = options.record ? &record : nullptr});
  gsm::Windows windows(desktop.platform());
  gsm::Binder screen(desktop.platform().loop);
  screen.bind(desktop.platform().windows);
  desktop.endBy([&windows] { gsm::end(windows.panel); });
  gsm::start(windows.panel);
  desktop.run();
}
