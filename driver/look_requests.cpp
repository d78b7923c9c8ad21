#include <charconv>

#include "driver/session.h"
#include "panel/form1.h"
#include "platform/code_page.h"

namespace gsm::driver {
namespace {

Json jsonOf(const PropertyValue& value) {
  return std::visit(
      [](const auto& held) -> Json {
        using Held = std::decay_t<decltype(held)>;
        if constexpr (std::is_same_v<Held, std::string>) {
          return toUtf8(held);
        } else if constexpr (std::is_same_v<Held, std::vector<std::string>>) {
          Json list = Json::array();
          for (const std::string& item : held) list.push_back(toUtf8(item));
          return list;
        } else {
          return held;
        }
      },
      value);
}

// "Image(5)" is member 5 of the array "Image".
struct MemberName {
  std::string name;
  std::optional<int> index;
};

MemberName memberName(const std::string& text) {
  const auto bracket = text.find('(');
  if (bracket == std::string::npos) return {text, std::nullopt};
  int index = 0;
  const char* const end = text.data() + text.size();
  const auto [rest, error] = std::from_chars(text.data() + bracket + 1, end, index);
  if (error != std::errc{} || std::string_view(rest, end) != ")" || index < 0) {
    throw BadRequest("'" + text + "' is no member of a control array");
  }
  return {text.substr(0, bracket), index};
}

}  // namespace

Window& Session::windowNamed(const std::string& name) {
  Window* window = gsm::windowNamed(world_->panel.platform, name);
  if (window == nullptr) throw BadRequest("there is no window '" + name + "'");
  return *window;
}

Control& Session::controlNamed(const std::string& name, std::optional<int> index) {
  const auto dot = name.find('.');
  if (dot == std::string::npos) throw BadRequest("'" + name + "' is no control: Window.Control");
  const MemberName member = memberName(name.substr(dot + 1));
  if (member.index) index = member.index;
  if (index && *index < 0) throw BadRequest("an index counts from 0");
  Control* control =
      windowNamed(name.substr(0, dot)).control(member.name, index.value_or(Control::kNoIndex));
  if (control == nullptr) throw BadRequest("there is no control '" + name + "'");
  return *control;
}

Control& Session::controlOf(const Request& request) {
  // For lists and tabs the field "index" is the item's or the tab's; no array holds such controls.
  const std::string name = request.text("control");
  const std::string op = request.text("op");
  const bool indexIsItem = op == "select" || op == "tab";
  return controlNamed(name, indexIsItem ? std::nullopt : request.optionalWhole("index"));
}

Json Session::get(const Request& request) {
  const std::string path = request.text("property");
  const auto dot = path.rfind('.');
  if (dot == std::string::npos) throw BadRequest("'" + path + "' is no property");
  const std::string ownerName = path.substr(0, dot);
  const std::string propertyName = path.substr(dot + 1);

  const bool ofWindow = ownerName.find('.') == std::string::npos;
  PropertyOwner* owner = nullptr;
  bool loaded = false;
  if (ofWindow) {
    Window& window = windowNamed(ownerName);
    if (propertyName == "Loaded") return {{"value", window.isLoaded()}};
    owner = &window;
    loaded = window.isLoaded() || propertyName == "Visible";  // what isn't loaded isn't on view
  } else {
    Control& control = controlNamed(ownerName, std::nullopt);
    owner = &control;
    loaded = control.window().isLoaded();
  }
  const PropertyBase* property = owner->property(propertyName);
  if (property == nullptr) throw BadRequest("there is no property '" + path + "'");
  return {{"value", loaded ? jsonOf(property->value()) : Json()}};
}

Json Session::sent(const Request&) {
  Json writes = Json::array();
  for (const auto& write : world_->machine.line.takeWrites()) {
    writes.push_back({{"at", toSeconds(write.at)}, {"text", toUtf8(write.text)}});
  }
  return {{"writes", writes}};
}

Json Session::shown(const Request&) {
  Json boxes = Json::array();
  for (const auto& box : world_->machine.boxes.takeShown()) {
    boxes.push_back({{"at", toSeconds(box.at)},
                     {"text", toUtf8(box.text)},
                     {"title", toUtf8(box.title)},
                     {"icon", box.icon == BoxIcon::critical ? "critical" : "none"}});
  }
  return {{"boxes", boxes}};
}

Json Session::state(const Request&) {
  Json state = progress();
  Json loaded = Json::array();
  Json onView = Json::array();
  for (Window* window : world_->panel.platform.windows) {
    if (!window->isLoaded()) continue;
    loaded.push_back(window->name());
    if (window->Visible.peek()) onView.push_back(window->name());
  }
  Json settings = Json::object();
  for (const auto& [key, value] : world_->machine.settings.values()) settings[key] = toUtf8(value);

  const SerialControl& port = world_->panel.form1.MSComm1;
  state.update({{"loaded", loaded},
                {"shown", onView},
                {"refused", refused_},
                {"port",
                 {{"open", world_->machine.line.isOpen()},
                  {"number", static_cast<int>(port.CommPort)},
                  {"settings", toUtf8(std::string(port.Settings))},
                  {"handshaking", static_cast<int>(port.Handshaking)}}},
                {"settings_store", settings}});
  if (replay_ != nullptr) state["replay"] = replayState();
  return state;
}

}  // namespace gsm::driver
