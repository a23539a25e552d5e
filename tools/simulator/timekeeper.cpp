#include "tools/simulator/timekeeper.h"

#include <algorithm>
#include <bit>
#include <optional>

namespace tarvel::simulator {
namespace {

constexpr std::size_t tk_befehl_max = 100;

/// The number of the sensor that sees it; 0 where there is none.
int verdrahtet(const wagen_ereignis& was) {
    const int wagen = was.wagen;
    const int ziel = wagen <= 4 ? wagen : 9 + wagen;
    const int box = wagen <= 4 ? 3 + 2 * wagen : 6 + 2 * wagen;
    const int sektor = 18 + 2 * wagen + was.sensor - 2;
    switch (was.art) {
        case wagen_art::ueberfahrt:
            return was.sensor == 1 ? ziel : sektor <= 24 ? sektor : 0;
        case wagen_art::box_ein:
            return box;
        case wagen_art::box_aus:
            return box + 1;
        case wagen_art::chaos:
            break;
    }
    return 0;
}

/// `<vor><number><nach>`: the number.
std::optional<int> nummer_in(const std::string& text, const std::string& vor, const std::string& nach) {
    const bool passt = text.size() == vor.size() + 1 + nach.size() && text.starts_with(vor) && text.ends_with(nach);
    const int nummer = passt ? text[vor.size()] - '0' : -1;
    return nummer >= 1 && nummer <= timekeeper::spuren ? std::optional(nummer) : std::nullopt;
}

}  // namespace

timekeeper::timekeeper(const rennen_einstellung& rennen) : geraet(rennen, spuren), rennen_(rennen) {}

void timekeeper::verbunden() {
    uhr_neu();
    stand_ = {};
    aktiv_ = uhr_laeuft_ = false;
    modus_ = 0;
    digitalart_.clear();
    eingang_.clear();
    lampen_gesehen_ = 0;
    chaos_ende_ = -1;
    feld_.strom(0, false);  // the cars stand where they are
    if (rennen_.sofort && !faehrt_) {
        losfahren();
    }
}

void timekeeper::empfangen(std::string_view bytes) {
    for (const char c : bytes) {
        if (c == '\x02') {
            eingang_ = c;
        } else if (c == '\x03' && !eingang_.empty()) {
            const std::string text = eingang_.substr(1);
            eingang_.clear();
            befehl(text);
        } else if (!eingang_.empty() && eingang_.size() < tk_befehl_max) {
            eingang_ += c;
        }
    }
}

void timekeeper::befehl(const std::string& text) {
    if (text == "activate") {
        aktiv_ = true;
        satz_senden("Timekeeper_active");
    } else if (!auskunft(text) && (!aktiv_ || (!einstellen(text) && !schalten(text)))) {
        satz_senden("NAK");
        return;
    }
    befehle_.push_back(text);
}

bool timekeeper::auskunft(const std::string& text) {
    if (text == "product") {
        satz_senden("Timekeeper_USB");
    } else if (text == "version") {
        satz_senden("V1.42");
    } else if (text == "mode?") {
        satz_senden("mode" + std::to_string(modus_));
    } else if (text == "digital?") {
        satz_senden(digitalart_.empty() ? "digital0" : digitalart_);
    } else if (text == "get_timest" && uhr_laeuft_) {
        satz_senden('\x17' + std::to_string(uhr()));
    } else {
        return false;
    }
    return true;
}

bool timekeeper::einstellen(const std::string& text) {
    if (text == "timest_start") {
        uhr_neu();
        uhr_laeuft_ = true;
    } else if (text == "mode0" || text == "mode1" || text == "mode2") {
        modus_ = text.back() - '0';
        sagen("Modus " + std::to_string(modus_));
    } else if (modus_ == 2 && (text == "digital124132" || text == "digital143")) {
        digitalart_ = text;
    } else {
        return text == "close" || nummer_in(text, "open ", "").has_value();
    }
    return true;
}

bool timekeeper::schalten(const std::string& text) {
    for (const bool an : {true, false}) {
        const std::string ende = an ? "on" : "off";
        if (text == "ampelnR" + ende) {
            rot_schalten(0, an);
        } else if (const auto lampe = nummer_in(text, "ampelR", ende); lampe && *lampe <= 5) {
            rot_schalten(*lampe, an);
        } else if (text == "ampelnGR" + ende) {
            gruen_schalten(an);
        } else if (text == "ampelnGE" + ende) {
            stand_.gelb = an;
            sagen(an ? "Gelb an" : "Gelb aus");
        } else if (text == "raceEnd" + ende) {
            stand_.rennende = an;
            faehrt_ = faehrt_ && !an;
            if (an) {
                feld_.anhalten();
            }
        } else if (text == "relais_" + ende) {
            strom_schalten(0, an);
        } else if (const auto lane = nummer_in(text, "relais", ende)) {
            strom_schalten(*lane, an);
        } else {
            continue;
        }
        return true;
    }
    return false;
}

void timekeeper::rot_schalten(int nummer, bool an) {
    if (nummer == 0) {
        stand_.rot.fill(an);
        return;
    }
    stand_.rot.at(static_cast<std::size_t>(nummer - 1)) = an;
    // The first lamp begins a race, but in a pause: there the cars go on where they stand.
    if (an && nummer == 1 && !stand_.gelb) {
        faehrt_ = false;
        lampen_gesehen_ = 0;
        feld_.aufstellen();
        feld_.rot();
    }
    lampen_gesehen_ |= an ? 1U << static_cast<unsigned>(nummer) : 0U;
}

void timekeeper::gruen_schalten(bool an) {
    stand_.gruen = an;
    // Green burns between the races too; only lamps that were lit one after the other make it a start.
    const bool nach_lampen = std::popcount(lampen_gesehen_) >= lampen_vor_gruen;
    lampen_gesehen_ = an ? 0 : lampen_gesehen_;
    if (an && !faehrt_ && nach_lampen) {
        losfahren();
    }
}

void timekeeper::strom_schalten(int nummer, bool an) {
    if (nummer == 0) {
        stand_.strom.fill(an);
    } else {
        stand_.strom.at(static_cast<std::size_t>(nummer - 1)) = an;
    }
    feld_.strom(nummer, an);
    sagen("Bahnstrom " + (nummer == 0 ? std::string("alle") : std::to_string(nummer)) + (an ? " an" : " aus"));
}

void timekeeper::losfahren() {
    faehrt_ = true;
    feld_.gruen();
    sagen("Die Wagen fahren los");
}

void timekeeper::satz_senden(const std::string& inhalt) const {
    hinaus('\x02' + inhalt + '\x03');
}

void timekeeper::sensor_senden(int nummer, int wagen) const {
    const std::string code = modus_ == 2 ? std::to_string(wagen) + '\x17' : std::string();
    satz_senden("D" + std::to_string(nummer) + '\x17' + code + std::to_string(uhr()));
}

void timekeeper::wagen_meldet(const wagen_ereignis& was) {
    const bool misst = aktiv_ && uhr_laeuft_ && modus_ != 0;
    if (was.art == wagen_art::chaos) {
        if (misst && !stand_.gelb && chaos_ende_ < 0) {
            chaos_ende_ = rennen_.chaos_dauer > 0 ? uhr() + rennen_.chaos_dauer : -1;
            sagen("Chaostaster");
            satz_senden("Chaos_bttn\x17" + std::to_string(uhr()));
        }
        return;
    }
    wagen_ereignis am_sensor = was;
    am_sensor.wagen = modus_ == 2 ? 1 : was.wagen;
    if (const int nummer = verdrahtet(am_sensor); misst && nummer > 0) {
        sensor_senden(nummer, was.wagen);
    }
}

void timekeeper::schritt() {
    if (chaos_ende_ >= 0 && uhr() >= chaos_ende_) {
        chaos_ende_ = -1;
        if (stand_.gelb) {
            satz_senden("Chaos_bttn\x17" + std::to_string(uhr()));
        }
    }
}

std::string timekeeper_datei() {
    std::string text = "Tarvel Timekeeper-Einstellungen\r\n\r\n1\r\n";
    for (const int art :
         {16, 15, 14, 13, 32, 31, 30, 29, 28, 27, 26, 25, 1, 34, 35, 36, 37, 38, 39, 42, 43, 44, 45, 46}) {
        text += std::to_string(art) + "\r\n";
    }
    return text;
}

}  // namespace tarvel::simulator
