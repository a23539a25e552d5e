#include "tools/simulator/wagen.h"

#include <algorithm>

namespace tarvel::simulator {
namespace {

constexpr zeit_ms kuerzeste_runde = 100;
constexpr zeit_ms promille = 1000;

}  // namespace

wagenfeld::wagenfeld(const std::vector<wagen_einstellung>& wagen, std::uint64_t saat) {
    for (const wagen_einstellung& einst : wagen) {
        lage w;
        w.einst = einst;
        w.zufall.seed(saat * promille + wagen_.size());
        wagen_.push_back(std::move(w));
    }
    aufstellen();
}

void wagenfeld::strom(int wagen, bool an) {
    for (int nummer = 1; nummer <= anzahl(); ++nummer) {
        if (wagen == 0 || wagen == nummer) {
            wagen_[static_cast<std::size_t>(nummer - 1)].strom = an;
        }
    }
}

void wagenfeld::aufstellen() {
    ++aufstellungen_;
    for (int nummer = 1; nummer <= anzahl(); ++nummer) {
        lage& w = wagen_[static_cast<std::size_t>(nummer - 1)];
        w.los = false;
        w.bis_los = -1;
        w.gefahren = 0;
        w.seit_stopp = 0;
        w.marken = {{w.einst.anfahrt, {wagen_art::ueberfahrt, nummer, 1}}};
        w.naechste = 0;
    }
}

void wagenfeld::rot() {
    for (lage& w : wagen_) {
        if (!w.los && w.einst.fruehstart) {
            w.bis_los = w.einst.fruehstart_nach;
        }
    }
}

void wagenfeld::startabbruch() {
    for (lage& w : wagen_) {
        w.bis_los = -1;
    }
}

void wagenfeld::gruen() {
    for (lage& w : wagen_) {
        if (!w.los) {
            w.bis_los = w.bis_los < 0 ? w.einst.reaktion : std::min(w.bis_los, w.einst.reaktion);
        }
    }
}

void wagenfeld::anhalten() {
    startabbruch();
    for (lage& w : wagen_) {
        w.los = false;
    }
}

bool wagenfeld::wartet(int wagen) const {
    return wagen >= 1 && wagen <= anzahl() && !wagen_[static_cast<std::size_t>(wagen - 1)].los;
}

void wagenfeld::schritt(zeit_ms jetzt) {
    for (int nummer = 1; nummer <= anzahl(); ++nummer) {
        lage& w = wagen_[static_cast<std::size_t>(nummer - 1)];
        if (!w.los && w.bis_los >= 0) {
            w.los = w.bis_los == 0;
            --w.bis_los;
        }
        if (w.los && w.strom) {
            fahren(nummer, w, jetzt);
        }
    }
}

/// From 0 to `bis`. The standard's distributions differ from machine to machine.
zeit_ms wagenfeld::ziehen(lage& w, zeit_ms bis) {
    return static_cast<zeit_ms>(w.zufall() % static_cast<std::uint64_t>(std::max<zeit_ms>(bis, 0) + 1));
}

void wagenfeld::runde_beginnen(int nummer, lage& w) {
    // Every lap draws the same number of times, so that a setting changes nothing but its own subject.
    zeit_ms streuung = ziehen(w, w.einst.streuung);
    streuung -= ziehen(w, w.einst.streuung);
    const bool chaos = ziehen(w, promille - 1) < w.einst.chaos_promille;
    const zeit_ms chaos_ort = ziehen(w, promille - 1);
    const zeit_ms dauer = std::max(w.einst.rundenzeit + streuung, kuerzeste_runde);
    const bool stopp = w.einst.runden_je_stopp > 0 && ++w.seit_stopp >= w.einst.runden_je_stopp;
    const auto bei = [&](zeit_ms ort) {
        return dauer * ort / promille + (stopp && ort > w.einst.box ? w.einst.standzeit : 0);
    };

    w.gefahren = 0;
    w.naechste = 0;
    w.marken.clear();
    for (const int sektor : {0, 1}) {
        const int ort = w.einst.sektoren[static_cast<std::size_t>(sektor)];
        if (ort >= 0) {
            w.marken.push_back({bei(ort), {wagen_art::ueberfahrt, nummer, sektor + 2}});
        }
    }
    if (stopp) {
        w.seit_stopp = 0;
        w.marken.push_back({bei(w.einst.box), {wagen_art::box_ein, nummer, 0}});
        w.marken.push_back({bei(w.einst.box) + w.einst.standzeit, {wagen_art::box_aus, nummer, 0}});
    }
    if (chaos) {
        w.marken.push_back({bei(chaos_ort), {wagen_art::chaos, nummer, 0}});
    }
    w.marken.push_back({bei(promille), {wagen_art::ueberfahrt, nummer, 1}});
    std::stable_sort(w.marken.begin(), w.marken.end(), [](const marke& a, const marke& b) { return a.bei < b.bei; });
}

void wagenfeld::fahren(int nummer, lage& w, zeit_ms jetzt) {
    ++w.gefahren;
    while (w.naechste < w.marken.size() && w.marken[w.naechste].bei <= w.gefahren) {
        const wagen_ereignis was = w.marken[w.naechste].was;
        ++w.naechste;
        if (was.art == wagen_art::ueberfahrt) {
            fahrten_.push_back({nummer, was.sensor, jetzt});
        }
        if (was.art == wagen_art::ueberfahrt && was.sensor == 1) {
            runde_beginnen(nummer, w);
        }
        if (bei_ereignis) {
            bei_ereignis(was);
        }
    }
}

}  // namespace tarvel::simulator
