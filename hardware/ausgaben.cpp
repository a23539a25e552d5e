#include "hardware/ausgaben.h"

#include <algorithm>
#include <utility>

namespace tarvel {
namespace {

constexpr int rote_lampen_anzahl = 5;

using ausgang = schaltung::ausgang;

}  // namespace

bool ausgaben::angeschlossen() const {
    return bericht.senden || std::any_of(geraete_.begin(), geraete_.end(),
                                         [](const ausgabe_geraet* geraet) { return geraet != nullptr; });
}

void ausgaben::geraete_schalten(const schaltung& befehl) {
    std::erase_if(stand_, [&befehl](const schaltung& vorher) {
        return vorher.was == befehl.was && (befehl.nummer == 0 || befehl.nummer == vorher.nummer);
    });
    stand_.push_back(befehl);
    an_geraete(befehl);
}

void ausgaben::wiederholen() {
    for (const schaltung& befehl : stand_) {
        an_geraete(befehl);
    }
}

void ausgaben::stillhalten() {
    still_ = true;
    bericht.festhalten(true);
}

void ausgaben::aufleben() {
    if (std::exchange(still_, false)) {
        bericht.festhalten(false);
        bericht.schreiben();
        wiederholen();
    }
}

void ausgaben::an_geraete(const schaltung& befehl) const {
    if (still_) {
        return;
    }
    for (ausgabe_geraet* geraet : geraete_) {
        if (geraet != nullptr) {
            geraet->schalten(befehl);
        }
    }
}

void ausgaben::gruene_lampe(bool an) {
    an = an != einst_.ampel_invers;
    bericht.schalten(art::ampel_gruen, an);
    bericht.schreiben();
    geraete_schalten({ausgang::ampel_gruen, 0, an});
}

void ausgaben::rote_lampen(int lampe, bool an) {
    if (lampe < 0 || lampe > rote_lampen_anzahl) {
        return;
    }
    an = an != einst_.ampel_invers;
    for (int n = 1; n <= rote_lampen_anzahl; ++n) {
        if (lampe == 0 || lampe == n) {
            bericht.schalten(art::ampel_rot(n), an);
        }
    }
    geraete_schalten({ausgang::ampel_rot, lampe, an});
    bericht.schreiben();
}

void ausgaben::bahnstrom(int spur, bool strom) {
    if (spur < 0 || spur > spuren_max) {
        return;
    }
    const bool an = strom != einst_.bahnstrom_invers;
    for (const int n : alle_spuren) {
        if (spur == 0 || spur == n) {
            bericht.schalten(art::bahnstrom[n], an);
        }
    }
    geraete_schalten({ausgang::bahnstrom, spur, an});
    bericht.schreiben();
}

void ausgaben::chaos_an() {
    bericht.schalten(art::chaostaster, false);
    bericht.sichern();
    relais_on(0);
    ampelnRon(0);
    ampelnGRoff();
    bericht.schalten(art::chaosanzeige, true);
    bericht.schreiben();
    geraete_schalten({ausgang::chaosanzeige, 0, true});
}

void ausgaben::chaos_aus() {
    geraete_schalten({ausgang::chaosanzeige, 0, false});
    ampelnGRon();
    ampelnRoff(0);
    bericht.wiederherstellen();
    bericht.schreiben();
}

void ausgaben::zieleinfahrt_melden() {
    bericht.schalten(art::zieleinfahrt, true);
    bericht.schreiben();
}

void ausgaben::rennende_signal(bool an) {
    bericht.schalten(art::zieleinfahrt, an);
    geraete_schalten({ausgang::rennende, 0, an});
    bericht.schreiben();
}

void ausgaben::einschalten() {
    bericht.ruhe();
    if (!einst_.bahnstrom_invers) {
        for (const ereignis_art nummer : art::bahnstrom) {
            bericht.schalten(nummer, true);
        }
    }
    bericht.schreiben();
}

void ausgaben::kalibrieren() {
    bericht.ruhe();
    bericht.schreiben();
}

void ausgaben::ruhezustand() {
    relais_off(0);
    ampelnRoff(0);
    ampelnGRon();
}

void ausgaben::stillstand() {
    bericht.ruhe();
    relais_on(0);  // first: with inverted wiring a lane has power at rest
    ampelnRoff(0);
    ampelnGRoff();
}

}  // namespace tarvel
