#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "core/einstellungsdatei.h"
#include "hardware/tastenbelegung.h"
#include "platform/schnittstelle.h"

namespace tarvel {

class einstellungsruecklage;
class fensterregister;
class form1;
class speichernfenster;

/// What has to follow settings that were loaded.
class einstellungsfolgen : public schnittstelle {
public:
    /// `im_betrieb`: the operator has loaded them, not the start.
    virtual void einstellungen_geladen(bool im_betrieb) = 0;
    /// Others than `vorher` are in force in the middle of the work, for a race or an evening, or no longer. A device
    /// that is reached as before stays as it is.
    virtual void einstellungen_gewechselt(const einstellungen& vorher) = 0;
};

/// The care of the settings file: which one is in force, its loading and saving, and the defaults in its place. The
/// keys are a file of their own that goes with it.
class einstellungspflege {
public:
    struct umgebung {
        einstellungsdatei& datei;
        einstellungs_ziel ziel;
        form1& haupt;
        tastenbelegung& belegung;
        const dateien& ablage;
        fensterregister& fenster;
        plattform::meldungen& meldungen;
        speichernfenster& auswahl;
        const einstellungsruecklage& ruecklage;
        einstellungsfolgen& folgen;
    };

    einstellungspflege(const umgebung& um, std::string_view programmordner);

    /// Every setting to its default.
    void standard_setzen();
    /// The file that the program starts with.
    void start_datei_bestimmen();
    /// The operator is asked for the mode of the 4x4 module first: then `start_fortsetzen` with it goes on.
    bool start_fragt() const { return start_fragt_; }
    void start_fortsetzen(std::optional<modul_4x4> modus);
    /// What the start does behind the settings.
    std::function<void()> nach_dem_start;
    /// The next start takes this mode of the 4x4 module, with the settings in force or with the standard ones.
    bool neustart_vormerken(modul_4x4 modus, bool aktuelle);
    /// The file in force, without its folder.
    std::string einstell_datei() const { return einstellungsname(einstell_datei_); }
    /// Loads the file in force; an unusable one shows its message and is replaced by the defaults.
    void laden() { laden(false); }
    /// The defaults are being set because there is no file yet.
    bool erststart() const { return erststart_; }
    /// Saves the file in force, false after a failure.
    bool speichern();
    /// The same from elsewhere than the main window, whose fields go with it within their limits.
    bool speichern_mit_feldern();
    /// Open the window in which a file is chosen.
    void speichern_oeffnen();
    void laden_oeffnen();

private:
    void laden(bool im_betrieb);
    bool speichern(const std::string& pfad);
    bool aus_menue_laden(const std::string& name);
    void name_zeigen();
    void modusfrage_vormerken(bool soll);
    /// The file's name below the settings folder.
    std::string einstellungsname(std::string_view pfad) const;

    umgebung um_;
    std::string programm_pfad_;
    std::string einstell_datei_;                   ///< current settings file, without its folder once it is loaded
    std::string einstell_standarddatei_;           ///< the one the program starts with
    std::optional<modul_4x4> hw_4x4_modus_start_;  ///< mode of the 4x4 module that a restart asked for
    bool erststart_ = false;
    bool start_fragt_ = false;
};

}  // namespace tarvel
