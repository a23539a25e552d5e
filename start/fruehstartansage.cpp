#include "start/fruehstartansage.h"

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <utility>
#include <vector>

#include "core/platzhalter.h"
#include "core/text.h"
#include "race/fruehstartstrafe.h"

namespace tarvel {
namespace {

constexpr const char* fest = "\u00A0";  // a blank at which no line breaks

std::string unzertrennt(std::string text) {
    for (std::size_t ort = text.find(' '); ort != std::string::npos; ort = text.find(' ', ort)) {
        text.replace(ort, 1, fest);
    }
    return text;
}

/// So many characters each so that all of them find room. What short names leave is for the long ones.
std::size_t namenslaenge(std::vector<std::size_t> laengen) {
    constexpr std::size_t zusammen_hoechstens = 110;
    std::sort(laengen.begin(), laengen.end());
    std::size_t frei = zusammen_hoechstens;
    std::size_t anteil = frei;
    for (std::size_t i = 0; i < laengen.size(); ++i) {
        anteil = frei / (laengen.size() - i);
        frei -= std::min(laengen[i], anteil);
    }
    return anteil;
}

std::string name_gesagt(const std::string& name, std::size_t hoechstens) {
    return laenge(name) <= hoechstens ? name : std::string(gekuerzt(links(name, hoechstens - 1))) + "…";
}

/// What the action does to them; all get the same.
std::string folge_gesagt(const renn_umgebung& um) {
    const auto sekunden = [&]() -> std::string {
        const char komma = um.einst.trennzeichen[1].empty() ? ',' : um.einst.trennzeichen[1].front();
        using genau = std::chrono::duration<double>;
        const bool zeitstrafe = um.einst.fruehstart_option == fruehstart_aktion::zeitstrafe;
        return zahl_text(
            zeitstrafe ? genau(um.einst.fruehstart_schritte).count() : genau(fruehstart_sperrdauer(um.einst)).count(),
            komma);
    };
    return eingesetzt(um.bahn.wort.fruehstart_folgen.at(static_cast<std::size_t>(um.einst.fruehstart_option)),
                      {sekunden()});
}

}  // namespace

std::string fruehstart_gesagt(const renn_umgebung& um, const spuren<bool>& zu_frueh) {
    const auto mit_fahrer = [&](int spur) { return um.param.spur_aktiv[spur] && !um.param.fahrer_name[spur].empty(); };
    std::vector<std::size_t> laengen;
    for (const int spur : alle_spuren) {
        if (zu_frueh[spur] && mit_fahrer(spur)) {
            laengen.push_back(laenge(um.param.fahrer_name[spur]));
        }
    }
    const std::size_t hoechstens = namenslaenge(std::move(laengen));
    bool trifft_jemanden = um.einst.fruehstart_option == fruehstart_aktion::startabbruch;
    std::string text;
    for (const int spur : alle_spuren) {
        if (!zu_frueh[spur]) {
            continue;
        }
        text += text.empty() ? um.bahn.wort.fruehstart + ": " + unzertrennt(um.bahn.wort.spur) + fest : ", ";
        text += std::to_string(spur);
        if (mit_fahrer(spur)) {
            text += unzertrennt(" · " + name_gesagt(um.param.fahrer_name[spur], hoechstens));
        }
        trifft_jemanden = trifft_jemanden || um.param.spur_aktiv[spur];
    }
    return trifft_jemanden ? text + " " + unzertrennt("— " + folge_gesagt(um)) : text;
}

}  // namespace tarvel
