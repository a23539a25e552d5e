#include "hardware/iow_leitung.h"

#include <algorithm>
#include <atomic>
#include <utility>

#include "hardware/iow_bericht.h"
#include "hardware/iow_platine.h"
#include "hardware/uebergabe.h"

namespace tarvel {
namespace {

constexpr std::size_t wartende_max = 64;
constexpr int takte_je_bericht = 20;

}  // namespace

/// An open board. Who lets go of it last closes it.
struct iow_leitung::brett {
    explicit brett(std::shared_ptr<iow_bibliothek> bibliothek) : platine(std::move(bibliothek)) {}
    brett(const brett&) = delete;
    brett& operator=(const brett&) = delete;
    ~brett() { wartende_schreiben(); }

    void wartende_schreiben() {
        while (const auto bericht = wartende.nehmen()) {
            if (!verweigert && !platine.schreiben(*bericht)) {
                verweigert = true;
            }
            ++erledigt;
        }
    }
    void lesen(zeit_ms jetzt, kontaktproben& proben) {
        constexpr int berichte_max = 8;  // one after the other: each change is one that the race has to see
        for (int n = 0; n < berichte_max && platine.lesen(linien); ++n) {
            proben.gesehen(jetzt, linien);
        }
        proben.gesehen(jetzt, linien);
    }

    iow_platine platine;
    uebergabe<iow_bericht::bytes, wartende_max> wartende;
    std::atomic<std::size_t> erledigt = 0;  ///< reports that were written or refused
    std::atomic<bool> verweigert = false;
    std::uint32_t linien = 0;  ///< of the last report; the reading thread's own
};

iow_leitung::iow_leitung(std::shared_ptr<iow_bibliothek> bibliothek, plattform::abtaster_dienst& abtaster)
    : bibliothek_(std::move(bibliothek)), abtaster_(abtaster) {}

bool iow_leitung::oeffnen(const std::shared_ptr<kontaktproben>& proben) {
    schliessen();
    auto neues = std::make_shared<brett>(bibliothek_);
    if (!neues->platine.iow_oeffnen()) {
        return false;
    }
    brett_ = neues;
    schreiber_ = abtaster_.starten(2ms, [neues](zeit_ms /*jetzt*/) { neues->wartende_schreiben(); });
    if (proben != nullptr) {
        neues->linien = proben->linien();
        leser_ = abtaster_.starten(1ms, [neues, proben](zeit_ms jetzt) { neues->lesen(jetzt, *proben); });
    }
    return true;
}

void iow_leitung::schliessen() {
    brett_.reset();  // its threads are the last that hold it
    leser_.reset();
    schreiber_.reset();
    gegeben_ = erledigt_davor_ = 0;
    takte_ = 0;
    haengt_ = false;
}

std::size_t iow_leitung::iow_berichtgroesse() const {
    return offen() ? brett_->platine.iow_berichtgroesse() : 0;
}

bool iow_leitung::schreiben(std::span<const std::uint8_t> bericht) {
    iow_bericht::bytes neu = iow_bericht::in_ruhe;
    std::copy_n(bericht.begin(), std::min(bericht.size(), neu.size()), neu.begin());
    if (!offen() || !brett_->wartende.geben(neu)) {
        return false;
    }
    ++gegeben_;
    return !brett_->verweigert;
}

iow_leitung::befund iow_leitung::nachsehen() {
    if (offen() && brett_->verweigert) {
        return befund::abgezogen;
    }
    const std::size_t erledigt = offen() ? brett_->erledigt.load() : 0;
    const bool fertig = erledigt == gegeben_;
    if (haengt_ && fertig) {
        haengt_ = false;
        return befund::nimmt_wieder;
    }
    if (++takte_ < takte_je_bericht) {
        return befund::nichts;
    }
    takte_ = 0;
    const bool steht = std::exchange(erledigt_davor_, erledigt) == erledigt;
    if (fertig) {
        return befund::faellig;
    }
    if (haengt_ || !steht) {
        return befund::nichts;
    }
    haengt_ = true;
    return befund::haengt;
}

}  // namespace tarvel
