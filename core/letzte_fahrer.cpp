#include "core/letzte_fahrer.h"

#include <algorithm>
#include <utility>

#include "core/text.h"

namespace tarvel {
namespace {

constexpr std::string_view fahrergedaechtnis = "tvk_fahrer.ini";
constexpr std::size_t vorschlaege_max = 12;

/// As far as letters of Western Europe have two cases.
std::string kleingeschrieben(std::string_view text) {
    std::string klein(text);
    for (std::size_t i = 0; i < klein.size(); ++i) {
        const auto byte = static_cast<unsigned char>(klein[i]);
        const bool umlaut = i > 0 && klein[i - 1] == '\xC3' && byte >= 0x80 && byte <= 0x9E && byte != 0x97;
        if (umlaut || (byte >= 'A' && byte <= 'Z')) {
            klein[i] = static_cast<char>(byte + 0x20);
        }
    }
    return klein;
}

bool spaeteres_wort_beginnt(std::string_view name, std::string_view anfang) {
    for (std::size_t i = name.find(anfang, 1); i != std::string_view::npos; i = name.find(anfang, i + 1)) {
        if (name[i - 1] == ' ' || name[i - 1] == '-') {
            return true;
        }
    }
    return false;
}

bool steht_in(const std::vector<std::string>& namen, const std::string& name) {
    return std::find(namen.begin(), namen.end(), name) != namen.end();
}

}  // namespace

void letzte_fahrer::laden(const dateien& ablage) {
    namen_.clear();
    for (const std::string& zeile : ablage.zeilen_lesen(fahrergedaechtnis, anzahl_max).value_or(namen_)) {
        std::string name(links(gekuerzt(zeile), namensliste::name_laenge_max));
        if (!name.empty() && !steht_in(namen_, name)) {
            namen_.push_back(std::move(name));
        }
    }
}

void letzte_fahrer::gefahren(const dateien& ablage, const std::vector<std::string>& fahrer) {
    std::vector<std::string> neu;
    for (const std::vector<std::string>* wer : {&fahrer, &std::as_const(namen_)}) {
        for (const std::string& name : *wer) {
            if (!name.empty() && !steht_in(neu, name) && neu.size() < anzahl_max) {
                neu.push_back(name);
            }
        }
    }
    if (neu != namen_) {
        namen_ = std::move(neu);
        ablage.zeilen_schreiben(fahrergedaechtnis, namen_);
    }
}

std::vector<std::string> letzte_fahrer::mit_liste(const namensliste& liste) const {
    std::vector<std::string> alle = namen_;
    for (const listeneintrag& eintrag : liste.eintraege()) {
        if (!steht_in(alle, eintrag.name)) {
            alle.push_back(eintrag.name);
        }
    }
    return alle;
}

std::vector<std::string> namensvorschlaege(std::string_view getippt, std::span<const std::string> namen) {
    const std::string anfang = kleingeschrieben(gekuerzt(getippt));
    std::vector<std::string> vorschlaege;
    if (anfang.empty()) {
        return vorschlaege;
    }
    for (const bool vorn : {true, false}) {
        for (const std::string& name : namen) {
            const std::string klein = kleingeschrieben(name);
            const bool passt = klein.starts_with(anfang);
            if (passt == vorn && (passt || spaeteres_wort_beginnt(klein, anfang))) {
                vorschlaege.push_back(name);
            }
        }
    }
    vorschlaege.resize(std::min(vorschlaege.size(), vorschlaege_max));
    if (vorschlaege.size() == 1 && vorschlaege.front() == getippt) {
        vorschlaege.clear();
    }
    return vorschlaege;
}

}  // namespace tarvel
