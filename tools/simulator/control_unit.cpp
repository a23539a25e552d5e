#include "tools/simulator/control_unit.h"

#include <algorithm>

namespace tarvel::simulator {
namespace {

constexpr char befehlszeichen = 34;
constexpr std::size_t befehl_max = 32;
constexpr int lampenzahl = 5;
constexpr std::size_t status_lang = 19;
constexpr std::size_t status_kurz = 17;
constexpr std::uint64_t zufallspromille = 1000;

/// A nibble from 0 to 15 on the line: the digits, and behind "9" the characters that follow it.
char nibblezeichen(unsigned nibble) {
    return static_cast<char>('0' + (nibble & 15U));
}

/// In front of its end a passage has the sum of what stands between its first character and this place.
char summenzeichen(const std::string& satz) {
    unsigned summe = 0;
    for (const char zeichen : satz.substr(1)) {
        summe += static_cast<unsigned char>(zeichen) & 15U;
    }
    return nibblezeichen(summe);
}

control_unit_einstellung ausgestattet(control_unit_einstellung einst) {
    for (wagen_einstellung& w : einst.rennen.wagen) {
        if (!einst.mit_sensor) {
            w.sektoren = {-1, -1};
        }
        if (!einst.tanken) {
            w.runden_je_stopp = 0;
        }
    }
    return einst;
}

}  // namespace

control_unit::control_unit(const control_unit_einstellung& einst)
    : geraet(ausgestattet(einst).rennen, wagen_max), einst_(einst), zufall_(einst.rennen.saat) {
    tank_.fill(einst_.tank_voll);
    feld_.strom(0, true);
    if (einst_.rennen.sofort) {
        feld_.gruen();
    }
}

/// The most significant byte comes first, and of each byte the low half.
std::string control_unit::stempeltext(std::uint32_t stempel) {
    std::string text;
    for (int bits = 24; bits >= 0; bits -= 8) {
        const unsigned byte = stempel >> static_cast<unsigned>(bits);
        text += nibblezeichen(byte);
        text += nibblezeichen(byte >> 4U);
    }
    return text;
}

int control_unit::lampen() const {
    if (zustand_ != zustand::lampen) {
        return 0;
    }
    return lampenzahl - static_cast<int>((gruen_um_ - seit_ein_ - 1) / einst_.lampentakt);
}

void control_unit::anhalten() {
    zustand_ = zustand::angehalten;
    feld_.startabbruch();
    feld_.strom(0, false);
    sagen("Startzustand, die Bahn ist stromlos");
}

void control_unit::starttaste() {
    chaos_ende_ = -1;
    if (zustand_ != zustand::angehalten) {
        anhalten();
        return;
    }
    zustand_ = zustand::lampen;
    gruen_um_ = seit_ein_ + lampenzahl * einst_.lampentakt;
    sagen("Startampel");
    for (int wagen = 1; wagen <= feld_.anzahl(); ++wagen) {
        feld_.strom(wagen, feld_.wartet(wagen));
    }
    feld_.rot();
}

void control_unit::schritt() {
    ++seit_ein_;
    const auto& drucke = einst_.tastendruecke;
    if (std::find(drucke.begin(), drucke.end(), seit_ein_) != drucke.end()) {
        sagen("Starttaste am Gerät");
        starttaste();
    }
    if (seit_ein_ == chaos_ende_) {
        sagen("Starttaste am Gerät, das Chaos ist behoben");
        starttaste();
    }
    if (zustand_ == zustand::lampen && seit_ein_ >= gruen_um_) {
        zustand_ = zustand::laeuft;
        feld_.strom(0, true);
        feld_.gruen();
        sagen("Grün");
    }
    for (std::size_t i = 0; i < wagen_max; ++i) {
        if (box_[i] && zustand_ == zustand::laeuft && ++in_box_ms_[i] % einst_.fuelltakt == 0) {
            tank_[i] = std::min(tank_[i] + 1, einst_.tank_voll);
        }
    }
}

void control_unit::wagen_meldet(const wagen_ereignis& was) {
    const auto i = static_cast<std::size_t>(was.wagen - 1);
    switch (was.art) {
        case wagen_art::ueberfahrt:
            ueberfahrt_melden(was);
            return;
        case wagen_art::box_ein:
            in_box_ms_[i] = 0;
            box_[i] = true;
            return;
        case wagen_art::box_aus:
            box_[i] = false;
            return;
        case wagen_art::chaos:
            chaos_druecken();
            return;
    }
}

void control_unit::ueberfahrt_melden(const wagen_ereignis& was) {
    const auto i = static_cast<std::size_t>(was.wagen - 1);
    if (was.sensor == 1) {
        if (unterwegs_[i] && einst_.tanken) {
            tank_[i] = std::max(tank_[i] - einst_.rennen.wagen[i].verbrauch, 0);
        }
        unterwegs_[i] = true;
    }
    std::string satz{'?', nibblezeichen(static_cast<unsigned>(was.wagen))};
    satz += stempeltext(static_cast<std::uint32_t>(uhr()));  // the unit's counter has 32 bits
    if (einst_.mit_sensor) {
        satz += nibblezeichen(static_cast<unsigned>(was.sensor));
    }
    satz += summenzeichen(satz);
    wartend_.push_back(satz + '$');
}

void control_unit::chaos_druecken() {
    if (zustand_ != zustand::laeuft) {
        return;
    }
    sagen("Starttaste am Gerät: Chaos");
    starttaste();
    if (einst_.rennen.chaos_dauer > 0) {
        chaos_ende_ = seit_ein_ + einst_.rennen.chaos_dauer;
    }
}

void control_unit::empfangen(std::string_view bytes) {
    for (const char c : bytes) {
        zeichen(c);
    }
}

/// A command begins with its mark and ends with "$"; the questions end with what makes them complete. Whatever does not
/// fit is dropped up to the next mark.
void control_unit::zeichen(char c) {
    if (c == befehlszeichen) {
        im_befehl_ = true;
        eingang_.clear();
        return;
    }
    if (!im_befehl_) {
        return;
    }
    const bool nach_frage = eingang_ == "?";
    if (nach_frage && c == '\r') {
        im_befehl_ = false;
        antworten();
    } else if (c == '0' && (nach_frage || eingang_.empty())) {
        im_befehl_ = false;
        befehle_.push_back(eingang_ + c);
        mit_vorspann(einst_.versionstext);
    } else if (c == '$') {
        im_befehl_ = false;
        befehl(eingang_ + c);
    } else if (nach_frage || c < ' ' || eingang_.size() == befehl_max) {
        im_befehl_ = false;
    } else {
        eingang_ += c;
    }
}

void control_unit::befehl(const std::string& text) {
    constexpr std::size_t kuerzester = 4;
    if (text == "T2P$") {
        befehle_.push_back(text);
        sagen("Starttaste vom Programm");
        starttaste();
    } else if (text.size() >= kuerzester && (text.front() == 'J' || text.front() == '=')) {
        befehle_.push_back(text);
        sagen("Befehl " + text);
        anzeige_lesen(text);
        if (text == "=101$") {
            neues_rennen();
        }
    }
}

/// Laps are told anew: the cars are put back on the grid, with full tanks.
void control_unit::neues_rennen() {
    feld_.aufstellen();
    tank_.fill(einst_.tank_voll);
    box_.fill(false);
    unterwegs_.fill(false);
    if (einst_.rennen.sofort) {
        feld_.gruen();
    }
}

/// "J1?", two nibbles, "1", check character, "$".
void control_unit::anzeige_lesen(const std::string& text) {
    constexpr std::size_t laenge = 8;
    if (text.size() != laenge || text.compare(0, 3, "J1?") != 0) {
        return;
    }
    const auto nibble = [](char c) {
        if (c >= '0' && c <= '9') {
            return c - '0';
        }
        return c >= 'J' && c <= 'O' ? c - 'J' + 10 : -1;
    };
    const int hoch = nibble(text[3]);
    const int tief = nibble(text[4]);
    if (hoch >= 0 && tief >= 0) {
        anzeigewert_ = hoch * 16 + tief;
    }
}

void control_unit::antworten() {
    if (!wartend_.empty()) {
        // asked, the unit goes through its cars: of two passages that wait, the earlier may come second
        const auto naechster = std::min_element(wartend_.begin(), wartend_.end(),
                                                [](const auto& a, const auto& b) { return a[1] < b[1]; });
        const std::string satz = *naechster;
        wartend_.erase(naechster);
        mit_vorspann(satz);
        return;
    }
    zaehlerbox_dran_ = einst_.zaehlerbox && !zaehlerbox_dran_;
    if (zaehlerbox_dran_) {
        mit_vorspann(zustand_ == zustand::angehalten ? "?00$" : "?10$");
    } else {
        mit_vorspann(statussatz());
    }
}

std::string control_unit::statussatz() const {
    std::string satz = "?:";  // no car number
    for (const int fuellung : tank_) {
        satz += nibblezeichen(static_cast<unsigned>(fuellung));
    }
    satz += zustand_ == zustand::laeuft ? '0' : '1';
    satz += einst_.tanken ? '1' : '0';
    unsigned box = 0;  // cars 2 to 6; the unit has no bit for the first
    for (unsigned bit = 0; bit < 5; ++bit) {
        box |= box_[bit + 1] ? 1U << bit : 0U;
    }
    satz += nibblezeichen(box);
    satz += nibblezeichen(box >> 4U);
    satz.resize((einst_.status_kurz ? status_kurz : status_lang) - 1, '0');
    return satz + '$';
}

void control_unit::mit_vorspann(const std::string& satz) {
    const std::uint64_t wurf = zufall_() % zufallspromille;
    const bool kurz = zufall_() % 2 == 0;
    std::string bytes;
    if (wurf < static_cast<std::uint64_t>(std::max(einst_.vorspann_promille, 0))) {
        bytes = kurz ? "#" : "?#";
    }
    bytes += satz;
    for (char& zeichen : bytes) {
        if (einst_.stoerung_promille > 0 &&
            zufall_() % zufallspromille < static_cast<std::uint64_t>(einst_.stoerung_promille)) {
            zeichen = static_cast<char>(zufall_() & 0xFFU);
        }
    }
    hinaus(bytes);
}

}  // namespace tarvel::simulator
