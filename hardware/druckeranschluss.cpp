#include "hardware/druckeranschluss.h"

#include "hardware/lpt_register.h"

namespace tarvel {

druckeranschluss::druckeranschluss(const umgebung& um)
    : um_(um), kontakte_({um.einst, um.ereignisse, um.rennen}, {.tankt_nur_auf_kontakt = true}) {}

bool druckeranschluss::oeffnen() {
    schliessen();
    lpt_basis_ = um_.einst.lpt.anschluss.lpt_adresse;
    zuordnen();
    grundstellung();
    const std::optional<std::uint8_t> stand = um_.port.lesen(lpt_basis_ + lpt::status);
    da_ = stand.has_value();
    kontakte_.beginnen(lpt::aktive_linien(stand.value_or(lpt::in_ruhe)));
    abtastung_ = um_.abtaster.starten(1ms, [this](zeit_ms jetzt) { lpt_abtasten(jetzt); });
    return true;
}

void druckeranschluss::schliessen() {
    if (abtastung_ == nullptr) {
        return;
    }
    abtastung_.reset();
    um_.port.schreiben(lpt_basis_ + lpt::daten, soll_);  // the last switching
    kontakte_.verstummt();
}

void druckeranschluss::zuordnen() {
    kontaktleser::linienzuordnung arten{};
    for (std::size_t i = 0; i < lpt::eingaenge.size(); ++i) {
        arten.at(i) = um_.einst.lpt.lpt_eingang.at(i + 1);
    }
    kontakte_.zuordnen(arten);
}

void druckeranschluss::lpt_abtasten(zeit_ms jetzt) {
    um_.port.schreiben(lpt_basis_ + lpt::daten, soll_);  // anything on the machine may have written there
    const std::optional<std::uint8_t> stand = um_.port.lesen(lpt_basis_ + lpt::status);
    da_ = stand.has_value();
    if (stand) {
        kontakte_.gesehen(jetzt, lpt::aktive_linien(*stand));
    }
}

void druckeranschluss::lpt_schalten(ereignis_art nummer, bool an) {
    std::optional<std::size_t> zeile;
    for (std::size_t i = 0; i < um_.einst.lpt.lpt_ausgang.size(); ++i) {
        if (i > 0 && um_.einst.lpt.lpt_ausgang.at(i) == nummer) {
            zeile = i - 1;
        }
    }
    if (nummer == 0) {
        soll_ = an ? 0xFF : 0;
    } else if (zeile && *zeile < lpt::ausgaenge) {
        const auto maske = static_cast<std::uint8_t>(1U << *zeile);
        soll_ = static_cast<std::uint8_t>(an ? soll_ | maske : soll_ & ~maske);
    }
}

void druckeranschluss::grundstellung() {
    lpt_aus(0);
    lpt_an(art::tanken_ein[1]);  // the supply of a tank, for as long as the program runs
    if (um_.einst.bahnstrom_invers) {
        for (const int spur : {1, 2, 3, 4}) {
            lpt_an(art::bahnstrom[spur]);
        }
    }
}

void druckeranschluss::lpt_bereit() {
    grundstellung();
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
