#pragma once

#include "core/fensterlogik.h"
#include "core/mitschriftdienste.h"
#include "platform/dienste.h"
#include "race/ausfall.h"
#include "race/blinken.h"
#include "race/chaos.h"
#include "race/fortsetzung.h"
#include "race/fruehstartstrafe.h"
#include "race/rennbefehle.h"
#include "race/rennlage.h"
#include "race/rueckfrage.h"
#include "race/rundenkorrektur.h"
#include "race/strafen.h"

namespace tarvel {

/// Keeps the log of a race.
class protokollfuehrung : public schnittstelle {
public:
    /// The race window opens.
    virtual void beginnen() = 0;
    /// It has closed.
    virtual void abschliessen() = 0;
    /// The whole lines of the log so far; empty without one.
    virtual std::string bisher() { return {}; }
    /// Each further line goes there too, as it is written.
    virtual void mitlesen(protokollsenke& /*wer*/) {}
    virtual void nicht_mehr_mitlesen(protokollsenke& /*wer*/) {}
};

/// The race window as the register sees it.
class rennfenster final : public fensterlogik {
public:
    struct teile {
        rennablauf& ablauf;
        rennansicht& ansicht;
        rennbefehle& befehle;
        rueckfrage& abbruch;
        rueckfrage& ende;
    };

    rennfenster(const renn_umgebung& um, const teile& t)
        : fensterlogik(um.fenster, um.ablage, fenstername::bahn1), bahn_(um.bahn), t_(t) {
        oeffnen_ = um.protokoll.befehl("oeffnen", [this] { t_.ablauf.laden(); });
        zumachen_ = um.protokoll.befehl("zumachen", [this] { t_.ablauf.entladen(); });
    }

    protokollfuehrung* fuehrung = nullptr;  ///< null without a log

    rahmen& titelzeile() override { return bahn_.titel; }
    std::vector<sprachliste> sprachdateien() override { return {t_.ansicht.sprache_r()}; }
    void laden() override {
        if (fuehrung != nullptr) {
            fuehrung->beginnen();
        }
        oeffnen_();
        bahn_.Nachtabschaltung.text(t_.befehle.nachthinweis());
    }
    void entladen() override {
        t_.abbruch.zuruecknehmen();
        t_.ende.zuruecknehmen();
        zumachen_();
        if (fuehrung != nullptr) {
            fuehrung->abschliessen();
        }
    }
    void schliessen() override { t_.befehle.fenster_schliessen(); }
    bool escape_schliesst() const override { return false; }

private:
    tarvel::bahn1& bahn_;
    teile t_;
    std::function<void()> oeffnen_;
    std::function<void()> zumachen_;
};

/// The race with all its parts. What it works on beside them is owned by the program.
struct rennen final : private rennabschluss {
    struct umfeld {
        renn_parameter& param;
        const einstellungen& einst;
        const texte& txt;
        const dateien& ablage;
        ereignis_tabelle& ereignisse;
        messquellen& quellen;
        const tastenbelegung& belegung;
        tarvel::ausgaben& ausgaben;
        fensterregister& fenster;
        const tarvel::bestzeiten& bestzeiten;
        const namensliste& fahrerliste;
        const namensliste& fahrzeugliste;
    };

    rennen(const plattform::dienste& dienste, const umfeld& um);
    rennen(const rennen&) = delete;
    rennen& operator=(const rennen&) = delete;

    mitschrift protokoll;
    mitschriftdienste maschine;  ///< what the race and its lights live on
    renn_zustand zustand;
    laufende_veranstaltung teil_von;
    tarvel::bahn1 bahn1;
    zeitbasis zeit;
    rennzeitgeber zeitgeber;
    rennsounds sounds;
    renn_umgebung umgebung;
    positionen plaetze;
    rennuhr uhr;
    rennende ende;
    rennansicht ansicht;
    tarvel::blinken blinken;
    tarvel::strafen strafen;
    tarvel::fruehstartstrafe fruehstartstrafe;
    tarvel::rundenanzeige rundenanzeige;
    tarvel::tanken tanken;
    tarvel::sektoren sektoren;
    rundenzaehlung zaehlung;
    soundsensoren sensoren;
    rennablauf ablauf;
    tarvel::chaos chaos;
    tarvel::fortsetzung fortsetzung;
    tarvel::ausfall ausfall;
    tarvel::rundenkorrektur rundenkorrektur;
    rennbefehle befehle;
    rueckfrage abbruchfrage;
    rueckfrage endfrage;
    rennlage lage;
    rennfenster fenster;

private:
    void laufendes_beenden() override;
};

}  // namespace tarvel
