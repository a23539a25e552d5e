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
#include "results/einzelrennen_datei.h"
#include "results/wertung.h"

namespace tarvel {
namespace {

constexpr std::uintmax_t datei_bytes_max = std::uintmax_t{64} * 1024 * 1024;
constexpr std::string_view korrektur_vermerk = "Korrektur";

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
    verfolger(programm& p, std::string_view inhalt, const dateien& ablage) : p_(p), ablage_(ablage) {
        protokollleser leser(inhalt);
        while (const auto zeile = leser.zeile()) {
            std::string_view rest = *zeile;
            const std::string_view wort = naechstes_wort(rest);
            if (wort == "#" && rest.starts_with(ergebnis_vermerk)) {
                ++geschrieben_[std::string(rest.substr(ergebnis_vermerk.size()))];
            } else if (wort != "#" && !wort.starts_with('.')) {
                taten_.push_back(*zeile);
            }
        }
    }

    ergebnisvergleich laufen(std::string_view inhalt) {
        const std::optional<bool> ganz = p_.rennprotokoll.bereitlegen(inhalt);
        if (!ganz) {
            return aus_;
        }
        mitschrift& protokoll = p_.rennen.protokoll;
        protokoll.bei_kopfzeile = [this](std::string_view text) { kopfzeile(text); };
        for (bool weiter = true; weiter; ++tat_) {
            protokoll.naechste_zeit();  // tells what stands before the next doing
            const std::optional<spuren<int>> umsetzen = vor_der_tat();
            weiter = protokoll.weiter();
            if (umsetzen) {
                p_.wertung.fahrer_umsetzen(*umsetzen);
            }
        }
        protokoll.bei_kopfzeile = nullptr;
        using wie = rennprotokoll::ausgang;
        aus_.ausgang = protokoll.abweichung() ? wie::anders : *ganz ? wie::ganz : wie::beschaedigt;
        return std::move(aus_);
    }

private:
    /// The next doing takes the race on from its result: what that is worth is settled before.
    std::optional<spuren<int>> vor_der_tat() {
        if (tat_ >= taten_.size()) {
            return std::nullopt;
        }
        std::string_view rest = taten_[tat_];
        const std::string_view wort = naechstes_wort(rest);
        if (wort != "umsetzen" && wort != "fortsetzen") {
            return std::nullopt;
        }
        auswerten();
        if (wort == "fortsetzen") {
            return std::nullopt;
        }
        naechstes_wort(rest);  // the time
        spuren<int> herkunft;
        for (const int spur : alle_spuren) {
            herkunft[spur] =
                static_cast<int>(std::clamp<std::int64_t>(als_zahl(naechstes_wort(rest)).value_or(0), 0, spuren_max));
        }
        return herkunft;
    }

    void auswerten() {
        if (!p_.rennen.zustand.fortgesetzt) {
            p_.wertung.zuruecksetzen();
        }
        p_.wertung.auswerten();
    }

    void kopfzeile(std::string_view text) {
        korrigiert_ = korrigiert_ || text.starts_with(korrektur_vermerk);
        if (!text.starts_with(ergebnis_vermerk)) {
            return;
        }
        const std::string name(text.substr(ergebnis_vermerk.size()));
        if (--geschrieben_[name] > 0) {
            return;  // it was written anew later
        }
        if (korrigiert_) {
            aus_.korrigierte.push_back(name);
        } else {
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
        const auto gelesen = einzelrennen_lesen(
            ablage_.zeilen_lesen(name, zeilen_max, zeile_bytes_max).value_or(std::vector<std::string>{}));
        auswerten();
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
    std::vector<std::string_view> taten_;
    std::map<std::string, int> geschrieben_;  ///< how often each file is still to come
    std::size_t tat_ = 0;
    bool korrigiert_ = false;
    ergebnisvergleich aus_;
};

}  // namespace

ergebnisvergleich rennen_vergleichen(programm& p, std::string_view inhalt, const dateien& ablage) {
    return verfolger(p, inhalt, ablage).laufen(inhalt);
}

}  // namespace tarvel
