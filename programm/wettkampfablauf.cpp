#include "programm/wettkampfablauf.h"

#include <utility>

#include "core/platzhalter.h"
#include "core/zeit.h"

namespace tarvel {
void wettkampfablauf::beginnen(const wettkampfvorgabe& vorgabe) {
    auto neu = wettkampf_beginnen(vorgabe.plan, vorgabe.fahrer, vorgabe.titel, um_.txt);
    if (!neu) {
        return;
    }
    for (std::size_t platz = 0; platz < neu->bilder.size(); ++platz) {
        const int fahrer = neu->plan.teilnehmer.at(platz).fahrer;
        if (fahrer > 0 && static_cast<std::size_t>(fahrer) <= vorgabe.bilder.size()) {
            neu->bilder.at(platz) = vorgabe.bilder.at(static_cast<std::size_t>(fahrer) - 1);
        }
    }
    neu->beginn = datum_text(um_.kalender.jetzt());
    neu->rennlaenge = um_.param.renn_laenge.zahl();
    neu->qualifying_an = vorgabe.qualifying;
    neu->wertung = vorgabe.qualifying ? sortier_modus::beste : um_.param.auswertung_nach_rennen;
    um_.haupt.letztes_mal_vergessen();  // its races keep the fields as they were set up for it
    eroeffnen(std::move(*neu));
}

void wettkampfablauf::eroeffnen(wettkampf neu, const std::string& aus) {
    um_.haupt.wettkampf_laeuft(true);
    if (aus != laufender_wettkampf && um_.ablage.gibt_es(laufender_wettkampf)) {
        um_.speicher.laufenden_aufheben();  // another one, that was not ended
    }
    um_.abend.beginnen(std::move(neu));
    if (!um_.abend.nicht_gesichert()) {
        um_.speicher.uebernommen(aus);
    }
    um_.fenster.verbergen(fenstername::wettkampf1);
    um_.fenster.zeigen(fenstername::wettkampf2);
}

void wettkampfablauf::laden() {
    using antwort = plattform::dreifache_antwort;
    antwort uebernehmen = antwort::nein;
    if (!um_.einst.hardware.hw_cu) {  // that unit's settings are those of the track here
        uebernehmen =
            um_.meldungen.fragen_mit_ausweg(um_.txt.wettkampf.einstellungen_uebernehmen, um_.txt.wettkampf.laden);
    }
    if (uebernehmen == antwort::abbrechen) {
        return;
    }
    const auto wie =
        uebernehmen == antwort::ja ? einstellungen_aus_datei::uebernehmen : einstellungen_aus_datei::lassen;
    um_.speicher.laden_von([this, wie](const std::string& pfad) {
        if (laden(pfad, wie)) {
            um_.haupt.letztes_mal_vergessen();
            if (wie == einstellungen_aus_datei::uebernehmen) {
                um_.ruecklage.aufgeben();
            }
            return true;
        }
        um_.meldungen.zeigen(um_.txt.wettkampf.ladefehler, um_.txt.titel[1]);
        return false;
    });
}

bool wettkampfablauf::laden(const std::string& pfad, einstellungen_aus_datei wie) {
    auto gelesen = wettkampf_laden(um_.datei, pfad, um_.einst.gruppen, um_.txt, einstellungen_aus_datei::lassen,
                                   version_melden::nein);
    if (!gelesen || !rennen_der_datei_uebergeben(*gelesen)) {
        return false;
    }
    if (wie == einstellungen_aus_datei::uebernehmen) {
        const einstellungen vorher = um_.einst;
        um_.datei.einstellungen_uebernehmen(std::nullopt);
        um_.folgen.einstellungen_gewechselt(vorher);
        rennen_der_datei_uebergeben(*gelesen);  // lent lanes and the way of judging are those of the file now
    }
    um_.einrichtung = um_.datei.einrichtung();  // its files are written from what the main window shows
    um_.haupt.einrichtung_zeigen();
    eroeffnen(std::move(*gelesen), pfad);
    return true;
}

bool wettkampfablauf::wieder_aufnehmen(const std::string& pfad, einstellungsruecklage::felder wie) {
    const auto eigene =
        um_.einst.hardware.hw_cu ? einstellungen_aus_datei::lassen : einstellungen_aus_datei::uebernehmen;
    return um_.ruecklage.solange(
        {fenstername::wettkampf1, fenstername::wettkampf2, fenstername::bahn1, fenstername::auswertung}, wie,
        [&] { return laden(pfad, eigene); });
}

bool wettkampfablauf::rennen_der_datei_uebergeben(const wettkampf& gelesen) {
    renneinrichtung einrichtung = um_.datei.einrichtung();
    renn_parameter param = um_.param;
    if (rennen_uebergeben(einrichtung, um_.einst, rennumfang::wettkampf, param) != einrichtungsfehler::keiner) {
        return false;
    }
    if (gelesen.rennlaenge > 0) {
        param.renn_laenge = rennziel::aus_zahl(param.renn_laenge.art(), gelesen.rennlaenge);
    } else if (param.ist_zeitrennen()) {
        wettkampfdatei_uebergeben(einrichtung, param);
        param.renn_laenge = rennziel::zeit(param.renndauer_ms);
    }
    param.einrichtung_wiederherstellen();
    um_.param = param;
    return true;
}

void wettkampfablauf::wettkampf_beendet(const std::optional<std::vector<std::string>>& qualifying) {
    um_.haupt.wettkampf_laeuft(false);
    if (qualifying) {
        vorbereitung->qualifying_uebernehmen(*qualifying);
        um_.fenster.zeigen(fenstername::wettkampf1, anzeige_art::modal);
    } else {
        um_.fenster.entladen(fenstername::wettkampf1);
        um_.ruecklage.abgelaufene_zurueckstellen();
        um_.fenster.zeigen(fenstername::Form1);
    }
}

std::string wettkampfablauf::frage(const wettkampf& w) const {
    const auto& wort = um_.txt.wettkampf;
    const bool mit_stelle = wort.der_wettkampf.find("%1") != std::string::npos;  // not in an older language file
    return (mit_stelle ? eingesetzt(wort.der_wettkampf, {w.wettkampf_name})
                       : wort.der_wettkampf + " " + w.wettkampf_name) +
           " " + wort.vom + " " + w.beginn + " " + wort.nicht_beendet;
}

std::optional<plattform::dreifache_antwort> wettkampfablauf::letzten_anbieten(bool noch_eines) {
    using antwort = plattform::dreifache_antwort;
    const auto& wort = um_.txt.wettkampf;
    using felder = einstellungsruecklage::felder;
    for (const std::string& pfad : um_.speicher.unbeendete()) {
        const auto gelesen = wettkampf_laden(um_.datei, pfad, um_.einst.gruppen, um_.txt,
                                             einstellungen_aus_datei::lassen, version_melden::nein);
        if (!gelesen) {
            continue;
        }
        antwort will = antwort::abbrechen;
        if (noch_eines) {
            will = um_.meldungen.anbieten_mit_ausweg(frage(*gelesen), um_.txt.titel[0],
                                                     {wort.weiterfahren, wort.naechstes});
        } else if (um_.meldungen.anbieten(frage(*gelesen), um_.txt.titel[0], {wort.weiterfahren, wort.spaeter})) {
            will = antwort::ja;
        }
        if (will == antwort::ja && !wieder_aufnehmen(pfad, felder::zurueck)) {
            um_.meldungen.zeigen(wort.ladefehler + "\n" + pfad, um_.txt.titel[1]);
        }
        return will;
    }
    return std::nullopt;
}

bool wettkampfablauf::unterbrochenen_anbieten(const std::string& rennen) {
    if (!um_.ablage.gibt_es(laufender_wettkampf)) {
        return false;
    }
    const std::string pfad(laufender_wettkampf);
    const auto gelesen = wettkampf_laden(um_.datei, pfad, um_.einst.gruppen, um_.txt, einstellungen_aus_datei::lassen,
                                         version_melden::nein);
    const bool fortsetzen =
        gelesen && um_.meldungen.anbieten(frage(*gelesen) + rennen, um_.txt.titel[0],
                                          {um_.txt.wettkampf.weiterfahren, um_.txt.wettkampf.spaeter});
    using felder = einstellungsruecklage::felder;
    const bool stehen_da = um_.einst.anzeige.hauptfenster_wie_zuletzt;  // those of the director
    const auto wie = stehen_da ? felder::zurueck : felder::bleiben;
    const bool gut = gelesen && (!fortsetzen || wieder_aufnehmen(pfad, wie));
    if (gut && fortsetzen) {
        return true;
    }
    const std::string hier = um_.speicher.laufenden_aufheben();
    if (!gut) {
        um_.meldungen.zeigen(um_.txt.wettkampf.ladefehler + "\n" + hier, um_.txt.titel[1]);
    }
    return false;
}

}  // namespace tarvel
