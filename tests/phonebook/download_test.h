#pragma once

#include <string>

#include "panel/form1.h"
#include "phonebook/form3.h"
#include "tests/support/phone_book_test.h"

namespace gsm {

/// The line in which the modem reports an entry.
inline std::string entryLine(int location, const std::string& number, const std::string& name) {
  return "+CPBR: " + std::to_string(location) + ",\"" + number + "\",129,\"" + name + "\"";
}

/// The SIM's phone book on its way into the mirror.
class DownloadTest : public PhoneBookTest {
 protected:
  void answerCounts(const std::string& counts) {
    reply("AT+CPBS?", information("+CPBS: \"SM\"," + counts));
  }
  void answerEntry(int location, const std::string& number, const std::string& name) {
    reply("AT+CPBR=" + std::to_string(location), information(entryLine(location, number, name)));
  }
  void answerEmpty(int location) { reply("AT+CPBR=" + std::to_string(location), kOk); }

  /// The first reference to the call window finds the book empty, and downloads.
  void download() {
    inPanel([this] { calls().Text1.Text = ""; });
    settle();
  }

  std::string statusLine() { return form1().Label5.Caption.peek(); }
};

inline constexpr const char* kSaving = "Saving Phone Book...Please Wait";

}  // namespace gsm
