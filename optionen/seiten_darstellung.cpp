#include <array>

#include "core/text.h"
#include "optionen/optionsseite.h"

namespace tarvel::optionsseiten {
namespace {

using namespace option;
using e = einstellungen;

/// Sound events of one kind, by their numbers.
struct soundgruppe {
    std::string_view name;
    std::vector<std::array<int, 2>> bereiche;  ///< first and last number
    int spalte;
};

const std::vector<soundgruppe>& soundgruppen() {
    static const std::vector<soundgruppe> gruppen{
        {"Rennen", {{1, 4}, {46, 47}, {37, 37}, {48, 48}}, 0},
        {"Chaos", {{5, 6}}, 0},
        {"Beste Runde", {{7, 12}}, 0},
        {"Tanken", {{25, 36}}, 0},
        {"Restzeit", {{49, 51}, {64, 64}, {52, 63}}, 1},
        {"Strafen", {{13, 24}}, 1},
        {"Soundsensoren", {{38, 45}}, 1},
    };
    return gruppen;
}

optionszeile_zeiger trennzeichen_zeile(const std::string& name, const std::string& text, std::size_t nummer) {
    optionszeile_zeiger zeile = leeres_feld({name, text}, 1);
    feld* element = &std::get<feld>(zeile->element);
    zeile->zeigen = [element, nummer](const einstellungs_ziel& z) { element->text(z.einst.trennzeichen.at(nummer)); };
    zeile->uebernehmen = [element, nummer](const einstellungs_ziel& z, const auto&) {
        if (ansi_code(element->text()).value_or(0) >= erstes_druckbares) {  // the file holds no other
            z.einst.trennzeichen.at(nummer) = element->text();
        }
    };
    return zeile;
}

/// A file of results could not be told into its columns again.
bool spalten_verwechselbar(const einstellungs_ziel& z) {
    const trennzeichen_tabelle& t = z.einst.trennzeichen;
    return t[2] == t[0] || t[2] == t[1] || t[2].find_first_of("0123456789.- ") != std::string::npos;
}

}  // namespace

std::vector<std::string> sound_ereignisse() {
    std::vector<std::string> namen{"Rennen vorbereitet", "Rennen gestartet", "Rennen beendet",
                                   "Rennen abgebrochen", "Chaos beginnt",    "Chaos endet"};
    const auto je_spur = [&namen](const std::string& was) {
        for (const int spur : alle_spuren) {
            namen.push_back(was + " Spur " + std::to_string(spur));
        }
    };
    je_spur("Beste Runde");
    je_spur("Frühstart");
    je_spur("Disqualifikation");
    je_spur("Tankwarnung");
    je_spur("Tank leer");
    namen.emplace_back("Runde gefahren");
    for (int sensor = 1; sensor <= 8; ++sensor) {
        namen.push_back("Soundsensor " + std::to_string(sensor));
    }
    namen.insert(namen.end(), {"Schritt der Startampel", "Erstes Auto im Ziel", "Sektorzeit", "Noch 5 Minuten",
                               "Noch 2 Minuten", "Noch 1 Minute", "Noch 30 Sekunden", "Noch 20 Sekunden"});
    for (int sekunden = 10; sekunden > 1; --sekunden) {
        namen.push_back("Noch " + std::to_string(sekunden) + " Sekunden");
    }
    namen.insert(namen.end(), {"Noch 1 Sekunde", "Noch 42,5 Sekunden"});
    return namen;
}

optionsseite_zeiger sounds() {
    constexpr int erste_bleibende = 48;  // from here on an empty line in the file leaves the old name
    auto seite = std::make_unique<optionsseite>("Sounds");
    seite->gruppe("Wiedergabe", 0) << kasten({"sound_an", "Sounds abspielen"}, wert(&e::sound_an))
                                   << zahl({"snd_beste", "'beste Runde' ab Runde", "1 bis 10"},
                                           wert(&e::snd_beste_runde), {1, 10, {}, 5, 5})
                                   << text({"sound_ordner", "Ordner der Sounddateien", "leer = sound"},
                                           wert(&e::sound_ordner), 100);
    for (const soundgruppe& gruppe : soundgruppen()) {
        optionsgruppe& ziel = seite->gruppe(gruppe.name, gruppe.spalte);
        for (const auto& [erste, letzte] : gruppe.bereiche) {
            for (int nummer = erste; nummer <= letzte; ++nummer) {
                const std::string_view leer = nummer < erste_bleibende ? "" : "-";
                ziel << sound({"sound_dateien_" + std::to_string(nummer), ""},
                              element(&e::sound_dateien, static_cast<std::size_t>(nummer)), leer);
            }
        }
    }
    return seite;
}

optionsseite_zeiger farben() {
    auto seite = std::make_unique<optionsseite>("Farben");
    optionsgruppe& spuren_gruppe = seite->gruppe("Spuren", 0);
    for (const int spur : alle_spuren) {
        const std::string nummer = std::to_string(spur);
        spuren_gruppe << farbwahl({"farben_spur_" + nummer, "Spur " + nummer}, je_spur(&e::farben_spur, spur));
    }
    seite->gruppe("Fenster", 0) << wortliste({"sprache", "Sprache"}, wert(&e::anzeige, &erscheinung::sprachordner), {})
                                << wahl({"aussehen", "Hell oder dunkel"}, wert(&e::anzeige, &erscheinung::fenster), 0,
                                        {"hell", "dunkel", "wie das System"})
                                << kasten({"hauptfenster_wie_zuletzt", "Hauptfenster wie beim letzten Mal"},
                                          wert(&e::anzeige, &erscheinung::hauptfenster_wie_zuletzt));
    seite->gruppe("Rennbildschirm", 1)
        << farbwahl({"farben_ampel_1", "Hintergrund"}, element(&e::farben_ampel, 1))
        << farbwahl({"farben_schrift_2", "Schrift"}, element(&e::farben_schrift, 2))
        << farbwahl({"farben_ampel_2", "Weiterer Hintergrund 1"}, element(&e::farben_ampel, 2))
        << farbwahl({"farben_ampel_3", "Weiterer Hintergrund 2"}, element(&e::farben_ampel, 3))
        << farbwahl({"farben_schrift_1", "Weitere Schrift"}, element(&e::farben_schrift, 1));
    seite->gruppe("Startampel", 1) << farbwahl({"farbe_ampel_rot_aus", "Rote Lampe aus"}, wert(&e::farbe_ampel_rot_aus))
                                   << farbwahl({"farbe_ampel_gruen_aus", "Grüne Lampe aus"},
                                               wert(&e::farbe_ampel_gruen_aus));
    return seite;
}

optionsseite_zeiger trennzeichen() {
    auto seite = std::make_unique<optionsseite>("Trennzeichen");
    seite->gruppe("Zeiten", 0) << trennzeichen_zeile("trennzeichen_0", "Stunden, Minuten, Sekunden", 0)
                               << trennzeichen_zeile("trennzeichen_1", "Sekunden, Tausendstel", 1);
    seite->gruppe("Ergebnisdateien (csv)", 0)
        << mit_warnung(trennzeichen_zeile("trennzeichen_2", "Spalten", 2),
                       "Das Trennzeichen der Spalten steht auch in Zeiten oder Zahlen: Ergebnisdateien, die so "
                       "geschrieben werden, lassen sich nicht wieder lesen.",
                       spalten_verwechselbar);
    return seite;
}

}  // namespace tarvel::optionsseiten
