#pragma once

#include <optional>

#include "simulator/card/sim_card.h"
#include "simulator/dialogue/reply.h"

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

// The same in the words of the message commands.
constexpr std::optional<MessageError> messageTrouble(SimStatus status) {
  switch (status) {
    case SimStatus::kReady: return std::nullopt;
    case SimStatus::kPinWanted: return MessageError::kPinWanted;
    case SimStatus::kPukWanted: return MessageError::kPukWanted;
    case SimStatus::kAbsent: return MessageError::kSimMissing;
    case SimStatus::kBlocked:
    case SimStatus::kFailed: break;
  }
  return MessageError::kSimFailure;
}

}  // namespace gsm::simulator
