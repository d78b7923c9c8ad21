#include "simulator/commands/profile_number.h"
#include "simulator/profile/profile_dump.h"

// Who the modem is.
namespace gsm::simulator {

namespace {

// The blanks are the modem's own: one before the maker, and the model has them all over.
constexpr const char* kManufacturer = " WAVECOM MODEM";
constexpr const char* kModel = " MULTIBAND  900E  1800 ";
constexpr const char* kRevision = "641b09gg.Q2403A 1320676 061804 14:38";
constexpr const char* kSerialNumber = "490154203237518";

Reply manufacturer(ModemState&, const Command&) { return ok(kManufacturer); }
Reply model(ModemState&, const Command&) { return ok(kModel); }
Reply revision(ModemState&, const Command&) { return ok(kRevision); }
Reply serialNumber(ModemState&, const Command&) { return ok(kSerialNumber); }

Reply capabilities(ModemState&, const Command& command) {
  return ok(headed(command, "+CGSM, +FCLASS"));
}

constexpr const char* kDataFeatures =
    "DATA RATES: AUTOBAUD,300,1200,1200/75,2400,4800,9600,14400\r\n"
    "DATA MODES: T/NT,ASYNCHRONOUS\r\n"
    "FAX CLASS: 1,2";

Reply information(ModemState& state, const Command& command) {
  const auto page = command.arguments.size() == 0 ? 0 : command.arguments.number(0);
  switch (page.value_or(-1)) {
    case 0: return {.information = {kManufacturer, kModel}};
    case 3: return ok(kRevision);
    case 4: return ok(dumped(state.settings.profile));
    case 5: return ok(dumped(state.settings.storedProfile()));
    case 6: return ok(kDataFeatures);
    case 7: return ok("SPEECH CODINGS: FR,EFR,HR,AMR");
    case -1: return error();
    default: return ok();
  }
}

constexpr CommandRow kIdentityCommands[] = {
    {.name = "I", .execute = information},
    {.name = "+CGMI", .execute = manufacturer, .test = isSupported},
    {.name = "+CGMM", .execute = model, .test = isSupported},
    {.name = "+CGMR", .execute = revision, .test = isSupported},
    {.name = "+CGSN", .execute = serialNumber, .query = serialNumber, .test = isSupported},
    {.name = "+GCAP", .execute = capabilities, .test = isSupported},
};

}  // namespace

CommandRows identityCommands() { return kIdentityCommands; }

}  // namespace gsm::simulator
