#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace gsm {

class Conversation;

/// After how many rings the modem answers by itself, in three digits: the reply to "ATS0?", if the
/// transcript holds it behind its echo and it ends well.
std::optional<std::string> autoAnswerReply(const Conversation& modem);

/// The reply of a modem that leaves its calls to the user.
inline constexpr std::string_view kAnswersByHand = "000";

}  // namespace gsm
