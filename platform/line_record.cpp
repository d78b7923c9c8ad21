#include "platform/line_record.h"

#include <array>
#include <cstdio>
#include <ostream>

#include "platform/code_page.h"

namespace gsm {
namespace {

constexpr char kBlot = '*';
const std::string kFull = R"("full":true)";
const std::size_t kRoomOfFull = kFull.size() + 3;  // braces and line end

std::string escaped(char character) {
  switch (character) {
    case '"': return "\\\"";
    case '\\': return "\\\\";
    case '\r': return "\\r";
    case '\n': return "\\n";
    default: break;
  }
  const auto byte = static_cast<unsigned char>(character);
  if (byte >= 0x20) return {character};
  std::array<char, 8> text{};
  std::snprintf(text.data(), text.size(), "\\u%04x", static_cast<unsigned>(byte));
  return text.data();
}

// A text of the panel's code page as JSON has it.
std::string quoted(std::string_view text) {
  std::string json = "\"";
  for (const char character : toUtf8(text)) json += escaped(character);
  return json + '"';
}

std::string seconds(Duration time) {
  constexpr long long kNanoseconds = 1'000'000'000;
  const long long count = time.count();
  std::array<char, 40> text{};
  std::snprintf(text.data(), text.size(), "%lld.%09lld", count / kNanoseconds,
                count % kNanoseconds);
  return text.data();
}

std::string settingsText(const LineSettings& settings) {
  constexpr std::string_view kParities = "NEOMS";
  constexpr std::array kStopBits = {"1", "1.5", "2"};
  return std::to_string(settings.baud) + "," +
         kParities[static_cast<std::size_t>(settings.parity)] + "," +
         std::to_string(settings.dataBits) + "," +
         kStopBits[static_cast<std::size_t>(settings.stopBits)];
}

std::string lineFields(const LineSettings& settings, Handshaking handshaking) {
  return quoted(settingsText(settings)) +
         ",\"handshaking\":" + std::to_string(static_cast<int>(handshaking));
}

std::string failedField(std::string_view failure) {
  return failure.empty() ? "" : ",\"failed\":" + quoted(failure);
}

std::string textFields(const char* name, std::string_view bytes, const std::vector<Blot>& blots) {
  std::string text(bytes);
  std::string list;
  for (const auto& [first, size] : blots) {
    text.replace(first, size, size, kBlot);
    list.append(list.empty() ? "" : ",");
    list += "[" + std::to_string(first) + "," + std::to_string(size) + "]";
  }
  std::string fields = "\"" + std::string(name) + "\":" + quoted(text);
  if (!list.empty()) fields += ",\"blotted\":[" + list + "]";
  return fields;
}

}  // namespace

LineRecord::LineRecord(std::ostream& file, const Clock& clock, std::size_t most)
    : file_(file), clock_(clock), beginning_(clock.now()), room_(most) {
  const LocalTime time = clock.localTime();
  write(R"("record":1,"started":)" + quoted(time.date() + " " + time.timeOfDay()));
}

void LineRecord::opened(int port, const LineSettings& settings, Handshaking handshaking,
                        std::string_view failure) {
  if (failure.empty()) blots_.beginLines();
  write("\"open\":" + std::to_string(port) + ",\"settings\":" + lineFields(settings, handshaking) +
        failedField(failure));
}

void LineRecord::configured(const LineSettings& settings, Handshaking handshaking) {
  write("\"configured\":" + lineFields(settings, handshaking));
}

void LineRecord::closed(int port) { write("\"close\":" + std::to_string(port)); }

void LineRecord::sent(std::string_view bytes, std::string_view failure) {
  write(textFields("out", bytes, blots_.sent(bytes)) + failedField(failure));
}

void LineRecord::received(std::string_view bytes) {
  write(textFields("in", bytes, blots_.received(bytes)));
}

void LineRecord::event(CommEvent event) {
  write("\"event\":" + std::to_string(static_cast<int>(event)));
}

void LineRecord::write(const std::string& fields) {
  if (full_) return;
  const bool isFirst = fields.starts_with("\"record\"");
  const std::string line =
      isFirst ? fields : "\"at\":" + seconds(clock_.now() - beginning_) + "," + fields;
  full_ = line.size() + 3 + kRoomOfFull > room_;
  if (full_ && room_ < kRoomOfFull) return;
  put(full_ ? kFull : line);
}

void LineRecord::put(const std::string& fields) {
  const std::string line = "{" + fields + "}\n";
  room_ -= line.size();
  file_ << line << std::flush;
}

}  // namespace gsm
