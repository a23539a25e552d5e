#include "results/protokollfenster.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "core/protokollordner.h"
#include "core/text.h"

namespace tarvel {
namespace {

constexpr std::size_t kopf_bytes_max = std::size_t{128} * 1024;
constexpr zeit_ms ausschnitt_min_ms = 1000;
constexpr double zoom_schritt = 2;
constexpr int blick_ms = 200;

}  // namespace

protokollfenster::gruppe protokollfenster::gruppe_von(vorgang was) {
    using enum vorgang;
    switch (was) {
        case vorgang::abgelehnt:
            return gruppe::abgelehnt;
        case gruen:
        case letzte:
        case ende:
        case ziel:
            return start_ziel;
        case pause:
        case weiter:
        case schalter:
        case pause_verlangt:
            return pausen;
        case fruehstart:
        case strafe:
        case strom_aus:
        case strom_an:
            return strafen;
        case leer:
        case voll:
        case tankt:
        case tank_ende:
            return gruppe::tanken;
        case sektor:
        case platz:
            return plaetze;
        case befehl:
        case taste:
            return befehle;
        case geraet:
        case verloren:
            return geraete;
        default:
            return runden;
    }
}

protokollfenster::protokollfenster(const umfeld& um)
    : fensterlogik(um.welt.fenster, um.welt.ablage, fenstername::protokoll),
      um_(um),
      pausentimer_(um.zeitgeber.erzeugen(plattform::zeitgeber_art::abfragend, dauer_ms(50))),
      blicktimer_(um.zeitgeber.erzeugen(plattform::zeitgeber_art::abfragend, dauer_ms(blick_ms))),
      mithoerer_(um.r) {
    for (const gruppe g : {runden, abgelehnt, start_ziel, pausen, strafen, gruppe::tanken}) {
        Check_gruppe.at(g).gesetzt(true);
    }
    pausentimer_->bei_tick = [this] {
        // whoever drives wants to see the race, and before that its light
        if (!um_.r.zustand.chaos_aktiv || um_.r.chaos.geht_gleich_weiter()) {
            um_.welt.fenster.entladen(fenstername::protokoll);
        }
    };
    blicktimer_->bei_tick = [this] {
        if (mithoerer_.nachlesen()) {
            nachgekommenes_zeigen();
        }
    };
    befehle_verbinden();
}

void protokollfenster::befehle_verbinden() {
    for (haken& kasten : Check_gruppe) {
        kasten.bei_aenderung = [this] { filtern(); };
    }
    cbo_spur.bei_aenderung = [this] { filtern(); };
    List_dateien.bei_auswahl = [this] {
        const int nummer = List_dateien.markiert();
        if (nummer >= 0 && static_cast<std::size_t>(nummer) < namen_.size()) {
            datei_lesen(namen_[static_cast<std::size_t>(nummer)]);
        }
    };
    const auto mitte = [this] {
        const bool da = gewaehlt_ >= 0;
        return da ? zeile(static_cast<std::size_t>(gewaehlt_)).seit_gruen : ausschnitt_.von + ausschnitt_.dauer() / 2;
    };
    Command_groesser.bei_klick = [this, mitte] { zoomen(1 / zoom_schritt, mitte()); };
    Command_kleiner.bei_klick = [this, mitte] { zoomen(zoom_schritt, mitte()); };
    Command_ganz.bei_klick = [this] { ausschnitt_setzen(ganzes()); };
    Command_drucken.bei_klick = [this] {
        if (drucken) {
            drucken();
        }
    };
    Command_pdf.bei_klick = [this] {
        if (als_pdf) {
            als_pdf();
        }
    };
    Command_wiedergabe.bei_klick = [this] {
        if (wiedergeben) {
            const bool da = gewaehlt_ > 0;  // the first is where a table begins by itself
            wiedergeben(std::string(protokoll_ordner) + "\\" + name_,
                        da ? std::optional(zeile(static_cast<std::size_t>(gewaehlt_)).zeit) : std::nullopt);
        }
    };
    Command_weiter.bei_klick = [this] { um_.r.bahn1.Command3.klicken(); };
    Command_schliessen.bei_klick = [this] { schliessen(); };
}

void protokollfenster::laden() {
    texte_lesen();
    worte_.komma = um_.einst.trennzeichen[1].empty() ? ',' : um_.einst.trennzeichen[1].front();
    name_.clear();
    hergang_ = {};
    Command_weiter.text(um_.r.bahn1.wort.weiter);
    List_dateien.ansage(Label_dateien.text());
    cbo_spur.ansage(Label_spur.text());
    Command_wiedergabe.sichtbar(static_cast<bool>(wiedergeben));
}

void protokollfenster::entladen() {
    pausentimer_->aus();
    blicktimer_->aus();
    mithoerer_.aufhoeren();
    hergang_ = {};
    zeilen_ = {};
    gewaehlt_ = -1;
    if (inhalt_neu) {
        inhalt_neu();
    }
}

void protokollfenster::oeffnen(anzeige_art art) {
    um_.welt.fenster.zeigen(fenstername::protokoll, art);
    const bool pause = um_.r.zustand.chaos_aktiv;
    Command_weiter.sichtbar(pause);
    Command_wiedergabe.sichtbar(wiedergeben && !pause);
    if (pause) {
        pausentimer_->an();
    }
}

void protokollfenster::zeigen(const std::string& datei) {
    if (um_.r.chaos.geht_gleich_weiter()) {
        return;
    }
    const std::size_t ordner = datei.rfind('\\');
    const std::string name = ordner == std::string::npos ? datei : datei.substr(ordner + 1);
    if (name.empty()) {
        fehler_melden(ohne_protokoll());
        return;
    }
    oeffnen(um_.r.zustand.chaos_aktiv ? anzeige_art::frei : anzeige_art::modal);
    Frame_dateien.sichtbar(false);
    if (um_.r.zustand.chaos_aktiv) {
        mithoerer_.beginnen();
        blicktimer_->an();
    }
    datei_lesen(name);
}

void protokollfenster::auswahl_zeigen(std::string_view zuerst) {
    oeffnen(anzeige_art::modal);
    Frame_dateien.sichtbar(true);
    dateien_auflisten();
    const auto eines = std::find_if(namen_.begin(), namen_.end(), [&](const std::string& name) {
        return zuerst == std::string(protokoll_ordner) + "\\" + name;
    });
    if (eines != namen_.end() && eines != namen_.begin()) {
        List_dateien.auswaehlen(static_cast<int>(eines - namen_.begin()));
    }
}

const std::string& protokollfenster::ohne_protokoll() {
    texte_lesen();
    return wort_.kein_protokoll;
}

void protokollfenster::dateien_auflisten() {
    namen_ = protokolle_auflisten(um_.welt.ablage);
    List_dateien.leeren();
    for (const std::string& name : namen_) {
        const std::string anfang = protokoll_lesen(um_.welt.ablage, name, kopf_bytes_max).value_or("");
        const std::optional<protokollkopf> kopf = hergang_kopf(anfang);
        List_dateien.hinzufuegen(kopf ? beschreibung(*kopf, {}) : name);
    }
    if (namen_.empty()) {
        datei_lesen("");
    } else {
        List_dateien.auswaehlen(0);
    }
}

void protokollfenster::datei_lesen(const std::string& name) {
    name_ = name;
    if (!mithoerer_.inhalt().empty()) {
        inhalt_zeigen(mithoerer_.inhalt());
    } else {
        inhalt_zeigen(name.empty() ? "" : protokoll_lesen(um_.welt.ablage, name).value_or(""));
    }
    if (um_.r.zustand.chaos_aktiv) {
        waehlen(static_cast<int>(zeilen_.size()) - 1);  // whoever asks in a pause asks about what was just now
    }
}

void protokollfenster::inhalt_zeigen(std::string_view inhalt) {
    hergang_ = hergang_lesen(inhalt);
    Label_kopf.text(hergang_.kopf ? beschreibung(*hergang_.kopf, hergang_.ende) : name_);
    std::vector<std::string> auswahl{wort_.alle_spuren};
    for (const int spur : alle_spuren) {
        auswahl.push_back(wort_.spur + " " + std::to_string(spur) + (fahrer(spur).empty() ? "" : " – " + fahrer(spur)));
    }
    const int vorher = cbo_spur.platz();
    cbo_spur.eintraege(auswahl);
    cbo_spur.platz(std::max(vorher, 0));
    ausschnitt_ = ganzes();
    gewaehlt_ = -1;
    filtern();
    Label_hinweis.text(hinweis());
}

void protokollfenster::nachgekommenes_zeigen() {
    const bool das_letzte = gewaehlt_ + 1 == static_cast<int>(zeilen_.size());
    const bool alles = ausschnitt_ == ganzes();
    const std::vector<geschehen> vorher = std::exchange(hergang_, hergang_lesen(mithoerer_.inhalt())).alle;
    std::size_t wahl = hergang_.alle.size();
    if (const std::size_t alte = gewaehltes(); alte < vorher.size()) {  // what was told late may stand before it now
        const auto dasselbe = [&alt = vorher[alte]](const geschehen& g) {
            return g.was == alt.was && g.spur == alt.spur && g.zeit == alt.zeit && g.nummer == alt.nummer;
        };
        const auto da = std::find_if(hergang_.alle.begin(), hergang_.alle.end(), dasselbe);
        wahl = static_cast<std::size_t>(da - hergang_.alle.begin());
    }
    ausschnitt_ = alles ? ganzes() : ausschnitt_;
    filtern(wahl);
    Label_hinweis.text(hinweis());
    if (das_letzte) {
        waehlen(static_cast<int>(zeilen_.size()) - 1);
    }
}

std::string protokollfenster::fahrer(int spur) const {
    return faehrt(spur) ? hergang_.kopf->param.fahrer_name[spur] : "";
}

bool protokollfenster::faehrt(int spur) const {
    return spur > 0 && hergang_.kopf && hergang_.kopf->param.spur_aktiv[spur];
}

std::size_t protokollfenster::gewaehltes() const {
    const bool da = gewaehlt_ >= 0 && static_cast<std::size_t>(gewaehlt_) < zeilen_.size();
    return da ? zeilen_[static_cast<std::size_t>(gewaehlt_)] : std::string::npos;
}

void protokollfenster::filtern(std::size_t gewaehltes) {
    const int spur = std::max(cbo_spur.platz(), 0);
    zeilen_.clear();
    gewaehlt_ = -1;
    for (std::size_t i = 0; i < hergang_.alle.size(); ++i) {
        const geschehen& g = hergang_.alle[i];
        if (Check_gruppe.at(gruppe_von(g.was)).gesetzt() && (spur == 0 || g.spur == 0 || g.spur == spur)) {
            gewaehlt_ = i == gewaehltes ? static_cast<int>(zeilen_.size()) : gewaehlt_;
            zeilen_.push_back(i);
        }
    }
    if (inhalt_neu) {
        inhalt_neu();
    }
}

void protokollfenster::waehlen(int neu) {
    neu = std::clamp(neu, -1, static_cast<int>(zeilen_.size()) - 1);
    if (neu == gewaehlt_) {
        return;
    }
    gewaehlt_ = neu;
    if (neu >= 0) {
        const zeit_ms zeit = zeile(static_cast<std::size_t>(neu)).seit_gruen;
        if (zeit < ausschnitt_.von || zeit > ausschnitt_.bis) {
            schieben(zeit - ausschnitt_.von - ausschnitt_.dauer() / 2);
        }
    }
    if (wahl_neu) {
        wahl_neu();
    }
}

int protokollfenster::naechste_zeile(int spur, zeit_ms zeit, zeit_ms hoechstens) const {
    int beste = -1;
    zeit_ms abstand = hoechstens;
    for (std::size_t i = 0; i < zeilen_.size(); ++i) {
        const geschehen& g = zeile(i);
        const bool darin = g.bis != geschehen::keine && !g.ist_abgelehnt() && zeit >= g.seit_gruen && zeit <= g.bis;
        const zeit_ms hier = darin ? hoechstens : std::abs(g.seit_gruen - zeit);
        if ((spur == 0 || g.spur == spur || g.spur == 0) && (hier < abstand || (beste < 0 && hier == hoechstens))) {
            beste = static_cast<int>(i);
            abstand = hier;
        }
    }
    return beste;
}

protokollfenster::zeitraum protokollfenster::ganzes() const {
    constexpr zeit_ms rand_teil = 40;
    const zeit_ms dauer = std::max<zeit_ms>(hergang_.gefahren_bis(), ausschnitt_min_ms);
    const zeit_ms erstes = hergang_.alle.empty() ? 0 : hergang_.alle.front().seit_gruen;
    return {std::clamp<zeit_ms>(erstes, -dauer / rand_teil, 0), dauer + dauer / rand_teil};
}

void protokollfenster::ausschnitt_setzen(zeitraum neu) {
    const zeitraum alles = ganzes();
    const zeit_ms dauer = std::clamp(neu.dauer(), std::min(ausschnitt_min_ms, alles.dauer()), alles.dauer());
    neu.von = std::clamp(neu.von, alles.von, alles.bis - dauer);
    neu.bis = neu.von + dauer;
    if (neu != ausschnitt_) {
        ausschnitt_ = neu;
        if (ausschnitt_neu) {
            ausschnitt_neu();
        }
    }
}

void protokollfenster::zoomen(double faktor, zeit_ms um) {
    const zeit_ms vorher = ausschnitt_.dauer();
    const zeit_ms dauer =
        std::clamp<zeit_ms>(std::llround(static_cast<double>(vorher) * std::clamp(faktor, 0.01, 100.0)),
                            ausschnitt_min_ms, std::max(ganzes().dauer(), ausschnitt_min_ms));
    const double teil = static_cast<double>(std::clamp(um, ausschnitt_.von, ausschnitt_.bis) - ausschnitt_.von) /
                        static_cast<double>(std::max<zeit_ms>(vorher, 1));
    const zeit_ms von =
        std::clamp(um, ausschnitt_.von, ausschnitt_.bis) - std::llround(teil * static_cast<double>(dauer));
    ausschnitt_setzen({von, von + dauer});
}

void protokollfenster::schieben(zeit_ms um) {
    const zeit_ms weit = ganzes().dauer();
    um = std::clamp(um, -weit, weit);
    ausschnitt_setzen({ausschnitt_.von + um, ausschnitt_.bis + um});
}

}  // namespace tarvel
