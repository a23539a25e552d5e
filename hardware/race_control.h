#pragma once

#include <memory>
#include <optional>

#include "core/einstellungen.h"
#include "core/texte.h"
#include "hardware/ereignisse.h"
#include "hardware/geraetebedienung.h"
#include "hardware/messgeraet.h"
#include "hardware/rc_uhr.h"
#include "hardware/rc_verbindung.h"
#include "hardware/rennverbindung.h"
#include "hardware/uebergabe.h"
#include "hardware/zeitbasis.h"
#include "platform/meldungen.h"

namespace tarvel {

/// The Race Control box: four sensors, and a clock of its own that the race goes by while the box is there. While it is
/// away the race's clock runs on with the machine's.
class race_control final : public messgeraet, private rc_hoerer {
public:
    struct umgebung {
        const einstellungen& einst;
        const texte& txt;
        ereignis_tabelle& ereignisse;
        zeitbasis& zeit;
        rennverbindung& rennen;
        geraetebedienung& bedienung;
        const plattform::uhr& uhr;
        plattform::zeitgeber_dienst& zeitgeber;
        plattform::meldungen& meldungen;
    };

    race_control(const umgebung& um, rc_verbindung& verbindung);

    hardware_art welches() const override { return hardware_art::race_control; }
    faehigkeiten kann() const override { return {.bootet = angesagt_}; }
    bool oeffnen() override;
    void schliessen() override;
    void wieder_aufnehmen() override;
    bool verbunden() const override { return verbindung_.bereit(); }
    bool haelt_auf() const override { return true; }

    void abfragen() override;
    void rennfenster_offen() override;
    void rennen_bereit() override { vergessen(); }

private:
    static constexpr std::size_t wartende_max = 64;

    struct sensor_ereignis {
        ereignis_art nummer = 0;
        zeit_ms stempel = 0;
    };

    void rc_geschehen(rc_schritt schritt) override;
    void rc_meldet(const rc_kontakt& kontakt) override;
    void rc_gelesen() override;

    bool verbinden();
    void ansagen(bool an);
    void rc_bereit();
    void stumm();
    void unbekanntes_ereignis();
    void uhr_nachfuehren();
    zeit_ms stempel_von(std::uint32_t ticks);
    ereignis_art rc_eingang_art(int sensor) const;
    /// The race has still to count another one in its row.
    bool zu_frueh(const sensor_ereignis& ereignis) const;
    void weitergeben(bool alle);
    void wartende_verschieben(zeit_ms um);
    void vergessen();
    void rc_ereignis(const sensor_ereignis& ereignis);

    umgebung um_;
    rc_verbindung& verbindung_;
    std::unique_ptr<plattform::zeitgeber> meldung_;  ///< a message waits until the line has been read
    rc_uhr uhr_;
    bool gewuenscht_ = false;                              ///< open, or to be opened as soon as it is there
    bool angesagt_ = false;                                ///< the operator waits for it
    bool gemeldet_ = false;                                ///< he has been told that it says what nobody knows
    uebergabe<sensor_ereignis, wartende_max> ereignisse_;  ///< that the race has not taken yet
    std::optional<sensor_ereignis> wartet_;                ///< the first of them
    bool gewartet_ = false;                                ///< for a tick
    zeit_ms letzte_abfrage_ = 0;                           ///< of a race
};

}  // namespace tarvel
