#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/bestzeiten.h"
#include "core/dateien.h"
#include "core/einstellungszeile.h"
#include "core/wechselschema.h"
#include "platform/meldungen.h"

namespace tarvel {

/// Whether reading a file of another version says so.
enum class version_melden { ja, nein };

/// What is checked: a settings file, or what was in force as a race or an evening was written down.
enum class pruefweise { einstellungen, festgehaltenes };

/// A settings file in its three stages: read, check, take over. No setting changes before the third.
class einstellungsdatei {
public:
    struct umgebung {
        const dateien& ablage;
        einstellungs_ziel ziel;
        einrichtungsansicht& ansicht;
        plattform::meldungen& meldungen;
    };

    explicit einstellungsdatei(umgebung um) : um_(um) {}

    /// True after a failed read, check or write.
    bool fehler_laden() const { return fehler_laden_; }
    /// The lines of the last file read, by their number Z.
    const einstellungs_zeilen& zeilen() const { return zeilen_; }
    /// First stage. A competition file has one line in front of the header, and goes on behind the settings: what
    /// stands there is left in `rest`.
    void einstellungsdatei_einlesen(std::string_view datei, bool wettkampfdatei = false,
                                    version_melden melden = version_melden::ja);
    /// The same of lines that stand elsewhere, as `schreiben` gives them.
    void einlesen(const std::vector<std::string>& inhalt, std::size_t erste = 0,
                  version_melden melden = version_melden::nein);
    /// Second stage: refuses the file or mends single lines.
    void einstellungsdatei_pruefen(pruefweise wie = pruefweise::einstellungen);
    /// Third stage. A start that asks for a mode of the 4x4 module gives it in `hw_4x4_modus_start`.
    void einstellungen_uebernehmen(std::optional<modul_4x4> hw_4x4_modus_start);
    /// Takes over what `neu` says otherwise than `in_kraft`; both as `festhalten` gives them.
    void aenderungen_uebernehmen(const std::vector<std::string>& in_kraft, const std::vector<std::string>& neu);
    /// Asked in the middle of taking over, as soon as it is known which best times are wanted; null before the start
    /// has come to them.
    bestzeitfolgen* bestzeiten = nullptr;
    /// The set-up of the race in the file last read, whose settings stay as they are.
    renneinrichtung einrichtung() const;
    /// The order of lanes in the lines read, none if it is not valid.
    std::optional<wechsel_folge> wechselschema() const;
    /// How the lines read have competitions drawn up.
    wechselweise wettkampfweise() const;
    /// The lines behind the settings of a competition file.
    const std::vector<std::string>& rest() const { return rest_; }

    /// Every value to its default.
    void einstellungen_standard_setzen();
    /// The whole file as it is written, with what the main window shows.
    std::vector<std::string> schreiben() const;
    /// The same of the settings in force, whatever the main window shows.
    std::vector<std::string> festhalten() const;
    /// The settings as a competition file begins with them; its own data follow behind.
    std::vector<std::string> schreiben_fuer_wettkampf(std::string_view wettkampf) const;
    /// A failure shows its message and leaves the old file.
    void einstellungen_speichern(std::string_view datei) { einstellungen_speichern(datei, schreiben()); }
    void einstellungen_speichern(std::string_view datei, const std::vector<std::string>& inhalt);

private:
    bool version_pruefen(std::string_view kopf, version_melden melden);
    void wahrheitswoerter_uebersetzen();
    void hardware_folgen(std::optional<modul_4x4> hw_4x4_modus_start);
    void wechselschema_uebernehmen();
    void cu_spuren_uebernehmen();
    const std::string& zeile(int z) const { return zeilen_.at(static_cast<std::size_t>(z)); }

    umgebung um_;
    einstellungs_zeilen zeilen_;
    std::vector<std::string> rest_;
    bool fehler_laden_ = false;
};

}  // namespace tarvel
