#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "tools/simulator/geraet.h"

namespace tarvel::simulator {

/// A Timekeeper USB: a box that stamps its 24 sensors with a clock of its own and switches lamps and lanes.
///
/// Its wiring on an analog track, by the numbers of the sensors: 1 to 4 the finish line of lanes 1 to 4, 5 to 12 their
/// pit lanes, in and out, 13 a chaos button, 14 and 15 the finish line of lanes 5 and 6, 16 to 19 their pit lanes, 20
/// to 24 the sectors of lanes 1 and 2 and the first one of lane 3. On a digital track the sensors of lane 1 see all
/// cars.
class timekeeper final : public geraet {
public:
    static constexpr int spuren = 6;

    struct ausgaenge {
        std::array<bool, 5> rot{};
        bool gruen = false;
        bool gelb = false;
        bool rennende = false;
        std::array<bool, spuren> strom{};  ///< the outputs as they are, lane 1 first

        bool operator==(const ausgaenge&) const = default;
    };

    explicit timekeeper(const rennen_einstellung& rennen);

    void empfangen(std::string_view bytes) override;
    /// It has been plugged in: it knows nothing of before, and no lane has power.
    void verbunden() override;

    const ausgaenge& stand() const { return stand_; }
    /// 0 none, 1 analog, 2 digital
    int modus() const { return modus_; }
    /// What was understood, without its frame.
    const std::vector<std::string>& befehle() const { return befehle_; }

private:
    void schritt() override;
    void wagen_meldet(const wagen_ereignis& was) override;
    void befehl(const std::string& text);
    bool auskunft(const std::string& text);
    bool einstellen(const std::string& text);
    bool schalten(const std::string& text);
    void rot_schalten(int nummer, bool an);
    void gruen_schalten(bool an);
    void strom_schalten(int nummer, bool an);
    void losfahren();
    void satz_senden(const std::string& inhalt) const;
    void sensor_senden(int nummer, int wagen) const;

    rennen_einstellung rennen_;
    ausgaenge stand_;
    std::vector<std::string> befehle_;
    std::string eingang_;
    std::string digitalart_;
    bool aktiv_ = false;
    bool uhr_laeuft_ = false;
    int modus_ = 0;
    bool faehrt_ = false;          ///< the cars have seen green and no end
    unsigned lampen_gesehen_ = 0;  ///< red lamps since the first one, a bit each
    zeit_ms chaos_ende_ = -1;      ///< of the box's clock; below 0 no chaos of a driver
};

/// The settings file with all sensors of that wiring.
std::string timekeeper_datei();

}  // namespace tarvel::simulator
