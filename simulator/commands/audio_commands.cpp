#include <algorithm>
#include <array>
#include <cstddef>
#include <iterator>

#include "simulator/commands/profile_number.h"

// What is heard: gains, echo cancellation, side tone, tones and melodies.
namespace gsm::simulator {

namespace {

// A gain goes in steps, and the modem reports the lower edge of the step that the value lies in.
constexpr int kSpeakerStep = 16;
constexpr int kMicrophoneStep = 32;
constexpr int kHighestEdge = 224;

template <int Profile::*member, int step>
Reply queryGain(ModemState& state, const Command& command) {
  const int edge = state.settings.profile.*member / step * step;
  return ok(headed(command, std::to_string(std::min(edge, kHighestEdge))));
}

template <int Profile::*member, int step>
constexpr CommandRow gain(std::string_view name) {
  return {.name = name,
          .query = queryGain<member, step>,
          .set = setNumbers<member>,
          .test = listNumbers<member>};
}

// The two algorithms share the mode and their own number, and differ in what stands after.
template <int Profile::*... members>
struct EchoValues {
  static constexpr CommandHandler kQuery =
      queryNumbers<&Profile::echoMode, &Profile::echoAlgorithm, members...>;
  static constexpr CommandHandler kSet =
      setNumbers<&Profile::echoMode, &Profile::echoAlgorithm, members...>;
  static constexpr CommandHandler kTest =
      listNumbers<&Profile::echoMode, &Profile::echoAlgorithm, members...>;
};

using Algorithm1 = EchoValues<&Profile::echoVolume, &Profile::echoStep,
                              &Profile::echoRelativeThreshold, &Profile::echoHighestThreshold>;
using Algorithm3 =
    EchoValues<&Profile::echoParameter, &Profile::echoNoiseThreshold, &Profile::echoTaps>;

struct EchoAlgorithm {
  int number;
  CommandHandler query;
  CommandHandler set;
};

constexpr EchoAlgorithm kEchoAlgorithms[] = {{1, Algorithm1::kQuery, Algorithm1::kSet},
                                             {3, Algorithm3::kQuery, Algorithm3::kSet}};

const EchoAlgorithm* echoAlgorithm(int number) {
  const auto* const found =
      std::find_if(std::begin(kEchoAlgorithms), std::end(kEchoAlgorithms),
                   [number](const EchoAlgorithm& known) { return known.number == number; });
  return found == std::end(kEchoAlgorithms) ? nullptr : found;
}

Reply queryEcho(ModemState& state, const Command& command) {
  return echoAlgorithm(state.settings.profile.echoAlgorithm)->query(state, command);
}

// "=MODE[,ALGORITHM[,VALUES]]": the algorithm that is named, or else the one in force, takes the
// values.
Reply setEcho(ModemState& state, const Command& command) {
  const Arguments& given = command.arguments;
  const auto number = given.has(1) ? given.number(1) : state.settings.profile.echoAlgorithm;
  if (!number) return error();
  const EchoAlgorithm* const algorithm = echoAlgorithm(*number);
  return algorithm != nullptr ? algorithm->set(state, command)
                              : error(EquipmentError::kNotSupported);
}

// Call type, volume, always 0, melody.
constexpr std::array<Range, 4> kMelody = {{{0, 3}, {0, 15}, {0, 0}, {0, 10}}};

// Melody 0 is silence. Nobody listens, so it is enough that the values are right.
Reply playMelody(ModemState&, const Command& command) {
  const Arguments& given = command.arguments;
  if (!given.has(0) || given.size() > kMelody.size()) return error();
  for (std::size_t at = 0; at < given.size(); ++at) {
    if (!given.has(at)) continue;
    const auto value = given.number(at);
    if (!value) return error();
    if (!kMelody[at].holds(*value)) return error(EquipmentError::kNotSupported);
  }
  return ok();
}

Reply listMelodies(ModemState&, const Command& command) {
  return ok(headed(command, "(0-3),(0-15),0,(0-10)"));
}

constexpr CommandRow kAudioCommands[] = {
    gain<&Profile::speakerGain, kSpeakerStep>("+VGR"),
    gain<&Profile::microphoneGain, kMicrophoneStep>("+VGT"),
    {.name = "+ECHO", .query = queryEcho, .set = setEcho, .test = Algorithm1::kTest},
    profileNumbers<&Profile::sideTone, &Profile::sideToneLevel>("+SIDET"),
    profileNumbers<&Profile::toneLength>("+VTD"),
    {.name = "+CRMP", .set = playMelody, .test = listMelodies},
};

}  // namespace

CommandRows audioCommands() { return kAudioCommands; }

}  // namespace gsm::simulator
