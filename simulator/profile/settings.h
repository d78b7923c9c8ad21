#pragma once

#include "simulator/profile/profile.h"
#include "simulator/profile/profile_store.h"

namespace gsm::simulator {

// The profile in force and the one in store.
class Settings {
 public:
  // Starts from what `store` holds, and from the factory values when that is nothing or noise.
  explicit Settings(ProfileStore& store);

  // The profile in force.
  Profile profile;

  const Profile& storedProfile() const { return stored_.profile; }
  int windMask() const { return stored_.wind; }

  // Starts at `speed`, as if the modem had been left so: in force and in memory, not on disk.
  void assumeSpeed(int speed);

  // AT&W. False, with nothing changed, when the store refuses; so are the others below.
  bool storeProfile();

  // ATZ.
  void reloadProfile() { profile = stored_.profile; }

  // AT&F: factory values, in force and in store. The speed stays, for a modem that jumped to
  // another one would no longer hear the host that asked.
  bool restoreFactory();

  // AT+WIND=.
  bool setWindMask(int mask);

 private:
  bool keep(const StoredSettings& settings);

  ProfileStore& store_;
  StoredSettings stored_;
};

}  // namespace gsm::simulator
