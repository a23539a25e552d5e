#include "results/papierkopf.h"

#include <vector>

namespace tarvel {
namespace {

const std::string papierdatei = std::string(urkunden_ordner) + "\\papier.ini";
constexpr std::size_t zeilen_der_datei = 3;

}  // namespace

std::string papierkopf::zeile() const {
    return verein.empty() || veranstaltung.empty() ? verein + veranstaltung : verein + "  ·  " + veranstaltung;
}

papierkopf papierkopf_laden(const dateien& ablage) {
    auto zeilen = ablage.zeilen_lesen(papierdatei, zeilen_der_datei).value_or(std::vector<std::string>{});
    zeilen.resize(zeilen_der_datei);
    return {zeilen[0], zeilen[1], zeilen[2]};
}

bool papierkopf_speichern(const dateien& ablage, const papierkopf& kopf) {
    return ablage.zeilen_schreiben(papierdatei, {kopf.verein, kopf.veranstaltung, kopf.vorlage});
}

}  // namespace tarvel
