#pragma once

#include <cstdint>
#include <vector>

#include "tools/simulator/geraet.h"

namespace tarvel::simulator {

/// What is wired to a line of the board.
enum class klemme {
    nichts,
    ziel,
    sektor_1,
    sektor_2,
    tank_ein,
    tank_aus,
    chaos,
    rot,
    gruen,
    strom,
    chaoslampe,
    rennende
};

struct anschlussstelle {
    klemme was = klemme::nichts;
    int nummer = 0;  ///< lane or lamp from 1; 0 for what there is one of, and for the common chaos button
};

struct kontaktbrett_einstellung {
    rennen_einstellung rennen;
    std::vector<anschlussstelle> eingaenge;  ///< by the number of the line
    std::vector<anschlussstelle> ausgaenge;
    bool strom_invers = false;  ///< a lane has power while its output is off
    zeit_ms kontaktzeit = 40;   ///< ms that a car closes a contact as it passes
    zeit_ms tasterzeit = 200;   ///< ms that a button is held
};

/// A track of plain contacts and lamps on an interface board that knows nothing of them. Lanes without an output for
/// their power always have it.
class kontaktbrett final : public geraet {
public:
    explicit kontaktbrett(const kontaktbrett_einstellung& einst);

    void empfangen(std::string_view /*bytes*/) override {}
    /// The outputs, a bit a line, set while it is active.
    void schalten(std::uint32_t aktiv);
    std::uint32_t geschaltet() const { return geschaltet_; }
    /// The contacts, a bit a line, set while it is closed.
    std::uint32_t kontakte() const { return kontakte_; }
    /// All of them as they became so, in their order, once.
    std::vector<std::uint32_t> aenderungen();
    /// The driver of this lane presses the own chaos button, or the common one where there is none.
    void chaos_druecken(int spur);
    /// Times in ms of the laps of a car since it was lined up.
    std::vector<zeit_ms> runden(int wagen) const;

private:
    void schritt() override;
    void wagen_meldet(const wagen_ereignis& was) override;
    /// False if nothing of the kind is wired.
    bool schliessen(klemme was, int nummer, zeit_ms dauer);
    void ausgang_schalten(const anschlussstelle& stelle, bool an);
    void rote_lampe(int nummer, bool an);
    void gruene_lampe(bool an);
    void startampel_deuten();

    kontaktbrett_einstellung einst_;
    std::vector<zeit_ms> zu_bis_;  ///< of each input, on the board's clock
    std::uint32_t geschaltet_ = 0;
    std::uint32_t kontakte_ = 0;
    std::vector<std::uint32_t> aenderungen_;
    unsigned lampen_ = 0;          ///< red ones that burn, a bit each
    unsigned lampen_gesehen_ = 0;  ///< and those since the first
    zeit_ms erste_lampe_ = -1;     ///< on the board's clock; below 0 it is not new
    bool ampel_laeuft_ = false;    ///< one after the other has come on, and no green yet
    bool chaos_ = false;
    zeit_ms chaos_ende_ = -1;
    int chaos_fahrer_ = 0;         ///< who has pressed, and ends it
    std::size_t erste_fahrt_ = 0;  ///< since the cars were lined up
};

/// The board as it is delivered: 32 lines, each the input or output of its number.
kontaktbrett_einstellung iow_werksverdrahtung(const rennen_einstellung& rennen);
/// A printer port: five inputs for four lanes and a common chaos button, eight outputs for the start light and the lamp
/// of the pause.
kontaktbrett_einstellung lpt_verdrahtung(const rennen_einstellung& rennen);

}  // namespace tarvel::simulator
