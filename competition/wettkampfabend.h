#pragma once

#include <functional>
#include <vector>

#include "competition/abendblick.h"
#include "competition/rennautomat.h"
#include "competition/wettkampf.h"
#include "core/einstellungen.h"
#include "core/fensterregister.h"
#include "core/renn_parameter.h"
#include "core/texte.h"
#include "platform/uhr.h"
#include "race/bahn1.h"
#include "race/rennergebnis.h"
#include "race/veranstaltung.h"
#include "results/einzelrennen.h"

namespace tarvel {

/// Of a race of the evening, on its way to its own file.
struct abendergebnis {
    int rennen = 0;
    int teil = 1;  ///< up to which it has been driven
    rennergebnis ergebnis;
    bool sein_protokoll = true;  ///< the log that is being kept is that of this race
};

/// Where the evening is kept. A file that could not be written is false.
class wettkampfablage : public schnittstelle {
public:
    /// What the program needs to take up the evening after its end, whenever that comes.
    virtual bool laufenden_sichern(const wettkampf& stand) = 0;
    /// The evening has been ended. One that is not `fertig` stays, to be taken up another day.
    virtual void laufenden_weglegen(bool fertig) = 0;
    /// A dated file of the state, if the settings want it.
    virtual bool zwischenstand_sichern(const wettkampf& stand) = 0;
    /// The race's own file, likewise.
    virtual bool rennen_sichern(const wettkampf& stand, const abendergebnis& eines) = 0;
    /// The table of the whole competition.
    virtual bool tabelle_sichern(const wettkampf& stand) = 0;
    /// A file could not be written: tells the operator.
    virtual void fehler_melden() = 0;
};

/// Windows that show the evening.
class abendansicht : public schnittstelle {
public:
    virtual void stand_zeigen() = 0;
    virtual void wartezeit_zeigen() {}
    /// The director is about something in it, and no race may begin by itself meanwhile.
    virtual bool beschaeftigt() const { return false; }
};

/// The track on which the evening is driven.
class bahnumfeld : public schnittstelle {
public:
    /// The timing device that is chosen can be heard, or none is.
    virtual bool messgeraet_da() const = 0;
    /// The track power, which the director may have switched off to place the cars.
    virtual void bahnstrom_von_hand(bool an) = 0;
};

/// An evening of many races: hands each race its drivers and lanes, takes its result, goes on to the next one, by
/// itself if that is wanted, and is kept after every race.
class wettkampfabend final : public veranstaltung, private automatenfolgen {
public:
    struct umgebung {
        renn_parameter& param;
        einstellungen& einst;
        laufende_veranstaltung& teil_von;
        bahn1& bahn;
        fensterregister& fenster;
        wettkampfablage& ablage;
        bahnumfeld& strecke;
        plattform::zeitgeber_dienst& zeitgeber;
        const plattform::uhr& uhr;
    };

    explicit wettkampfabend(const umgebung& um) : um_(um), automat_(um.zeitgeber, *this) {}

    /// Offers the race that is about to be started, if it was broken off: it goes on, starts anew, or neither yet.
    std::function<plattform::dreifache_antwort()> abgebrochenes_anbieten = [] {
        return plattform::dreifache_antwort::nein;
    };
    /// Asks whether results in the books may be lost.
    std::function<bool()> wiederholen_fragen = [] { return true; };
    /// Told whenever something has changed.
    void ansicht_anmelden(abendansicht& ansicht) { ansichten_.push_back(&ansicht); }
    const wettkampf& stand() const { return stand_; }
    bool wettkampf_aktiv() const { return aktiv_; }
    abendblick blick() const { return abend_blicken(stand_); }

    /// A new evening, or one that is taken up again.
    void beginnen(wettkampf neu);
    /// The evening is over. What has been driven is kept where it has been saved.
    void beenden();
    /// Keeps what could not be kept so far. False if that fails again: it would be lost with the evening.
    bool nachsichern();
    /// Nobody is to be asked for this evening again.
    void verwerfen() { um_.ablage.laufenden_weglegen(true); }
    /// Opens the race window on the current race. False if none is left.
    bool rennen_starten();
    /// The race window is to go on where an outage has left this race, which was started with that part. False if the
    /// evening has come elsewhere.
    bool rennen_wiederaufnehmen(int rennen, int ab_teil);
    /// It has come to where it was: it had gone on so often, perhaps its drivers stand on the lanes of the next part,
    /// and it has taken so long. False if the books cannot be of that race: they have parts that it lacks, or lack some
    /// that it has not.
    bool wiederaufgenommen(int fortsetzungen, bool umgesetzt, dauer_ms bisher);
    /// What the director changes: keeps it and shows it, if `was` says true.
    bool aendern(const std::function<bool(wettkampf&)>& was);

