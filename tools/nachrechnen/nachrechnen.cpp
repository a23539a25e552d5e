// Drives races again from their logs, on a machine without a clock, and tells whether each decision comes out as it was
// written.
//   nachrechnen DATEI...
// Ends with 0 if all do; else it names the first line of each log that does not.

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <system_error>

#include "core/spuren.h"
#include "core/zeit.h"
#include "programm/programm.h"
#include "programm/rennprotokoll.h"
#include "results/wertung.h"
#include "tools/nachrechnen/stille_maschine.h"

namespace tarvel::nachrechnen {
namespace {

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

bool datei_rechnen(const std::string& name) {
    const std::optional<std::string> inhalt = lesen(std::filesystem::path(name));
    if (!inhalt) {
        std::printf("%s: nicht zu lesen\n", name.c_str());
        return false;
    }
    const eigener_ordner ordner;
    stille_maschine maschine(ordner.pfad());
    programm p(maschine.dienste());
    p.rennprotokoll.fuehren = false;
    p.starten();
    using wie = rennprotokoll::ausgang;
    const wie ausgang = p.rennprotokoll.nachspielen(*inhalt);
    switch (ausgang) {
        case wie::fremd:
            std::printf("%s: kein Rennprotokoll, das diese Version nachrechnen kann\n", name.c_str());
            return false;
        case wie::anders: {
            const mitschrift::unterschied u = p.rennprotokoll.abweichung().value_or(mitschrift::unterschied{});
            std::printf("%s, Zeile %d: geschrieben \"%s\", gerechnet \"%s\"\n", name.c_str(), u.zeile,
                        u.geschrieben.c_str(), u.stattdessen.c_str());
            return false;
        }
        case wie::beschaedigt:
            std::printf("%s: gleich bis zu einer Zeile, die beschädigt oder abgerissen ist\n", name.c_str());
            stand_zeigen(p);
            return false;
        case wie::ganz:
            std::printf("%s: gleich\n", name.c_str());
            stand_zeigen(p);
            return true;
    }
    return false;
}

int alle_rechnen(int anzahl, char** worte) {
    if (anzahl < 2) {
        std::printf("nachrechnen DATEI...\nRechnet Rennen aus ihren Protokollen nach (Ergebnisse/Protokoll).\n");
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
