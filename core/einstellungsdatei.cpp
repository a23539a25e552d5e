#include "core/einstellungsdatei.h"

#include <algorithm>

#include "core/einstellungstabelle.h"
#include "core/text.h"

namespace tarvel {
namespace {

constexpr std::string_view wettkampf_kopf = "Wettkampfdatei: ";
constexpr std::size_t zeilen_max = 200000;  // a competition adds its own lines

std::size_t platz(int z) {
    return static_cast<std::size_t>(z);
}

}  // namespace

bool einstellungsdatei::version_pruefen(std::string_view kopf, version_melden melden) {
    if (!kopf.starts_with(einstellungs_kopf)) {
        return false;
    }
    if (melden == version_melden::ja && kopf.substr(einstellungs_kopf.size()) != programm_version) {
        um_.meldungen.zeigen(um_.ziel.txt.meldung[19], um_.ziel.txt.titel[0]);
    }
    return true;
}

void einstellungsdatei::einstellungsdatei_einlesen(std::string_view datei, bool wettkampfdatei, version_melden melden) {
    einlesen(um_.ablage.zeilen_lesen(datei, zeilen_max).value_or(std::vector<std::string>{}), wettkampfdatei ? 1 : 0,
             melden);
}

void einstellungsdatei::einlesen(const std::vector<std::string>& inhalt, std::size_t erste, version_melden melden) {
    zeilen_.assign(platz(z::letzte_gelesene) + 1, "");
    rest_.clear();
    fehler_laden_ = true;
    std::size_t i = erste;
    if (inhalt.size() <= i + 1 || !version_pruefen(inhalt[i], melden)) {
        return;
    }
    zeilen_[0] = inhalt[i];
    i += 2;  // the line behind the header is blank
    bool vollstaendig = false;
    for (int z = 1; z <= z::letzte_gelesene && !vollstaendig; ++z) {
        if (i == inhalt.size()) {
            return;  // ends in the middle
        }
        std::string& neue = zeilen_[platz(z)];
        neue = gekuerzt(inhalt[i++]);
        vollstaendig = neue == einstellungs_ende;
        neue = vollstaendig ? std::string() : neue;  // the mark is no value of the line it stands in
    }
    fehler_laden_ = false;
    rest_.assign(inhalt.begin() + static_cast<std::ptrdiff_t>(i), inhalt.end());
    wahrheitswoerter_uebersetzen();
}

void einstellungsdatei::wahrheitswoerter_uebersetzen() {
    const std::string wahr = zeile(z::wahr_wort);
    const std::string falsch = zeile(z::falsch_wort);
    for (int z = 1; z <= z::letzte_gelesene; ++z) {
        if (z == z::wahr_wort || z == z::falsch_wort) {
            continue;
        }
        std::string& text = zeilen_[platz(z)];
        if (text == wahr) {
            text = "Wahr";
        } else if (text == falsch) {
            text = "Falsch";
        }
    }
}

void einstellungsdatei::einstellungsdatei_pruefen(pruefweise wie) {
    const auto& tabelle = einstellungstabelle();
    for (int z = 1; z <= z::letzte_gelesene; ++z) {
        const einstellungszeile& eine = tabelle[platz(z)];
        const bool abgelehnt = eine.pruefen && eine.pruefen(zeilen_, z) == zeilen_urteil::abgelehnt;
        if (abgelehnt && !(eine.gilt_wie_es_galt && wie == pruefweise::festgehaltenes)) {
            fehler_laden_ = true;
        }
    }
}

void einstellungsdatei::einstellungen_uebernehmen(std::optional<modul_4x4> hw_4x4_modus_start) {
    const auto& tabelle = einstellungstabelle();
    for (int z = 1; z <= z::letzte_gelesene; ++z) {
        if (tabelle[platz(z)].laden) {
            tabelle[platz(z)].laden(um_.ziel, zeile(z));
        }
        if (z == z::vor_den_bestzeiten && bestzeiten != nullptr) {
            bestzeiten->bestzeiten_laden();
        }
    }
    einstellungen& einst = um_.ziel.einst;
    hardware_folgen(hw_4x4_modus_start);
    wechselschema_uebernehmen();
    cu_spuren_uebernehmen();
    einst.folgen_ableiten();
    um_.ansicht.einrichtung_zeigen();
}

void einstellungsdatei::aenderungen_uebernehmen(const std::vector<std::string>& in_kraft,
                                                const std::vector<std::string>& neu) {
    if (in_kraft == neu) {
        return;
    }
    einlesen(neu);
    const auto& tabelle = einstellungstabelle();
    for (int z = 1; z <= z::letzte_gelesene; ++z) {
        const std::size_t i = platz(z) + 1;  // the line behind the header is blank
        if (tabelle[platz(z)].laden && in_kraft.at(i) != neu.at(i)) {
            tabelle[platz(z)].laden(um_.ziel, zeile(z));
        }
    }
    hardware_folgen({});
    wechselschema_uebernehmen();
    cu_spuren_uebernehmen();
    um_.ziel.einst.folgen_ableiten();
}

renneinrichtung einstellungsdatei::einrichtung() const {
    einstellungen uebrige;
    renneinrichtung neu;
    const einstellungs_ziel ziel{uebrige, neu, um_.ziel.txt};
    const auto& tabelle = einstellungstabelle();
    for (int z = 1; z <= z::letzte_gelesene; ++z) {
        if (tabelle[platz(z)].laden) {
            tabelle[platz(z)].laden(ziel, zeile(z));
        }
    }
    return neu;
}

void einstellungsdatei::hardware_folgen(std::optional<modul_4x4> hw_4x4_modus_start) {
    messhardware& hardware = um_.ziel.einst.hardware;
    if (hw_4x4_modus_start) {
        hardware.hw_iow = hardware.hw_race_control = hardware.hw_lpt = hardware.hw_timekeeper = false;
        hardware.hw_4x4_modus = *hw_4x4_modus_start;
    }
    hardware.simulation_ableiten();
}

std::optional<wechsel_folge> einstellungsdatei::wechselschema() const {
    wechsel_folge schema{};
    for (std::size_t i = 1; i < schema.size(); ++i) {
        schema.at(i) = static_cast<int>(ganzzahl_lesen(zeile(z::schema_erste + static_cast<int>(i) - 1), 0, 8));
        if (schema.at(i) < 1 || schema.at(i) > wechsel_pause) {
            return std::nullopt;
        }
    }
    return schema;
}

wechselweise einstellungsdatei::wettkampfweise() const {
    constexpr int z_wechselmodus = 103;
    return static_cast<wechselweise>(ganzzahl_lesen(zeile(z_wechselmodus), 1, 3));
}

void einstellungsdatei::wechselschema_uebernehmen() {
    einstellungen& einst = um_.ziel.einst;
    const auto schema = wechselschema();
    if (!schema) {
        return;
    }
    einst.wechsel_schema = *schema;
    if (!zeile(z::schema_name).empty()) {
        einst.wechselschema_name = zeile(z::schema_name);
    }
}

void einstellungsdatei::cu_spuren_uebernehmen() {
    const std::string& erste = zeile(z::cu_spur_erste);
    if (erste.empty()) {  // a file of an older version ends before
        return;
    }
    for (const int spur : alle_spuren) {
        const std::string& text = zeile(z::cu_spur_erste + spur - 1);
        const double wert = zahl_lesen(text);
        if (!text.empty() && wert >= 0 && wert <= 15) {
            um_.ziel.einst.cu.cu_spur_wert[spur] = static_cast<int>(wert);
        }
    }
}

void einstellungsdatei::einstellungen_standard_setzen() {
    zeilen_.clear();
    for (const einstellungszeile& zeile : einstellungstabelle()) {
        if (zeile.standard_setzen) {
            zeile.standard_setzen(um_.ziel);
        }
        zeilen_.push_back(zeile.standard_aus_texten ? zeile.standard_aus_texten(um_.ziel.txt) : zeile.standard);
    }
    einstellungen_uebernehmen({});
}

std::vector<std::string> einstellungsdatei::schreiben() const {
    um_.ansicht.einrichtung_lesen();
    return festhalten();
}

std::vector<std::string> einstellungsdatei::festhalten() const {
    std::vector<std::string> inhalt;
    for (const einstellungszeile& zeile : einstellungstabelle()) {
        inhalt.push_back(zeile.schreiben(um_.ziel));
    }
    inhalt.insert(inhalt.begin() + 1, "");
    return inhalt;
}

std::vector<std::string> einstellungsdatei::schreiben_fuer_wettkampf(std::string_view wettkampf) const {
    std::vector<std::string> inhalt = schreiben();
    inhalt.insert(inhalt.begin(), std::string(wettkampf_kopf) + std::string(wettkampf));
    return inhalt;
}

void einstellungsdatei::einstellungen_speichern(std::string_view datei, const std::vector<std::string>& inhalt) {
    fehler_laden_ = !um_.ablage.zeilen_schreiben(datei, inhalt);
    if (fehler_laden_) {
        um_.meldungen.zeigen(um_.ziel.txt.meldung[4], um_.ziel.txt.titel[1]);
    }
}

}  // namespace tarvel
