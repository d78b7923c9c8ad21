#pragma once

#include <string_view>

namespace gsm {

// The readers of text that comes from files and from people, each with a look at what it makes of
// any bytes: all end the process when something doesn't hold.

/// The panel starts with a COM.txt of these bytes.
void readComFile(std::string_view bytes);
/// "View" in the model window, with a Model.txt of these bytes.
void readModelFile(std::string_view bytes);
/// Requests of panel-driver, one a line.
void readRequests(std::string_view bytes);
/// The bytes as UTF-8, as Windows-1252 and as something pasted into a box of one line.
void readCharacters(std::string_view bytes);

/// The simulated modem's stored profile.
void readProfile(std::string_view bytes);
/// The phone book of the simulated modem's card.
void readPhoneBookText(std::string_view bytes);
/// The messages of that card.
void readMessagesText(std::string_view bytes);
/// Lines of the simulated modem's console; those that begin with "AT" are the host's
/// commands, those with ">" its texts.
void readConsole(std::string_view bytes);

}  // namespace gsm
