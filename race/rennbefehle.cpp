#include "race/rennbefehle.h"

#include <algorithm>

#include "core/text.h"

namespace tarvel {

rennbefehle::rennbefehle(const renn_umgebung& um, const teile& t, const tastenbelegung& belegung)
    : um_(um), t_(t), belegung_(belegung), tastatur_(um.ereignisse, belegung, *this) {
    mitschrift& protokoll = um_.protokoll;
    um_.bahn.Command1.bei_klick = protokoll.befehl("start", [this] {
        if (darf()) {
            t_.ablauf.rennstart_vorbereiten();
        }
    });
    um_.bahn.Command2.bei_klick = protokoll.befehl("abbruch", [this] {
        if (um_.zustand.fortgesetzt) {
            abbrechen_wenn_bejaht();
        } else {
            rennen_abbrechen();
        }
    });
    um_.bahn.Command4.bei_klick = protokoll.befehl("ende", [this] { rennen_beenden(); });
    um_.bahn.Command6.bei_klick = protokoll.befehl("einfahren", [this] { t_.ablauf.einfahrzeit_starten(); });
    schliessen_ = protokoll.befehl("schliessen", [this] { abbrechen_wenn_bejaht(); });
    taste_ = protokoll.eingang("taste", 2, [this](const mitschrift::werte& w) {
        taste_auswerten(static_cast<int>(w[0]), w[1] < 0 ? std::nullopt : std::optional(protokoll_stempel(w[1])));
        t_.zaehlung.zaehler_nachfuehren();
        if (!um_.ampel_laeuft()) {  // else a tank sensor may be what sees a false start
            t_.tank.tank_kontakte_auswerten();
        }
    });
}

bool rennbefehle::darf() {
    bool ja = true;
    um_.protokoll.tor([&] {
        // a device may have started the race itself while it was asked
        ja = !darf_starten || (darf_starten() && um_.bahn.Command1.bedienbar() && um_.zustand.rennen_beendet);
    });
    return um_.protokoll.antwort("darf", [&] { return ja ? 1 : 0; }) == 1;
}

std::string rennbefehle::nachthinweis() const {
    const int code = belegung_.taste(tastenbelegung::zeile_nacht);
    return code == tastenbelegung::keine_taste ? "" : um_.bahn.wort.nacht + " " + ansi_zeichen(code);
}

void rennbefehle::taste_auswerten(int code, std::optional<zeit_ms> alter) {
    if (alter) {
        tastatur_.taste_auswerten(code, um_.zeit.messzeit_lesen() - *alter);
    } else {
        tastatur_.taste_auswerten(code);
    }
}

bool rennbefehle::ist_rundentaste(int code) const {
    return std::any_of(art::rundenzaehlung.begin(), art::rundenzaehlung.end(),
                       [&](ereignis_art zeile) { return belegung_.taste(zeile) == code; });
}

void rennbefehle::taste(int code, std::optional<zeit_ms> alter) {
    um_.protokoll.geschieht(taste_, {code, alter.value_or(-1)});
}

void rennbefehle::rennen_abbrechen() {
    const bool gefahren = !um_.zustand.rennen_beendet && !um_.ampel_laeuft();
    um_.protokoll.vermerken(vermerk::abbruch);
    um_.fenster.entladen(fenstername::Form2);
    um_.fenster.entladen(fenstername::auswertung);
    um_.sounds.spielen(sound::rennen_abgebrochen);
    t_.pause.aufheben();
    um_.zeitgeber.alle_aus();
    t_.ende.ausgaben_endzustand();
    um_.zustand.rennabbruch = true;
    um_.param.einrichtung_wiederherstellen();
    um_.teil_von.melden(&veranstaltung::abgebrochen);
    if (gefahren && um_.teil_von->zurueck() != fenstername::wettkampf2 && !um_.teil_von->zur_uebung()) {
        um_.meldungen.mitteilen(um_.bahn.wort.zurueckholen);  // an evening offers it by itself
    }
    um_.fenster.entladen(fenstername::bahn1);
    um_.fenster.zeigen(um_.teil_von->zurueck(), um_.teil_von->zurueck_als());
}

void rennbefehle::fenster_schliessen() {
    if (um_.zustand.rennen_beendet) {
        schliessen_();
    } else {
        um_.bahn.Command2.bei_klick();  // while the light runs the button is not to be pressed
    }
}

bool rennbefehle::bejaht() {
    um_.protokoll.tor([] {});
    return um_.protokoll.antwort("antwort", [] { return 1; }) == 1;
}

void rennbefehle::abbrechen_wenn_bejaht() {
    if (um_.zustand.rennen_beendet) {
        if (!um_.fenster.ist_offen(fenstername::auswertung)) {
            rennen_abbrechen();
        }
        return;
    }
    if (bejaht() && !um_.zustand.rennen_beendet) {  // it may have come to its end meanwhile
        rennen_abbrechen();
    }
}

void rennbefehle::rennen_beenden() {
    if (um_.zustand.rennen_beendet) {
        return;
    }
    um_.fenster.entladen(fenstername::Form2);
    t_.ende.ende_stempeln();
    um_.zustand.rennabbruch = true;
    t_.ende.rennende_ablauf();
}

}  // namespace tarvel
