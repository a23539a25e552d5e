// Stands in for the vendor's library of the Race Control box: the same calls, over the substitute's own records.

#include "tools/ersatz/race_control/bibliothek.h"

#include <algorithm>
#include <optional>
#include <string>
#include <utility>

#include "tools/ersatz/race_control/draht.h"

namespace {

using namespace tarvel::simulator;

constexpr std::int32_t handgriff = 1;
constexpr std::int32_t ereignis_da = 2;
constexpr std::int32_t senden_noetig = 0x8003;

struct stand {
    rc_draht::leser leser;
    std::optional<std::int32_t> ereignis;
    std::string zu_senden;
    std::uint32_t stempel = 0;
    bool aktiv = false;
};

stand& lage() {
    static stand eine;
    return eine;
}

std::int32_t fragt(stand& s, unsigned was) {
    const bool wer = was == static_cast<unsigned>(rc_draht::frage::wer);
    s.zu_senden = wer ? rc_draht::antwort_wer : rc_draht::antwort_einstellungen;
    return senden_noetig + static_cast<std::int32_t>(was);
}

std::int32_t verstehen(stand& s, const rc_draht::satz& satz) {
    s.stempel = satz.stempel;
    switch (satz.art) {
        case rc_draht::art::frage:
            return fragt(s, satz.sensor);
        case rc_draht::art::takt:  // of a box that another program has left active
            return s.aktiv ? 0 : fragt(s, static_cast<unsigned>(rc_draht::frage::wer));
        case rc_draht::art::aktiv:
            s.aktiv = true;
            s.zu_senden = rc_draht::antwort_aktiv;
            break;
        default:
            break;
    }
    s.ereignis = static_cast<std::int32_t>(static_cast<unsigned>(satz.art) << 8 | satz.sensor);
    return ereignis_da;
}

}  // namespace

void InitBoxes() {
    lage() = {};
}

std::int32_t OpenBox(std::int32_t box, const char* name) {
    lage() = {};
    return box == 0 && name != nullptr ? handgriff : -1;
}

std::int32_t RX_data(std::int32_t box, std::int32_t byte) {
    if (box != handgriff) {
        return 0;
    }
    const std::optional<rc_draht::satz> satz = lage().leser.byte(static_cast<std::uint8_t>(byte));
    return satz ? verstehen(lage(), *satz) : 0;
}

std::uint8_t Get_Event(std::int32_t* ereignis) {
    const std::optional<std::int32_t> eines = std::exchange(lage().ereignis, {});
    if (!eines) {
        return 0;
    }
    *ereignis = *eines;
    return 1;
}

std::int32_t Get_TXDat(char* daten) {
    const std::string bytes = std::exchange(lage().zu_senden, {});
    std::copy(bytes.begin(), bytes.end(), daten);
    return static_cast<std::int32_t>(bytes.size());
}

std::uint32_t Get_TStamp(std::int32_t /*box*/) {
    return lage().stempel;
}
