#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <map>
#include <string>

#include "hardware/iow_profil.h"
#include "hardware/lpt_register.h"
#include "programm/druckeranschluss_verdrahtung.h"
#include "programm/iow_verdrahtung.h"
#include "tests/plattform/test_iowkit.h"
#include "tests/plattform/testprogramm.h"

namespace tarvel::test {

/// A started program, and plain contacts on the IO board or on the printer port.
class Kontaktgeraet : public testing::Test {
protected:
    static constexpr int lpt_basis = 0x378;
    static constexpr zeit_ms iow_schreibtakt = 2;

    Kontaktgeraet() {
        brett.eintragen(t.maschine.bibliotheken);
        t.p.form1.wertmin.eingeben("1");
    }
    void iow_waehlen(const iow_profil& profil = iow_werkseinstellung()) {
        iow_profil_speichern(t.p.ablage, t.p.einst.iow.iow_datei, profil);
        iow_starten();
    }
    void iow_starten() {
        t.p.einst.hardware = {};
        t.p.einst.hardware.hw_iow = true;
        t.p.geraete.hardware_starten(false);
        t.maschine.laufen(iow_schreibtakt);
    }
    /// A byte of the board's outputs, as soon as its thread has written what waits.
    std::uint8_t iow_ausgang(std::size_t byte) {
        t.maschine.laufen(iow_schreibtakt);
        return brett.ausgang.at(byte);
    }
    void lpt_waehlen() {
        t.p.einst.hardware = {};
        t.p.einst.hardware.hw_lpt = true;
        for (const int i : {0, 1, 2}) {
            lpt()[lpt_basis + i] = i == lpt::status ? lpt::in_ruhe : 0;
        }
        t.p.geraete.hardware_starten(false);
    }
    std::map<int, std::uint8_t>& lpt() { return t.maschine.druckerport.register_werte; }
    bool lpt_pin(int stecker) { return (lpt().at(lpt_basis) >> (stecker - 2) & 1) != 0; }

    /// The bit of an event in the factory assignment.
    static constexpr std::uint32_t bit(ereignis_art nummer) { return 1U << static_cast<unsigned>(nummer - 1); }
    void kontakt(std::uint32_t bits, bool zu, zeit_ms dauer = 5) {
        brett.kontakte = zu ? brett.kontakte | bits : brett.kontakte & ~bits;
        t.maschine.laufen(dauer);
    }
    void puls(ereignis_art nummer, zeit_ms nach) {
        t.maschine.laufen(nach - 5);
        kontakt(bit(nummer), true);
        kontakt(bit(nummer), false, 0);
    }
    zeit_ms rundenzeit(int spur, int runde) const { return t.p.rennen.zustand.konto.rundenzeit(spur, runde); }
    bool pause() const { return t.p.rennen.zustand.chaos_aktiv; }
    /// The last message; it is forgotten.
    std::string gemeldet() {
        std::string eine = t.maschine.meldungen_gezeigt.empty() ? "" : t.maschine.meldungen_gezeigt.back().text;
        t.maschine.meldungen_gezeigt.clear();
        return eine;
    }

    test_iowkit brett;  // outlives the program
    testprogramm t;
};

}  // namespace tarvel::test
