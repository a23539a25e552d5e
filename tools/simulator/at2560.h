#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "tools/simulator/geraet.h"

namespace tarvel::simulator {

struct at2560_einstellung {
    rennen_einstellung rennen;     ///< lanes 1 to 6; more are left out
    bool chaos_gemeinsam = false;  ///< drivers press the common button instead of their own
    bool strom_invers = false;     ///< a lane has power while its output is off
    bool zeilenende = false;       ///< CR and LF behind every sequence of the unit
    zeit_ms bootzeit = 0;          ///< ms in which the unit hears nothing after its port was opened or it was reset
    zeit_ms antippen = 0;          ///< ms; somebody triggers the sensors of the IS command in turn; 0 nobody
    std::string seriennummer = "2560001";
};

/// An AT-2560: a microcontroller that reports its sensors unasked and switches lamps and lanes.
class at2560 final : public geraet {
public:
    static constexpr int spuren = 6;

    struct ausgaenge {
        std::array<bool, 5> rot{};
        bool gruen = false;
        bool rennende = false;
        bool chaos = false;
        std::array<bool, spuren> strom{};  ///< the outputs as they are, lane 1 first

        bool operator==(const ausgaenge&) const = default;
    };

    explicit at2560(const at2560_einstellung& einst);

    void empfangen(std::string_view bytes) override;
    void verbunden() override { neustart(); }
    /// A driver from 1, or somebody at the common button with 0.
    void chaos_druecken(int spur);

    const ausgaenge& stand() const { return stand_; }
    /// Numbers of the pins that report; empty while all do.
    const std::vector<int>& sensorpins() const { return pins_; }
    /// Sequences that were understood, without their frame.
    const std::vector<std::string>& befehle() const { return befehle_; }

private:
    void schritt() override;
    void wagen_meldet(const wagen_ereignis& was) override;
    void zeichen(char c);
    void befehl(const std::string& text);
    bool schalten(const std::string& text);
    void lampe_schalten(int nummer, bool an);
    void strom_schalten(int nummer, bool an);
    void rennende_schalten(bool an);
    bool pins_setzen(std::string_view liste);
    void ruhezustand();
    void neustart();
    void losfahren();
    void folge_senden(const std::string& inhalt) const;
    void melden_mit_uhr(const std::string& name) const;
    void sensor(int pin) const;

    at2560_einstellung einst_;
    ausgaenge stand_;
    std::vector<int> pins_;
    std::vector<std::string> befehle_;
    std::string eingang_;
    bool in_folge_ = false;
    bool faehrt_ = false;          ///< the cars have seen green and no end
    unsigned lampen_gesehen_ = 0;  ///< red lamps since the first one, a bit each
    zeit_ms hoert_ab_ = 0;         ///< of the unit's clock
    zeit_ms chaos_ende_ = -1;      ///< of the unit's clock; below 0 no chaos of a driver
    int chaos_spur_ = 0;
    std::size_t getippt_ = 0;
};

}  // namespace tarvel::simulator
