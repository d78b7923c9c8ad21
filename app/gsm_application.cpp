#include <QApplication>
#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <optional>
#include <string_view>

#include "app/windows.h"
#include "platform/code_page.h"
#include "platform/posix/core_files.h"
#include "platform/posix/program_folder.h"
#include "platform/qt/desktop.h"
#include "platform/runtime_failure.h"
#include "platform/sqlite/phone_book_file.h"
#include "ui/views/binder.h"
#include "ui/views/look.h"

namespace {

constexpr int kBadUsage = 2;

constexpr const char* kUsage =
    "usage: gsm-application [--folder DIR]\n"
    "The control panel for a GSM modem. It keeps its files in DIR; without one beside the "
    "program,\n"
    "and where that can't be written to, in $XDG_DATA_HOME/gsm-application.\n";

// The folder that the command line names, if any. Says what is wrong with it, and ends, when it
// can't be used.
std::optional<std::filesystem::path> givenFolder(int count, char** arguments) {
  const std::string_view option = count > 1 ? arguments[1] : "";
  if (count <= 1) return std::nullopt;
  if (option == "--help") {
    std::cout << kUsage;
    std::exit(0);
  }
  if (option != "--folder" || count != 3) {
    std::cerr << kUsage;
    std::exit(kBadUsage);
  }
  std::error_code missing;
  if (!std::filesystem::is_directory(arguments[2], missing)) {
    std::cerr << "gsm-application: there is no folder " << arguments[2] << "\n";
    std::exit(kBadUsage);
  }
  return arguments[2];
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
  const QApplication application(count, arguments);
  const gsm::ProgramFolder folder =
      gsm::chooseProgramFolder(gsm::placesHere(givenFolder(count, arguments)));
  if (folder.isUsers) layPhoneBook(folder.path);
  gsm::dressApplication();
  gsm::Desktop desktop({.programFolder = folder.path});
  gsm::Windows windows(desktop.platform());
  gsm::Binder screen(desktop.platform().loop);
  screen.bind(desktop.platform().windows);
  desktop.endBy([&windows] { gsm::end(windows.panel); });
  gsm::start(windows.panel);
  desktop.run();
}
