// Drives races again from their logs, on a machine without a clock, and tells whether each decision and each result
// file comes out as it was written. A file may be a log, or a result: that one's log is looked for beside it.
//   nachrechnen DATEI...
// Ends with 0 if all do; else it names the first line of each that does not.

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <system_error>

#include "core/ordnerblick.h"
#include "core/protokollordner.h"
#include "core/spuren.h"
#include "core/zeit.h"
#include "platform/stille_maschine.h"
#include "programm/ergebnisvergleich.h"
#include "programm/programm.h"
#include "programm/rennprotokoll.h"
#include "results/wertung.h"

namespace tarvel::nachrechnen {
namespace {

namespace fs = std::filesystem;

constexpr std::uintmax_t bytes_max = std::uintmax_t{256} * 1024 * 1024;

/// A program folder that goes with it.
class eigener_ordner {
public:
    eigener_ordner() {
        std::error_code fehler;
        const auto unter = std::filesystem::temp_directory_path(fehler);
        const auto zeit = std::chrono::steady_clock::now().time_since_epoch().count();
        for (int n = 0; n < 1000 && pfad_.empty(); ++n) {
            const auto versuch = unter / ("tarvel-nachrechnen-" + std::to_string(zeit) + "-" + std::to_string(n));
            if (std::filesystem::create_directory(versuch, fehler)) {
                pfad_ = versuch;
            }
        }
    }
    eigener_ordner(const eigener_ordner&) = delete;
    eigener_ordner& operator=(const eigener_ordner&) = delete;
    ~eigener_ordner() {
        std::error_code fehler;
        if (!pfad_.empty()) {
            std::filesystem::remove_all(pfad_, fehler);
        }
    }
    const std::filesystem::path& pfad() const { return pfad_; }

private:
    std::filesystem::path pfad_;
};

std::optional<std::string> lesen(const std::filesystem::path& datei) {
    if (!ist_lesbar(datei, bytes_max)) {
        return std::nullopt;
    }
    std::ifstream strom(datei, std::ios::binary);
    return std::string{std::istreambuf_iterator<char>(strom), {}};
}

void stand_zeigen(programm& p) {
    for (const int spur : alle_spuren) {
        if (p.param.spur_aktiv[spur]) {
            const rundenkonto& konto = p.rennen.zustand.konto;
            std::printf("  Spur %d: %d Runden, beste %s  %s\n", spur, std::max(konto.runden(spur), 0),
                        zeit_formatieren(konto.beste(spur), false, p.einst.trennzeichen).c_str(),
                        p.param.fahrer_name[spur].c_str());
        }
    }
}

void ergebnisse_zeigen(const ergebnisvergleich& v) {
    for (const std::string& name : v.gleich) {
        std::printf("  %s: gleich\n", name.c_str());
    }
    for (const std::string& name : v.fehlen) {
        std::printf("  %s: nicht mehr da, nicht verglichen\n", name.c_str());
    }
    for (const ergebnisvergleich::unterschied& u : v.anders) {
        if (u.zeile == 0) {
            std::printf("  %s: darin fehlt \"%s\"\n", u.datei.c_str(), u.gerechnet.c_str());
            continue;
        }
        std::printf("  %s, Zeile %d, Spalte %d: geschrieben \"%s\", gerechnet \"%s\"\n", u.datei.c_str(), u.zeile,
                    u.spalte, u.geschrieben.c_str(), u.gerechnet.c_str());
    }
}

/// The program folder that the file lies in: the next one above it with logs of races.
fs::path programmordner(const fs::path& datei) {
    std::error_code fehler;
    fs::path ordner = fs::absolute(datei, fehler).lexically_normal().parent_path();
    while (!fs::is_directory(ordner / "Ergebnisse" / "Protokoll", fehler) && ordner.has_relative_path()) {
        ordner = ordner.parent_path();
    }
    return ordner;
}

/// The file itself, or the log of the race whose result it holds.
fs::path protokoll_von(const fs::path& datei, const dateien& ablage, const fs::path& ordner) {
    const std::optional<std::string> inhalt = lesen(datei);
    if (!inhalt || inhalt->starts_with("# Tarvel-Rennprotokoll")) {
        return datei;
    }
    std::error_code fehler;
    const fs::path unter = fs::absolute(datei, fehler).lexically_normal().lexically_relative(ordner);
    const auto protokoll = protokoll_zu_ergebnis(ablage, pfad_als_utf8(unter));
    return protokoll ? ablage.pfad(*protokoll) : datei;
}

bool datei_rechnen(const std::string& wort) {
    const fs::path ordner = programmordner(fs::path(wort));
    const dateien ablage(ordner);
    const fs::path datei = protokoll_von(fs::path(wort), ablage, ordner);
    const std::string name = datei == fs::path(wort) ? wort : wort + " (" + pfad_als_utf8(datei) + ")";
    const std::optional<std::string> inhalt = lesen(datei);
    if (!inhalt) {
        std::printf("%s: nicht zu lesen\n", name.c_str());
        return false;
    }
    const eigener_ordner eigener;
    stille_maschine maschine(eigener.pfad());
    programm p(maschine.dienste());
    p.rennprotokoll.fuehren = false;
    p.starten();
    using wie = rennprotokoll::ausgang;
    const ergebnisvergleich v = rennen_vergleichen(p, *inhalt, ablage);
    const mitschrift::unterschied u = p.rennprotokoll.abweichung().value_or(mitschrift::unterschied{});
    switch (v.ausgang) {
        case wie::fremd:
            std::printf("%s: kein Rennprotokoll, das diese Version nachrechnen kann\n", name.c_str());
            return false;
        case wie::anders:
            std::printf("%s, Zeile %d: geschrieben \"%s\", gerechnet \"%s\"\n", name.c_str(), u.zeile,
                        u.geschrieben.c_str(), u.stattdessen.c_str());
            break;
        case wie::beschaedigt:
            std::printf("%s: gleich bis zu einer Zeile, die beschädigt oder abgerissen ist\n", name.c_str());
            stand_zeigen(p);
            break;
        case wie::ganz:
            std::printf("%s: gleich\n", name.c_str());
            stand_zeigen(p);
            break;
    }
    ergebnisse_zeigen(v);
    return v.gut();
}

int alle_rechnen(int anzahl, char** worte) {
    if (anzahl < 2) {
        std::printf(
            "nachrechnen DATEI...\nRechnet Rennen aus ihren Protokollen nach (Ergebnisse/Protokoll); auch die Datei\n"
            "eines Ergebnisses darf es sein.\n");
        return 2;
    }
    bool gleich = true;
    for (int i = 1; i < anzahl; ++i) {
        gleich = datei_rechnen(worte[i]) && gleich;
    }
    return gleich ? 0 : 1;
}

}  // namespace
}  // namespace tarvel::nachrechnen

int main(int anzahl, char** worte) {
    return tarvel::nachrechnen::alle_rechnen(anzahl, worte);
}
