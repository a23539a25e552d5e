#pragma once

#include "tests/programm_probe.h"

namespace tarvel::test {

/// A program with a start light and a device that records.
class StartampelProbe : public ProgrammProbe {
protected:
    /// Opens the race window and presses start; the light begins.
    void beginnen(int modus, const std::vector<int>& lanes = {1, 2, 3}) {
        t.einrichten("Zeit", "5", lanes);
        t.p.einst.start_ampel_modus = ampelwahl(modus);
        starten();
    }
    void starten() {
        geraet.befehle.clear();
        t.maschine.sounds.clear();
        t.bahn().Command1.klicken();
    }
    /// One character per lamp: "R", "G" lit, "r", "g" dark, "-" no lamp there; a blank between the rows.
    std::string lampen() {
        std::string bild;
        for (std::size_t i = 0; i < 10; ++i) {
            const auto& lampe = t.p.startampel.fenster.ampelbild.at(i);
            const std::string& datei = lampe.datei();
            bild += i == 5 ? " " : "";
            if (!lampe.sichtbar()) {
                bild += "-";
            } else if (datei.find("rt_") != std::string::npos) {
                bild += datei == "ampel/rt_an.gif" ? "R" : "r";
            } else {
                bild += datei == "ampel/gr_an.gif" ? "G" : "g";
            }
        }
        return bild;
    }
    int rote_am_geraet() const {
        int rote = 0;
        for (int n = 1; n <= 5; ++n) {
            rote += geraet.ist_an(ausgang::ampel_rot, n) ? 1 : 0;
        }
        return rote;
    }
    /// A lane that nobody has switched has power.
    bool strom(int spur) const { return ProgrammProbe::strom(spur) || !geschaltet(spur); }
    bool geschaltet(int spur) const {
        return std::any_of(geraet.befehle.begin(), geraet.befehle.end(), [&](const schaltung& befehl) {
            return befehl.was == ausgang::bahnstrom && (befehl.nummer == spur || befehl.nummer == 0);
        });
    }
    bool rennen_laeuft() { return t.p.rennen.zeitgeber.renntimer->laeuft(); }
    void ampeltaste(char taste) {
        t.p.startampel.taste(taste);
        t.maschine.laufen(2);
    }
    /// Lets the rest of the time up to green pass, from `verstrichen` ms after the start.
    void bis_gruen(int verstrichen) { t.maschine.laufen(gruen_nach - verstrichen); }

    static constexpr int gruen_nach = 2000 + 6 * 1500;  ///< lights with five red steps
};

}  // namespace tarvel::test
