// What the panel is told by its files, by who drives it without a screen, and by a clipboard.

#include <algorithm>
#include <cstddef>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "app/headless_panel.h"
#include "driver/session.h"
#include "fuzz/must_hold.h"
#include "fuzz/text_readers.h"
#include "modem/form2.h"
#include "panel/form1.h"
#include "platform/code_page.h"
#include "platform/sqlite/phone_book_file.h"
#include "tests/support/temporary_folder.h"

namespace gsm {
namespace {

using driver::Json;

constexpr LocalTime kNow{2026, 2, 27, 10, 0, 0};
constexpr int kPort = 3;

std::string emptyBook() {
  const TemporaryFolder folder;
  createPhoneBook(folder.path() / "phonebook.mdb");
  return *folder.read("phonebook.mdb");
}

void layBook(const TemporaryFolder& folder) {
  static const std::string book = emptyBook();
  folder.write("phonebook.mdb", book);
}

// A panel before its start, with a modem that says yes to all.
class Started {
 public:
  explicit Started(const TemporaryFolder& folder) : panel_(folder.path(), kNow) {
    layBook(folder);
    panel_.machine.ports.set({{.number = kPort}});
    panel_.machine.line.plug(kPort);
    panel_.modem.setOtherwise({.replies = {{{ModemScript::kDefaultDelay, "\r\nOK\r\n"}}}});
    panel_.start();
    panel_.time().settle(std::chrono::hours(1));
  }
  HeadlessPanel* operator->() { return &panel_; }

 private:
  HeadlessPanel panel_;
};

// The lines of a file that hold something; each ends in CR LF, CR or LF.
std::vector<std::string> linesOf(std::string_view bytes) {
  std::vector<std::string> lines(1);
  for (const char byte : bytes) {
    if (byte != '\r' && byte != '\n') {
      lines.back() += byte;
    } else if (!lines.back().empty()) {
      lines.emplace_back();
    }
  }
  lines.resize(std::max<std::size_t>(lines.size(), 4));
  return lines;
}

// What a request may do to this machine: it finds its files in `folder`, whatever folder it names,
// and years don't pass.
std::string harmless(const std::string& line, const TemporaryFolder& folder) {
  Json request = Json::parse(line, nullptr, /*allow_exceptions=*/false);
  if (!request.is_object()) return line;
  bool changed = false;
  for (const char* span : {"seconds", "limit"}) {
    if (!request.contains(span) || !request[span].is_number()) continue;
    if (!(request[span].get<double>() > 600)) continue;
    request[span] = 600;
    changed = true;
  }
  if (request.contains("folder") && request["folder"].is_string()) {
    request["folder"] = folder.path().string();
    changed = true;
  }
  return changed ? request.dump(-1, ' ', false, Json::error_handler_t::replace) : line;
}

bool isUtf8(const std::string& text) {
  try {
    Json(text).dump();
    return true;
  } catch (const Json::exception&) {
    return false;
  }
}

}  // namespace

// A start-up uses the file and leaves it as it is, and a program that ends says why.
void readComFile(std::string_view bytes) {
  const TemporaryFolder folder;
  folder.write("COM.txt", std::string(bytes));
  Started panel(folder);
  mustHold(folder.read("COM.txt") == bytes);
  if (panel->machine.time.hasEnded()) {
    mustHold(!panel->machine.boxes.takeShown().empty());
  } else {
    mustHold(panel->handlers().depth() == 0);
  }
}

void readModelFile(std::string_view bytes) {
  const TemporaryFolder folder;
  folder.write("Model.txt", std::string(bytes));
  Started panel(folder);
  Form2& window = panel->panel.form2;
  panel->time().post([&window] {
    window.Show();
    window.Command1.userClick();
  });
  panel->time().settle(std::chrono::seconds(10));
  mustHold(!panel->machine.time.hasEnded());
  const auto lines = linesOf(bytes);
  mustHold(window.Label3.Caption.peek() == lines[0]);
  mustHold(window.Label5.Caption.peek() == lines[1] + lines[2]);
  mustHold(window.Label6.Caption.peek() == lines[3]);
}

// Each has an answer in JSON, and nothing else comes of it.
void readRequests(std::string_view bytes) {
  constexpr int kMost = 60;
  const TemporaryFolder folder;
  layBook(folder);
  folder.write("COM.txt", "9600,N,8,1 3\r\n");
  driver::Session session;
  int count = 0;
  while (!bytes.empty() && ++count <= kMost) {
    const auto end = std::min(bytes.find('\n'), bytes.size());
    const std::string line(bytes.substr(0, end));
    bytes.remove_prefix(std::min(end + 1, bytes.size()));
    const Json answer = Json::parse(session.answer(harmless(line, folder)), nullptr, false);
    mustHold(answer.is_object());
    mustHold(answer.contains("ok") != answer.contains("error"));
    if (answer.contains("ok")) mustHold(answer["ok"] == true);
    if (answer.contains("error")) mustHold(answer["error"].is_string() && !answer["error"].empty());
  }
}

void readCharacters(std::string_view bytes) {
  const std::string utf8 = toUtf8(bytes);
  mustHold(isUtf8(utf8));
  mustHold(fromUtf8(utf8) == bytes);

  // A character is at least a byte, and what has become characters stays them.
  const std::string text = fromUtf8(bytes);
  mustHold(text.size() <= bytes.size());
  mustHold(fromUtf8(toUtf8(text)) == text);
  if (isUtf8(std::string(bytes)) && text.find('?') == std::string::npos) {
    mustHold(toUtf8(text) == bytes);
  }

  const std::string line = singleLine(bytes);
  mustHold(singleLine(line) == line);
  mustHold(std::none_of(line.begin(), line.end(),
                        [](char each) { return (each >= 0 && each < ' ') || each == 0x7F; }));
  for (const char each : bytes) mustHold(capital(capital(each)) == capital(each));
}

}  // namespace gsm
