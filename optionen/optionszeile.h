#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "core/einstellungszugriff.h"
#include "core/sprache.h"
#include "core/steuerelemente.h"

namespace tarvel {

/// A sound file, with the command that plays it.
struct soundfeld {
    auswahl datei;
    befehl abspielen;
};

/// What is said of a value that was taken and that a settings file does not give back as it is.
struct optionswarnung {
    std::string deutsch;
    std::string text;
    std::function<bool(const einstellungs_ziel&)> wenn;
};

/// One value or command in the options window: caption, control, unit, and the ways between the control and the
/// settings.
struct optionszeile {
    /// Shows a message of a value that was not taken.
    using melder = std::function<void(const std::string&)>;

    std::string name;  ///< of the control
    bezeichnung beschriftung;
    std::variant<std::monostate, haken, feld, auswahl, farbfeld, soundfeld, befehl> element;
    bezeichnung einheit;
    std::vector<std::string> eintraege;  ///< of a choice, in the window's language
    std::string grenzen_meldung;
    std::vector<optionswarnung> warnungen;
    bool nur_zahlen = false;  ///< a field whose text would pass for 0 without being a number
    bool auch_leer = false;   ///< which may stay empty all the same

    /// Settings to control.
    std::function<void(const einstellungs_ziel&)> zeigen;
    /// Control to settings.
    std::function<void(const einstellungs_ziel&, const melder&)> uebernehmen;
    /// The row's texts in the order of the language file; its warnings stand at the end of all rows.
    std::function<void(sprachliste&)> texte_nennen;
};

using optionszeile_zeiger = std::unique_ptr<optionszeile>;

/// What the number in a field may be, and what is done with any other one.
struct zahl_regel {
    double min = 0;
    double max = 0;
    /// With a message the old value stays, and the message says so.
    std::string_view meldung = {};
    /// Without one the number silently becomes this one below or above the limits.
    double darunter = 0;
    double darueber = 0;
};

/// Holds the number silently within the limits.
zahl_regel begrenzt(double min, double max);

/// Name of the control, caption and unit.
struct beschriftet {
    std::string name;
    std::string text;
    std::string einheit = {};
};

namespace option {

optionszeile_zeiger kasten(const beschriftet& b, const zugriff<bool>& ziel);
/// The field shows the value divided by `faktor`.
optionszeile_zeiger zahl(const beschriftet& b, const zahlzugriff& ziel, const zahl_regel& regel, int faktor = 1);
/// A text of fewer characters than `mindestens` leaves the old one.
optionszeile_zeiger text(const beschriftet& b, const zugriff<std::string>& ziel, int laenge_max,
                         std::size_t mindestens = 0);
/// A length that is kept as text, with a decimal point.
optionszeile_zeiger meter(const beschriftet& b, const zugriff<std::string>& ziel);
/// The first entry stands for the value `erster`, each further one for the next number.
optionszeile_zeiger wahl(const beschriftet& b, const zahlzugriff& ziel, int erster,
                         const std::vector<std::string_view>& eintraege);
/// The first entry stands for true.
optionszeile_zeiger entweder(const beschriftet& b, const zugriff<bool>& ziel, std::string_view wahr,
                             std::string_view falsch);
/// Words that no language changes; the caller may fill in more of them.
optionszeile_zeiger wortliste(const beschriftet& b, const zugriff<std::string>& ziel,
                              const std::vector<std::string>& worte);
/// A choice among the events.
optionszeile_zeiger ereignis(const beschriftet& b, const zugriff<int>& ziel);
optionszeile_zeiger farbwahl(const beschriftet& b, const zugriff<farbe>& ziel);
/// An emptied field counts as `leer`.
optionszeile_zeiger sound(const beschriftet& b, const zugriff<std::string>& ziel, std::string_view leer);
/// A row whose ways the caller fills.
optionszeile_zeiger leeres_feld(const beschriftet& b, int laenge_max);
optionszeile_zeiger leerer_kasten(const beschriftet& b);
/// A command among the values. What it does the caller fills.
optionszeile_zeiger aktion(const beschriftet& b);
/// A caption alone, about the rows below it.
optionszeile_zeiger hinweis(const beschriftet& b);

/// The row says so whenever it has taken over a value of that kind.
optionszeile_zeiger mit_warnung(optionszeile_zeiger zeile, std::string_view text,
                                std::function<bool(const einstellungs_ziel&)> wenn);

/// The number in the field, with comma or point; 0 for none.
double zahl_im_feld(const steuerelement& element);
std::string zahl_als_text(double zahl);

}  // namespace option
}  // namespace tarvel
