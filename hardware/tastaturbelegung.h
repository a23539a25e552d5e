#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>

#include "core/fensterlogik.h"
#include "core/fensterregister.h"
#include "core/steuerelemente.h"
#include "core/texte.h"
#include "hardware/tastenbelegung.h"
#include "platform/meldungen.h"

namespace tarvel {

/// The window in which the keys are assigned: one field of one character per row of `tastenzeilen`.
class tastaturbelegung final : public fensterlogik {
public:
    struct umgebung {
        tastenbelegung& belegung;
        const texte& txt;
        const dateien& ablage;
        fensterregister& fenster;
        plattform::meldungen& meldungen;
    };

    explicit tastaturbelegung(umgebung um);

    std::array<feld, tastenbelegung::zeile_max + 1> taste;  ///< index is the row; rows without a name have no field
    std::array<bezeichnung, tastenbelegung::zeile_max + 1> Label;  ///< what the row means
    bezeichnung hinweis;                       ///< how the fields are meant, or which of them are not right
    std::array<rahmen, spuren_max + 1> Frame;  ///< 1 to 6 the lanes, 0 the keys of the whole track
    befehl Command1;                           ///< confirm
    befehl Command2;                           ///< cancel
    befehl Command3;                           ///< "Standard"
    befehl Command4;                           ///< "alle belegen"
    befehl Command5;                           ///< "Felder löschen"

    /// Load handler: shows the assignment in force.
    void laden() override;
    std::vector<sprachliste> sprachdateien() override { return {sprache_e_tast()}; }
    /// The texts of the window.
    sprachliste sprache_e_tast();

private:
    void anzeigen(const tastenbelegung& belegung);
    void zeile_benennen(std::string_view name, const std::string& neu);
    /// Two rows with the same key, or in `nummer` one with a character that no key can be.
    struct fehler {
        std::size_t erste;  ///< 0 for none
        std::size_t nummer;
    };
    std::optional<fehler> fehler_suchen() const;
    void getippt(std::size_t nummer);
    bool pruefen();
    void uebernehmen();

    umgebung um_;
    std::array<int, tastenbelegung::zeile_max + 1> getippt_{};  ///< when each row was typed into, counted; 0 for never
    int anschlaege_ = 0;
    std::string wort_hinweis_;
    std::string doppelt_text_;
    std::string ungueltig_text_;
};

}  // namespace tarvel
