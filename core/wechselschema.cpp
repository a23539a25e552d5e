#include "core/wechselschema.h"

#include <algorithm>

#include "core/text.h"

namespace tarvel {
namespace {

constexpr std::string_view schema_datei = "Wechselschema.ws";
constexpr std::string_view trenner = " :  ";
constexpr std::size_t zeichen_anzahl = 7;
constexpr std::size_t schemazeilen_max = 3000;
constexpr std::size_t schemaname_laenge_max = 60;

/// Lane or pause of a mark in the file, 0 for any other sign.
int marke_lesen(char zeichen) {
    if (zeichen == 'P') {
        return wechsel_pause;
    }
    return zeichen >= '1' && zeichen < '0' + wechsel_pause ? zeichen - '0' : 0;
}

std::string marke(int wert) {
    return wert == wechsel_pause ? "P" : std::to_string(wert);
}

/// Shows the marks up to the first that is wrong.
wechselschema eintrag_lesen(std::string_view name, std::string_view marken, std::string_view ungueltig) {
    wechselschema neu{std::string(name) + std::string(trenner), std::nullopt};
    wechsel_folge folge{};
    if (marken.size() != zeichen_anzahl) {
        neu.anzeige += ungueltig;
        return neu;
    }
    for (std::size_t i = 1; i <= zeichen_anzahl; ++i) {
        const int wert = marke_lesen(marken[i - 1]);
        if (wert == 0 || std::find(folge.begin(), folge.end(), wert) != folge.end()) {
            neu.anzeige += ungueltig;
            return neu;
        }
        folge.at(i) = wert;
        neu.anzeige += marke(wert) + (i < zeichen_anzahl ? "-" : "");
    }
    neu.folge = folge;
    return neu;
}

std::string_view links_vom_doppelpunkt(std::string_view text) {
    return gekuerzt(text.substr(0, text.find(':')));
}

}  // namespace

std::optional<wechsel_folge> wechsel_folge_lesen(std::string_view text) {
    std::string marken;
    for (const char zeichen : text) {
        if (zeichen != '-' && zeichen != ' ') {
            marken += zeichen == 'p' ? 'P' : zeichen;
        }
    }
    for (int wert = 1; !marken.empty() && wert <= wechsel_pause; ++wert) {  // who drives three lanes names three
        const std::string fehlende = marke(wert);
        if (marken.size() < zeichen_anzahl && marken.find(fehlende) == std::string::npos) {
            marken += fehlende;
        }
    }
    return eintrag_lesen("", marken, "").folge;
}

std::string wechsel_folge_text(const wechsel_folge& folge) {
    std::string text;
    for (std::size_t i = 1; i < folge.size(); ++i) {
        text += (i > 1 ? "-" : "") + marke(folge.at(i));
    }
    return text;
}

std::string wechselschema_anzeige(std::string_view name, const wechsel_folge& folge) {
    return std::string(name) + std::string(trenner) + wechsel_folge_text(folge);
}

std::vector<wechselschema> wechselschemas_lesen(const dateien& ablage, std::string_view ungueltig, bool& gelesen) {
    std::vector<wechselschema> alle{{std::string(wechsel_standard_text), wechsel_standard}};
    const auto zeilen = ablage.zeilen_lesen(schema_datei, schemazeilen_max);
    gelesen = zeilen.has_value();
    for (std::size_t i = 0; zeilen && i < zeilen->size(); ++i) {
        const std::string& name = zeilen->at(i);
        if (name.starts_with('#')) {
            const std::string_view marken = i + 1 < zeilen->size() ? std::string_view(zeilen->at(i + 1)) : "";
            alle.push_back(
                eintrag_lesen(links(std::string_view(name).substr(1), schemaname_laenge_max), marken, ungueltig));
        }
    }
    return alle;
}

schema_ablage wechselschema_speichern(const dateien& ablage, const std::vector<wechselschema>& vorhanden,
                                      std::string_view name, const wechsel_folge& folge) {
    const bool vergeben = std::any_of(vorhanden.begin(), vorhanden.end(), [&](const wechselschema& altes) {
        return links_vom_doppelpunkt(altes.anzeige) == links_vom_doppelpunkt(name);
    });
    if (vergeben) {
        return schema_ablage::name_vergeben;
    }
    std::string marken;
    for (std::size_t i = 1; i < folge.size(); ++i) {
        marken += marke(folge.at(i));
    }
    auto zeilen = ablage.zeilen_lesen(schema_datei, schemazeilen_max);
    if (!zeilen && ablage.gibt_es(schema_datei)) {
        return schema_ablage::nicht_geschrieben;  // what cannot be read must not be written over
    }
    std::vector<std::string> neu = zeilen.value_or(std::vector<std::string>{});
    neu.insert(neu.end(), {"", "#" + std::string(name), marken});
    return ablage.zeilen_schreiben(schema_datei, neu) ? schema_ablage::gespeichert : schema_ablage::nicht_geschrieben;
}

wechsel_folge wechsel_folge_ergaenzt(const wechsel_folge& folge) {
    wechsel_folge neu{};
    std::size_t platz = 1;
    const auto anhaengen = [&](int wert) {
        const bool moeglich = wert >= 1 && wert <= wechsel_pause;
        if (moeglich && std::find(neu.begin(), neu.end(), wert) == neu.end()) {
            neu.at(platz++) = wert;
        }
    };
    std::for_each(folge.begin(), folge.end(), anhaengen);
    for (int wert = 1; wert <= wechsel_pause; ++wert) {
        anhaengen(wert);
    }
    return neu;
}

spuren<int> wechsel_nachfolger(const wechsel_folge& folge, const spuren<bool>& aktiv) {
    std::vector<int> kreis;
    for (const int wert : folge) {  // a lane that stands there twice would lose a driver
        if (wert >= 1 && wert <= spuren_max && std::find(kreis.begin(), kreis.end(), wert) == kreis.end()) {
            kreis.push_back(wert);
        }
    }
    spuren<int> von;
    for (std::size_t platz = 0; platz < kreis.size(); ++platz) {
        von[kreis[(platz + 1) % kreis.size()]] = kreis[platz];
    }
    for (int durchgang = 0; durchgang < spuren_max; ++durchgang) {
        for (const int spur : alle_spuren) {
            const int unbenutzt = von[spur];
            if (unbenutzt != 0 && !aktiv[unbenutzt]) {
                von[spur] = von[unbenutzt];
                von[unbenutzt] = 0;
            }
        }
    }
    return von;
}

wechsel_folge wechsel_ziel(const wechsel_folge& folge, const spuren<bool>& aktiv) {
    wechsel_folge von{};
    int erster = 0;
    int voriger = 0;
    for (const int wert : wechsel_folge_ergaenzt(folge)) {
        if (wert == wechsel_pause || (wert != 0 && aktiv[wert])) {
            von.at(static_cast<std::size_t>(wert)) = voriger;
            erster = erster == 0 ? wert : erster;
            voriger = wert;
        }
    }
    von.at(static_cast<std::size_t>(erster)) = voriger;
    return von;
}

}  // namespace tarvel
