#include "driver/record_file.h"
#include "driver/session.h"

namespace gsm::driver {
namespace {

Json jsonOf(const std::vector<HeadlessPorts::Port>& ports) {
  Json list = Json::array();
  for (const auto& port : ports) {
    Json fields{{"number", port.number}};
    if (!port.fails.empty()) fields["fails"] = port.fails;
    list.push_back(fields);
  }
  return list;
}

}  // namespace

// The modem is plugged in where it spoke in the record. The answer has what "start" wants of the
// machine that the record comes from.
Json Session::replay(const Request& request) {
  const Json& name = request.raw("file");
  if (!name.is_string()) throw BadRequest("field 'file' must be a text");
  const RecordFile record = readRecord(name.get<std::string>());
  prepare([this, record](HeadlessPanel& world) {
    replay_ =
        std::make_shared<ModemReplay>(world.machine.time, world.machine.line, record.exchanges);
    world.machine.line.setModem(replay_.get());
    world.machine.line.plug(record.port);
    for (const auto& chunk : record.greeting) {
      world.machine.time.after(
          chunk.after, [&line = world.machine.line, text = chunk.text] { line.arrive(text); });
    }
  });
  return {{"ports", jsonOf(record.ports)},
          {"port", record.port ? Json(*record.port) : Json()},
          {"writes", record.exchanges.size()},
          {"full", record.full}};
}

Json Session::replayState() const {
  const ModemReplay::Progress progress = replay_->progress();
  return {{"answered", progress.answered}, {"strayed", progress.strayed}, {"left", progress.left}};
}

}  // namespace gsm::driver
