#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "core/einstellungszugriff.h"

namespace tarvel {

/// The line that ends the settings in a file.
inline constexpr std::string_view einstellungs_ende = "{EOF}";

/// What is typed as the reader of a file will find it again: in one line, in the letters of a file, without blanks at
/// its ends, and never the mark that ends a file.
std::string als_zeile(std::string_view text);

/// The lines of a settings file by their number Z; line 0 is the header.
using einstellungs_zeilen = std::vector<std::string>;

enum class zeilen_urteil { gut, abgelehnt };

/// One line of the settings file. The file is positional: a value is found by its line number alone.
struct einstellungszeile {
    /// Tests the line, perhaps mends it. Empty for a line that is not tested.
    std::function<zeilen_urteil(einstellungs_zeilen&, int z)> pruefen = {};
    /// Takes the line over. Empty for a line that is not read.
    std::function<void(const einstellungs_ziel&, const std::string& zeile)> laden = {};
    /// The line as it is written.
    std::function<std::string(const einstellungs_ziel&)> schreiben = {};
    /// The line that gives the default.
    std::string standard = {};
    /// Gives the default instead where it is a word of the language.
    std::function<std::string(const texte&)> standard_aus_texten = {};
    /// Sets the default directly where taking the line over could not.
    std::function<void(const einstellungs_ziel&)> standard_setzen = {};
    /// A race can be driven with what a settings file may not say here: what was in force is then no damage.
    bool gilt_wie_es_galt = false;
};

namespace pruefung {

using art = std::function<zeilen_urteil(einstellungs_zeilen&, int)>;

/// Limits are inclusive.
art ablehnen_ausser(double min, double max);
art reparieren_ausser(double min, double max, std::string_view ersatz);
art reparieren_wenn_keins(std::vector<std::string> erlaubt, std::string_view ersatz);
/// Mends a line that is no part of `worte`, or empty.
art reparieren_wenn_nicht_in(std::string_view worte, std::string_view ersatz);
/// Exactly one of these texts.
art nur_eines_von(std::vector<std::string> erlaubt);
/// Only the two words.
art nur_wahrheitswert();
art nur_text(std::string_view text);

}  // namespace pruefung

/// How a truth value is taken over.
enum class wahr_laden {
    beide,          ///< only the two words change it
    nur_wahr,       ///< any other text gives false
    nicht_falsch,   ///< any other text gives true
    falsch_loescht  ///< "Falsch" clears it, anything else leaves it
};

/// When a number is taken over: always, or only within these limits.
struct zahl_laden {
    double min = 0;
    double max = -1;
    bool immer() const { return max < min; }
};

namespace zeile {

einstellungszeile titel(std::string_view text, bool geprueft);
einstellungszeile leer();
einstellungszeile frei();
einstellungszeile ganzzahl(const zahlzugriff& ziel, int standard, pruefung::art pruefen = {}, zahl_laden laden = {});
einstellungszeile bruch(const zugriff<double>& ziel, std::string_view standard, pruefung::art pruefen);
/// A number of an event; one that does not exist counts as 0, no function.
einstellungszeile ereignis(const zugriff<int>& ziel, int standard);
/// `mit_blank` tells whether the number is written with its blanks.
einstellungszeile farbwert(const zugriff<farbe>& ziel, farbe standard, bool mit_blank);
einstellungszeile wahrheit(const zugriff<bool>& ziel, bool standard, wahr_laden laden, bool geprueft);
/// Texts shorter than `mindestens` characters leave the value.
einstellungszeile text(const zugriff<std::string>& ziel, std::string_view standard, std::size_t mindestens = 0,
                       pruefung::art pruefen = {});
/// What is typed on the main window; a number's comma is written as a point.
einstellungszeile eingabe(const zugriff<std::string>& ziel, std::string_view standard, pruefung::art pruefen = {});
einstellungszeile zahleneingabe(const zugriff<std::string>& ziel, std::string_view standard,
                                pruefung::art pruefen = {});
einstellungszeile kasten(const zugriff<bool>& ziel, bool standard, bool mit_blank, pruefung::art pruefen);

}  // namespace zeile
}  // namespace tarvel
