#pragma once

#include <vector>

#include "programm/messgeraete.h"

namespace tarvel::test {

/// Between a device and the program: keeps what the device says, and passes it on.
class geraete_mithoerer final : public rennverbindung, public geraetebedienung {
public:
    explicit geraete_mithoerer(messgeraete& programm) : rennen_(programm.rennverbindung()), bedienung_(programm) {}

    bool ereignisse_weitersagen = true;  ///< else the fuel simulation does not hear of them
    int gemeldet = 0;
    std::vector<bool> hinweise;
    int zu_geblieben = 0;
    int abgezogen = 0;

    bool rennen_ruht() const override { return rennen_.rennen_ruht(); }
    bool rennen_laeuft() const override { return rennen_.rennen_laeuft(); }
    bool pause() const override { return rennen_.pause(); }
    void rennen_vorbereiten() override { rennen_.rennen_vorbereiten(); }
    void stempel_verschieben(zeit_ms um) override { rennen_.stempel_verschieben(um); }
    void uhr_nachruecken(zeit_ms um) override { rennen_.uhr_nachruecken(um); }
    void pausen_nachmessen(double faktor) override { rennen_.pausen_nachmessen(faktor); }
    void pausen_festhalten(zeit_ms stempel) override { rennen_.pausen_festhalten(stempel); }
    void tankflanken_auswerten() override {
        ++gemeldet;
        if (ereignisse_weitersagen) {
            rennen_.tankflanken_auswerten();
        }
    }
    void tankkontakt_verlassen(int spur) override { rennen_.tankkontakt_verlassen(spur); }
    void fuellstand(int spur, int stufe, int stufen, bool neu) override {
        rennen_.fuellstand(spur, stufe, stufen, neu);
    }
    void tankfunktion(bool an) override { rennen_.tankfunktion(an); }

    void wartehinweis(bool an) override {
        hinweise.push_back(an);
        bedienung_.wartehinweis(an);
    }
    void port_fehlt(const std::string& meldung) override { bedienung_.port_fehlt(meldung); }
    void nicht_zu_oeffnen(messgeraet& geraet, const std::string& meldung) override {
        ++zu_geblieben;
        bedienung_.nicht_zu_oeffnen(geraet, meldung);
    }
    void verloren() override {
        ++abgezogen;
        bedienung_.verloren();
    }

private:
    rennverbindung& rennen_;
    geraetebedienung& bedienung_;
};

}  // namespace tarvel::test
