#include "hardware/rc_bibliothek.h"

#include <algorithm>
#include <array>
#include <cstddef>

#include "hardware/rufbinder.h"

namespace tarvel {
namespace {

constexpr std::int32_t erste_box = 0;
constexpr unsigned wort_maske = 0xFFFF;    // the library counts in words; what stands above them is left over
constexpr std::size_t sendepuffer = 1024;  // far more than a box takes at a time

}  // namespace

bool rc_bibliothek::laden() {
    if (geladen_ != nullptr) {
        return true;
    }
    fehlt_.clear();
    std::unique_ptr<plattform::bibliothek> neu = dienst_.laden(dateiname);
    if (neu == nullptr) {
        return false;
    }
    rufbinder binden(*neu);
    binden(rufe_.InitBoxes, "InitBoxes");
    binden(rufe_.OpenBox, "OpenBox");
    binden(rufe_.RX_data, "RX_data");
    binden(rufe_.Get_Event, "Get_Event");
    binden(rufe_.Get_TXDat, "Get_TXDat");
    binden(rufe_.Get_TStamp, "Get_TStamp");
    fehlt_ = binden.fehlt();
    if (!fehlt_.empty()) {
        return false;
    }
    geladen_ = std::move(neu);
    rufe_.InitBoxes();
    return true;
}

int rc_bibliothek::box_oeffnen(const std::string& port) const {
    return rufe_.OpenBox(erste_box, port.c_str());
}

unsigned rc_bibliothek::byte_geben(int box, char byte) const {
    return static_cast<unsigned>(rufe_.RX_data(box, static_cast<unsigned char>(byte))) & wort_maske;
}

std::optional<unsigned> rc_bibliothek::ereignis() const {
    std::array<std::int32_t, 2> wort{};  // room for a library whose words are longer
    if (rufe_.Get_Event(wort.data()) == 0) {
        return std::nullopt;
    }
    return static_cast<unsigned>(wort.front()) & wort_maske;
}

std::string rc_bibliothek::sendedaten() const {
    std::string daten(sendepuffer, '\0');
    const std::int32_t anzahl = rufe_.Get_TXDat(daten.data());
    daten.resize(static_cast<std::size_t>(std::clamp(anzahl, 0, static_cast<std::int32_t>(sendepuffer))));
    return daten;
}

std::uint32_t rc_bibliothek::stempel() const {
    return rufe_.Get_TStamp(erste_box);
}

}  // namespace tarvel
