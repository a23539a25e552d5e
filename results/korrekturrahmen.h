#pragma once

#include <array>
#include <functional>

#include "core/renneinrichtung.h"
#include "core/sprache.h"
#include "core/steuerelemente.h"
#include "results/ergebniskorrektur.h"

namespace tarvel {

/// The frame in which one driver's line is corrected. Index 0 of its fields is the total, the others are lanes or
/// heats. What the operator does not touch stays as it is.
class korrekturrahmen {
public:
    static constexpr std::size_t teile_max = 19;  ///< with the total

    explicit korrekturrahmen(const renneinrichtung& einrichtung);

    rahmen Frame2;
    bezeichnung Label_name;
    feld Text2;
    bezeichnung lbl_klasse;
    auswahl cbo_klasse;
    bezeichnung Label_runden;
    bezeichnung Label_meter;
    bezeichnung Label_beste;
    std::array<bezeichnung, teile_max> Label_teil;
    std::array<feld, teile_max> aus_runden;
    std::array<feld, spuren_max + 1> aus_meter;
    std::array<feld, teile_max> aus_beste;
    befehl meter_berechnen;
    bezeichnung Label_zeit;
    feld w_aus_std;
    feld w_aus_min;
    feld w_aus_sec;
    feld w_aus_hun;  ///< thousandths
    std::array<bezeichnung, 4> Label_einheit;
    befehl Command14;  ///< takes it
    befehl Command15;  ///< cancel

    /// False if the line is no driver's.
    bool oeffnen(const ergebnistabelle& tabelle, std::size_t zeile);
    void schliessen();
    bool offen() const { return Frame2.sichtbar(); }
    /// What the fields say; none, and the field has the focus, where one cannot be read.
    std::optional<ergebniseintrag> eintrag();
    std::size_t zeile() const { return zeile_; }

    void sprache(sprachliste& texte);

private:
    void fuellen(const ergebnistabelle& tabelle);
    void teile_zeigen(const ergebnisspalten& spalten, bool heats);
    void laengen_suchen(const ergebnistabelle& tabelle);
    void meter_neu_berechnen();
    void summe_bilden(std::size_t i);
    bool zeit_lesen(zeit_ms& zeit);

    const renneinrichtung& einrichtung_;
    trennzeichen_tabelle trennzeichen_;
    std::size_t zeile_ = 0;
    std::size_t teile_ = 0;  ///< without the total
    ergebniseintrag alt_;
    std::array<std::string, teile_max> runden_texte_;  ///< what the fields were filled with
    std::array<std::string, spuren_max + 1> meter_texte_;
    std::array<std::string, teile_max> beste_texte_;
    std::array<std::string, 4> zeit_texte_;
    std::array<double, teile_max> laenge_{};  ///< metres of a lap; 0 where nobody knows
    struct {
        std::string gesamt, spur, heat;
    } wort_;
};

}  // namespace tarvel
