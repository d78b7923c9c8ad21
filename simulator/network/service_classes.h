#pragma once

#include "simulator/profile/profile.h"

// The network's services hold for classes of calls, which are bits of a sum.
namespace gsm::simulator {

inline constexpr int kVoiceClass = 1;
inline constexpr int kMessageClass = 8;
inline constexpr int kServiceClasses[] = {kVoiceClass, 2, 4, kMessageClass};  // data, fax between

// The sum of all that there are, and of those that a command means which names none.
inline constexpr int kEveryClass = 15;
inline constexpr int kUsualClasses = 7;

// The sums that a command may name: a network has no use for the higher bits.
inline constexpr Range kClassSums = {1, 255};

}  // namespace gsm::simulator
