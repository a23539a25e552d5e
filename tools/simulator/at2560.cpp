#include "tools/simulator/at2560.h"

#include <algorithm>
#include <bit>
#include <charconv>

#include "tools/simulator/at2560_pins.h"

namespace tarvel::simulator {
namespace {

constexpr char startzeichen = ':';
constexpr char endzeichen = ';';
constexpr std::size_t folge_max = 250;
constexpr int gruene_lampe = 6;
constexpr int pin_max = 99;

using pins = at2560_pins;

std::string nummer_text(const char* vor, int nummer, bool an) {
    return vor + (nummer == 0 ? std::string("alle") : std::to_string(nummer)) + (an ? " an" : " aus");
}

}  // namespace

at2560::at2560(const at2560_einstellung& einst) : geraet(einst.rennen, spuren), einst_(einst) {
    ruhezustand();
}

void at2560::ruhezustand() {
    stand_ = {};
    pins_.clear();
    chaos_ende_ = -1;
    lampen_gesehen_ = 0;
    faehrt_ = false;
    feld_.strom(0, einst_.strom_invers);
    if (einst_.rennen.sofort) {
        losfahren();
    }
}

void at2560::neustart() {
    uhr_neu();
    hoert_ab_ = uhr() + einst_.bootzeit;
    in_folge_ = false;
    feld_.aufstellen();
    ruhezustand();
    sagen("Neustart");
}

void at2560::empfangen(std::string_view bytes) {
    for (const char c : bytes) {
        zeichen(c);
    }
}

void at2560::zeichen(char c) {
    if (uhr() < hoert_ab_) {
        return;
    }
    if (c == startzeichen) {
        in_folge_ = true;
        eingang_.clear();
    } else if (in_folge_ && c == endzeichen) {
        in_folge_ = false;
        befehl(eingang_);
    } else if (in_folge_ && eingang_.size() < folge_max) {
        eingang_ += c;
    } else {
        in_folge_ = false;
    }
}

void at2560::befehl(const std::string& text) {
    const std::string is = "IS,";
    bool verstanden = true;
    if (text == "T") {
        melden_mit_uhr(text);
    } else if (text == "V") {
        folge_senden("V," + einst_.seriennummer);
    } else if (text == "R") {
        neustart();
    } else if (text == "S") {
        if (!faehrt_) {
            losfahren();
        }
    } else if (text.starts_with(is)) {
        verstanden = pins_setzen(std::string_view(text).substr(is.size()));
    } else {
        verstanden = schalten(text);
    }
    if (verstanden) {
        befehle_.push_back(text);
    }
}

/// A letter, the number of a lamp or lane if there are several, and "1" or "0".
bool at2560::schalten(const std::string& text) {
    if (text.size() < 2 || text.size() > 3 || (text.back() != '0' && text.back() != '1')) {
        return false;
    }
    const bool an = text.back() == '1';
    const int nummer = text.size() == 3 ? text[1] - '0' : -1;
    if (text[0] == 'A' && nummer >= 0 && nummer <= gruene_lampe) {
        lampe_schalten(nummer, an);
    } else if (text[0] == 'P' && nummer >= 0 && nummer <= spuren) {
        strom_schalten(nummer, an);
    } else if (text[0] == 'E' && nummer < 0) {
        rennende_schalten(an);
    } else if (text[0] == 'C' && nummer < 0) {
        stand_.chaos = an;
        sagen(an ? "Chaoslampe an" : "Chaoslampe aus");
    } else {
        return false;
    }
    return true;
}

void at2560::lampe_schalten(int nummer, bool an) {
    if (nummer == gruene_lampe) {
        stand_.gruen = an;
        sagen(an ? "Grün an" : "Grün aus");
        // Green burns between the races too; only lamps that were lit one after the other make it a start.
        const bool nach_lampen = std::popcount(lampen_gesehen_) >= lampen_vor_gruen;
        lampen_gesehen_ = an ? 0 : lampen_gesehen_;
        if (an && !faehrt_ && nach_lampen) {
            losfahren();
        }
        return;
    }
    sagen(nummer_text("Rot ", nummer, an));
    if (nummer == 0) {
        stand_.rot.fill(an);
        return;
    }
    stand_.rot.at(static_cast<std::size_t>(nummer - 1)) = an;
    // The first lamp begins a race, but in a pause: there the cars go on where they stand.
    if (an && nummer == 1 && !stand_.chaos) {
        faehrt_ = false;
        lampen_gesehen_ = 0;
        feld_.aufstellen();
        feld_.rot();
    }
    if (an) {
        lampen_gesehen_ |= 1U << static_cast<unsigned>(nummer);
    }
}

void at2560::strom_schalten(int nummer, bool an) {
    if (nummer == 0) {
        stand_.strom.fill(an);
    } else {
        stand_.strom.at(static_cast<std::size_t>(nummer - 1)) = an;
    }
    feld_.strom(nummer, an != einst_.strom_invers);
    sagen(nummer_text("Bahnstrom ", nummer, an));
}

void at2560::rennende_schalten(bool an) {
    stand_.rennende = an;
    sagen(an ? "Rennende an" : "Rennende aus");
    if (an) {
        faehrt_ = false;
        feld_.anhalten();
    }
}

void at2560::losfahren() {
    faehrt_ = true;
    feld_.gruen();
    sagen("Die Wagen fahren los");
}

/// Numbers with dots between them; a list with anything else changes nothing.
bool at2560::pins_setzen(std::string_view liste) {
    std::vector<int> neu;
    const char* ort = liste.data();
    const char* const ende = ort + liste.size();
    while (true) {
        int pin = 0;
        const auto [weiter_ab, fehler] = std::from_chars(ort, ende, pin);
        if (fehler != std::errc() || pin < 0 || pin > pin_max) {
            return false;
        }
        neu.push_back(pin);
        if (weiter_ab == ende) {
            break;
        }
        if (*weiter_ab != '.') {
            return false;
        }
        ort = weiter_ab + 1;
    }
    pins_ = neu;
    getippt_ = 0;
    sagen("Sensoren " + std::string(liste));
    return true;
}

void at2560::folge_senden(const std::string& inhalt) const {
    hinaus(startzeichen + inhalt + endzeichen + (einst_.zeilenende ? "\r\n" : ""));
}

void at2560::melden_mit_uhr(const std::string& name) const {
    folge_senden(name + "," + std::to_string(uhr()));
}

void at2560::sensor(int pin) const {
    if (pins_.empty() || std::find(pins_.begin(), pins_.end(), pin) != pins_.end()) {
        melden_mit_uhr("S" + std::to_string(pin));
    }
}

void at2560::chaos_druecken(int spur) {
    const bool eigene = spur >= 1 && spur <= spuren && !einst_.chaos_gemeinsam;
    sagen("Chaostaster" + (spur > 0 ? ", Spur " + std::to_string(spur) : std::string()));
    sensor(eigene ? pins::chaos.at(static_cast<std::size_t>(spur - 1)) : pins::chaos_gemeinsam);
}

void at2560::wagen_meldet(const wagen_ereignis& was) {
    const auto i = static_cast<std::size_t>(was.wagen - 1);
    const std::array<int, 3> sensoren{pins::ziel.at(i), pins::sektor_1.at(i), pins::sektor_2.at(i)};
    switch (was.art) {
        case wagen_art::ueberfahrt:
            sensor(sensoren.at(static_cast<std::size_t>(was.sensor - 1)));
            return;
        case wagen_art::box_ein:
            sensor(pins::tank_ein.at(i));
            return;
        case wagen_art::box_aus:
            sensor(pins::tank_aus.at(i));
            return;
        case wagen_art::chaos:
            if (!stand_.chaos && chaos_ende_ < 0) {
                chaos_spur_ = was.wagen;
                chaos_ende_ = einst_.rennen.chaos_dauer > 0 ? uhr() + einst_.rennen.chaos_dauer : -1;
                chaos_druecken(was.wagen);
            }
            return;
    }
}

void at2560::schritt() {
    if (chaos_ende_ >= 0 && uhr() >= chaos_ende_) {
        chaos_ende_ = -1;
        if (stand_.chaos) {
            chaos_druecken(chaos_spur_);
        }
    }
    if (einst_.antippen > 0 && !faehrt_ && !pins_.empty() && uhr() % einst_.antippen == 0) {
        sensor(pins_[getippt_ % pins_.size()]);
        ++getippt_;
    }
}

}  // namespace tarvel::simulator
