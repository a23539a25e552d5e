#include "core/einstellungszeile.h"

#include <algorithm>
#include <limits>
#include <utility>

#include "core/text.h"

namespace tarvel {
namespace {

constexpr std::string_view wahr = "Wahr";
constexpr std::string_view falsch = "Falsch";
constexpr int ereignis_max = 59;
constexpr std::int64_t farbe_max = 0xFFFFFF;

std::string wort(bool wert) {
    return std::string(wert ? wahr : falsch);
}

/// A number has one blank in front, the place of its sign, and one behind.
std::string mit_blanks(const std::string& zahl) {
    return (zahl.starts_with('-') ? "" : " ") + zahl + " ";
}

int ganz(const std::string& zeile) {
    constexpr int grenze = std::numeric_limits<int>::max();
    return static_cast<int>(ganzzahl_lesen(zeile, -grenze, grenze));
}

bool ausser(const std::string& zeile, double min, double max) {
    const double zahl = zahl_lesen(zeile);
    return zahl < min || zahl > max;
}

std::string& an(einstellungs_zeilen& zeilen, int z) {
    return zeilen.at(static_cast<std::size_t>(z));
}

zeilen_urteil ablehnen_wenn(bool schlecht) {
    return schlecht ? zeilen_urteil::abgelehnt : zeilen_urteil::gut;
}

}  // namespace

std::string als_zeile(std::string_view text) {
    std::string zeile = von_1252(nach_1252(text));
    for (char& zeichen : zeile) {
        zeichen = zeichen == '\r' || zeichen == '\n' ? ' ' : zeichen;
    }
    zeile = gekuerzt(zeile);
    return zeile == einstellungs_ende ? std::string() : zeile;
}

namespace pruefung {

art ablehnen_ausser(double min, double max) {
    return [min, max](einstellungs_zeilen& zeilen, int z) { return ablehnen_wenn(ausser(an(zeilen, z), min, max)); };
}

art reparieren_ausser(double min, double max, std::string_view ersatz) {
    return [min, max, neu = std::string(ersatz)](einstellungs_zeilen& zeilen, int z) {
        if (ausser(an(zeilen, z), min, max)) {
            an(zeilen, z) = neu;
        }
        return zeilen_urteil::gut;
    };
}

art reparieren_wenn_keins(std::vector<std::string> erlaubt, std::string_view ersatz) {
    return [erlaubt = std::move(erlaubt), neu = std::string(ersatz)](einstellungs_zeilen& zeilen, int z) {
        if (std::find(erlaubt.begin(), erlaubt.end(), an(zeilen, z)) == erlaubt.end()) {
            an(zeilen, z) = neu;
        }
        return zeilen_urteil::gut;
    };
}

art reparieren_wenn_nicht_in(std::string_view worte, std::string_view ersatz) {
    return [worte = std::string(worte), neu = std::string(ersatz)](einstellungs_zeilen& zeilen, int z) {
        if (an(zeilen, z).empty() || worte.find(an(zeilen, z)) == std::string::npos) {
            an(zeilen, z) = neu;
        }
        return zeilen_urteil::gut;
    };
}

art nur_eines_von(std::vector<std::string> erlaubt) {
    return [erlaubt = std::move(erlaubt)](einstellungs_zeilen& zeilen, int z) {
        return ablehnen_wenn(std::find(erlaubt.begin(), erlaubt.end(), an(zeilen, z)) == erlaubt.end());
    };
}

art nur_wahrheitswert() {
    return nur_eines_von({std::string(wahr), std::string(falsch)});
}

art nur_text(std::string_view text) {
    return
        [text = std::string(text)](einstellungs_zeilen& zeilen, int z) { return ablehnen_wenn(an(zeilen, z) != text); };
}

}  // namespace pruefung

namespace zeile {
namespace {

einstellungszeile fest(std::string_view inhalt) {
    return {{}, {}, [text = std::string(inhalt)](const einstellungs_ziel&) { return text; }, std::string(inhalt)};
}

}  // namespace

einstellungszeile titel(std::string_view text, bool geprueft) {
    einstellungszeile neu = fest(text);
    if (geprueft) {
        neu.pruefen = pruefung::nur_text(text);
    }
    return neu;
}

einstellungszeile leer() {
    return fest("");
}

einstellungszeile frei() {
    return fest("frei");
}

einstellungszeile ganzzahl(const zahlzugriff& ziel, int standard, pruefung::art pruefen, zahl_laden laden) {
    return {std::move(pruefen),
            [ziel, laden](const einstellungs_ziel& e, const std::string& zeile) {
                const bool leer_oder_ausser = zeile.empty() || ausser(zeile, laden.min, laden.max);
                if (laden.immer() || !leer_oder_ausser) {
                    ziel(e, ganz(zeile));
                }
            },
            [ziel](const einstellungs_ziel& e) { return mit_blanks(std::to_string(ziel(e))); },
            std::to_string(standard)};
}

einstellungszeile bruch(const zugriff<double>& ziel, std::string_view standard, pruefung::art pruefen) {
    return {std::move(pruefen),
            [ziel](const einstellungs_ziel& e, const std::string& zeile) { ziel(e) = zahl_lesen(zeile); },
            [ziel](const einstellungs_ziel& e) { return mit_blanks(zahl_text(ziel(e), ',')); }, std::string(standard)};
}

einstellungszeile ereignis(const zugriff<int>& ziel, int standard) {
    einstellungszeile neu = ganzzahl(ziel, standard);
    neu.laden = [ziel](const einstellungs_ziel& e, const std::string& zeile) {
        ziel(e) = ausser(zeile, 0, ereignis_max) ? 0 : ganz(zeile);
    };
    return neu;
}

einstellungszeile farbwert(const zugriff<farbe>& ziel, farbe standard, bool mit_blank) {
    return {{},
            [ziel](const einstellungs_ziel& e, const std::string& zeile) {
                ziel(e) = static_cast<farbe>(ganzzahl_lesen(zeile, 0, farbe_max));
            },
            [ziel, mit_blank](const einstellungs_ziel& e) {
                const std::string zahl = std::to_string(ziel(e));
                return mit_blank ? mit_blanks(zahl) : zahl;
            },
            std::to_string(standard)};
}

einstellungszeile wahrheit(const zugriff<bool>& ziel, bool standard, wahr_laden laden, bool geprueft) {
    einstellungszeile neu{geprueft ? pruefung::nur_wahrheitswert() : pruefung::art(),
                          [ziel, laden](const einstellungs_ziel& e, const std::string& zeile) {
                              const bool ist_wahr = zeile == wahr;
                              const bool ist_falsch = zeile == falsch;
                              const bool aendert = laden == wahr_laden::nur_wahr || laden == wahr_laden::nicht_falsch ||
                                                   ist_falsch || (ist_wahr && laden == wahr_laden::beide);
                              if (aendert) {
                                  ziel(e) = laden == wahr_laden::nicht_falsch ? !ist_falsch : ist_wahr;
                              }
                          },
                          [ziel](const einstellungs_ziel& e) { return wort(ziel(e)); }, wort(standard)};
    neu.standard_setzen = [ziel, standard](const einstellungs_ziel& e) { ziel(e) = standard; };
    return neu;
}

einstellungszeile text(const zugriff<std::string>& ziel, std::string_view standard, std::size_t mindestens,
                       pruefung::art pruefen) {
    einstellungszeile neu{std::move(pruefen),
                          [ziel, mindestens](const einstellungs_ziel& e, const std::string& zeile) {
                              if (laenge(zeile) >= mindestens) {
                                  ziel(e) = zeile;
                              }
                          },
                          [ziel](const einstellungs_ziel& e) { return als_zeile(ziel(e)); }, std::string(standard)};
    neu.standard_setzen = [ziel, text = std::string(standard)](const einstellungs_ziel& e) { ziel(e) = text; };
    return neu;
}

einstellungszeile eingabe(const zugriff<std::string>& ziel, std::string_view standard, pruefung::art pruefen) {
    einstellungszeile neu{std::move(pruefen),
                          [ziel](const einstellungs_ziel& e, const std::string& zeile) { ziel(e) = zeile; },
                          [ziel](const einstellungs_ziel& e) { return als_zeile(ziel(e)); }, std::string(standard)};
    neu.gilt_wie_es_galt = true;  // anything can be typed into a field
    return neu;
}

einstellungszeile zahleneingabe(const zugriff<std::string>& ziel, std::string_view standard, pruefung::art pruefen) {
    einstellungszeile neu = eingabe(ziel, standard, std::move(pruefen));
    neu.schreiben = [davor = neu.schreiben](const einstellungs_ziel& e) {
        std::string zeile = davor(e);
        werte_pruefen2(zeile);
        return zeile;
    };
    return neu;
}

einstellungszeile kasten(const zugriff<bool>& ziel, bool standard, bool mit_blank, pruefung::art pruefen) {
    return {std::move(pruefen),
            [ziel](const einstellungs_ziel& e, const std::string& zeile) { ziel(e) = ganz(zeile) != 0; },
            [ziel, mit_blank](const einstellungs_ziel& e) {
                const std::string zahl = ziel(e) ? "1" : "0";
                return mit_blank ? mit_blanks(zahl) : zahl;
            },
            standard ? "1" : "0"};
}

}  // namespace zeile
}  // namespace tarvel
