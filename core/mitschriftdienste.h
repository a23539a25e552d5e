#pragma once

#include <memory>
#include <vector>

#include "core/mitschrift.h"
#include "platform/dienste.h"

namespace tarvel {

/// The machine as a part sees it whose doings are written down: its clock, timers, chance, calendar and message boxes.
/// While a log is done again, the real ones stand still.
class mitschriftdienste {
public:
    mitschriftdienste(mitschrift& m, const plattform::dienste& echte);
    mitschriftdienste(const mitschriftdienste&) = delete;
    mitschriftdienste& operator=(const mitschriftdienste&) = delete;
    ~mitschriftdienste();

    /// What the part is built with.
    plattform::dienste dienste();
    /// What has been done again goes on: the timers that run there run from now on.
    void zeitgeber_starten();

private:
    class zeitgeber;

    struct uhr final : plattform::uhr {
        uhr(mitschrift& protokoll, const plattform::uhr& dienst) : m(protokoll), echte(dienst) {}
        zeit_ms jetzt() const override { return m.uhr(m.liest() ? 0 : echte.jetzt()); }
        mitschrift& m;
        const plattform::uhr& echte;
    };

    struct zeitgeber_dienst final : plattform::zeitgeber_dienst {
        zeitgeber_dienst(mitschrift& protokoll, plattform::zeitgeber_dienst& dienst) : m(protokoll), echte(dienst) {}
        std::unique_ptr<plattform::zeitgeber> erzeugen(plattform::zeitgeber_art art, dauer_ms intervall) override;
        mitschrift& m;
        plattform::zeitgeber_dienst& echte;
        int anzahl = 0;  ///< timers so far: their numbers stand in logs
        std::vector<zeitgeber*> alle;
    };

    struct zufall final : plattform::zufall {
        zufall(mitschrift& protokoll, plattform::zufall& dienst) : m(protokoll), echte(dienst) {}
        double bruchteil() override;
        mitschrift& m;
        plattform::zufall& echte;
    };

    struct kalender final : plattform::kalender {
        kalender(mitschrift& protokoll, const plattform::kalender& dienst) : m(protokoll), echte(dienst) {}
        plattform::datum_uhrzeit jetzt() const override;
        mitschrift& m;
        const plattform::kalender& echte;
    };

    struct meldungen final : plattform::meldungen {
        meldungen(mitschrift& protokoll, plattform::meldungen& dienst) : m(protokoll), echte(dienst) {}
        void knoepfe_beschriften(std::string_view ja, std::string_view nein, std::string_view ausweg) override {
            echte.knoepfe_beschriften(ja, nein, ausweg);
        }
        void zeigen(std::string_view text, std::string_view titel) override;
        void bestaetigen(std::string_view text, std::string_view titel) override;
        bool fragen(std::string_view text, std::string_view titel, const plattform::antwortworte& worte) override;
        bool anbieten(std::string_view text, std::string_view titel, const plattform::antwortworte& worte) override;
        plattform::dreifache_antwort fragen_mit_ausweg(std::string_view text, std::string_view titel,
                                                       const plattform::antwortworte& worte) override;
        void mitteilen(std::string_view text) override;
        mitschrift& m;
        plattform::meldungen& echte;
    };

    struct klang final : plattform::klang {
        klang(mitschrift& protokoll, plattform::klang& dienst) : m(protokoll), echte(dienst) {}
        void bereitstellen(std::string_view datei) override { echte.bereitstellen(datei); }
        void spielen(std::string_view datei) override;
        mitschrift& m;
        plattform::klang& echte;
    };

    plattform::dienste echte_;
    uhr uhr_;
    std::unique_ptr<zeitgeber_dienst> zeitgeber_;
    zufall zufall_;
    kalender kalender_;
    meldungen meldungen_;
    klang klang_;
};

}  // namespace tarvel
