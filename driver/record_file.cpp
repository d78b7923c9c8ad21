#include "driver/record_file.h"

#include <algorithm>
#include <fstream>

#include "driver/request.h"
#include "platform/serial_settings.h"

namespace gsm::driver {
namespace {

// Takes a record's lines in their order.
class RecordReader {
 public:
  void take(const Json& fields) {
    if (!fields.is_object()) throw BadRequest("not an object");
    const Request line(fields);
    if (line.has("at")) at_ = line.seconds("at");
    if (line.has("open")) takeOpening(line);
    if (line.has("configured")) takeSettings(line.text("configured"));
    if (line.has("out") && !line.has("failed")) takeWrite(line);
    if (line.has("in")) takeChunk(line.text("in"));
    if (line.has("full")) record_.full = line.flag("full", false);
  }

  // At its own port the modem was silent at some speeds; what was written to others never reached
  // it.
  RecordFile record() && {
    std::erase_if(written_, [this](const Written& each) {
      return record_.port && each.port != record_.port && each.exchange.chunks.empty();
    });
    for (Written& each : written_) record_.exchanges.push_back(std::move(each.exchange));
    return std::move(record_);
  }

 private:
  void takeOpening(const Request& line) {
    const int number = line.whole("open");
    const std::string failure = line.optionalText("failed").value_or("");
    const bool isKnown = std::ranges::any_of(
        record_.ports, [number](const auto& port) { return port.number == number; });
    if (!isKnown) record_.ports.push_back({.number = number, .fails = failure});
    if (!failure.empty()) return;
    port_ = number;
    takeSettings(line.text("settings"));
  }

  void takeSettings(const std::string& text) {
    const auto settings = parseLineSettings(text);
    if (!settings) throw BadRequest("'" + text + "' are no settings of a line");
    baud_ = settings->baud;
  }

  void takeWrite(const Request& line) {
    ModemReplay::Exchange exchange{.write = line.text("out"), .baud = baud_};
    if (line.has("blotted")) exchange.blots = blotsOf(line.raw("blotted"), exchange.write.size());
    written_.push_back({port_, std::move(exchange)});
    writtenAt_ = at_;
  }

  void takeChunk(std::string text) {
    if (!record_.port) record_.port = port_;
    auto& chunks = written_.empty() ? record_.greeting : written_.back().exchange.chunks;
    chunks.push_back({std::max(at_ - writtenAt_, Duration::zero()), std::move(text)});
  }

  static std::vector<Blot> blotsOf(const Json& list, std::size_t size) {
    std::vector<Blot> blots;
    if (!list.is_array()) throw BadRequest("field 'blotted' must be a list");
    for (const Json& each : list) {
      if (!each.is_array() || each.size() != 2) throw BadRequest("a blot is [first, how many]");
      const int first = wholeOf(each[0], "blotted");
      const int many = wholeOf(each[1], "blotted");
      const bool fits = first >= 0 && many >= 0 && static_cast<std::size_t>(first) <= size &&
                        static_cast<std::size_t>(many) <= size - static_cast<std::size_t>(first);
      if (!fits) throw BadRequest("a blot lies beyond its text");
      blots.push_back({static_cast<std::size_t>(first), static_cast<std::size_t>(many)});
    }
    return blots;
  }

  struct Written {
    std::optional<int> port;
    ModemReplay::Exchange exchange;
  };

  RecordFile record_;
  std::vector<Written> written_;
  Duration at_{0};
  Duration writtenAt_{0};
  std::optional<int> port_;
  int baud_ = 9600;
};

}  // namespace

RecordFile readRecord(const std::string& fileName) {
  std::ifstream file(fileName, std::ios::binary);
  RecordReader reader;
  int number = 0;
  for (std::string line; std::getline(file, line);) {
    ++number;
    try {
      const Json fields = Json::parse(line);
      if (number == 1 && !fields.contains("record")) throw BadRequest("not a record's first line");
      reader.take(fields);
    } catch (const Json::exception&) {
      // The program may have been stopped while it wrote its last line.
      if (number == 1 || file.peek() != std::ifstream::traits_type::eof()) {
        throw BadRequest("line " + std::to_string(number) + " of the record isn't JSON");
      }
    } catch (const BadRequest& bad) {
      throw BadRequest("line " + std::to_string(number) + " of the record: " + bad.what());
    }
  }
  if (number == 0) throw BadRequest("there is no record '" + fileName + "'");
  return std::move(reader).record();
}

}  // namespace gsm::driver
