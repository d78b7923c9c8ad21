#include "driver/session.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <utility>

#include "driver/port_list.h"

namespace gsm::driver {

const Session::Operation* Session::operation(std::string_view name) {
  static constexpr auto kOperations = std::to_array<Operation>({
      {"start", &Session::start, false},
      {"run", &Session::run, true},
      {"settle", &Session::settle, true},
      {"reply", &Session::reply, false},
      {"otherwise", &Session::otherwise, false},
      {"forget", &Session::forget, false},
      {"receive", &Session::receive, true},
      {"event", &Session::event, true},
      {"replay", &Session::replay, false},
      {"modem", &Session::modem, true},
      {"ports", &Session::ports, true},
      {"click", &Session::click, true},
      {"type", &Session::type, true},
      {"erase", &Session::erase, true},
      {"select", &Session::select, true},
      {"tab", &Session::tab, true},
      {"move", &Session::move, true},
      {"close", &Session::close, true},
      {"minimise", &Session::minimise, true},
      {"restore", &Session::restore, true},
      {"maximise", &Session::maximise, true},
      {"boxes", &Session::boxes, false},
      {"answer", &Session::answerBox, true},
      {"get", &Session::get, true},
      {"sent", &Session::sent, true},
      {"shown", &Session::shown, true},
      {"state", &Session::state, true},
      {"rows", &Session::rows, false},
      {"store", &Session::store, false},
  });
  const auto found = std::find_if(kOperations.begin(), kOperations.end(),
                                  [name](const Operation& each) { return each.name == name; });
  return found == kOperations.end() ? nullptr : &*found;
}

// Handlers that still wait may speak to the modem, and it to the line.
Session::~Session() {
  if (world_ != nullptr) world_->time().abandon();
  modem_.reset();
}

std::string Session::answer(std::string_view line) {
  Json answer;
  try {
    answer = Json{{"ok", true}};
    answer.update(carryOut(Json::parse(line)));
  } catch (const BadRequest& bad) {
    answer = Json{{"error", bad.what()}};
  } catch (const Json::exception& bad) {
    answer = Json{{"error", std::string("not a request in JSON: ") + bad.what()}};
  }
  return answer.dump(-1, ' ', false, Json::error_handler_t::replace);
}

Json Session::carryOut(const Json& fields) {
  if (!fields.is_object()) throw BadRequest("a request is a JSON object");
  const Request request(fields);
  const std::string name = request.text("op");
  const Operation* found = operation(name);
  if (found == nullptr) throw BadRequest("there is no request '" + name + "'");
  if (found->needsStart && world_ == nullptr) throw BadRequest("the program has not been started");
  return (this->*found->handler)(request);
}

Json Session::start(const Request& request) {
  if (world_ != nullptr) throw BadRequest("the program has been started already");
  const Json& folderName = request.raw("folder");
  if (!folderName.is_string()) throw BadRequest("field 'folder' must be a text");
  const std::filesystem::path folder(folderName.get<std::string>());  // a path's bytes stay UTF-8
  std::error_code ignored;
  if (!std::filesystem::is_directory(folder, ignored)) {
    throw BadRequest("there is no folder '" + folder.string() + "'");
  }
  const LocalTime now = localTimeOf(request.text("now"));
  const auto ports = portsOf(request.raw("ports"));
  std::optional<Plug> plug;
  if (request.has("modem") && !request.raw("modem").is_null()) plug = plugOf(request.raw("modem"));

  if (request.has("record")) {
    const Json& name = request.raw("record");
    if (!name.is_string()) throw BadRequest("field 'record' must be a text");
    record_.open(name.get<std::string>(), std::ios::binary);
    if (!record_) throw BadRequest("there can't be a file '" + name.get<std::string>() + "'");
  }
  folder_ = folder;
  world_ =
      std::make_unique<HeadlessPanel>(folder, now, nullptr, record_.is_open() ? &record_ : nullptr);
  world_->machine.ports.set(ports);
  if (plug) {
    world_->machine.line.plug(plug->port);
    if (plug->speed) world_->modem.setSpeed(*plug->speed);
  }
  if (otherModem_) modem_ = otherModem_(world_->machine);
  for (const auto& prepared : std::exchange(preparations_, {})) prepared(*world_);
  world_->start();
  return Json::object();
}

void Session::prepare(std::function<void(HeadlessPanel& world)> preparation) {
  if (world_ == nullptr) {
    preparations_.push_back(std::move(preparation));
  } else {
    preparation(*world_);
  }
}

Json Session::run(const Request& request) {
  world_->time().run(request.seconds("seconds"));
  return progress();
}

Json Session::settle(const Request& request) {
  world_->time().settle(request.seconds("limit", std::chrono::seconds(600)));
  return progress();
}

Json Session::progress() const {
  return {{"at", toSeconds(world_->machine.time.now())},
          {"waiting", world_->handlers().depth()},
          {"ended", world_->machine.time.hasEnded()}};
}

}  // namespace gsm::driver
