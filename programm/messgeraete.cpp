#include "programm/messgeraete.h"

#include <algorithm>
#include <utility>

#include "optionen/einstellungsfenster.h"

namespace tarvel {

messgeraete::messgeraete(const geraete_umgebung& um)
    : um_(um),
      rennverbindung_(um.rennen, um.form1, um.fenster),
      anzeigetakt_(um.dienste.zeitgeber.erzeugen(plattform::zeitgeber_art::abfragend, 500ms)) {
    anzeigetakt_->bei_tick = [this] { anzeigetakt_tick(); };
    um_.rennen.befehle.darf_starten = [this] { return trotzdem_starten(); };
    for (const geraet_anlegen anlegen : geraetetabelle()) {
        alle_.push_back({anlegen(um_, *this)});
        um_.einstellungsfenster.unterstuetzt.at(static_cast<std::size_t>(alle_.back().teile->geraet().welches())) =
            true;
    }
}

void messgeraete::anschliessen(messgeraet& geraet) {
    um_.quellen.anschliessen(geraet);
    if (const auto platz = geraet.ausgabeplatz()) {
        um_.ausgaben.anschliessen(*platz, geraet);
    }
}

void messgeraete::trennen(messgeraet& geraet) {
    um_.quellen.trennen(geraet);
    if (const auto platz = geraet.ausgabeplatz()) {
        um_.ausgaben.trennen(*platz);
    }
}

void messgeraete::schliessen() {
    anzeigetakt_->aus();
    for (eintrag& eines : alle_) {
        eines.wartet = false;
        trennen(eines.teile->geraet());
    }
    for (const eintrag& eines : alle_) {
        eines.teile->geraet().schliessen();
    }
    um_.rennen.zeit.freigeben();
}

void messgeraete::beenden() {
    for (const eintrag& eines : alle_) {
        eines.teile->beenden();
    }
    schliessen();
}

void messgeraete::hardware_starten(bool spaeter) {
    um_.ausgaben.ruhezustand();  // of the device that is left
    schliessen();
    for (eintrag& eines : alle_) {
        if (gewaehlt(eines)) {
            anschliessen(eines.teile->geraet());
            eines.wartet = true;
        } else {
            eines.teile->nebenher_oeffnen();
        }
    }
    wartende_oeffnen(!spaeter);
    um_.ausgaben.einschalten();
    um_.ausgaben.ruhezustand();
    ausgaben_anzeigen();
    if (std::any_of(alle_.begin(), alle_.end(), [this](const eintrag& eines) { return gewaehlt(eines); })) {
        anzeigetakt_->an();
    }
    verbindung_anzeigen();
}

void messgeraete::nachholen() {
    wartende_oeffnen(true);
}

void messgeraete::wartende_oeffnen(bool auch_aufhaltende) {
    for (eintrag& eines : alle_) {
        messgeraet& geraet = eines.teile->geraet();
        if (eines.wartet && (auch_aufhaltende || !geraet.haelt_auf())) {
            eines.wartet = false;
            geraet.oeffnen();
            verbindung_anzeigen();
        }
    }
}

void messgeraete::ausgaben_anzeigen() {
    um_.form1.modus_anzeigen();
    um_.form1.bahnstrom_schaltbar(um_.ausgaben.angeschlossen());
}

bool messgeraete::verbunden() const {
    return std::any_of(alle_.begin(), alle_.end(),
                       [this](const eintrag& eines) { return gewaehlt(eines) && eines.teile->geraet().verbunden(); });
}

void messgeraete::wartehinweis(bool an) {
    um_.form1.wartehinweis(an);
    befehl& rennstart = um_.rennen.bahn1.Command1;
    if (an) {
        rennstart.aktiviert(false);
    } else if (um_.rennen.zustand.rennen_beendet && !um_.rennen.umgebung.ampel_laeuft() &&
               !um_.fenster.ist_offen(fenstername::auswertung) && !um_.fenster.ist_offen(fenstername::einfahren)) {
        rennstart.aktiviert(true);
        rennstart.fokus_setzen();
    }
    if (!an) {
        um_.ausgaben.wiederholen();  // what was switched while the unit booted has not reached it
    }
    verbindung_anzeigen();
}

void messgeraete::port_fehlt(const std::string& meldung) {
    if (um_.rennen.teil_von->ohne_bediener()) {
        return;  // the race window shows it over its lanes, and who starts all the same is asked
    }
    gewarnt_ = true;
    um_.dienste.meldungen.zeigen(meldung + um_.form1.anschluss_gesperrt(um_.dienste.serienports.sperrdatei()),
                                 um_.txt.titel[1]);
}

void messgeraete::nicht_zu_oeffnen(messgeraet& geraet, const std::string& meldung) {
    um_.einst.hardware.waehlen(geraet.welches(), false);
    um_.einst.hardware.hw_simulation = true;
    trennen(geraet);
    ausgaben_anzeigen();
    um_.dienste.meldungen.zeigen(meldung + um_.form1.anschluss_gesperrt(um_.dienste.serienports.sperrdatei()),
                                 um_.txt.titel[1]);
}

void messgeraete::verloren() {
    um_.rennen.chaos.geraet_verloren();
    verbindung_anzeigen();
}

bool messgeraete::getrennt() const {
    return std::any_of(alle_.begin(), alle_.end(), [this](const eintrag& eines) {
        return gewaehlt(eines) && !eines.wartet && !eines.teile->geraet().verbunden();
    });
}

void messgeraete::anzeigetakt_tick() {
    constexpr int suchen_alle = 4;
    getrennt_seit_ = getrennt() ? getrennt_seit_ + 1 : 0;
    if (getrennt_seit_ % suchen_alle == 1) {
        for (const eintrag& eines : alle_) {
            if (gewaehlt(eines) && !eines.wartet) {
                eines.teile->geraet().wieder_aufnehmen();
            }
        }
    }
    verbindung_anzeigen();
}

bool messgeraete::trotzdem_starten() {
    if (!anzeigetakt_->laeuft() || getrennt_seit_ < alarm_nach || !getrennt() || gewarnt_) {
        return true;
    }
    gewarnt_ = um_.dienste.meldungen.fragen(um_.rennen.bahn1.wort.ohne_messung, um_.txt.titel[0]);
    return gewarnt_;
}

void messgeraete::verbindung_anzeigen() {
    const bool fehlt = getrennt();
    gewarnt_ = gewarnt_ && fehlt;
    um_.form1.messgeraet_getrennt(fehlt);
    const std::string& stand = um_.form1.modus_label.text();
    um_.rennen.ansicht.fusszeile_setzen(fehlt ? stand : um_.txt.werbetext, fehlt);
    const bool alarm = fehlt && getrennt_seit_ >= alarm_nach && um_.fenster.ist_offen(fenstername::bahn1);
    um_.rennen.ansicht.geraetealarm_setzen(alarm ? stand : "");
}

}  // namespace tarvel
