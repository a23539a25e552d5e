#include <algorithm>
#include <functional>
#include <utility>

#include "competition/wettkampf2.h"
#include "core/text.h"
#include "core/zahleneingabe.h"

namespace tarvel {
namespace {

std::string meter_als_text(zentimeter meter) {
    std::string text = zahl_text(als_meter(meter), ',');
    return text.empty() ? "0" : text;
}

}  // namespace

void wettkampf2::korrektur_zeigen() {
    const wettkampf& w = abend_.stand();
    const int vorher = rundenliste.markiert();
    const int rennen = gewaehltes();
    korrigierbar_.clear();
    rundenliste.leeren();
    for (int teil = 1; rennen > 0 && teil <= w.fortsetzung_nummer(rennen); ++teil) {
        const startfeld feld = w.plan.feld(rennen, teil);
        for (const int spur : alle_spuren) {
            if (feld[spur] == 0 || w.ist_fueller(feld[spur])) {
                continue;
            }
            korrigierbar_.push_back({teil, spur});
            const std::string mit_teil = w.plan.teile > 1 ? wort_.teil + " " + std::to_string(teil) + ", " : "";
            rundenliste.hinzufuegen(mit_teil + wort_.spur + " " + std::to_string(spur) + ": " + w.name(feld[spur]));
        }
    }
    rundenliste.markieren(vorher);
    korrekturfelder_zeigen();
}

void wettkampf2::korrekturfelder_zeigen() {
    const int zeile = rundenliste.markiert();
    const wettkampf& w = abend_.stand();
    const korrekturzeile gewaehlt = zeile < 0 ? korrekturzeile{} : korrigierbar_.at(static_cast<std::size_t>(zeile));
    const spuren<fahrt>* ergebnis = zeile < 0 ? nullptr : w.ergebnis(gewaehltes(), gewaehlt.teil);
    for (const int spur : alle_spuren) {
        const std::size_t i = feld_index(spur);
        const bool dabei = std::any_of(korrigierbar_.begin(), korrigierbar_.end(), [&](const korrekturzeile& eine) {
            return eine.spur == spur && eine.teil == gewaehlt.teil;
        });
        const bool zeigen = dabei && ergebnis != nullptr;
        for (steuerelement* element :
             {static_cast<steuerelement*>(&Label_anz[i]), static_cast<steuerelement*>(&anz_runden[i]),
              static_cast<steuerelement*>(&anz_meter[i])}) {
            element->sichtbar(zeigen);
            element->aktiviert(spur == gewaehlt.spur);
        }
        anz_runden[i].text(zeigen ? std::to_string((*ergebnis)[spur].runden) : "");
        anz_meter[i].text(zeigen ? meter_als_text((*ergebnis)[spur].meter) : "");
    }
    Command_uebernehmen.aktiviert(ergebnis != nullptr);
    korrigiert_.reset();
    if (ergebnis != nullptr) {
        const std::size_t i = feld_index(gewaehlt.spur);
        korrigiert_ = {gewaehltes(), gewaehlt, anz_runden[i].text(), anz_meter[i].text()};
        anz_runden[i].fokus_setzen();
    }
}

bool wettkampf2::korrektur_uebernehmen() {
    if (!korrigiert_) {
        return true;
    }
    const korrekturzeile gewaehlt = korrigiert_->zeile;
    const int rennen = korrigiert_->rennen;
    const std::size_t i = feld_index(gewaehlt.spur);
    if (anz_runden[i].text() == korrigiert_->runden && anz_meter[i].text() == korrigiert_->meter) {
        return true;
    }
    for (feld* eingabe : {&anz_runden[i], &anz_meter[i]}) {
        if (!ist_zahl(eingabe->text())) {
            um_.meldungen.zeigen(eingabe->ansage() + ": " + wort_.keine_zahl, um_.txt.titel[1]);
            eingabe->fokus_setzen();
            return false;
        }
    }
    korrigiert_->runden = anz_runden[i].text();
    korrigiert_->meter = anz_meter[i].text();
    const fahrt bisher = (*abend_.stand().ergebnis(rennen, gewaehlt.teil))[gewaehlt.spur];
    const int runden = static_cast<int>(ganzzahl_lesen(anz_runden[i].text(), 0, 99999));
    std::string meter = anz_meter[i].text();
    const bool meter_getippt = meter != meter_als_text(bisher.meter);
    werte_pruefen2(meter);
    abend_.aendern([&](wettkampf& w) {
        if (runden != bisher.runden) {
            w.runden_aendern(rennen, gewaehlt.teil, gewaehlt.spur, runden, param_.spurlaenge[gewaehlt.spur]);
        }
        if (meter_getippt) {  // else they have gone with the laps
            w.meter_aendern(rennen, gewaehlt.teil, gewaehlt.spur, zahl_lesen(meter));
        }
        return runden != bisher.runden || meter_getippt;
    });
    return true;
}

void wettkampf2::nach_korrektur(befehl& knopf, std::function<void()> tun) {
    knopf.bei_klick = [this, tun = std::move(tun)] {
        if (korrektur_uebernehmen()) {
            tun();
        }
    };
}

void wettkampf2::namen_zeigen() {
    const wettkampf& w = abend_.stand();
    const int vorher = aendernliste.markiert();
    umbenennbar_.clear();
    aendernliste.leeren();
    for (int platz = 1; platz <= w.plaetze(); ++platz) {
        if (!w.ist_fueller(platz)) {
            umbenennbar_.push_back(platz);
            aendernliste.hinzufuegen(w.name(platz));
        }
    }
    aendernliste.markieren(std::max(vorher, 0));
    neuer_name.text(
        aendernliste.markiert() < 0 ? "" : w.name(umbenennbar_.at(static_cast<std::size_t>(aendernliste.markiert()))));
    neuer_name.fokus_setzen();
}

void wettkampf2::umbenennen() {
    if (aendernliste.markiert() < 0) {
        return;
    }
    const int platz = umbenennbar_.at(static_cast<std::size_t>(aendernliste.markiert()));
    const std::string neu = neuer_name.text();
    namensmangel mangel = namensmangel::keiner;
    abend_.aendern([&](wettkampf& w) {
        mangel = w.name_aendern(platz, neu, um_.txt);
        return mangel == namensmangel::keiner;
    });
    switch (mangel) {
        case namensmangel::keiner:
        case namensmangel::kein_fahrer:
        case namensmangel::voll:
            return;
        case namensmangel::leer:
            um_.meldungen.zeigen(wort_.name_leer, um_.txt.titel[1]);
            break;
        case namensmangel::vergeben:
            um_.meldungen.zeigen(wort_.name_vergeben + neu, um_.txt.titel[1]);
            break;
        case namensmangel::wie_fueller:
            um_.meldungen.zeigen(wort_.name_fueller + um_.txt.frei_text, um_.txt.titel[1]);
            break;
    }
    neuer_name.text(neu);
    neuer_name.fokus_setzen();
}

}  // namespace tarvel