    void automatik_umschalten();
    /// The options have been changed.
    void einstellungen_geaendert();
    /// The next race comes by itself.
    bool automatik_an() const { return automatik_an_; }
    /// A race has been broken off since it was last started.
    bool unterbrochen() const { return unterbrochen_; }
    /// The last time that something was to be kept it could not be.
    bool nicht_gesichert() const { return nicht_gesichert_; }
    bool wartet_auf_rennen() const { return automat_.wartet_auf_rennen(); }
    dauer_s wartezeit() const { return automat_.rest(); }

    /// Tells this evening from another one, in the characters that its file has as well.
    std::string abendname() const;
    std::string kennung() const override {
        return "wettkampf " + std::to_string(uebergabe_.rennen) + " " + std::to_string(ab_teil_) + " " + abendname();
    }
    std::string anlass(const anlassworte& wort) const override;
    starter wer_startet() const override;
    void von_selbst_starten(bool an) override { von_selbst_ = an; }
    bool ohne_bediener() const override { return automatik_an_; }
    bool ist_fueller(int spur) const override { return uebergabe_.fueller[spur]; }
    bool fueller_fahren(bool /*fortgesetzt*/) const override { return false; }
    bool leer_gezeigt(int spur) const override { return uebergabe_.fueller[spur] && !um_.einst.freie_slots; }
    std::string naechste_fahrer() const override;
    void begonnen() override;
    std::optional<dauer_ms> nach_einfahren() const override;
    void einfahren_beendet() override;
    void weitergefahren() override { gefahren_ = uebergabe_.teil; }
    void abgebrochen() override;
    bool mit_spurwechsel() const override { return false; }
    std::optional<spuren<int>> fester_wechsel() const override { return wechsel_; }
    std::optional<rennziel> fortsetzbar_bis() const override { return renn_maximum(um_.param); }
    bool mit_eigener_datei() const override { return false; }
    ausweg weg_hinaus() const override {
        return gefahren_ < uebergabe_.teil || weiterer_teil() ? ausweg::fortsetzen : ausweg::weiter;
    }
    selbstlauf danach() const override;
    bool darf_wiederholen() const override;
    bool uebernehmen(const rennergebnis& ergebnis, weitergang wie) override;
    fenstername zurueck() const override { return fenstername::wettkampf2; }

private:
    bool darf_warten() const override;
    void w_auto1_vorbei() override { rennen_starten(); }
    bool w_auto2_vorbei() override;
    bool w_auto3_vorbei() override;
    void wartezeit_zeigen() override;

    /// The race goes on with its cars on the next lanes. One that would grow too long is started anew for the rest.
    bool weiterer_teil() const {
        return uebergabe_.teil < stand_.plan.teile &&
               um_.param.renn_ziel + um_.param.renn_laenge <= renn_maximum(um_.param);
    }
    bool mit_einfahrzeit() const { return um_.einst.w_einfahren_an && um_.fenster.gibt_es(fenstername::einfahren); }
    void uebergeben();
    /// The part that was driven last is in the books.
    bool teil_gebucht() const { return stand_.fortsetzung_nummer(uebergabe_.rennen) >= gefahren_; }
    void buchen(const rennergebnis& ergebnis);
    void ergebnis_vormerken(const rennergebnis& ergebnis);
    void neu_beginnen(const rennergebnis& ergebnis);
    void teil_abschliessen(const rennergebnis& ergebnis);
    void nächstes_rennen(const rennergebnis& ergebnis);
    void am_start_warten();
    /// Tells of a failure, but while nobody may be there.
    void gesichert(bool alles);
    /// The state, and the results that have no file yet.
    bool sichern();
    bool tabelle_sichern();
    void zeigen();

    umgebung um_;
    rennautomat automat_;
    std::vector<abendansicht*> ansichten_;
    wettkampf stand_;
    std::vector<abendergebnis> ungesichert_;  ///< those without a file yet
    renn_uebergabe uebergabe_;  ///< of the race that is being driven, for the part on whose lanes the drivers stand
    int ab_teil_ = 1;           ///< the part with which it was started
    spuren<int> wechsel_;       ///< into the next part, per lane the one that its driver comes from
    int gefahren_ = 1;          ///< the part that has been driven last, or is being driven
    bool aktiv_ = false;
    bool automatik_an_ = false;
    bool von_selbst_ = false;  ///< the next part begins without anybody
    bool unterbrochen_ = false;
    bool nicht_gesichert_ = false;
    bool tabelle_offen_ = false;  ///< all races are driven, and no table on the disk shows how it stands
    zeit_ms start_ = 0;           ///< first one of the race that was started last, 0 for none
    bool ergebnis_da_ = false;    ///< and it has its result
};

}  // namespace tarvel
