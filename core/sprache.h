#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "core/dateien.h"
#include "core/steuerelemente.h"

/// Every text that the program shows has a built-in German wording; a file of the folder `language` replaces it. The
/// files have no keys: a text is known by its place.
namespace tarvel {

/// The texts of one window or group, in the order of their language file. The one list puts the built-in texts in
/// place, reads the file over them, and is what the German file is written from.
class sprachliste {
public:
    enum class form {
        zeilen,  ///< one text a line, as it stands
        felder   ///< fields separated by commas or line ends, with or without double quotes
    };
    using nehmer = std::function<void(const std::string&)>;

    explicit sprachliste(std::string_view datei, form f = form::felder) : datei_(datei), form_(f) {}

    /// A text that readers drop.
    sprachliste& ueberschrift(std::string_view inhalt) { return text(inhalt, nehmer{}); }
    sprachliste& text(std::string_view deutsch, nehmer ziel);
    sprachliste& text(std::string_view deutsch, std::string& ziel);
    sprachliste& text(std::string_view deutsch, steuerelement& ziel);
    /// The text of each of them.
    template <class Reihe>
    sprachliste& fuer_alle(std::string_view deutsch, Reihe& ziele) {
        return text(deutsch, [&ziele](const std::string& neu) {
            for (auto& ziel : ziele) {
                ziel.text(neu);
            }
        });
    }
    sprachliste& tipp(std::string_view deutsch, steuerelement& ziel);
    template <class Reihe>
    sprachliste& tipp_fuer_alle(std::string_view deutsch, Reihe& ziele) {
        return text(deutsch, [&ziele](const std::string& neu) {
            for (auto& ziel : ziele) {
                ziel.tipp(neu);
            }
        });
    }
    sprachliste& ansage(std::string_view deutsch, steuerelement& ziel);

    void deutsch_setzen() const { setzen({}); }
    /// Built-in texts, and over them the file as far as it goes. A missing or short file is no error.
    void anwenden(const dateien& ablage) const;

    const std::string& datei() const { return datei_; }
    std::size_t anzahl() const { return eintraege_.size(); }
    /// The lines of the German file.
    std::vector<std::string> deutsche_datei() const;

private:
    struct eintrag {
        std::string deutsch;
        nehmer ziel;
    };

    void setzen(const std::vector<std::string>& gelesen) const;

    std::string datei_;
    form form_;
    std::vector<eintrag> eintraege_;
};

}  // namespace tarvel
