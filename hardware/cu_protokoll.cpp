#include "hardware/cu_protokoll.h"

#include <algorithm>

namespace tarvel::cu {
namespace {

constexpr std::size_t laenge_zaehlerbox = 4;
constexpr std::size_t laenge_ohne_sensor = 12;
constexpr std::size_t laenge_mit_sensor = 13;
constexpr std::array<std::size_t, 2> laengen_status{19, 17};
constexpr std::size_t stempel_zeichen = 8;

/// 0 to 15, or -1.
int ziffer(char zeichen) {
    return zeichen >= '0' && zeichen <= '?' ? zeichen - '0' : -1;
}

bool nur_ziffern(std::string_view text) {
    return std::all_of(text.begin(), text.end(), [](char zeichen) { return ziffer(zeichen) >= 0; });
}

bool ist_status_laenge(std::size_t laenge) {
    return std::count(laengen_status.begin(), laengen_status.end(), laenge) > 0;
}

/// In front of the end, over all between the first character and its own place.
bool summe_stimmt(std::string_view satz) {
    unsigned summe = 0;
    for (const char zeichen : satz.substr(1, satz.size() - 3)) {
        summe += static_cast<unsigned char>(zeichen) & 15U;
    }
    return satz[satz.size() - 2] == static_cast<char>('0' + (summe & 15U));
}

/// `satz` is 12 or 13 characters long.
std::optional<ueberfahrt> ueberfahrt_lesen(std::string_view satz) {
    const int fahrzeug = ziffer(satz[1]);
    const int sensor = satz.size() == laenge_mit_sensor ? ziffer(satz[10]) : 1;
    const auto stempel = stempel_lesen(satz.substr(2, stempel_zeichen));
    if (fahrzeug < 1 || fahrzeug > fahrzeuge_max || sensor < 1 || sensor > sensoren_max || !stempel) {
        return {};
    }
    return ueberfahrt{fahrzeug, sensor, *stempel, summe_stimmt(satz)};
}

/// `satz` is 17 or 19 characters long; the positions that mean nothing here may hold anything.
std::optional<status> status_lesen(std::string_view satz) {
    if (!nur_ziffern(satz.substr(2, spuren_max)) || !nur_ziffern(satz.substr(10, 4))) {
        return {};
    }
    status neu;
    for (const int spur : alle_spuren) {
        neu.tank[spur] = ziffer(satz[static_cast<std::size_t>(spur) + 1]);
    }
    neu.startzustand = satz[10] == '1';
    neu.tankmodus = ziffer(satz[11]);
    neu.boxenbits = static_cast<std::uint8_t>(16 * ziffer(satz[13]) + ziffer(satz[12]));
    return neu;
}

template <class T>
meldung als_meldung(const std::optional<T>& gelesen) {
    return gelesen ? meldung(*gelesen) : meldung();
}

/// The passage that a text ends with.
meldung ueberfahrt_am_ende(std::string_view satz) {
    for (const std::size_t laenge : {laenge_mit_sensor, laenge_ohne_sensor}) {
        if (satz.size() < laenge) {
            continue;
        }
        const std::string_view ende = satz.substr(satz.size() - laenge);
        if (ende.front() == '?') {
            if (const auto gelesen = ueberfahrt_lesen(ende)) {
                return *gelesen;
            }
        }
    }
    return {};
}

char anzeigeziffer(int wert) {
    return static_cast<char>(wert < 10 ? '0' + wert : 64 + wert);
}

std::string mit_pruefzeichen(std::string anfang) {
    anfang += '1';
    anfang += pruefzeichen(std::string_view(anfang).substr(anfang.size() - 3));
    return anfang + satzende;
}

}  // namespace

std::string satz_abtrennen(std::string& empfang) {
    std::size_t anfang = 0;
    while (anfang < empfang.size()) {
        if (empfang.compare(anfang, 2, "?#") == 0) {
            anfang += 2;
        } else if (empfang[anfang] == '#') {
            ++anfang;
        } else {
            break;
        }
    }
    const std::size_t ende = empfang.find(satzende, anfang);
    if (ende == std::string::npos) {
        return {};
    }
    std::string satz = empfang.substr(anfang, ende + 1 - anfang);
    empfang.erase(0, ende + 1);
    return satz;
}

meldung satz_lesen(std::string_view satz) {
    if (satz.size() < laenge_zaehlerbox || satz.back() != satzende) {
        return {};
    }
    if (satz.front() == '?' && satz.size() == laenge_zaehlerbox) {
        return rundenzaehler{satz[1] == '0'};
    }
    // A status has no car in its second place: else it may be a passage with the rest of another one in front.
    const auto status_moeglich = [](std::string_view text) {
        return text.front() == '?' && (ziffer(text[1]) < 1 || ziffer(text[1]) > fahrzeuge_max);
    };
    for (const std::size_t laenge : laengen_status) {
        if (satz.size() >= laenge) {
            const std::string_view ende = satz.substr(satz.size() - laenge);
            const bool hinter_rauschen = satz.size() > laenge;
            if (status_moeglich(ende) && (!hinter_rauschen || nur_ziffern(ende.substr(1, laenge - 2)))) {
                if (const auto gelesen = status_lesen(ende)) {
                    return *gelesen;
                }
            }
        }
    }
    if (const meldung gelesen = ueberfahrt_am_ende(satz); gelesen.index() != 0) {
        return gelesen;
    }
    return satz.front() == '?' && ist_status_laenge(satz.size()) ? als_meldung(status_lesen(satz)) : meldung();
}

bool summenpruefung::annehmen(const ueberfahrt& neu) {
    constexpr int gelernt_nach = 10;
    constexpr int verlernt_nach = 30;  // no line damages so many in a row: it is another unit
    einig_ = neu.summe ? einig_ + 1 : 0;
    uneinig_ = neu.summe ? 0 : uneinig_ + 1;
    mit_summe_ = (mit_summe_ || einig_ >= gelernt_nach) && uneinig_ < verlernt_nach;
    return neu.summe || !mit_summe_;
}

std::optional<std::uint32_t> stempel_lesen(std::string_view zeichen) {
    if (zeichen.size() != stempel_zeichen || !nur_ziffern(zeichen)) {
        return {};
    }
    std::uint32_t stempel = 0;
    for (std::size_t paar = 0; paar < stempel_zeichen; paar += 2) {  // of each byte the low digit comes first
        stempel = stempel << 8 | static_cast<std::uint32_t>(16 * ziffer(zeichen[paar + 1]) + ziffer(zeichen[paar]));
    }
    return stempel;
}

char pruefzeichen(std::string_view drei) {
    int summe = 1;
    for (const char zeichen : drei) {
        summe += static_cast<unsigned char>(zeichen) % 10;
    }
    return static_cast<char>((summe % 10) | 0x30);
}

std::string reglerbefehl(int befehl, int regler, int wert) {
    const std::string ziffern{static_cast<char>('0' + befehl), static_cast<char>('0' + 2 * (regler - 1))};
    const std::string wertziffern{static_cast<char>('0' + wert / 10), static_cast<char>('0' + wert % 10)};
    return "J" + ziffern + wertziffern + "1" + pruefzeichen(ziffern + "1") + satzende;
}

std::array<std::string, 2> anzeigebefehle(int wert) {
    constexpr int anzeige_max = 250;
    const int gezeigt = wert > anzeige_max ? wert % 100 : std::max(wert, 0);
    const std::string halb{anzeigeziffer(gezeigt / 16), anzeigeziffer(gezeigt % 16)};
    return {mit_pruefzeichen("J1?" + halb), mit_pruefzeichen("J2?" + halb)};
}

std::array<std::string, 2> platzbefehle(int spur, int platz) {
    const auto befehl = [](int stelle, int wert) {
        return mit_pruefzeichen(std::string("J6") + static_cast<char>('0' + stelle) + static_cast<char>('0' + wert));
    };
    const int stelle = 2 * (spur - 1);  // each car has two
    return {befehl(stelle, platz), befehl(stelle + 1, spur)};
}

}  // namespace tarvel::cu
