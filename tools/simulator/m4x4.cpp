#include "tools/simulator/m4x4.h"

#include <algorithm>
#include <utility>

namespace tarvel::simulator {
namespace {

constexpr int kontakt = 4;
constexpr int bahnen_im_kontakt = 4;
constexpr int lampen_eines_starts = 2;
constexpr zeit_ms gleichzeitig_ms = 50;  // lamps that are lit together are no countdown

klemme klemme_von(const wagen_ereignis& was) {
    switch (was.art) {
        case wagen_art::ueberfahrt:
            return was.sensor == 1 ? klemme::ziel : was.sensor == 2 ? klemme::sektor_1 : klemme::sektor_2;
        case wagen_art::box_ein:
            return klemme::tank_ein;
        case wagen_art::box_aus:
            return klemme::tank_aus;
        case wagen_art::chaos:
            break;
    }
    return klemme::chaos;
}

/// On a digital track; 0 where there is no sensor.
int sensorposition(klemme wo) {
    constexpr int tank_ein = 3;
    constexpr int tank_aus = 4;
    return wo == klemme::ziel ? 1 : wo == klemme::tank_ein ? tank_ein : wo == klemme::tank_aus ? tank_aus : 0;
}

}  // namespace

m4x4::m4x4(const m4x4_einstellung& einst) : geraet(einst.rennen, autos), einst_(einst) {
    neustart();
}

void m4x4::neustart() {
    an_.fill(false);
    modus_ = 0;
    modus_folgt_ = false;
    feld_.strom(0, einst_.strom_invers);
    lampen_gesehen_ = 0;
    const bool unterbrochen = std::exchange(gestartet_, false);
    if (unterbrochen || (einst_.rennen.sofort && !faehrt_)) {
        losfahren();  // who waited for a light that will never end goes as soon as there is power
    }
}

void m4x4::verbunden() {
    haengt_ = false;
    hoert_ab_ = uhr() + einst_.bootzeit;
    neustart();
    if (!einst_.stumm) {
        zeile("TRAXIUM-USB");
    }
}

void m4x4::empfangen(std::string_view bytes) {
    for (const char c : bytes) {
        if (!haengt_ && uhr() >= hoert_ab_) {
            zeichen(c);
        }
    }
}

void m4x4::zeichen(char c) {
    const bool ist_modus = modus_folgt_ && c >= '1' && c <= '4';
    modus_folgt_ = false;
    if (ist_modus) {
        modus_setzen(c - '0');
    } else if (c >= 'A' && c < 'A' + ausgaenge) {
        schalten(c - 'A' + 1, true);
    } else if (c >= 'a' && c < 'a' + ausgaenge) {
        schalten(c - 'a' + 1, false);
    } else if (c == '-') {
        neustart();
        zeile("TRAXIUM-USB");
    } else if (c == '+') {
        sagen("Angemeldet");
        zeile("TXUSB_OK");
    } else if (c == 'v') {
        zeile(einst_.version);
    } else if (c == '0') {
        modus_folgt_ = true;
        modus_ = 0;
        zeile("MODUS");
    } else if (c == '=') {
        zeile("mod" + std::to_string(modus_));
    }
}

void m4x4::modus_setzen(int nummer) {
    modus_ = nummer;
    sagen("Modus " + std::to_string(nummer));
    zeile("mod" + std::to_string(nummer));
}

bool m4x4::ist_lampe(int nummer) const {
    constexpr int erste = 5;
    constexpr int letzte = 9;
    constexpr int stets = 7;
    return nummer >= (einst_.spuren_6 ? stets : erste) && nummer <= letzte;
}

bool m4x4::strom_da() const {
    const int bahnen = einst_.spuren_6 ? autos : bahnen_im_kontakt;
    return std::any_of(an_.begin() + 1, an_.begin() + 1 + bahnen,
                       [this](bool an) { return an != einst_.strom_invers; });
}

void m4x4::schalten(int nummer, bool an) {
    const bool vorher = an_.at(static_cast<std::size_t>(nummer));
    an_.at(static_cast<std::size_t>(nummer)) = an;
    sagen("Ausgang " + std::to_string(nummer) + (an ? " an" : " aus"));
    if (ist_lampe(nummer)) {
        if (vorher != an) {
            lampe_geschaltet(an);
        }
        return;
    }
    feld_.strom(nummer, an != einst_.strom_invers);
    if (modus_ == kontakt || nummer != 1) {
        return;
    }
    for (int wagen = 2; wagen <= autos; ++wagen) {  // all cars of a digital track hang on its one supply
        feld_.strom(wagen, an != einst_.strom_invers);
    }
}

/// There is no green lamp: the cars go when the red ones that were lit one after the other are all out. In a pause they
/// are lit together, and begin no race.
void m4x4::lampe_geschaltet(bool an) {
    if (an) {
        lampen_gesehen_ += uhr() - letzte_lampe_ > gleichzeitig_ms ? 1 : 0;
        letzte_lampe_ = uhr();
        if (lampen_gesehen_ == lampen_eines_starts && !gestartet_) {
            gestartet_ = true;
            faehrt_ = false;
            feld_.aufstellen();
            feld_.rot();
        }
        return;
    }
    bool eine_an = false;
    for (int nummer = 1; nummer <= ausgaenge; ++nummer) {
        eine_an = eine_an || (ist_lampe(nummer) && an_.at(static_cast<std::size_t>(nummer)));
    }
    if (eine_an) {
        return;
    }
    if (gestartet_ && lampen_gesehen_ >= lampen_vor_gruen) {
        losfahren();
    } else if (gestartet_) {
        feld_.startabbruch();
    }
    gestartet_ = false;
    lampen_gesehen_ = 0;
}

void m4x4::losfahren() {
    faehrt_ = true;
    feld_.gruen();
    sagen("Die Wagen fahren los");
}

void m4x4::taste_druecken(bool lang) {
    zeile(lang ? "RC2Long" : "RC2");
}

void m4x4::zeile(const std::string& text) const {
    if (!haengt_) {
        hinaus(text + "\r");
    }
}

bool m4x4::kontakt_schliessen(klemme was, int wagen) const {
    for (std::size_t i = 0; i < einst_.kontakte.size(); ++i) {
        if (const anschlussstelle& stelle = einst_.kontakte.at(i); stelle.was == was && stelle.nummer == wagen) {
            zeile(std::to_string(i + 1) + "?");
            return true;
        }
    }
    return false;
}

/// On a digital track a sensor tells its position and the car.
void m4x4::sensor(int position, int wagen) const {
    if (modus_ != 0) {
        zeile(std::to_string(position) + static_cast<char>('@' - wagen));
    }
}

void m4x4::wagen_meldet(const wagen_ereignis& was) {
    const klemme wo = klemme_von(was);
    if (wo == klemme::chaos) {
        chaos_druecken(was.wagen);
    } else if (modus_ == kontakt) {
        kontakt_schliessen(wo, was.wagen);
    } else if (const int position = sensorposition(wo); position != 0) {
        sensor(position, was.wagen);
    }
}

void m4x4::chaos_druecken(int wagen) {
    if (!strom_da() || chaos_ende_ >= 0) {
        return;
    }
    chaos_ende_ = einst_.rennen.chaos_dauer > 0 ? uhr() + einst_.rennen.chaos_dauer : -1;
    sagen("Chaostaste");
    if (modus_ != kontakt || !kontakt_schliessen(klemme::chaos, wagen)) {
        taste_druecken(wagen % 2 == 0);
    }
}

void m4x4::schritt() {
    if (chaos_ende_ >= 0 && uhr() >= chaos_ende_) {
        chaos_ende_ = -1;
        if (!strom_da()) {
            taste_druecken(false);
        }
    }
    if (einst_.antippen > 0 && !faehrt_ && lampen_gesehen_ == 0 && modus_ != 0 && uhr() % einst_.antippen == 0) {
        if (modus_ == kontakt) {
            zeile(std::to_string(1 + getippt_ % static_cast<int>(einst_.kontakte.size())) + "?");
        } else {
            sensor(1, 1 + getippt_ % autos);
        }
        ++getippt_;
    }
}

}  // namespace tarvel::simulator
