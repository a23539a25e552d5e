#include "programm/ergebnisvergleich.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <map>
#include <optional>
#include <utility>

#include "core/protokollordner.h"
#include "core/protokollzeile.h"
#include "core/text.h"
#include "programm/programm.h"
#include "programm/wertungsfolge.h"
#include "results/einzelrennen_datei.h"
#include "results/ergebnisdatei.h"
#include "results/wertung.h"

namespace tarvel {
namespace {

constexpr std::uintmax_t datei_bytes_max = std::uintmax_t{64} * 1024 * 1024;

std::optional<std::string> bytes_lesen(const std::filesystem::path& datei) {
    if (datei.empty() || !ist_lesbar(datei, datei_bytes_max)) {
        return std::nullopt;
    }
    std::ifstream strom(datei, std::ios::binary);
    return std::string{std::istreambuf_iterator<char>(strom), {}};
}

std::string_view zeile_von(std::string_view text, std::size_t beginn) {
    return text.substr(beginn, std::min(text.find('\r', beginn), text.size()) - beginn);
}

/// Follows a race as it is done again, and makes its results.
class verfolger {
public:
    verfolger(programm& p, std::string_view inhalt, const dateien& ablage)
        : p_(p), ablage_(ablage), folge_(p.rennen, p.wertung) {
        protokollleser leser(inhalt);
        while (const auto zeile = leser.zeile()) {
            const protokollsatz satz = zerlegen(*zeile);
            if (satz.ist_kopfzeile() && satz.rest.starts_with(ergebnis_vermerk)) {
                ++geschrieben_[std::string(satz.rest.substr(ergebnis_vermerk.size()))];
            }
        }
    }

    ergebnisvergleich laufen(std::string_view inhalt) {
        const std::optional<bool> ganz = p_.rennprotokoll.bereitlegen(inhalt);
        if (!ganz) {
            return aus_;
        }
        folge_.bei_kopfzeile = [this](std::string_view text) { kopfzeile(text); };
        using wie = rennprotokoll::ausgang;
        aus_.ausgang = !folge_.bis_zum_ende() ? wie::anders : *ganz ? wie::ganz : wie::beschaedigt;
        return std::move(aus_);
    }

private:
    void kopfzeile(std::string_view text) {
        if (!text.starts_with(ergebnis_vermerk)) {
            return;
        }
        const std::string name(text.substr(ergebnis_vermerk.size()));
        if (--geschrieben_[name] == 0) {  // else it was written anew later
            vergleichen(name);
        }
    }

    void vergleichen(const std::string& name) {
        const std::optional<std::string> datei = bytes_lesen(ablage_.pfad(name));
        if (!datei) {
            aus_.fehlen.push_back(name);
            return;
        }
        constexpr std::size_t zeilen_max = 1000000;
        constexpr std::size_t zeile_bytes_max = 200000;
        const std::vector<std::string> zeilen =
            ablage_.zeilen_lesen(name, zeilen_max, zeile_bytes_max).value_or(std::vector<std::string>{});
        p_.wertung.auswerten();
        if (datei_typ_erkennen(zeilen) == ergebnis_typ::tagesrennen) {
            im_tag_suchen(name, zeilen);
            return;
        }
        const auto gelesen = einzelrennen_lesen(zeilen);
        const gelesenes_rennen leer{{}, {}, p_.einst.trennzeichen};
        const gelesenes_rennen& worte = gelesen ? *gelesen : leer;  // the file is in its club's language
        std::string gerechnet;
        for (const std::string& zeile : einzelrennen_zeilen(p_.wertung.ergebnis(), worte.wort, worte.trennzeichen)) {
            gerechnet += nach_1252(zeile) + "\r\n";
        }
        if (*datei == gerechnet) {
            aus_.gleich.push_back(name);
        } else {
            aus_.anders.push_back(unterschied(name, *datei, gerechnet));
        }
    }

    /// The file of a day holds the lines of its other races as well.
    void im_tag_suchen(const std::string& name, const std::vector<std::string>& zeilen) {
        for (const std::string& zeile : tages_zeilen(p_.wertung.ergebnis(), p_.einst.trennzeichen)) {
            const std::string geschrieben = von_1252(nach_1252(zeile));
            if (std::find(zeilen.begin(), zeilen.end(), geschrieben) == zeilen.end()) {
                aus_.anders.push_back({name, 0, 0, "", geschrieben});
                return;
            }
        }
        aus_.gleich.push_back(name);
    }

    static ergebnisvergleich::unterschied unterschied(const std::string& name, std::string_view datei,
                                                      std::string_view gerechnet) {
        const auto ort = static_cast<std::size_t>(
            std::mismatch(datei.begin(), datei.end(), gerechnet.begin(), gerechnet.end()).first - datei.begin());
        const std::string_view davor = datei.substr(0, ort);
        const std::size_t zeilenanfang = davor.rfind('\n') == std::string_view::npos ? 0 : davor.rfind('\n') + 1;
        return {name, static_cast<int>(std::count(davor.begin(), davor.end(), '\n')) + 1,
                static_cast<int>(ort - zeilenanfang) + 1, von_1252(zeile_von(datei, zeilenanfang)),
                von_1252(zeile_von(gerechnet, zeilenanfang))};
    }

    programm& p_;
    const dateien& ablage_;
    wertungsfolge folge_;
    std::map<std::string, int> geschrieben_;  ///< how often each file is still to come
    ergebnisvergleich aus_;
};

}  // namespace

ergebnisvergleich rennen_vergleichen(programm& p, std::string_view inhalt, const dateien& ablage) {
    return verfolger(p, inhalt, ablage).laufen(inhalt);
}

}  // namespace tarvel
