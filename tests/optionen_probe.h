#pragma once

#include "tests/programm_probe.h"

namespace tarvel::test {

constexpr const char* bleibt = " Die alte Einstellung wird beibehalten.";

/// The options window of a started program, opened.
class OptionenProbe : public ProgrammProbe {
protected:
    OptionenProbe() { oeffnen(); }

    void oeffnen() { t.p.form1.Command4.klicken(); }
    bool offen() { return t.p.fenster.ist_offen(fenstername::einstellungen); }
    template <class Element>
    Element& element(const std::string& name) {
        return std::get<Element>(fenster.zeile(name).element);
    }
    void tippen(const std::string& name, std::string_view text) { element<feld>(name).eingeben(text); }
    void waehlen(const std::string& name, int platz) { element<auswahl>(name).waehlen(platz); }
    void kreuzen(const std::string& name) { element<haken>(name).umschalten(); }
    /// Takes over and opens again.
    void uebernehmen() {
        fenster.Command1.klicken();
        EXPECT_FALSE(offen());
        oeffnen();
    }
    /// Change one value and take over.
    void nach_wahl(const std::string& name, int platz) {
        waehlen(name, platz);
        uebernehmen();
    }
    void nach_kreuz(const std::string& name) {
        kreuzen(name);
        uebernehmen();
    }
    /// The same for a field that is typed into; returns the messages of that.
    meldungen nach_eingabe(const std::string& name, std::string_view text) {
        t.maschine.meldungen_gezeigt.clear();
        tippen(name, text);
        uebernehmen();
        return t.maschine.meldungen_gezeigt;
    }

    einstellungsfenster& fenster = t.p.einstellungsfenster;
    einstellungen& einst = t.p.einst;
};

}  // namespace tarvel::test
