#include "hardware/druckeranschluss.h"

namespace tarvel {

druckeranschluss::druckeranschluss(const umgebung& um)
    : um_(um), kontakte_({um.einst, um.ereignisse, um.rennen}, {.tankt_nur_auf_kontakt = true}) {
    neuer_port();
}

void druckeranschluss::neuer_port() {
    port_ = std::make_shared<offener_port>(lpt::registersatz{um_.port, um_.einst.lpt.anschluss.lpt_adresse});
}

bool druckeranschluss::oeffnen() {
    schliessen();
    neuer_port();
    zuordnen();
    grundstellung(false);
    const std::optional<std::uint8_t> stand = port_->registersatz.lesen(lpt::status);
    port_->da = stand.has_value();
    port_->abgetastet = true;
    kontakte_.beginnen(lpt::aktive_linien(stand.value_or(lpt::in_ruhe)));
    abtastung_ = um_.abtaster.starten(1ms, [port = port_, proben = kontakte_.neuer_abtaster()](zeit_ms jetzt) {
        port->lpt_abtasten(jetzt, *proben);
    });
    return true;
}

void druckeranschluss::schliessen() {
    if (abtastung_ == nullptr) {
        return;
    }
    neuer_port();
    abtastung_.reset();
    kontakte_.verstummt();
}

druckeranschluss::offener_port::~offener_port() {
    if (abgetastet) {
        registersatz.schreiben(lpt_pin_zustand);
    }
}

void druckeranschluss::offener_port::lpt_abtasten(zeit_ms jetzt, kontaktproben& proben) {
    registersatz.schreiben(lpt_pin_zustand);  // anything on the machine may have written there
    const std::optional<std::uint8_t> stand = registersatz.lesen(lpt::status);
    da = stand.has_value();
    if (stand) {
        proben.gesehen(jetzt, lpt::aktive_linien(*stand));
    }
}

void druckeranschluss::lpt_schalten(ereignis_art nummer, bool an) {
    port_->lpt_pin_zustand = mit(port_->lpt_pin_zustand, nummer, an);
}

void druckeranschluss::zuordnen() {
    kontaktleser::linienzuordnung lpt_eingang_art{};
    for (std::size_t i = 0; i < lpt::eingaenge.size(); ++i) {
        lpt_eingang_art.at(i) = um_.einst.lpt.lpt_eingang.at(i + 1);
    }
    kontakte_.zuordnen(lpt_eingang_art);
}

std::uint8_t druckeranschluss::mit(std::uint8_t zustand, ereignis_art nummer, bool an) const {
    const auto& lpt_ausgang_art = um_.einst.lpt.lpt_ausgang;
    std::optional<std::size_t> zeile;
    for (std::size_t i = 1; i < lpt_ausgang_art.size(); ++i) {
        if (lpt_ausgang_art.at(i) == nummer) {
            zeile = i - 1;
        }
    }
    if (nummer == 0) {
        return an ? 0xFF : 0;
    }
    if (!zeile || *zeile >= lpt::ausgaenge) {
        return zustand;
    }
    const auto maske = static_cast<std::uint8_t>(1U << *zeile);
    return static_cast<std::uint8_t>(an ? zustand | maske : zustand & ~maske);
}

void druckeranschluss::grundstellung(bool tankausgang) {
    std::uint8_t neu = mit(0, art::tanken_ein[1], tankausgang);
    if (um_.einst.bahnstrom_invers) {
        for (const int spur : {1, 2, 3, 4}) {
            neu = mit(neu, art::bahnstrom[spur], true);
        }
    }
    port_->lpt_pin_zustand = neu;  // at once: what stays on must not blink
}

void druckeranschluss::lpt_bereit() {
    grundstellung(true);
    rennen_bereit();
}

void druckeranschluss::rennen_bereit() {
    zuordnen();
    kontakte_.ruhe_merken();
}

void druckeranschluss::einfahren_beginnt() {
    rennen_bereit();
}

void druckeranschluss::schalten(const schaltung& befehl) {
    using ausgang = schaltung::ausgang;
    constexpr int rote_lampen = 5;
    switch (befehl.was) {
        case ausgang::ampel_rot:
            for (int lampe = 1; lampe <= rote_lampen; ++lampe) {
                if (befehl.nummer == 0 || befehl.nummer == lampe) {
                    lpt_schalten(art::ampel_rot(lampe), befehl.an);
                }
            }
            return;
        case ausgang::ampel_gruen:
            lpt_schalten(art::ampel_gruen, befehl.an);
            return;
        case ausgang::bahnstrom:  // here the line is high while the relay cuts the lane
            for (const int spur : alle_spuren) {
                if (befehl.nummer == 0 || befehl.nummer == spur) {
                    lpt_schalten(art::bahnstrom[spur], !befehl.an);
                }
            }
            return;
        case ausgang::chaosanzeige:
            lpt_schalten(art::chaosanzeige, befehl.an);
            return;
        case ausgang::rennende:
            lpt_schalten(art::zieleinfahrt, befehl.an);
            return;
    }
}

}  // namespace tarvel
