#include "tools/simulator/kommandozeile.h"

#include <algorithm>
#include <charconv>
#include <cstdio>

namespace tarvel::simulator {
namespace {

constexpr std::int64_t tag_s = 86400;
constexpr std::int64_t stunde_ms = 3600000;
constexpr zeit_ms langsamer_je_spur = 130;
constexpr zeit_ms weiter_hinten_je_spur = 20;

bool zahl_lesen(std::string_view text, std::int64_t von, std::int64_t bis, std::int64_t& ziel) {
    const char* const ende = text.data() + text.size();
    const auto [ort, fehler] = std::from_chars(text.data(), ende, ziel);
    return fehler == std::errc() && ort == ende && ziel >= von && ziel <= bis;
}

bool liste_lesen(std::string_view text, std::int64_t von, std::int64_t bis, std::vector<std::int64_t>& ziel) {
    while (true) {
        const std::size_t komma = text.find(',');
        std::int64_t zahl = 0;
        if (!zahl_lesen(text.substr(0, komma), von, bis, zahl)) {
            return false;
        }
        ziel.push_back(zahl);
        if (komma == std::string_view::npos) {
            return true;
        }
        text.remove_prefix(komma + 1);
    }
}

}  // namespace

void kommandozeile::zahl(const std::string& name, const std::string& wert, std::int64_t von, std::int64_t bis,
                         const std::string& hilfe, std::function<void(std::int64_t)> setzen) {
    optionen_.push_back({name, wert, hilfe, [von, bis, setzen = std::move(setzen)](std::string_view text) {
                             std::int64_t zahl = 0;
                             const bool gut = zahl_lesen(text, von, bis, zahl);
                             if (gut) {
                                 setzen(zahl);
                             }
                             return gut;
                         }});
}

void kommandozeile::liste(const std::string& name, const std::string& wert, std::int64_t von, std::int64_t bis,
                          const std::string& hilfe, std::function<void(const std::vector<std::int64_t>&)> setzen) {
    optionen_.push_back({name, wert, hilfe, [von, bis, setzen = std::move(setzen)](std::string_view text) {
                             std::vector<std::int64_t> zahlen;
                             const bool gut = liste_lesen(text, von, bis, zahlen);
                             if (gut) {
                                 setzen(zahlen);
                             }
                             return gut;
                         }});
}

void kommandozeile::text(const std::string& name, const std::string& wert, const std::string& hilfe,
                         std::string& ziel) {
    optionen_.push_back({name, wert, hilfe, [&ziel](std::string_view inhalt) {
                             ziel = inhalt;
                             return !inhalt.empty();
                         }});
}

void kommandozeile::haken(const std::string& name, const std::string& hilfe, bool& ziel) {
    optionen_.push_back({name, "", hilfe, [&ziel](std::string_view) {
                             ziel = true;
                             return true;
                         }});
}

const kommandozeile::option* kommandozeile::suchen(std::string_view name) const {
    const auto ort = std::find_if(optionen_.begin(), optionen_.end(), [&](const option& o) { return o.name == name; });
    return ort == optionen_.end() ? nullptr : &*ort;
}

bool kommandozeile::lesen(int argc, const char* const* argv) {
    for (int i = 1; i < argc; ++i) {
        const std::string name = argv[i];
        if (name == "--hilfe") {
            hilfe_ = true;
            continue;
        }
        const option* const o = suchen(name);
        if (o == nullptr) {
            std::fprintf(stderr, "%s ist unbekannt; --hilfe zeigt, was es gibt.\n", name.c_str());
            return false;
        }
        const bool mit_wert = !o->wert.empty();
        const bool fehlt = mit_wert && i + 1 >= argc;
        if (fehlt || !o->lesen(mit_wert ? argv[i + 1] : "")) {
            std::fprintf(stderr, "%s %s: %s\n", name.c_str(), o->wert.c_str(), o->hilfe.c_str());
            return false;
        }
        i += mit_wert ? 1 : 0;
    }
    return true;
}

void kommandozeile::hilfe_zeigen() const {
    std::printf("%s\n\n", beschreibung_.c_str());
    for (const option& o : optionen_) {
        std::printf("  %-28s %s\n", (o.name + " " + o.wert).c_str(), o.hilfe.c_str());
    }
    std::printf("  %-28s %s\n", "--hilfe", "zeigt dies");
}

std::vector<wagen_einstellung> flotte::wagen() const {
    std::vector<wagen_einstellung> alle;
    for (int spur = 1; spur <= spuren; ++spur) {
        wagen_einstellung w = je_wagen;
        const auto genannt = std::min(static_cast<int>(rundenzeiten.size()), spur);
        w.rundenzeit = rundenzeiten.at(static_cast<std::size_t>(genannt - 1)) + (spur - genannt) * langsamer_je_spur;
        w.anfahrt += spur * weiter_hinten_je_spur;
        w.fruehstart = std::find(fruehstarter.begin(), fruehstarter.end(), spur) != fruehstarter.end();
        for (int i = sektoren; i < 2; ++i) {
            w.sektoren.at(static_cast<std::size_t>(i)) = -1;
        }
        alle.push_back(w);
    }
    return alle;
}

static void wagenoptionen(kommandozeile& zeile, int spuren_max, flotte& wagen) {
    wagen_einstellung& w = wagen.je_wagen;
    zeile.zahl("--spuren", "ZAHL", 1, spuren_max, "so viele Wagen fahren (" + std::to_string(wagen.spuren) + ")",
               [&](std::int64_t n) { wagen.spuren = static_cast<int>(n); });
    zeile.liste("--rundenzeit", "MS[,MS...]", 100, stunde_ms, "Rundenzeit, je Spur oder für alle (8000)",
                [&](const auto& n) { wagen.rundenzeiten = n; });
    zeile.zahl("--streuung", "MS", 0, stunde_ms, "so viel weicht eine Runde höchstens ab (300)",
               [&](std::int64_t n) { w.streuung = n; });
    zeile.zahl("--reaktion", "MS", 0, stunde_ms, "von Grün bis zum Losfahren (250)",
               [&](std::int64_t n) { w.reaktion = n; });
    zeile.liste("--fruehstart", "SPUR[,SPUR...]", 1, spuren_max, "diese Wagen fahren bei Rot los",
                [&](const auto& n) { wagen.fruehstarter = n; });
    zeile.zahl("--sektoren", "0|1|2", 0, 2, "Sensoren zwischen zwei Überfahrten der Ziellinie (2)",
               [&](std::int64_t n) { wagen.sektoren = static_cast<int>(n); });
    zeile.zahl("--stopp", "RUNDEN", 0, 10000, "nach so vielen Runden wird getankt, 0 nie (0)",
               [&](std::int64_t n) { w.runden_je_stopp = static_cast<int>(n); });
    zeile.zahl("--standzeit", "MS", 0, stunde_ms, "Dauer eines Tankstopps (3000)",
               [&](std::int64_t n) { w.standzeit = n; });
    zeile.zahl("--chaos", "PROMILLE", 0, 1000, "in so vielen von tausend Runden wird Chaos gedrückt (0)",
               [&](std::int64_t n) { w.chaos_promille = static_cast<int>(n); });
}

void gemeinsame_optionen(kommandozeile& zeile, int spuren_max, flotte& wagen, rennen_einstellung& rennen,
                         lauf_einstellung& lauf) {
    wagenoptionen(zeile, spuren_max, wagen);
    zeile.zahl("--chaosdauer", "MS", 0, stunde_ms, "so lange dauert ein Chaos, 0: der Rennleiter beendet es (8000)",
               [&](std::int64_t n) { rennen.chaos_dauer = n; });
    zeile.haken("--sofort", "die Wagen fahren ohne Start", rennen.sofort);
    zeile.zahl("--saat", "ZAHL", 0, INT32_MAX, "gleiche Saat, gleiches Rennen (1)",
               [&](std::int64_t n) { rennen.saat = static_cast<std::uint64_t>(n); });
    zeile.zahl("--uhr", "MS", 0, UINT32_MAX, "Stand der Geräteuhr am Anfang (0)",
               [&](std::int64_t n) { rennen.uhr_start = n; });
    zeile.zahl("--gang", "PPM", -20000, 20000, "so viele Millionstel geht die Geräteuhr vor (0)",
               [&](std::int64_t n) { rennen.gang_ppm = static_cast<int>(n); });
    zeile.zahl("--dauer", "SEKUNDEN", 0, tag_s, "danach endet der Simulator, sonst mit Strg+C",
               [&](std::int64_t n) { lauf.dauer_s = static_cast<int>(n); });
    zeile.zahl("--abziehen", "SEKUNDEN", 0, tag_s, "dann wird das Gerät abgezogen",
               [&](std::int64_t n) { lauf.abziehen_s = static_cast<int>(n); });
    zeile.zahl("--einstecken", "SEKUNDEN", 0, tag_s, "und dann wieder eingesteckt",
               [&](std::int64_t n) { lauf.einstecken_s = static_cast<int>(n); });
    zeile.text("--ordner", "ORDNER", "Programmordner, in dem Anschluesse/COMn entsteht (Tarvel)", lauf.ort.ordner);
    zeile.zahl("--com", "NUMMER", 1, 20, "Nummer dieses Anschlusses (7)",
               [&](std::int64_t n) { lauf.ort.com = static_cast<int>(n); });
    zeile.text("--anschluss", "PORT", "stattdessen ein serieller Port, etwa /dev/ttyUSB0 oder COM5", lauf.ort.port);
    zeile.zahl("--baud", "ZAHL", 4800, 115200, "dessen Geschwindigkeit (" + std::to_string(lauf.ort.baud) + ")",
               [&](std::int64_t n) { lauf.ort.baud = static_cast<int>(n); });
}

}  // namespace tarvel::simulator
