#include "driver/port_list.h"

namespace gsm::driver {

std::vector<HeadlessPorts::Port> portsOf(const Json& list) {
  if (!list.is_array()) throw BadRequest("field 'ports' must be a list");
  std::vector<HeadlessPorts::Port> ports;
  for (const Json& each : list) {
    if (!each.is_object()) throw BadRequest("a port is an object with a 'number'");
    const Request port(each);
    ports.push_back(
        {port.whole("number"), port.flag("held", false), port.optionalText("fails").value_or("")});
  }
  return ports;
}

Plug plugOf(const Json& object) {
  if (!object.is_object()) throw BadRequest("field 'modem' must be an object or null");
  const Request request(object);
  Plug plug;
  if (!request.raw("port").is_null()) plug.port = request.whole("port");
  plug.speed = request.optionalWhole("speed");
  if (plug.speed && *plug.speed <= 0) throw BadRequest("field 'speed' must be above zero");
  return plug;
}

}  // namespace gsm::driver
