#include "results/papierkopf.h"

#include <algorithm>
#include <vector>

namespace tarvel {
namespace {

const std::string papierdatei = std::string(urkunden_ordner) + "\\papier.ini";
constexpr std::size_t zeilen_der_datei = 3;
constexpr std::size_t papierzeilen_max = 40;

std::vector<std::string> papierzeilen(const dateien& ablage) {
    auto zeilen = ablage.zeilen_lesen(papierdatei, papierzeilen_max).value_or(std::vector<std::string>{});
    zeilen.resize(std::max(zeilen.size(), zeilen_der_datei));
    return zeilen;
}

/// Where the template of the language stands, or would stand: the third line is that of the folder which the program
/// comes with, behind it each further one has a line that begins with its folder.
std::size_t vorlagenzeile(const std::vector<std::string>& zeilen, std::string_view sprachordner) {
    if (sprachordner == sprachordner_standard) {
        return 2;
    }
    const std::string anfang = std::string(sprachordner) + "=";
    std::size_t platz = zeilen_der_datei;
    while (platz < zeilen.size() && !zeilen[platz].starts_with(anfang)) {
        ++platz;
    }
    return std::min(platz, papierzeilen_max - 1);  // the last place of a file that is full
}

}  // namespace

std::string papierkopf::zeile() const {
    return verein.empty() || veranstaltung.empty() ? verein + veranstaltung : verein + "  ·  " + veranstaltung;
}

papierkopf papierkopf_laden(const dateien& ablage, std::string_view sprachordner) {
    const auto zeilen = papierzeilen(ablage);
    const std::size_t platz = vorlagenzeile(zeilen, sprachordner);
    const std::string gleich = std::string(sprachordner) + "=";
    papierkopf kopf{zeilen[0], zeilen[1], {}};
    if (platz < zeilen_der_datei) {
        kopf.vorlage = zeilen[platz];
    } else if (platz < zeilen.size() && zeilen[platz].starts_with(gleich)) {
        kopf.vorlage = zeilen[platz].substr(gleich.size());
    }
    return kopf;
}

bool papierkopf_speichern(const dateien& ablage, const papierkopf& kopf, std::string_view sprachordner) {
    auto zeilen = papierzeilen(ablage);
    const std::size_t platz = vorlagenzeile(zeilen, sprachordner);
    zeilen.resize(std::max(zeilen.size(), platz + 1));
    zeilen[0] = kopf.verein;
    zeilen[1] = kopf.veranstaltung;
    zeilen[platz] = (platz < zeilen_der_datei ? "" : std::string(sprachordner) + "=") + kopf.vorlage;
    return ablage.zeilen_schreiben(papierdatei, zeilen);
}

}  // namespace tarvel
