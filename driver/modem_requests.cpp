#include "driver/port_list.h"
#include "driver/session.h"
#include "panel/form1.h"

namespace gsm::driver {
namespace {

using Rule = ModemScript::Rule;

// "text": one reply, "texts": replies used in turn, "chunks": one reply in pieces.
std::vector<ModemScript::Reply> repliesOf(const Request& request) {
  const int given = request.has("text") + request.has("texts") + request.has("chunks");
  if (given != 1) throw BadRequest("one of 'text', 'texts' and 'chunks' must be given");

  const Duration after = request.seconds("after", ModemScript::kDefaultDelay);
  if (request.has("text")) return {{{after, request.text("text")}}};

  const char* const field = request.has("texts") ? "texts" : "chunks";
  const Json& list = request.raw(field);
  if (!list.is_array() || list.empty()) {
    throw BadRequest(std::string("field '") + field + "' must be a list that isn't empty");
  }
  std::vector<ModemScript::Reply> replies;
  if (request.has("texts")) {
    for (const Json& text : list) replies.push_back({{after, textOf(text, field)}});
    return replies;
  }
  ModemScript::Reply pieces;
  for (const Json& chunk : list) {
    if (!chunk.is_array() || chunk.size() != 2) throw BadRequest("a chunk is [seconds, text]");
    pieces.push_back({secondsOf(chunk[0], field), textOf(chunk[1], field)});
  }
  return {pieces};
}

Rule ruleOf(const Request& request) {
  const auto write = request.optionalText("write");
  const auto starting = request.optionalText("starting");
  if (write.has_value() == starting.has_value()) {
    throw BadRequest("one of 'write' and 'starting' must be given");
  }
  return {write ? Rule::Fit::whole : Rule::Fit::beginning, write ? *write : *starting,
          repliesOf(request), request.flag("echo", true)};
}

}  // namespace

Json Session::reply(const Request& request) {
  prepare([rule = ruleOf(request)](HeadlessPanel& world) { world.modem.add(rule); });
  return Json::object();
}

Json Session::otherwise(const Request& request) {
  if (!request.has("text")) throw BadRequest("field 'text' is missing");
  const Rule rule{Rule::Fit::beginning, "", repliesOf(request), request.flag("echo", true)};
  prepare([rule](HeadlessPanel& world) { world.modem.setOtherwise(rule); });
  return Json::object();
}

Json Session::forget(const Request&) {
  prepare([](HeadlessPanel& world) { world.modem.forget(); });
  return Json::object();
}

Json Session::receive(const Request& request) {
  const std::string bytes = request.text("text");
  world_->time().after(request.seconds("after", Duration::zero()),
                       [this, bytes] { world_->machine.line.arrive(bytes); });
  return Json::object();
}

Json Session::event(const Request& request) {
  const auto value = static_cast<CommEvent>(request.whole("value"));
  if (value == CommEvent::receive) {
    throw BadRequest("event 2 comes with bytes: use 'receive'");
  }
  world_->time().after(request.seconds("after", Duration::zero()),
                       [this, value] { world_->panel.form1.MSComm1.raise(value); });
  return Json::object();
}

Json Session::modem(const Request& request) {
  Plug plug;
  if (request.has("port")) {
    if (!request.raw("port").is_null()) plug.port = request.whole("port");
  }
  plug.speed = request.optionalWhole("speed");
  if (plug.speed && *plug.speed <= 0) throw BadRequest("field 'speed' must be above zero");
  if (!request.has("port") && !plug.speed) throw BadRequest("'port' or 'speed' must be given");

  if (request.has("port")) world_->machine.line.plug(plug.port);
  if (plug.speed) world_->modem.setSpeed(*plug.speed);
  return Json::object();
}

Json Session::ports(const Request& request) {
  world_->machine.ports.set(portsOf(request.raw("ports")));
  return Json::object();
}

}  // namespace gsm::driver
