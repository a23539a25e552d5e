#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

#include "core/spuren.h"
#include "hardware/ereignisse.h"
#include "race/rennhergang.h"

namespace tarvel {

/// Turns the lines of a log, one after the other, into what happened. The head of `h` has been read.
class hergangsleser {
public:
    explicit hergangsleser(rennhergang& h);

    void zeile(std::string_view text);
    /// When each thing was; puts them in order of time. A pause that lasts to the end of the log refuses what was told
    /// in it: the race notes that only with the next crossing of the lane, or with the end of the pause.
    void zeiten_setzen();
    /// When it was, as far as the green light is known.
    void zeit_setzen(geschehen& g) const;

private:
    struct start {
        zeit_ms stempel = 0;
        zeit_ms zeit = 0;
    };
    struct wiederholung {
        std::optional<std::size_t> platz;
        zeit_ms zeit = 0;
    };

    static constexpr std::int64_t zahl_max = std::int64_t{1} << 50;  ///< sums of a few of them stay numbers
    static std::optional<std::int64_t> zahl(std::string_view& rest);
    geschehen& anhaengen(vorgang was, int spur);
    void kopfzeile(std::string_view text);
    void entscheidung(std::string_view text);
    void einordnen(geschehen& g);
    void ankunft(const geschehen& runde);
    void strafe(const geschehen& g);
    void leer(geschehen& g) const;
    /// `aussen`: it does not lie in another, where answers look alike.
    void tat(std::string_view name, std::string_view rest, bool aussen);
    void umsetzen(std::string_view rest);
    void datum(std::int64_t antwort);
    bool ist_letzte(std::int64_t runde) const;
    void verschieben(zeit_ms um);
    /// What crossings have been stamped with is right already.
    void nachruecken(zeit_ms um);
    void taste(std::int64_t code);
    /// A pause was asked for, by the command, or by a button of which a switch takes the place.
    void pause_verlangt(bool befehl);
    void geraet(std::int64_t art);
    /// A crossing of the lane was told; its stamp may be unknown.
    void erzaehlt(int spur, zeit_ms stempel);
    void entschieden(const geschehen& g);

    rennhergang& h_;
    zeit_ms zeit_ = 0;
    std::optional<zeit_ms> stempel_der_tat_;
    std::optional<start> gruen_;  ///< its stamp, like all until the end, by the clock as the log began
    zeit_ms verschoben_ = 0;      ///< what the clock has been moved by since
    int nachgerueckt_ = 0;        ///< so often without the crossings
    /// A crossing that nothing has been decided about yet, and the doing that told it.
    struct offene {
        geschehen was;
        int tat = 0;
    };
    spuren<std::optional<offene>> offen_{};
    std::optional<zeit_ms> pause_seit_;
    int taten_ = 0;
    std::int64_t ziel_ = 0;  ///< what the race goes for
    bool nachlauf_ = false;  ///< at its end it waits for the laps that are being driven
    bool endet_ = false;     ///< the next time of day is that of the end
    spuren<int> fahrer_{};
    spuren<bool> nach_pause_{};  ///< the lane's last penalty was that of a pause
    spuren<std::int64_t> letzte_runde_{};
    bool schalter_ = false;              ///< the chaos input is a switch
    std::optional<zeit_ms> weiter_;      ///< when the last pause ended, while the race goes on
    std::optional<zeit_ms> verlangt_;    ///< when another was asked for last
    spuren<std::int64_t> zeitstrafe_{};  ///< of the driver in s, index as `geschehen::fahrer`; ms are added to each lap
    bool zu_ende_ = false;               ///< what is counted now came behind the end
    zeit_ms ende_stempel_ = 0;           ///< of that
    spuren<bool> gerollt_{};             ///< over the line as the pause began: behind an end in it that one is not home
    std::array<wiederholung, ereignis_tabelle::zeilen_anzahl> zuletzt_{};
};

}  // namespace tarvel
