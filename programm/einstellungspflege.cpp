#include "programm/einstellungspflege.h"

#include <algorithm>
#include <cstddef>
#include <utility>
#include <vector>

#include "core/einstellungstabelle.h"
#include "core/fensterregister.h"
#include "core/form1.h"
#include "core/nebendateien.h"
#include "core/ordnerblick.h"
#include "core/speichernfenster.h"
#include "core/text.h"
#include "programm/einstellungsruecklage.h"

namespace tarvel {
namespace {

constexpr std::string_view einstellordner = "Einstellungen";
const std::string vorspann = "Einstellungen\\";

// what a start does, as its file has it
constexpr std::string_view ruhe_zustand = "0";
constexpr std::string_view frage_zustand = "1";
constexpr std::string_view neustart_zustand = "2";

std::string mit_rueckstrichen(std::string text) {
    std::replace(text.begin(), text.end(), '/', '\\');
    return text;
}

/// The start is to ask for the mode of the 4x4 module, by the lines of a settings file.
bool fragt_nach_modus(const std::vector<std::string>& datei) {
    constexpr std::size_t hinter_dem_kopf = 1;  // a blank line
    return datei.at(z::s6_option + hinter_dem_kopf) == datei.at(z::wahr_wort + hinter_dem_kopf);
}

}  // namespace

einstellungspflege::einstellungspflege(const umgebung& um, std::string_view programmordner)
    : um_(um), programm_pfad_(mit_rueckstrichen(std::string(programmordner))) {}

std::string einstellungspflege::einstellungsname(std::string_view pfad) const {
    std::string name = mit_rueckstrichen(std::string(pfad));
    for (const std::string_view davor :
         {std::string_view(programm_pfad_), std::string_view("\\"), std::string_view(vorspann)}) {
        if (name.starts_with(davor)) {
            name.erase(0, davor.size());
        }
    }
    return name;
}

void einstellungspflege::name_zeigen() {
    um_.haupt.einstellungsname_anzeigen(einstell_datei_, einstellungsname(einstell_standarddatei_));
}

void einstellungspflege::standard_setzen() {
    um_.ziel.einst.hardware = {};
    um_.fenster.laden(fenstername::Form1);
    um_.datei.einstellungen_standard_setzen();
    um_.belegung.vorbelegen(belegung_stufe::erststart);
}

void einstellungspflege::start_datei_bestimmen() {
    s6_start start = s6_laden(um_.ablage);
    const bool neustart = start.zustand == neustart_zustand;
    start_fragt_ = start.zustand == frage_zustand;
    einstell_datei_ = start_fragt_ ? s6_vorgabe_laden(um_.ablage) : start.einstell_datei;
    const std::string name = einstellungsname(einstell_datei_);
    if (!dateiname_zulaessig(name)) {  // elsewhere the defaults could be written over another file
        einstell_datei_ = standard_einstellungen;
    } else {
        einstell_datei_ = vorspann + name;
    }
    const auto modus = static_cast<modul_4x4>(ganzzahl_lesen(start.modus, 0, 7));
    hw_4x4_modus_start_ = neustart && modus >= modul_4x4::aus ? std::optional(modus) : std::nullopt;
    einstell_standarddatei_ = neustart ? std::string(standard_einstellungen) : einstell_datei_;
    if (neustart || start.zustand == ruhe_zustand) {  // a restart request lasts one start only
        start.zustand = start.naechster_zustand;
        start.modus = start.naechster_modus;
        start.einstell_datei = standard_einstellungen;
        s6_speichern(um_.ablage, start);
    }
}

void einstellungspflege::start_fortsetzen(std::optional<modul_4x4> modus) {
    hw_4x4_modus_start_ = start_fragt_ ? modus : hw_4x4_modus_start_;
    start_fragt_ = false;
    laden(false);
    if (nach_dem_start) {
        nach_dem_start();
    }
}

bool einstellungspflege::neustart_vormerken(modul_4x4 modus, bool aktuelle) {
    const std::string datei = aktuelle ? vorspann + einstell_datei_ : std::string(standard_einstellungen);
    const bool fragt = fragt_nach_modus(um_.ruecklage.fuer_die_datei(um_.datei.festhalten()));
    const std::string_view danach = fragt ? frage_zustand : ruhe_zustand;
    return s6_vorgabe_speichern(um_.ablage, datei) &&
           s6_speichern(um_.ablage, {std::string(neustart_zustand), std::to_string(static_cast<int>(modus)), datei,
                                     std::string(danach), ""});
}

/// The start file asks for the mode as long as the settings file wants it.
void einstellungspflege::modusfrage_vormerken(bool soll) {
    s6_start start = s6_laden(um_.ablage);
    const bool fragt = start.zustand == frage_zustand;
    if (soll) {
        s6_vorgabe_speichern(um_.ablage, vorspann + einstell_datei_);
    }
    if (fragt != soll && start.zustand != neustart_zustand) {
        start.zustand = start.naechster_zustand = soll ? frage_zustand : ruhe_zustand;
        s6_speichern(um_.ablage, start);
    }
}

void einstellungspflege::laden(bool im_betrieb) {
    einstellungsdatei& datei = um_.datei;
    const std::optional<modul_4x4> modus = std::exchange(hw_4x4_modus_start_, std::nullopt);  // of this file alone
    const bool da = um_.ablage.gibt_es(einstell_datei_);
    datei.einstellungsdatei_einlesen(einstell_datei_);
    if (!datei.fehler_laden()) {
        datei.einstellungsdatei_pruefen();
    }
    if (!datei.fehler_laden()) {
        datei.einstellungen_uebernehmen(modus);
    }
    einstell_datei_ = einstellungsname(einstell_datei_);
    name_zeigen();
    const bool unbrauchbar = datei.fehler_laden();
    if (unbrauchbar) {
        um_.meldungen.zeigen(um_.ziel.txt.meldung[9], um_.ziel.txt.titel[1]);
        erststart_ = !da;
        standard_setzen();
        erststart_ = false;
    }
    um_.belegung.tastenbelegung_laden(um_.ablage);  // a file of their own: damaged settings do not cost the keys
    if (unbrauchbar) {
        speichern();
    }
    um_.folgen.einstellungen_geladen(im_betrieb);
}

bool einstellungspflege::speichern() {
    return speichern(vorspann + einstell_datei_);
}

bool einstellungspflege::speichern_mit_feldern() {
    um_.haupt.vor_dem_speichern_pruefen();  // a field out of its limits would make the file invalid
    return speichern();
}

bool einstellungspflege::speichern(const std::string& pfad) {
    const std::vector<std::string> inhalt = um_.ruecklage.fuer_die_datei(um_.datei.schreiben());
    um_.datei.einstellungen_speichern(pfad, inhalt);
    bool gut = !um_.datei.fehler_laden();
    if (gut) {
        einstell_datei_ = einstellungsname(pfad);
        modusfrage_vormerken(fragt_nach_modus(inhalt));
    }
    name_zeigen();
    const bool mit_tasten = um_.belegung.tastenbelegung_speichern(um_.ablage);
    if (gut && !mit_tasten) {
        um_.meldungen.zeigen(um_.ziel.txt.meldung[4], um_.ziel.txt.titel[1]);
        gut = false;
    }
    return gut;
}

void einstellungspflege::speichern_oeffnen() {
    const auto& worte = um_.ziel.txt.datei_text;
    um_.haupt.vor_dem_speichern_pruefen();  // a field out of its limits would make the file invalid
    um_.auswahl.oeffnen({true, worte[4], worte[1], worte[0], std::string(einstellordner), ".ini", einstell_datei_,
                         [this](const std::string& name) { return speichern(vorspann + name); }});
}

void einstellungspflege::laden_oeffnen() {
    const auto& worte = um_.ziel.txt.datei_text;
    um_.auswahl.oeffnen({false, worte[5], worte[3], worte[2], std::string(einstellordner), ".ini", einstell_datei_,
                         [this](const std::string& name) { return aus_menue_laden(name); }});
}

bool einstellungspflege::aus_menue_laden(const std::string& name) {
    const std::string pfad = vorspann + name;
    um_.datei.einstellungsdatei_einlesen(pfad, false, version_melden::nein);
    um_.datei.einstellungsdatei_pruefen();
    if (um_.datei.fehler_laden()) {
        um_.meldungen.zeigen(um_.auswahl.ungueltig_text(), um_.ziel.txt.titel[1]);
        return false;
    }
    einstell_datei_ = pfad;
    um_.haupt.letztes_mal_vergessen();  // the operator has chosen others
    laden(true);
    return true;
}

}  // namespace tarvel
