#include "race/spurlage.h"

#include <string_view>

namespace tarvel {
namespace {

void ohne_zeichen(std::string& text, std::string_view zeichen, std::string_view dafuer) {
    for (auto ort = text.find(zeichen); ort != std::string::npos; ort = text.find(zeichen, ort + dafuer.size())) {
        text.replace(ort, zeichen.size(), dafuer);
    }
}

constexpr std::string_view trennstelle = "\u00AD";

}  // namespace

const lagebild& bild_von(lage was) {
    static constexpr std::array<lagebild, lagen_anzahl> bilder{{
        {lagefarbe::keine, lagezeichen::keines},
        {lagefarbe::achtung, lagezeichen::balken},
        {lagefarbe::strafe, lagezeichen::dreieck},
        {lagefarbe::strafe, lagezeichen::uhr},
        {lagefarbe::box, lagezeichen::zapfsaeule},
        {lagefarbe::leer, lagezeichen::leerer_tank},
        {lagefarbe::ziel, lagezeichen::zielflagge},
        {lagefarbe::aus, lagezeichen::kreuz},
    }};
    return bilder.at(static_cast<std::size_t>(was));
}

lagezeichen zeichen_von(spurhinweis was) {
    switch (was) {
        case spurhinweis::ungezaehlt:
            return lagezeichen::durchgestrichen;
        case spurhinweis::runde_wartet:
            return lagezeichen::uhr;
        case spurhinweis::keiner:
            break;
    }
    return lagezeichen::keines;
}

std::string zahl_von(const spurlage& l) {
    if (l.was == lage::box) {
        return std::to_string(l.zahl) + " l";
    }
    if (l.zahl <= 0) {
        return {};
    }
    return std::to_string(l.zahl) + (l.was == lage::ziel ? "." : " s");
}

std::string ohne_trennstellen(const std::string& wort) {
    std::string ganz = wort;
    ohne_zeichen(ganz, trennstelle, "");
    return ganz;
}

std::string in_zeilen(const std::string& wort) {
    std::string zeilen = wort;
    ohne_zeichen(zeilen, trennstelle, "-\n");
    ohne_zeichen(zeilen, " ", "\n");
    return zeilen;
}

}  // namespace tarvel
