#pragma once

#include <array>
#include <cstdint>
#include <deque>
#include <random>
#include <string>
#include <vector>

#include "tools/simulator/geraet.h"

namespace tarvel::simulator {

struct control_unit_einstellung {
    rennen_einstellung rennen;             ///< cars 1 to 8; more are left out
    bool mit_sensor = true;                ///< passages tell the sensor; without, there is the finish line alone
    bool status_kurz = false;              ///< status of 17 characters instead of 19
    bool zaehlerbox = false;               ///< a lap counter box answers every other poll that finds no passage
    bool tanken = true;                    ///< fuel goes down; else everybody stays full
    int tank_voll = 14;                    ///< 1 to 15
    zeit_ms fuelltakt = 250;               ///< ms a step of fuel in the pit, at least 1
    zeit_ms lampentakt = 1000;             ///< ms from lamp to lamp, at least 1; green follows the fifth
    int vorspann_promille = 0;             ///< answers in a thousand that have "#" or "?#" in front
    int stoerung_promille = 0;             ///< characters in a thousand that the line changes
    std::vector<zeit_ms> tastendruecke{};  ///< presses of the start key at the unit itself, ms since its first moment
    std::string versionstext = "0S100$";   ///< answer to the question for the version
};

/// A Control Unit: a digital track's central box, which answers when it is polled.
class control_unit final : public geraet {
public:
    enum class zustand { laeuft, angehalten, lampen };

    explicit control_unit(const control_unit_einstellung& einst);

    void empfangen(std::string_view bytes) override;
    /// Somebody presses the start key at the unit.
    void starttaste();

    zustand stand() const { return zustand_; }
    /// Red lamps that burn, 0 to 5.
    int lampen() const;
    /// Fuel of car 1 to 8, 0 to 15.
    int tank(int wagen) const { return tank_.at(static_cast<std::size_t>(wagen - 1)); }
    bool in_der_box(int wagen) const { return box_.at(static_cast<std::size_t>(wagen - 1)); }
    /// Commands that were understood, but for the polls, in the order of their arrival.
    const std::vector<std::string>& befehle() const { return befehle_; }
    /// What the display shows; below 0 nothing was sent yet.
    int anzeigewert() const { return anzeigewert_; }

    /// The eight characters that stand for a value of the unit's clock.
    static std::string stempeltext(std::uint32_t stempel);

private:
    static constexpr std::size_t wagen_max = 8;

    void schritt() override;
    void wagen_meldet(const wagen_ereignis& was) override;
    void zeichen(char c);
    void befehl(const std::string& text);
    void anzeige_lesen(const std::string& text);
    void antworten();
    std::string statussatz() const;
    void mit_vorspann(const std::string& satz);
    void anhalten();
    void neues_rennen();
    void ueberfahrt_melden(const wagen_ereignis& was);
    void chaos_druecken();

    control_unit_einstellung einst_;
    std::mt19937_64 zufall_;
    zustand zustand_ = zustand::laeuft;
    zeit_ms seit_ein_ = 0;     ///< ms since the unit's first moment
    zeit_ms gruen_um_ = 0;     ///< of `seit_ein_`
    zeit_ms chaos_ende_ = -1;  ///< of `seit_ein_`; below 0 no chaos of a driver
    std::array<int, wagen_max> tank_{};
    std::array<bool, wagen_max> box_{};
    std::array<zeit_ms, wagen_max> in_box_ms_{};
    std::array<bool, wagen_max> unterwegs_{};  ///< has crossed the finish line, so that the next crossing ends a lap
    std::deque<std::string> wartend_;          ///< passage records
    std::string eingang_;
    bool im_befehl_ = false;
    bool zaehlerbox_dran_ = false;
    std::vector<std::string> befehle_;
    int anzeigewert_ = -1;
};

}  // namespace tarvel::simulator
