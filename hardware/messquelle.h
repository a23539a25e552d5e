#pragma once

#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

#include "core/mitschrift.h"
#include "platform/schnittstelle.h"
#include "platform/uhr.h"

namespace tarvel {

/// A start light that the device runs itself: the race follows it.
class geraeteampel : public schnittstelle {
public:
    /// No light runs longer from its start key to green: a device that is still red then has not heard it.
    static constexpr zeit_ms laengste_ms = 15000;

    /// The cars are stopped until its green.
    virtual bool rot() const = 0;
    /// The race is ready: where the settings have the program start it, it starts the light.
    virtual void startkommando() = 0;
    /// The start is off, while that light runs.
    virtual void abbrechen() = 0;
    /// Starts the light that ends a pause.
    virtual void neustart() = 0;
};

/// What a device can do, or needs, that a race has to reckon with.
struct faehigkeiten {
    bool eigener_tank = false;         ///< it burns and refuels, and tells the levels
    bool start_am_geraet = false;      ///< somebody starts and pauses the race at its own key
    bool feste_wagen = false;          ///< cars keep to their controllers: nobody changes lanes
    bool kontakte_wiederholt = false;  ///< a contact that stays closed is told again and again
    bool bootet = false;               ///< it hears nothing yet: no race starts meanwhile

    faehigkeiten operator|(const faehigkeiten& andere) const {
        return {eigener_tank || andere.eigener_tank, start_am_geraet || andere.start_am_geraet,
                feste_wagen || andere.feste_wagen, kontakte_wiederholt || andere.kontakte_wiederholt,
                bootet || andere.bootet};
    }
};

/// Where a race stood as its program went away, for a device whose clock has gone on meanwhile.
struct ausfall_stand {
    zeit_ms stempel = 0;   ///< the last sign of life, on the clock that the race went by then
    zeit_ms versatz = 0;   ///< ms by which its stamps would have to move to stand on that clock again
    zeit_ms maschine = 0;  ///< the machine's clock at that moment, give or take the calendar's second
};

/// The role that each timing device fills. Devices deliver into the event table; the keyboard is no device. Of what the
/// race tells, a device overrides what it has a use for.
class messquelle : public schnittstelle {
public:
    /// Each `renntimer2` tick: reads the device and delivers.
    virtual void abfragen() {}
    /// Each `renntimer3` tick: takes a sample, for devices without an event of their own.
    virtual void abtasten() {}

    virtual faehigkeiten kann() const { return {}; }
    /// Reading of a clock of its own, in ms: the race goes by it, and asks for it as it starts, pauses and goes on.
    /// None for a device whose events are stamped by the race's clock, or that keeps that clock in step itself.
    virtual std::optional<zeit_ms> uhr_lesen() { return std::nullopt; }
    /// A light of its own, for as long as the device is there; else none.
    virtual geraeteampel* ampel() { return nullptr; }

    /// The race window has opened.
    virtual void rennfenster_offen() {}
    virtual void rennfenster_zu() {}
    /// The cars warm up before a race: they may drive until that is over.
    virtual void einfahren_beginnt() {}
    virtual void einfahren_vorbei() {}
    /// A race is prepared; its light comes next.
    virtual void rennen_bereit() {}
    /// In place of that: one goes on behind an outage, and stands in its pause.
    virtual void nach_ausfall(ausfall_stand /*stand*/) { rennen_bereit(); }
    /// The start has been stopped before green.
    virtual void start_abgebrochen() {}
    /// The moment at which the race starts.
    virtual void rennstart() {}
    /// A race that was over goes on.
    virtual void rennen_fortgesetzt() {}
    /// The race is over, with a result or without.
    virtual void rennende() {}
    /// The leader has reached this many laps.
    virtual void fuehrungsrunden(int /*runden*/) {}
    /// A lane has taken another place.
    virtual void platz(int /*spur*/, int /*platz*/) {}
};

/// The devices in force, as the race has to do with them. Each must outlive its connection.
class messquellen {
public:
    void anschliessen(messquelle& quelle) {
        trennen(quelle);
        alle_.push_back(&quelle);
    }
    void trennen(const messquelle& quelle) { std::erase(alle_, &quelle); }
    /// What the devices answer, and do while they are told something, goes through this from now on.
    void mitschreiben(mitschrift& protokoll) { protokoll_ = &protokoll; }

    /// `melden(handler, values…)`: tells all of them.
    template <class... Werte>
    void melden(void (messquelle::*was)(Werte...), Werte... werte) const {
        aussen([&] {
            for (messquelle* quelle : alle_) {
                (quelle->*was)(werte...);
            }
        });
    }

    /// What any of them can do.
    faehigkeiten kann() const;
    /// The first clock among them.
    std::optional<zeit_ms> uhr_lesen() const;
    /// The first start light among them.
    geraeteampel* ampel() const;

private:
    /// The light of a device as the race sees it.
    struct ampelbild final : geraeteampel {
        explicit ampelbild(const messquellen& alle) : quellen(alle) {}
        bool rot() const override;
        void startkommando() override;
        void abbrechen() override;
        void neustart() override;
        const messquellen& quellen;
        geraeteampel* echte = nullptr;
        mutable mitschrift::letzte_antwort rot_zuletzt;
    };

    template <class Rest>
    void aussen(Rest was) const {
        if (protokoll_ != nullptr) {
            protokoll_->tor(was);
        } else {
            was();
        }
    }
    template <class Frage>
    std::int64_t erfragen(std::string_view name, mitschrift::letzte_antwort& zuletzt, Frage frage) const {
        return protokoll_ != nullptr ? protokoll_->zustand(name, zuletzt, frage) : frage();
    }

    std::vector<messquelle*> alle_;
    mitschrift* protokoll_ = nullptr;
    mutable ampelbild ampel_{*this};
    mutable mitschrift::letzte_antwort kann_zuletzt_;
    mutable mitschrift::letzte_antwort ampel_zuletzt_;
    mutable mitschrift::letzte_antwort uhr_zuletzt_;
};

}  // namespace tarvel
