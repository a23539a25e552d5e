#pragma once

#include "core/bestzeiten.h"
#include "core/dateien.h"
#include "core/einstellungen.h"
#include "core/fensterregister.h"
#include "core/mitschrift.h"
#include "core/namensliste.h"
#include "core/renn_parameter.h"
#include "core/texte.h"
#include "hardware/ausgaben.h"
#include "hardware/ereignisse.h"
#include "hardware/messquelle.h"
#include "hardware/zeitbasis.h"
#include "platform/kalender.h"
#include "platform/meldungen.h"
#include "platform/zufall.h"
#include "race/bahn1.h"
#include "race/protokollworte.h"
#include "race/renn_zustand.h"
#include "race/rennsounds.h"
#include "race/veranstaltung.h"
#include "race/zeitgeber.h"

namespace tarvel {

/// What the parts of the race work on together.
struct renn_umgebung {
    renn_zustand& zustand;
    renn_parameter& param;
    const einstellungen& einst;
    const texte& txt;
    const dateien& ablage;
    bahn1& bahn;
    ereignis_tabelle& ereignisse;
    const messquellen& quellen;
    zeitbasis& zeit;
    tarvel::ausgaben& ausgaben;
    const rennzeitgeber& zeitgeber;
    const rennsounds& sounds;
    fensterregister& fenster;
    const plattform::kalender& kalender;
    plattform::zufall& zufall;
    plattform::meldungen& meldungen;
    const tarvel::bestzeiten& bestzeiten;
    const namensliste& fahrerliste;
    const namensliste& fahrzeugliste;
    const laufende_veranstaltung& teil_von;
    mitschrift& protokoll;

    /// The stamp of a moment at which the race starts, pauses or goes on: a device with a clock of its own is asked.
    zeit_ms moment_lesen() const {
        uhr_stellen();
        return zeit.messzeit_lesen();
    }
    void uhr_stellen() const {
        if (const std::optional<zeit_ms> geraetezeit = quellen.uhr_lesen()) {
            zeit.stellen(*geraetezeit);
        }
    }

    /// The event knows its moment better than the last tick, which is what most are stamped with.
    bool hat_eigenen_stempel(const ereignis_zeile& ereignis) const {
        return ereignis.ereignis_zeit != ereignisse.messzeit && ereignis.ereignis_zeit <= zeit.messzeit_lesen();
    }

    /// Before crossings are looked at: where the finish has sensors 3 and 4 too, they count for lanes 1 and 2.
    void zielsensoren_falten() const {
        if (einst.rc.rc_ziel_sensor34) {
            ereignisse.spuren_3_4_mitzaehlen();
        }
    }

    /// The light of the start has not come to its green.
    bool ampel_laeuft() const {
        return !zustand.rennen_beendet && !zustand.chaos_aktiv && !zustand.fortsetzung_wartet &&
               !zeitgeber.renntimer->laeuft();
    }
    /// The lanes of the set-up but those that nobody drives on.
    void spuren_einteilen(bool fortgesetzt) const {
        param.spuren_wiederherstellen();
        for (const int spur : alle_spuren) {
            if (param.spur_aktiv[spur] && teil_von.ist_fueller(spur) && !teil_von.fueller_fahren(fortgesetzt)) {
                param.spur_aktiv[spur] = false;
                --param.spuren_anzahl;
            }
        }
    }
    bool ist_zeitrennen() const { return param.ist_zeitrennen(); }
    bool ist_rundenrennen() const { return !param.ist_zeitrennen(); }
};

}  // namespace tarvel
