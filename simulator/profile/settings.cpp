#include "simulator/profile/settings.h"

namespace gsm::simulator {

Settings::Settings(ProfileStore& store) : store_(store) {
  if (const auto text = store.load()) {
    stored_ = parseStoredSettings(*text).value_or(StoredSettings{});
  }
  reloadProfile();
}

void Settings::assumeSpeed(int speed) {
  profile.speed = speed;
  stored_.profile.speed = speed;
}

bool Settings::storeProfile() { return keep({profile, windMask()}); }

bool Settings::restoreFactory() {
  Profile factory;
  factory.speed = profile.speed;
  if (!keep({factory, windMask()})) return false;
  reloadProfile();
  return true;
}

bool Settings::setWindMask(int mask) { return keep({stored_.profile, mask}); }

bool Settings::keep(const StoredSettings& settings) {
  if (!store_.save(toText(settings))) return false;
  stored_ = settings;
  return true;
}

}  // namespace gsm::simulator
