#include "competition/wettkampfspeicher.h"

#include <algorithm>

#include "competition/wettkampfdatei.h"
#include "competition/wettkampftabelle.h"
#include "core/ordner.h"
#include "results/ergebnisdatei.h"

namespace tarvel {
namespace {

const std::string ordner = std::string(ergebnis_ordner::wettkampf) + "\\";
const std::string zwischenordner = std::string(ergebnis_ordner::wettkampf_zwischenstand) + "\\";
constexpr std::string_view unbeendet = "nicht beendet ";
constexpr std::string_view abend_endung = ".wtk";

/// The day in the name behind that beginning, as text that sorts by time: 21112026-14032 is 20261121-14032.
std::string zeitfolge(const std::string& name) {
    const std::string stempel = name.substr(std::min(unbeendet.size(), name.size()));
    constexpr std::size_t tag = 2;
    constexpr std::size_t monat = 4;
    constexpr std::size_t jahr = 8;
    return stempel.size() < jahr ? stempel
                                 : stempel.substr(monat, jahr - monat) + stempel.substr(tag, monat - tag) +
                                       stempel.substr(0, tag) + stempel.substr(jahr);
}

}  // namespace

std::string wettkampfspeicher::stamm(const wettkampf& stand) const {
    return als_dateiname(stand.wettkampf_name) + "-" + ergebnis_stempel(um_.kalender.jetzt());
}

std::string wettkampfspeicher::freier_pfad(const std::string& anfang, const std::string& endung) const {
    std::string pfad = anfang + endung;
    for (int nummer = 2; um_.ablage.gibt_es(pfad); ++nummer) {
        pfad = anfang + "-";
        pfad += std::to_string(nummer) + endung;
    }
    return pfad;
}

bool wettkampfspeicher::stand_schreiben(const std::string& pfad, const wettkampf& stand) {
    return wettkampf_speichern(um_.ablage, pfad, um_.datei, stand, um_.einst.trennzeichen);
}

bool wettkampfspeicher::tabelle_schreiben(const std::string& pfad, const wettkampf& stand) {
    const bool geschrieben = um_.ablage.zeilen_schreiben(
        pfad, tarvel::tabelle_schreiben(stand, um_.fenster.tabellenworte(), um_.einst.trennzeichen));
    if (geschrieben && bei_tabelle) {
        bei_tabelle(pfad, stand);
    }
    return geschrieben;
}

bool wettkampfspeicher::laufenden_sichern(const wettkampf& stand) {
    return stand_schreiben(std::string(laufender_wettkampf), stand);
}

void wettkampfspeicher::laufenden_weglegen(bool fertig) {
    if (fertig) {
        um_.ablage.loeschen(laufender_wettkampf);
    }
}

std::string wettkampfspeicher::laufenden_aufheben() {
    std::string neu = freier_pfad(ordner + std::string(unbeendet) + ergebnis_stempel(um_.kalender.jetzt()),
                                  std::string(abend_endung));
    um_.ablage.umbenennen(laufender_wettkampf, neu);
    return neu;
}

std::vector<std::string> wettkampfspeicher::unbeendete() const {
    std::vector<std::string> namen = um_.ablage.auflisten(ergebnis_ordner::wettkampf, unbeendet, abend_endung);
    std::stable_sort(namen.begin(), namen.end(),
                     [](const std::string& a, const std::string& b) { return zeitfolge(a) > zeitfolge(b); });
    std::vector<std::string> pfade;
    if (um_.ablage.gibt_es(laufender_wettkampf)) {
        pfade.emplace_back(laufender_wettkampf);
    }
    for (const std::string& name : namen) {
        pfade.push_back(ordner + name);
    }
    return pfade;
}

void wettkampfspeicher::uebernommen(const std::string& pfad) const {
    if (pfad.starts_with(ordner + std::string(unbeendet))) {
        um_.ablage.loeschen(pfad);
    }
}

bool wettkampfspeicher::zwischenstand_sichern(const wettkampf& stand) {
    return !um_.einst.w_speichern || stand_schreiben(freier_pfad(zwischenordner + stamm(stand), ".wta"), stand);
}

bool wettkampfspeicher::rennen_sichern(const wettkampf& stand, const abendergebnis& eines) {
    std::string anfang = ordner + stamm(stand) + "-Rennen" + std::to_string(eines.rennen);
    if (eines.teil < stand.plan.teile) {
        anfang += "-Teil" + std::to_string(eines.teil);
    }
    return !um_.einst.aut_speichern ||
           um_.fenster.rennen_schreiben(freier_pfad(anfang, ".csv"), eines.ergebnis, eines.sein_protokoll);
}

bool wettkampfspeicher::tabelle_sichern(const wettkampf& stand) {
    return tabelle_schreiben(freier_pfad(ordner + stamm(stand), ".csv"), stand);
}

void wettkampfspeicher::stand_speichern_unter(const wettkampf& stand) {
    um_.fenster.oeffnen(
        {stamm(stand), ergebnis_ordner::wettkampf, abend_endung, um_.txt.wettkampf.stand_speichern, true},
        [this, &stand](const std::string& name) { return stand_schreiben(ordner + name, stand); });
}

void wettkampfspeicher::tabelle_speichern_unter(const wettkampf& stand) {
    um_.fenster.oeffnen({stamm(stand), ergebnis_ordner::wettkampf, ".csv"},
                        [this, &stand](const std::string& name) { return tabelle_schreiben(ordner + name, stand); });
}

void wettkampfspeicher::laden_von(std::function<bool(const std::string& pfad)> laden) {
    dateiauftrag auftrag;
    auftrag.titel = um_.txt.wettkampf.laden;
    auftrag.ueberschrift = um_.txt.datei_text[3];
    auftrag.knopf = um_.txt.datei_text[2];
    auftrag.ordner = ergebnis_ordner::wettkampf_zwischenstand;
    auftrag.endung = ".wta";
    auftrag.weitere_orte = {{std::string(ergebnis_ordner::wettkampf_zwischenstand), ".wtk"},
                            {std::string(ergebnis_ordner::wettkampf), ".wtk"},
                            {std::string(papierkorb), ".wta"}};
    auftrag.laden_von = std::move(laden);
    um_.fenster.speichernfenster::oeffnen(std::move(auftrag));
}

}  // namespace tarvel
