#include "hardware/frm_main.h"

#include <algorithm>

#include "hardware/tx_modul.h"

namespace tarvel {
namespace {

constexpr std::size_t suchzeilen_max = 400;
constexpr zeit_ms leuchtdauer_ms = 700;
constexpr farbe lampe_an = 0x30C030;
constexpr std::size_t keine_funktion = 3;

/// What an input can mean, in the order of the choices.
constexpr std::array<ereignis_art, 46> modul_eingangsarten{
    0,  16, 15, 14, 13, 34, 35, 32, 30, 28, 26, 36, 38, 31, 29, 27, 25, 37, 39, 42, 43, 44, 45,
    46, 47, 48, 49, 50, 51, 52, 53, 1,  54, 55, 56, 57, 58, 59, 20, 19, 18, 17, 12, 11, 10, 9};

/// The function of a sensor of a digital track for the car of this lane.
ereignis_art art_der_funktion(std::size_t funktion, int spur) {
    switch (funktion) {
        case 0:
            return art::rundenzaehlung[spur];
        case 1:
            return art::tanken_ein[spur];
        case 2:
            return art::tanken_aus[spur];
        case keine_funktion:
            return 0;
        default:
            return erste_zwischenzeit + 2 * (spur - 1) + static_cast<int>(funktion) - 4;
    }
}

/// A common track: its picture, the events of the contacts, the functions of the digital sensors.
struct aufbau {
    const char* bild;
    std::array<ereignis_art, frm_main::eingaenge> kontakte;
    std::array<std::size_t, frm_main::sensoren> funktionen;
};
constexpr std::array<aufbau, frm_main::aufbauten> aufbauliste{
    {{"pictures\\4x4\\4-0.gif", {16, 15, 14, 13}, {0, 0, 0, 0}},
     {"pictures\\4x4\\2-2.gif", {16, 15, 32, 30, 31, 29}, {0, 0, 1, 1}},
     {"pictures\\4x4\\2-1.gif", {16, 15, 32, 31}, {0, 0, 1, 2}},
     {"pictures\\4x4\\2-0.gif", {16, 15}, {0, 0, keine_funktion, keine_funktion}}}};

int modus_der_einstellungen(const einstellungen& einst) {
    return static_cast<int>(einst.hardware.hw_4x4_modus) - static_cast<int>(modul_4x4::aus);
}

}  // namespace

frm_main::frm_main(const umgebung& um, tx_modul& modul, const plattform::dienste& dienste)
    : geraetefenster(um.fenster, um.ablage, fenstername::frmMain),
      um_(um),
      modul_(modul),
      uhr_(dienste.uhr),
      meldungen_(dienste.meldungen),
      lampentakt_(dienste.zeitgeber.erzeugen(plattform::zeitgeber_art::abfragend, 50ms)) {
    lampentakt_->bei_tick = [this] { lampen_tick(); };
    for (std::size_t i = 0; i < aufbauten; ++i) {
        Picture1.at(i).datei(aufbauliste.at(i).bild);
    }
    befehle_verbinden();
    ausgaenge_verbinden();
    modul.zuschauen(*this);
}

void frm_main::befehle_verbinden() {
    for (std::size_t i = 0; i < optModus.size(); ++i) {
        optModus.at(i).bei_aenderung = [this, i] {
            modus_waehlen(i);
            modul_.tx_modus_setzen(static_cast<int>(i));
        };
    }
    for (std::size_t i = 0; i < aufbauten; ++i) {
        Command2.at(i).bei_klick = [this, i] { aufbau_setzen(i); };
    }
    Command1.bei_klick = [this] { List1.leeren(); };
    Command5.bei_klick = [this] { suchen(); };
    Command6.bei_klick = [this] { modul_.befehl_senden(tx::firmware_frage); };
    Command7.bei_klick = [this] { modul_.befehl_senden(tx::anmelden); };
    Command8.bei_klick = [this] { modul_.befehl_senden(tx::wartung); };
    Command3.bei_klick = [this] { uebernehmen(); };
    Command4.bei_klick = [this] { schliessen(); };
}

void frm_main::ausgaenge_verbinden() {
    const auto schalten = [this](const haken& element, int ausgang) {
        modul_.tx_ausgang_setzen(ausgang, element.gesetzt());
        ausgaenge_zeigen();
    };
    for (int lampe = 1; lampe <= tx_modul::lampen; ++lampe) {
        haken& eine = chkTraffic.at(static_cast<std::size_t>(lampe - 1));
        eine.bei_aenderung = [this, schalten, &eine, lampe] { schalten(eine, lampenausgang(lampe)); };
        chkTraffic.at(static_cast<std::size_t>(lampe - 1)).text(std::to_string(lampe));
    }
    for (const int spur : alle_spuren) {
        haken& eine = chkBahnStrom[spur];
        eine.bei_aenderung = [this, schalten, &eine, spur] { schalten(eine, stromausgang(spur)); };
        eine.text(std::to_string(spur));
    }
    const auto alle = [](const haken& einer, auto& reihe) {
        const bool an = einer.gesetzt();  // each of them brings it up to date
        for (haken& element : reihe) {
            if (element.gesetzt() != an) {
                element.umschalten();
            }
        }
    };
    Check2.bei_aenderung = [this] { ausgaenge_zeigen(); };
    chkTrafficAll.bei_aenderung = [this, alle] { alle(chkTrafficAll, chkTraffic); };
    chkBahnStromAll.bei_aenderung = [this, alle] { alle(chkBahnStromAll, chkBahnStrom); };
}

void frm_main::laden() {
    texte_lesen();
    auswahlen_fuellen();
    List1.leeren();
    hinweis.text("");
    for (std::size_t i = 0; i < sensoren; ++i) {
        auto_sensor.at(i).text("");
    }
    leuchtet_bis_.fill(0);
    lampen_tick();
    lampentakt_->an();
    werte_zeigen();
    if (!um_.einst.hardware.hw_4x4()) {
        modul_.tx_modus_setzen(static_cast<int>(gewaehlter_modus()));
        suchen();
    }
    stand_geaendert();
}

void frm_main::entladen() {
    lampentakt_->aus();
    const bool gewaehlt = um_.einst.hardware.hw_4x4();
    if (gewaehlt) {
        modul_.tx_modus_setzen(modus_der_einstellungen(um_.einst));
    } else {
        modul_.tx_ausgang_setzen(0, false);
    }
    geraet_nehmen();
}

void frm_main::auswahlen_fuellen() {
    std::vector<std::string> arten;
    arten.reserve(modul_eingangsarten.size());
    for (const ereignis_art nummer : modul_eingangsarten) {
        arten.push_back(um_.txt.ereignis_name.at(static_cast<std::size_t>(nummer)));
    }
    for (std::size_t i = 0; i < eingaenge; ++i) {
        Label_eingang.at(i).text(wort_.eingang + " " + std::to_string(i + 1));
        tx_eingang_liste.at(i).ansage(Label_eingang.at(i).text());
        tx_eingang_liste.at(i).eintraege(arten);
    }
    for (std::size_t i = 0; i < sensoren; ++i) {
        Label_sensor.at(i).text(um_.txt.tx_text[1] + " " + std::to_string(i + 1));
        tx_sensor_liste.at(i).ansage(Label_sensor.at(i).text());
        tx_sensor_liste.at(i).eintraege({wort_.funktion.begin(), wort_.funktion.end()});
    }
    for (std::size_t i = 0; i < optModus.size(); ++i) {
        optModus.at(i).text(um_.txt.tx_modus(static_cast<int>(i)));
    }
    for (std::size_t i = 0; i < chkTraffic.size(); ++i) {
        chkTraffic.at(i).ansage(wort_.lampe + " " + std::to_string(i + 1));
    }
    for (const int spur : alle_spuren) {
        chkBahnStrom[spur].ansage(wort_.spur + " " + std::to_string(spur));
    }
    chkTrafficAll.ansage(Label_ampel.text() + " " + chkTrafficAll.text());
    chkBahnStromAll.ansage(Label_strom.text() + " " + chkBahnStromAll.text());
}

void frm_main::werte_zeigen() {
    const modul_4x4_einstellungen& s6 = um_.einst.s6;
    for (std::size_t i = 0; i < eingaenge; ++i) {
        const auto ort = std::find(modul_eingangsarten.begin(), modul_eingangsarten.end(), s6.s6_eingang.at(i + 1));
        tx_eingang_liste.at(i).platz(
            ort == modul_eingangsarten.end() ? -1 : static_cast<int>(ort - modul_eingangsarten.begin()));
    }
    for (std::size_t i = 0; i < sensoren; ++i) {
        std::size_t funktion = 0;
        const auto fuer_alle = [&] {
            return std::all_of(alle_spuren.begin(), alle_spuren.end(), [&](int spur) {
                return s6.s6_eingang_modus[spur].at(i + 1) == art_der_funktion(funktion, spur);
            });
        };
        while (funktion + 1 < wort_.funktion.size() && !fuer_alle()) {
            ++funktion;
        }
        tx_sensor_liste.at(i).platz(static_cast<int>(funktion));
    }
    modus_waehlen(
        static_cast<std::size_t>(um_.einst.hardware.hw_4x4() ? modus_der_einstellungen(um_.einst) : modus_vorgewaehlt));
    Check2.gesetzt(modul_.datei().spuren_6);
    ausgaenge_zeigen();
}

int frm_main::lampenausgang(int lampe) const {
    return tx_modul::lampenausgang(lampe, Check2.gesetzt());
}

int frm_main::stromausgang(int spur) const {
    return tx_modul::stromausgang(spur, Check2.gesetzt());
}

void frm_main::ausgaenge_zeigen() {
    const auto zeigen = [this](haken& element, int ausgang) {
        element.aktiviert(ausgang != 0 && modul_.verbunden());
        element.gesetzt(ausgang != 0 && modul_.ausgang_an(ausgang));
    };
    bool alle_lampen = true;
    for (int lampe = 1; lampe <= tx_modul::lampen; ++lampe) {
        haken& eine = chkTraffic.at(static_cast<std::size_t>(lampe - 1));
        zeigen(eine, lampenausgang(lampe));
        alle_lampen = alle_lampen && (eine.gesetzt() || lampenausgang(lampe) == 0);
    }
    bool alle_bahnen = true;
    for (const int spur : alle_spuren) {
        zeigen(chkBahnStrom[spur], stromausgang(spur));
        alle_bahnen = alle_bahnen && (chkBahnStrom[spur].gesetzt() || stromausgang(spur) == 0);
    }
    chkTrafficAll.aktiviert(modul_.verbunden());
    chkBahnStromAll.aktiviert(modul_.verbunden());
    chkTrafficAll.gesetzt(alle_lampen);
    chkBahnStromAll.gesetzt(alle_bahnen);
}

void frm_main::modus_waehlen(std::size_t nummer) {
    for (std::size_t i = 0; i < optModus.size(); ++i) {
        optModus.at(i).gesetzt(i == nummer);
    }
}

std::size_t frm_main::gewaehlter_modus() const {
    const auto ort = std::find_if(optModus.begin(), optModus.end(), [](const haken& eine) { return eine.gesetzt(); });
    return ort == optModus.end() ? 0 : static_cast<std::size_t>(ort - optModus.begin());
}

void frm_main::aufbau_setzen(std::size_t nummer) {
    const aufbau& dieser = aufbauliste.at(nummer);
    if (gewaehlter_modus() == static_cast<std::size_t>(tx_modul::kontakt_modus)) {
        for (std::size_t i = 0; i < eingaenge; ++i) {
            const auto ort = std::find(modul_eingangsarten.begin(), modul_eingangsarten.end(), dieser.kontakte.at(i));
            tx_eingang_liste.at(i).platz(static_cast<int>(ort - modul_eingangsarten.begin()));
        }
        return;
    }
    for (std::size_t i = 0; i < sensoren; ++i) {
        tx_sensor_liste.at(i).platz(static_cast<int>(dieser.funktionen.at(i)));
    }
}

void frm_main::suchen() {
    if (um_.einst.hardware.hw_4x4() && zugang != nullptr) {
        zugang->geraet_verbinden();
    } else {
        modul_.probe_oeffnen();
    }
}

void frm_main::notiert(const std::string& zeile) {
    if (!lampentakt_->laeuft()) {
        return;  // nobody looks
    }
    if (List1.zeilen().size() >= suchzeilen_max) {
        List1.leeren();
    }
    List1.hinzufuegen(zeile);
    hinweis.text(zeile);
}

void frm_main::ausgeloest(const tx::sensor& was, ereignis_art nummer) {
    if (!lampentakt_->laeuft()) {
        return;
    }
    const bool kontakt = was.gruppe == 0;
    if (kontakt) {
        aufleuchten(static_cast<std::size_t>(was.wert - 1));
    } else if (was.gruppe <= static_cast<int>(sensoren)) {
        const auto platz = static_cast<std::size_t>(was.gruppe - 1);
        aufleuchten(eingaenge + platz);
        auto_sensor.at(platz).text(std::to_string(was.wert));
    }
    const std::string ort = kontakt ? wort_.eingang + " " + std::to_string(was.wert)
                                    : um_.txt.tx_text[0] + " " + std::to_string(was.wert) + ", " + um_.txt.tx_text[1] +
                                          " " + std::to_string(was.gruppe);
    notiert(ort + ": " + um_.txt.ereignis_name.at(static_cast<std::size_t>(nummer)));
}

void frm_main::stand_geaendert() {
    if (!lampentakt_->laeuft()) {
        return;
    }
    const bool da = modul_.verbunden();
    for (befehl* einer : {&Command6, &Command7, &Command8}) {
        einer->aktiviert(da);
    }
    Command5.aktiviert(!da && !modul_.sucht());
    if (!da) {
        hinweis.text(modul_.sucht() ? wort_.sucht : wort_.getrennt);
    }
    ausgaenge_zeigen();
}

form& frm_main::lampe(std::size_t platz) {
    return platz < eingaenge ? lampe_eingang.at(platz) : lampe_sensor.at(platz - eingaenge);
}

void frm_main::aufleuchten(std::size_t platz) {
    leuchtet_bis_.at(platz) = uhr_.jetzt() + leuchtdauer_ms;
    lampe(platz).hintergrund(lampe_an);
}

void frm_main::lampen_tick() {
    for (std::size_t platz = 0; platz < leuchtet_bis_.size(); ++platz) {
        if (uhr_.jetzt() >= leuchtet_bis_.at(platz)) {
            lampe(platz).hintergrund({});
        }
    }
}

void frm_main::uebernehmen() {
    const auto modus = static_cast<int>(gewaehlter_modus());
    if (modus == 0) {
        meldungen_.zeigen(wort_.modus_fehlt, um_.txt.titel[1]);
        optModus.front().fokus_setzen();
        return;
    }
    modul_4x4_einstellungen& s6 = um_.einst.s6;
    for (std::size_t i = 0; i < eingaenge; ++i) {
        if (const int platz = tx_eingang_liste.at(i).platz(); platz >= 0) {
            s6.s6_eingang.at(i + 1) = modul_eingangsarten.at(static_cast<std::size_t>(platz));
        }
    }
    for (std::size_t i = 0; i < sensoren; ++i) {
        const auto funktion = static_cast<std::size_t>(tx_sensor_liste.at(i).platz());
        for (const int spur : alle_spuren) {
            if (funktion + 1 < wort_.funktion.size()) {
                s6.s6_eingang_modus[spur].at(i + 1) = art_der_funktion(funktion, spur);
            }
        }
    }
    modul_.spuren_6_setzen(Check2.gesetzt());
    if (um_.einst.hardware.hw_4x4()) {
        um_.einst.hardware.hw_4x4_modus = static_cast<modul_4x4>(modus + static_cast<int>(modul_4x4::aus));
    } else if (modus_vormerken) {
        modus_vormerken(modus);
    }
    if (einstellungen_sichern()) {
        um_.fenster.entladen(fenstername::frmMain);
    }
}

}  // namespace tarvel
