#include <utility>
#include <variant>

#include "driver/session.h"

namespace gsm::driver {

void Session::act(const Request& request, std::function<bool()> action) {
  world_->time().after(request.seconds("after", Duration::zero()),
                       [this, action = std::move(action)] {
                         if (!action()) ++refused_;
                       });
}

template <class... Kind>
auto Session::controlAs(const Request& request, const char* deed) {
  Control& control = controlOf(request);
  std::variant<std::monostate, Kind*...> found;
  const auto tryKind = [&](auto* candidate) {
    if (candidate != nullptr) found = candidate;
  };
  (tryKind(dynamic_cast<Kind*>(&control)), ...);
  if (found.index() == 0) throw BadRequest(control.fullName() + " can't be " + deed);
  return found;
}

namespace {

// Does `action` to whichever kind of control `found` holds.
template <class Found, class Action>
std::function<bool()> toEither(Found found, Action action) {
  return [found, action] {
    return std::visit(
        [&](auto control) {
          if constexpr (std::is_same_v<decltype(control), std::monostate>) {
            return false;
          } else {
            return action(*control);
          }
        },
        found);
  };
}

}  // namespace

Json Session::click(const Request& request) {
  const auto control = controlAs<CommandButton, Label, Picture, OptionButton>(request, "clicked");
  act(request, toEither(control, [](auto& each) { return each.userClick(); }));
  return Json::object();
}

Json Session::type(const Request& request) {
  const auto control = controlAs<TextBox, ComboBox>(request, "typed into");
  act(request,
      toEither(control, [keys = request.text("text")](auto& each) { return each.userType(keys); }));
  return Json::object();
}

Json Session::erase(const Request& request) {
  const auto control = controlAs<TextBox, ComboBox>(request, "erased");
  act(request, toEither(control, [](auto& each) { return each.userErase(); }));
  return Json::object();
}

Json Session::select(const Request& request) {
  const auto control = controlAs<ComboBox, ListBox>(request, "selected from");
  act(request, toEither(control, [item = request.whole("index")](auto& each) {
        return each.userSelect(item);
      }));
  return Json::object();
}

Json Session::tab(const Request& request) {
  const auto control = controlAs<TabStrip>(request, "turned to a tab");
  act(request, toEither(control, [tab = request.whole("index")](TabStrip& each) {
        return each.userTab(tab);
      }));
  return Json::object();
}

Json Session::move(const Request& request) {
  const auto control = controlAs<Slider>(request, "moved");
  act(request, toEither(control, [value = request.whole("value")](Slider& each) {
        return each.userMove(value);
      }));
  return Json::object();
}

Json Session::close(const Request& request) {
  Window& window = windowNamed(request.text("window"));
  act(request, [&window] { return window.userClose(); });
  return Json::object();
}

Json Session::changeWindow(const Request& request, int state) {
  Window& window = windowNamed(request.text("window"));
  act(request, [&window, state] { return window.userState(state); });
  return Json::object();
}

Json Session::minimise(const Request& request) { return changeWindow(request, minimised); }
Json Session::restore(const Request& request) { return changeWindow(request, normal); }
Json Session::maximise(const Request& request) { return changeWindow(request, maximised); }

Json Session::boxes(const Request& request) {
  const std::string answer = request.text("answer");
  if (answer != "auto" && answer != "hold") {
    throw BadRequest("field 'answer' must be \"auto\" or \"hold\"");
  }
  const auto mode =
      answer == "hold" ? HeadlessBoxes::Answer::hold : HeadlessBoxes::Answer::automatic;
  prepare([mode](HeadlessPanel& world) { world.machine.boxes.setAnswer(mode); });
  return Json::object();
}

Json Session::answerBox(const Request& request) {
  act(request, [this] { return world_->machine.boxes.answerTop(); });
  return Json::object();
}

}  // namespace gsm::driver
