#include "race/hergangsworte.h"

#include <algorithm>
#include <cstdlib>
#include <initializer_list>
#include <string_view>
#include <utility>

#include "core/einstellungswerte.h"
#include "core/platzhalter.h"
#include "core/text.h"
#include "hardware/tastenbelegung.h"

namespace tarvel {
namespace {

constexpr zeit_ms sekunde_ms = 1000;

/// Seconds with so many decimals, cut as laps are.
std::string sekunden_text(zeit_ms zeit, int stellen, char komma) {
    std::string nachkomma = ziffern(zeit % sekunde_ms, 3);
    nachkomma.resize(static_cast<std::size_t>(stellen));
    return std::to_string(zeit / sekunde_ms) + (stellen > 0 ? komma + nachkomma : "");
}

template <class Schluessel>
void eintragen_alle(sprachliste& texte, std::map<Schluessel, std::string>& ziele,
                    std::initializer_list<std::pair<Schluessel, std::string_view>> deutsch) {
    for (const auto& [schluessel, text] : deutsch) {
        texte.text(text, ziele[schluessel]);
    }
}

template <class Schluessel>
std::string gesucht(const std::map<Schluessel, std::string>& in, Schluessel was) {
    const auto treffer = in.find(was);
    return treffer == in.end() ? std::string() : treffer->second;
}

}  // namespace

std::string hergang_zeit(zeit_ms zeit, int stellen, char komma) {
    constexpr zeit_ms minute_ms = 60 * sekunde_ms;
    const zeit_ms betrag = std::abs(std::max(zeit, -std::numeric_limits<zeit_ms>::max()));
    const std::string sekunden = sekunden_text(betrag % minute_ms, stellen, komma);
    const bool einstellig = betrag % minute_ms < 10 * sekunde_ms;
    return (zeit < 0 ? "-" : "") + std::to_string(betrag / minute_ms) + (einstellig ? ":0" : ":") + sekunden;
}

sprachliste& hergangsworte::eintragen(sprachliste& texte) {
    using enum vorgang;
    eintragen_alle<vorgang>(texte, vorlagen_,
                            {{gruen, "Start: Grün"},
                             {fruehstart, "Frühstart"},
                             {runde, "Runde %1: %2"},
                             {abzug, "Runde abgezogen, es bleiben %1"},
                             {sektor, "Sektor %1: %2"},
                             {platz, "Platz %1"},
                             {pause, "Pause"},
                             {weiter, "Weiter nach %1 Pause"},
                             {durchfahrt, "rollt zu Beginn der Pause über die Linie, zählt danach"},
                             {schalter, "Schalter der Pause ist wieder aus"},
                             {strafe, "Zeitstrafe: %1 s"},
                             {strom_aus, "Strom aus"},
                             {strom_an, "Strom an"},
                             {leer, "Tank leer%1"},
                             {voll, "Tank voll"},
                             {tankt, "tankt bei %1 l"},
                             {tank_ende, "tankt nicht mehr bei %1 l"},
                             {ziel, "im Ziel"},
                             {letzte, "Zeit oder Ziel erreicht, Runden laufen aus"},
                             {ende, "Ende des Rennens%1"},
                             {taste, "Taste „%1“: %2"},
                             {geraet, "Gerät meldet %1"},
                             {verloren, "Gerät ist nicht mehr da"}});
    eintragen_alle<ablehnung>(texte, gruende_,
                              {{ablehnung::nicht_dabei, "Spur fährt nicht mit"},
                               {ablehnung::disqualifiziert, "disqualifiziert"},
                               {ablehnung::sperre, "Sperre nach Frühstart"},
                               {ablehnung::volltanken, "hält nach dem Volltanken"},
                               {ablehnung::zu_schnell, "zu kurz: %1, gezählt wird ab %2"},
                               {ablehnung::tankstrafe, "Tankstrafe"},
                               {ablehnung::im_ziel, "im Ziel"},
                               {ablehnung::prellen, "Kontakt prellt"},
                               {ablehnung::pause, "nicht gezählt: Pause"},
                               {ablehnung::vor_dem_start, "vor dem Start"}});
    texte.text("Sperre nach der Pause", sperre_pause_).text(" bis %1", bis_);
    texte.text("erste Überfahrt nach %1, ab hier wird gezählt", anlauf_).text(" von Hand", abgebrochen_);
    texte.text("Strafe: %1 s ohne Strom", ohne_strom_).text(" (%1-mal)", mehrmals_).text("ohne Bedeutung", unbelegt_);
    eintragen_alle<int>(texte, leer_,
                        {{static_cast<int>(leer_aktion::disqualifikation), ": disqualifiziert"},
                         {static_cast<int>(leer_aktion::runde_weg), ": eine Runde weniger"},
                         {static_cast<int>(leer_aktion::stromunterbrechung), ": Strom aus"},
                         {static_cast<int>(leer_aktion::zeitstrafe), ": Zeitstrafe"}});
    constexpr std::string_view befehle[] = {"Rennfenster geöffnet",
                                            "Rennfenster geschlossen",
                                            "Start gedrückt",
                                            "Rennabbruch gedrückt",
                                            "Rennende gedrückt",
                                            "Pause oder Weiter gedrückt",
                                            "Einfahren gedrückt",
                                            "Weiter an der Ampel gedrückt",
                                            "Fenster soll geschlossen werden",
                                            "Ampel abgebrochen",
                                            "Einfahren beendet",
                                            "Fahrer wechseln die Spuren",
                                            "Rennen wird fortgesetzt"};
    static_assert(std::size(befehle) == std::size(hergang_befehle));
    for (std::size_t i = 0; i < std::size(befehle); ++i) {
        texte.text(befehle[i], befehle_[static_cast<int>(i)]);
    }
    return texte.text(", Runde %1 zählt erst nach der Strafe", runde_wartet_);
}

sprachliste& hergangsworte::nachtragen(sprachliste& texte) {
    texte.text(" und wird um sie länger", und_laenger_);
    texte.text("Pause verlangt, aber sie geht erst 2,5 s nach „Weiter“ wieder", vorlagen_[vorgang::pause_verlangt]);
    texte.text(", darin %1 Zuschlag (1 ms je Sekunde Zeitstrafe)", mit_zeitstrafe_)
        .text(", noch nach dem Ende gezählt", nach_ende_);
    for (const tastenzeile& zeile : tastenzeilen()) {
        if (zeile.spur <= 1) {  // the rows of a lane have the same names on every lane
            texte.text(zeile.name, bedeutungen_[zeile.name]);
        }
    }
    return texte;
}

std::string hergangsworte::dauer(zeit_ms zeit) const {
    constexpr zeit_ms minute_ms = 60 * sekunde_ms;
    return std::abs(zeit) < minute_ms ? sekunden_text(std::max<zeit_ms>(zeit, 0), 3, komma) + " s"
                                      : hergang_zeit(zeit, 3, komma) + " min";
}

std::string hergangsworte::ablehnung_von(const geschehen& g) const {
    const bool nach_pause = g.nach_pause && g.grund() == ablehnung::sperre;
    const std::string grund = nach_pause ? sperre_pause_ : gesucht(gruende_, g.grund());
    const bool mit_bis = g.bis != geschehen::keine && g.grund() != ablehnung::prellen;
    const std::string bis = mit_bis ? eingesetzt(bis_, {hergang_zeit(std::max<zeit_ms>(g.bis, 0), 1, komma)}) : "";
    return eingesetzt(grund, {dauer(g.wert), dauer(g.grenze)}) + bis;
}

std::string hergangsworte::bedeutung(std::int64_t zeile, const std::string& sonst) const {
    const std::vector<tastenzeile>& zeilen = tastenzeilen();
    const auto treffer =
        std::find_if(zeilen.begin(), zeilen.end(), [zeile](const tastenzeile& t) { return t.zeile == zeile; });
    return treffer == zeilen.end() ? sonst : gesucht(bedeutungen_, treffer->name);
}

std::string hergangsworte::taste_von(const geschehen& g) const {
    const bool druckbar = g.nummer > erstes_druckbares && g.nummer <= 255;
    return eingesetzt(
        vorlagen_.at(vorgang::taste),
        {druckbar ? ansi_zeichen(static_cast<int>(g.nummer)) : std::to_string(g.nummer), bedeutung(g.wert, unbelegt_)});
}

std::string hergangsworte::runde_von(const geschehen& g) const {
    const std::string zeit = dauer(g.wert);
    return (g.nummer == 0 ? eingesetzt(anlauf_, {zeit})
                          : eingesetzt(vorlagen_.at(vorgang::runde), {std::to_string(g.nummer), zeit})) +
           (g.grenze > 0 ? eingesetzt(mit_zeitstrafe_, {dauer(g.grenze)}) : "") + (g.nach_ende ? nach_ende_ : "");
}

std::string hergangsworte::von(const geschehen& g) const {
    const std::string vorlage = gesucht(vorlagen_, g.was);
    const std::string nummer = std::to_string(g.nummer);
    switch (g.was) {
        case vorgang::runde:
            return runde_von(g);
        case vorgang::sektor:
            return eingesetzt(vorlage, {nummer, dauer(g.wert)});
        case vorgang::abgelehnt:
            return ablehnung_von(g);
        case vorgang::weiter:
            return eingesetzt(vorlage, {dauer(g.wert)});
        case vorgang::strafe:
            return eingesetzt(g.nummer == 1 ? ohne_strom_ : vorlage, {std::to_string(g.wert)});
        case vorgang::leer:
            return eingesetzt(vorlage, {gesucht(leer_, static_cast<int>(g.nummer))}) +
                   (g.wert > 0 ? eingesetzt(runde_wartet_, {std::to_string(g.wert)}) : "") +
                   (g.grenze > 0 ? und_laenger_ : "");
        case vorgang::tankt:
        case vorgang::tank_ende:
            return eingesetzt(vorlage, {zahl_fest(static_cast<double>(g.nummer) / 100, komma)});
        case vorgang::ende:
            return eingesetzt(vorlage, {g.nummer == 1 ? abgebrochen_ : ""});
        case vorgang::befehl:
            return gesucht(befehle_, static_cast<int>(g.nummer));
        case vorgang::taste:
            return taste_von(g);
        case vorgang::geraet:
            return eingesetzt(vorlage, {bedeutung(g.nummer, nummer)}) +
                   (g.wert > 1 ? eingesetzt(mehrmals_, {std::to_string(g.wert)}) : "");
        case vorgang::korrektur:
            return g.text;
        default:
            return eingesetzt(vorlage, {nummer});
    }
}

}  // namespace tarvel
