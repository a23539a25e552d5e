#include <algorithm>
#include <string>
#include <vector>

#include "core/protokollzeile.h"
#include "platform/stille_maschine.h"
#include "programm/rennprotokoll.h"
#include "tests/fuzz/dateiarten.h"

namespace tarvel::test {
namespace {

/// The same lines with sums that are right: so the race gets to see what stands in them.
std::string neu_gesiegelt(const std::string& bytes) {
    constexpr std::size_t summe_zeichen = 5;
    protokollschreiber schreiber;
    std::string neu;
    for (std::size_t ort = 0; ort < bytes.size();) {
        const std::size_t ende = std::min(bytes.find("\r\n", ort), bytes.size());
        std::string_view zeile = std::string_view(bytes).substr(ort, ende - ort);
        zeile.remove_suffix(std::min(zeile.size(), zeile.size() < summe_zeichen || zeile[zeile.size() - 5] != '*'
                                                       ? std::size_t{0}
                                                       : summe_zeichen));
        neu += schreiber.beginnen(0).wort(zeile).fertig();
        ort = ende + 2;
    }
    return neu;
}

rennprotokoll::ausgang nachspielen(const std::filesystem::path& ordner, const std::string& bytes) {
    stille_maschine maschine(ordner);
    programm p(maschine.dienste());
    p.ablage.nur_lesen();
    p.rennprotokoll.fuehren = false;
    p.starten();
    return p.rennprotokoll.nachspielen(bytes);
}

/// A race with all that a log may hold: fuel, a false start, a pause with a penalty, and it goes on from its result.
std::string volles_protokoll() {
    testprogramm t;
    t.p.einst.sensor_timeout = 0ms;
    t.p.form1.wertmin.eingeben("1");
    t.p.form1.t_aktiv.umschalten();
    t.p.einst.sektor_an = {true, true, true, true};
    t.starten("Zeit", "1", {1, 2, 3});
    for (int runde = 0; runde < 4; ++runde) {
        t.runde_nach(2000 + 31 * runde, "123");
    }
    t.taste("q");
    t.maschine.laufen(1500);
    t.taste("q");
    t.bahn().Command3.klicken();
    t.bahn().ch_strafzeit_hacken[2].umschalten();
    t.maschine.laufen(2000);
    t.bahn().Command3.klicken();
    t.maschine.laufen(9000);
    t.runde_nach(2100, "31");
    t.rennende();
    t.p.auswertung.neues_ziel.eingeben("2");
    t.p.auswertung.Command3.klicken();
    t.p.k_ampel.Command1.klicken();
    t.maschine.laufen(9000);
    t.runde_nach(2500, "123");
    t.rennende();
    t.p.auswertung.Command5.klicken();
    std::string name = t.p.rennprotokoll.dateiname();
    std::replace(name.begin(), name.end(), '\\', '/');
    return t.maschine.datei_lesen(name);
}

bool protokoll_lesen(werkbank& bank, const std::string& bytes) {
    nachspielen(bank.t.maschine.ordner(), bytes);
    const std::string gesiegelt = neu_gesiegelt(bytes);
    const auto ausgang = nachspielen(bank.t.maschine.ordner(), gesiegelt);
    fordern(nachspielen(bank.t.maschine.ordner(), gesiegelt) == ausgang, "a race goes two ways from one log");
    return ausgang == rennprotokoll::ausgang::ganz;
}

}  // namespace

dateiart rennprotokoll_datei() {
    return {{volles_protokoll()}, protokoll_lesen, 40};
}

}  // namespace tarvel::test
