#pragma once

#include <filesystem>
#include <optional>

namespace gsm {

/// Where the program keeps its files, and where that was looked for.
struct ProgramFolder {
  /// What the choice hangs on; empty paths where there is none.
  struct Places {
    std::optional<std::filesystem::path> given;  // by whoever started the program
    std::filesystem::path beside;                // the folder that the program lies in
    std::filesystem::path dataHome;              // $XDG_DATA_HOME
    std::filesystem::path home;                  // $HOME
  };

  std::filesystem::path path;
  bool isUsers = false;  // the user's own data folder, which nobody has laid files in
};

/// The places of this process. The names of folders are any bytes.
ProgramFolder::Places placesHere(std::optional<std::filesystem::path> given);

/// The given folder; else the one beside the program when this user may write to it and the program
/// isn't installed for everybody; else
/// `gsm-application` in the user's data folder, which is made; and where that can't be, the one
/// beside the program after all.
ProgramFolder chooseProgramFolder(const ProgramFolder::Places& places);

/// Whether `folder` has a phone book, in whichever case its name is spelled.
bool hasPhoneBook(const std::filesystem::path& folder);

}  // namespace gsm
