#pragma once

#include <optional>
#include <string>

#include "core/fensternamen.h"
#include "core/fensterregister.h"
#include "core/mitschrift.h"
#include "core/rennziel.h"
#include "core/spuren.h"
#include "platform/dauer.h"
#include "platform/schnittstelle.h"

namespace tarvel {

struct rennergebnis;

/// Who begins the race.
enum class starter {
    bediener,
    einfahrzeit,  ///< the warm-up that comes before it
    ablauf        ///< nobody: it begins by itself
};

/// Where the way out of the result leads.
enum class ausweg {
    hauptmenue,
    weiter,     ///< in the evening that the race is part of
    fortsetzen  ///< into the next part of the same race
};

/// What the result window does if nobody takes a hand in it.
struct selbstlauf {
    enum class schritt { keiner, ausweg, neu_starten, fortsetzen };
    schritt was = schritt::keiner;
    dauer_ms nach{};
};

/// What becomes of the race whose result is taken.
enum class weitergang { wiederholen, neu_starten, fortsetzen, verlassen };

/// Words for what a race is part of.
struct anlassworte {
    std::string training, tagesrennen, wettkampf, rennen;
};

/// What a race is part of: a race of its own, a training, the list of a day, an evening of many races. The race and its
/// result window ask it what is allowed and where they lead, and nothing else tells the kinds of evening apart.
class veranstaltung : public schnittstelle {
public:
    /// Its kind, and what else it takes to find it again after an outage.
    virtual std::string kennung() const = 0;
    /// The same as people say it; empty for a race of its own.
    virtual std::string anlass(const anlassworte& /*wort*/) const { return {}; }
    virtual starter wer_startet() const { return starter::bediener; }
    /// The result window goes on by itself, and so must the start that follows; false once it has.
    virtual void von_selbst_starten(bool /*an*/) {}
    /// Races come by themselves: no message may wait for somebody.
    virtual bool ohne_bediener() const { return false; }
    /// Practice: the race window says so, that nobody takes it for a race.
    virtual bool zur_uebung() const { return false; }
    /// The lane has no driver; its place only fills the race up.
    virtual bool ist_fueller(int spur) const = 0;
    /// A filler's lane is in the race all the same, when it begins or goes on.
    virtual bool fueller_fahren(bool fortgesetzt) const = 0;
    /// Its place shows on the race window although nobody drives there.
    virtual bool leer_gezeigt(int /*spur*/) const { return false; }
    /// Drivers of the race after this one; empty if there is none.
    virtual std::string naechste_fahrer() const { return {}; }
    /// The start, or the warm-up before it, has begun.
    virtual void begonnen() {}
    /// After its end the warm-up is left by itself, this much later.
    virtual std::optional<dauer_ms> nach_einfahren() const { return {}; }
    /// It has been left, and the race comes next.
    virtual void einfahren_beendet() {}
    /// Green: the race goes on from its result.
    virtual void weitergefahren() {}
    /// Broken off without a result.
    virtual void abgebrochen() {}

    /// A race that goes on, or begins anew, may take the drivers to other lanes.
    virtual bool mit_spurwechsel() const { return true; }
    /// Whatever the operator has chosen: lane i takes the driver of lane `[i]`, or keeps its own at 0.
    virtual std::optional<spuren<int>> fester_wechsel() const { return {}; }
    /// Largest target to which the race may go on from its result; none if it may not.
    virtual std::optional<rennziel> fortsetzbar_bis() const = 0;
    /// The result can be saved as a file of its own.
    virtual bool mit_eigener_datei() const { return true; }
    virtual ausweg weg_hinaus() const { return ausweg::hauptmenue; }
    virtual selbstlauf danach() const { return {}; }
    /// Repeating the race loses nothing but its result, or that is meant.
    virtual bool darf_wiederholen() const { return true; }
    /// Takes the result of the race. False, and told, if it could not be kept.
    virtual bool uebernehmen(const rennergebnis& ergebnis, weitergang wie) = 0;
    /// Window to which a race leads that has been left or broken off.
    virtual fenstername zurueck() const { return fenstername::Form1; }
    virtual anzeige_art zurueck_als() const { return anzeige_art::frei; }
};

/// The one that the race is part of now. It must outlive the race.
class laufende_veranstaltung {
public:
    explicit laufende_veranstaltung(mitschrift& protokoll) : protokoll_(protokoll) {}

    void wechseln(veranstaltung& neue) { laufende_ = &neue; }
    veranstaltung* operator->() const { return laufende_; }

    // What the race itself goes by, and tells.
    starter wer_startet() const {
        return static_cast<starter>(protokoll_.zustand(
            "starter", starter_, [this] { return static_cast<std::int64_t>(laufende_->wer_startet()); }));
    }
    bool ist_fueller(int spur) const {
        return protokoll_.antwort("fueller", [&] { return laufende_->ist_fueller(spur) ? 1 : 0; }) == 1;
    }
    bool fueller_fahren(bool fortgesetzt) const {
        return protokoll_.antwort("faehrt", [&] { return laufende_->fueller_fahren(fortgesetzt) ? 1 : 0; }) == 1;
    }
    void melden(void (veranstaltung::*was)()) const {
        protokoll_.tor([&] { (laufende_->*was)(); });
    }

private:
    mitschrift& protokoll_;
    veranstaltung* laufende_ = nullptr;
    mutable mitschrift::letzte_antwort starter_;
};

}  // namespace tarvel
