#pragma once

#include <array>
#include <string>
#include <string_view>

#include "tools/simulator/geraet.h"
#include "tools/simulator/kontaktbrett.h"

namespace tarvel::simulator {

/// Contacts by their number, from 1.
using m4x4_kontakte = std::array<anschlussstelle, 8>;
/// Four lanes, and a contact at the end of each one's pit.
inline constexpr m4x4_kontakte m4x4_vier_spuren{{{klemme::ziel, 1},
                                                 {klemme::ziel, 2},
                                                 {klemme::ziel, 3},
                                                 {klemme::ziel, 4},
                                                 {klemme::tank_aus, 1},
                                                 {klemme::tank_aus, 2},
                                                 {klemme::tank_aus, 3},
                                                 {klemme::tank_aus, 4}}};
/// Two lanes, each with a pit of its own; and a sector of the first and a button of the driver of the second.
inline constexpr m4x4_kontakte m4x4_zwei_spuren{{{klemme::ziel, 1},
                                                 {klemme::ziel, 2},
                                                 {klemme::tank_ein, 1},
                                                 {klemme::tank_ein, 2},
                                                 {klemme::tank_aus, 1},
                                                 {klemme::tank_aus, 2},
                                                 {klemme::sektor_1, 1},
                                                 {klemme::chaos, 2}}};

struct m4x4_einstellung {
    rennen_einstellung rennen;                  ///< cars 1 to 6
    m4x4_kontakte kontakte = m4x4_vier_spuren;  ///< in contact mode
    bool spuren_6 = false;      ///< outputs 5 and 6 are the power of lanes 5 and 6 instead of the red lamps 5 and 4
    bool strom_invers = false;  ///< a lane has power while its output is off
    zeit_ms bootzeit = 0;       ///< ms in which it hears nothing after it was plugged in
    bool stumm = false;         ///< it does not greet by itself
    zeit_ms antippen = 0;       ///< ms; somebody triggers the sensors in turn while nobody drives; 0 nobody
    std::string version = "V1.40 4x4";
};

/// A 4x4 USB module: a board that greets, takes a mode, tells its sensors in that mode's way, and switches ten outputs.
class m4x4 final : public geraet {
public:
    static constexpr int autos = 6;
    static constexpr int ausgaenge = 10;

    explicit m4x4(const m4x4_einstellung& einst);

    void empfangen(std::string_view bytes) override;
    void verbunden() override;
    /// Somebody at the button of the race director; `lang` keeps it down.
    void taste_druecken(bool lang);
    /// It answers nothing any more, and tells nothing, until it is plugged in again.
    void haengen() { haengt_ = true; }

    int modus() const { return modus_; }
    bool ausgang(int nummer) const { return an_.at(static_cast<std::size_t>(nummer)); }

private:
    void schritt() override;
    void wagen_meldet(const wagen_ereignis& was) override;
    void neustart();
    void zeichen(char c);
    void schalten(int nummer, bool an);
    void lampe_geschaltet(bool an);
    bool ist_lampe(int nummer) const;
    bool strom_da() const;
    void chaos_druecken(int wagen);
    void losfahren();
    void modus_setzen(int nummer);
    /// False if there is no such contact.
    bool kontakt_schliessen(klemme was, int wagen) const;
    void sensor(int position, int wagen) const;
    void zeile(const std::string& text) const;

    m4x4_einstellung einst_;
    std::array<bool, ausgaenge + 1> an_{};
    int modus_ = 0;
    bool modus_folgt_ = false;  ///< "0" was heard: a digit is the mode
    bool haengt_ = false;
    bool faehrt_ = false;
    int lampen_gesehen_ = 0;        ///< that were lit one after the other
    bool gestartet_ = false;        ///< by a countdown that still goes on
    zeit_ms letzte_lampe_ = -1000;  ///< when one was lit
    zeit_ms hoert_ab_ = 0;
    zeit_ms chaos_ende_ = -1;
    int getippt_ = 0;
};

}  // namespace tarvel::simulator
