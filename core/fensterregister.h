#pragma once

#include <array>
#include <initializer_list>
#include <optional>
#include <vector>

#include "core/erscheinung.h"
#include "core/fensternamen.h"
#include "core/sprache.h"
#include "platform/schnittstelle.h"

namespace tarvel {

class fensterlogik;

enum class anzeige_art {
    frei,
    modal  ///< modal for the operator: other windows take no input meanwhile. The code goes on at once.
};

/// The drawing side of the register.
class fensteranzeige : public schnittstelle {
public:
    /// Shows the window, or brings it to the front if it is on the screen.
    virtual void zeigen(fenstername name, anzeige_art art) = 0;
    virtual void verbergen(fenstername name) = 0;
    /// A box or a dialog of the desktop waits for somebody.
    virtual bool fragt() const { return false; }
    /// In this language, as far as the desktop's own windows speak it, and light or dark.
    virtual void erscheinen(const erscheinung& /*wie*/) {}
};

/// All windows of the program. A window's logic opens and closes other windows through it, and so need not know the
/// parts above itself. Windows that are not entered are not there: showing one does nothing.
class fensterregister {
public:
    void anmelden(fensterlogik& logik) { an(logik).logik = &logik; }
    void abmelden(const fensterlogik& logik) { an(logik) = {}; }
    void anzeigen_auf(fensteranzeige* anzeige) { anzeige_ = anzeige; }

    bool gibt_es(fenstername name) const { return an(name).logik != nullptr; }
    /// Loads the window without showing it, if it is not loaded.
    void laden(fenstername name);
    void zeigen(fenstername name, anzeige_art art = anzeige_art::frei);
    /// Takes the window off the screen; it stays loaded.
    void verbergen(fenstername name);
    void entladen(fenstername name);
    /// The handlers alone: a window that is on the screen begins anew without leaving it.
    void neu_laden(fenstername name);
    /// Loaded and on the screen.
    bool ist_offen(fenstername name) const { return an(name).offen; }
    /// Somebody is at work: a modal window is open that is none of these, or a box, or a dialog of the desktop.
    bool beschaeftigt(std::initializer_list<fenstername> ausser) const;
    void sprache_gewechselt();
    /// Empty places and drivers have names of the language: during an evening they are all of one.
    bool sprache_wechselbar() const;
    void erscheinen(const erscheinung& wie) {
        if (anzeige_ != nullptr) {
            anzeige_->erscheinen(wie);
        }
    }

    /// What happens from here on has happened before: of the windows only these load, and nothing shows. The others are
    /// kept count of.
    void stillhalten(std::vector<fenstername> mitspieler);
    /// Shows what has become of them. The others are what they were before.
    void aufleben();

    /// Unloads all windows, in the order of their names' list.
    void alle_entladen();
    /// The language files of all windows. Of two windows with the same file one reads only its beginning: it is named
    /// once, whole.
    std::vector<sprachliste> sprachdateien() const;

private:
    struct fenster {
        fensterlogik* logik = nullptr;
        bool geladen = false;
        bool offen = false;
        anzeige_art art = anzeige_art::frei;
    };
    using alle_fenster = std::array<fenster, fensternamen.size()>;

    fenster& an(fenstername name) { return fenster_.at(static_cast<std::size_t>(name)); }
    const fenster& an(fenstername name) const { return fenster_.at(static_cast<std::size_t>(name)); }
    fenster& an(const fensterlogik& logik);
    bool nur_gezaehlt(fenstername name) const;
    void auf_den_schirm(fenstername name, bool offen);

    alle_fenster fenster_{};
    fensteranzeige* anzeige_ = nullptr;
    std::optional<alle_fenster> vor_der_stille_;
    std::vector<fenstername> mitspieler_;
};

}  // namespace tarvel
