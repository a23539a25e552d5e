#pragma once

#include <vector>

#include "core/dateien.h"
#include "core/fensternamen.h"
#include "core/sprache.h"
#include "core/steuerelemente.h"

namespace tarvel {

class fensterregister;

/// What every window's logic has: its name, its texts, what happens as it loads, unloads and is closed. It enters
/// itself in the register, and leaves it.
class fensterlogik {
public:
    fensterlogik(fensterregister& fenster, const dateien& ablage, fenstername kennung);
    fensterlogik(const fensterlogik&) = delete;
    fensterlogik& operator=(const fensterlogik&) = delete;
    virtual ~fensterlogik();

    fenstername kennung() const { return kennung_; }
    rahmen titel;  ///< carries the window's title
    virtual rahmen& titelzeile() { return titel; }

    /// The language files of the window's texts.
    virtual std::vector<sprachliste> sprachdateien() { return {}; }
    /// Load handler: all texts as the language has them.
    virtual void laden();
    /// Another language is in force while the window is loaded. Windows that come and go take it as they load.
    virtual void sprache_gewechselt() {}
    /// Unload handler: nothing of the window goes on behind its back.
    virtual void entladen() {}
    /// The operator closes the window.
    virtual void schliessen();
    /// He may do so with the Escape key.
    virtual bool escape_schliesst() const { return true; }

protected:
    void texte_lesen();

private:
    fensterregister& fenster_;
    const dateien& ablage_;
    fenstername kennung_;
};

}  // namespace tarvel
