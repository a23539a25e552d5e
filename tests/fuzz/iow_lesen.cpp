#include <algorithm>

#include "hardware/iow_profil.h"
#include "programm/iow_verdrahtung.h"
#include "tests/fuzz/dateiarten.h"
#include "tests/plattform/test_iowkit.h"

namespace tarvel::test {
namespace {

bool iow_datei_lesen(werkbank& bank, const std::string& bytes) {
    bank.legen("klub.iow", bytes);
    const auto profil = iow_profil_laden(bank.eingang, "klub.iow");
    if (!profil) {
        return false;
    }
    const kontaktleser::linienzuordnung linien = linien_von(*profil);
    const iow_belegung belegung = belegung_von(*profil);
    for (const ereignis_art nummer : linien) {
        fordern(nummer == 0 || art::ist_eingang(nummer), "an input that is none");
        fordern(nummer == 0 || std::count(linien.begin(), linien.end(), nummer) == 1, "an input on two pins");
    }
    for (ereignis_art nummer = 1; nummer < 60; ++nummer) {
        const auto [iow_port, iow_maske] = belegung[nummer];
        fordern((iow_port == 0) == (iow_maske == 0) && iow_port >= 0 && iow_port <= 4, "a pin that is none");
    }
    fordern(
        iow_profil_speichern(bank.ausgang, "klub.iow", *profil) && iow_profil_laden(bank.ausgang, "klub.iow") == profil,
        "the assignment changes on the way through its file");
    return true;
}

/// No file, but what the board's library says: five bytes a report, the first for its length, which is mostly right.
bool iow_hoeren(werkbank& bank, const std::string& bytes) {
    constexpr std::size_t bericht = 5;
    programm& p = bank.t.p;
    test_iowkit brett;
    brett.eintragen(bank.t.maschine.bibliotheken);
    const geraeteprobe probe(bank);  // closes it while the script lives
    p.einst.hardware.hw_iow = true;
    p.geraete.hardware_starten(false);
    iow_40& geraet = p.geraete.von<iow_verdrahtung>().iow;
    fordern(geraet.verbunden(), "the board is closed");
    bool gehoert = false;
    for (std::size_t i = 0; i + bericht <= bytes.size(); i += bericht) {
        const auto byte = [&](std::size_t n) { return std::uint32_t{static_cast<unsigned char>(bytes[i + n])}; };
        brett.gelesen = byte(0) < 64 ? byte(0) * 0x01010101U : static_cast<std::uint32_t>(bericht);
        brett.kontakte = byte(1) | byte(2) << 8U | byte(3) << 16U | byte(4) << 24U;
        bank.t.maschine.laufen(1);
        gehoert = kontakte_abfragen(bank, geraet) || gehoert;
    }
    return gehoert;
}

}  // namespace

dateiart iow_datei() {
    std::string werksdatei;
    for (const ereignis_art nummer : iow_werkseinstellung()) {
        werksdatei += std::to_string(nummer) + "\r\n";
    }
    return {{werksdatei}, iow_datei_lesen};
}

dateiart iow_berichte() {
    return {{std::string("\xff\x01\x80\0\x80\xff\0\0\0\0\x05\x02\x80\0\0\xff\0\x10\xff\x55\xff\0\0\0\0", 25)},
            iow_hoeren};
}

}  // namespace tarvel::test
