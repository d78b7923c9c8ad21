#pragma once

#include <optional>

#include "simulator/reply.h"
#include "simulator/sim_card.h"

namespace gsm::simulator {

// Why a card with this status can't be used; nothing when it can.
constexpr std::optional<EquipmentError> simTrouble(SimStatus status) {
  switch (status) {
    case SimStatus::kReady: return std::nullopt;
    case SimStatus::kPinWanted: return EquipmentError::kPinWanted;
    case SimStatus::kPukWanted: return EquipmentError::kPukWanted;
    case SimStatus::kAbsent: return EquipmentError::kSimMissing;
    case SimStatus::kBlocked:
    case SimStatus::kFailed: break;
  }
  return EquipmentError::kSimFailure;
}

}  // namespace gsm::simulator
