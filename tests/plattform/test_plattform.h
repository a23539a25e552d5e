#pragma once

#include <filesystem>
#include <functional>
#include <memory>
#include <ostream>
#include <string>
#include <vector>

#include "platform/dienste.h"
#include "tests/plattform/test_anhaengen.h"
#include "tests/plattform/test_anschluesse.h"
#include "tests/plattform/test_bibliotheken.h"

namespace tarvel::test {

class virtueller_zeitgeber;

/// A machine without screen, hardware and real time: a clock that only `laufen` moves, message boxes and sounds on
/// record, and a program folder of its own below `unter` that goes with it.
class test_plattform final : private plattform::uhr,
                             private plattform::zeitgeber_dienst,
                             private plattform::abtaster_dienst,
                             private plattform::meldungen,
                             private plattform::klang,
                             private plattform::bildschirm,
                             private plattform::prozess,
                             private plattform::dateisystem,
                             private plattform::zufall {
public:
    struct meldung {
        std::string text;
        std::string titel;
        bool operator==(const meldung&) const = default;
        friend std::ostream& operator<<(std::ostream& aus, const meldung& m) {
            return aus << m.titel << ": " << m.text;
        }
    };

    explicit test_plattform(const std::filesystem::path& unter = std::filesystem::temp_directory_path());
    test_plattform(const test_plattform&) = delete;
    test_plattform& operator=(const test_plattform&) = delete;
    ~test_plattform() override;

    plattform::dienste dienste();

    /// Lets this much time pass; timers fire in the order in which they are due.
    void laufen(zeit_ms dauer);
    /// Moves the clock alone: no timer fires.
    void uhr_stellen(zeit_ms dauer) { jetzt_ += dauer; }
    zeit_ms jetzt() const override { return jetzt_; }
    void datum_stellen(const plattform::datum_uhrzeit& moment) { kalender_.moment = moment; }
    /// Timers that run, those of threads among them.
    std::size_t laufende_zeitgeber() const { return laufende_.size(); }

    std::filesystem::path ordner() const { return ordner_; }
    /// Raw bytes of a file of the program folder; empty if there is none.
    std::string datei_lesen(const std::string& name) const;
    void datei_schreiben(const std::string& name, const std::string& bytes) const;
    bool datei_da(const std::string& name) const;

    std::vector<meldung> meldungen_gezeigt;
    std::vector<meldung> fragen_gestellt;
    std::vector<std::string> mitgeteilt;
    std::string antworten_der_frage;  ///< words of its own on the buttons of the last one, "yes/no"
    std::string knoepfe_der_fragen;
    int angebote = 0;      ///< of them: Enter says yes
    bool antwort = false;  ///< to every question
    plattform::dreifache_antwort antwort_mit_ausweg = plattform::dreifache_antwort::abbrechen;
    std::function<void()> waehrend_meldung;  ///< what happens while a message box is open
    std::function<void()> waehrend_frage;    ///< and while a question is
    std::vector<std::string> sounds;
    test_anschluesse anschluesse{*this};
    test_bibliotheken bibliotheken;
    test_druckerport druckerport;
    test_anhaenge_dienst anhaengedateien;
    plattform::groesse_px bildschirm_groesse{1920, 1080};
    bool erste_instanz = true;
    bool faeden_stehen = false;    ///< those that look at devices wait for them
    std::string nicht_schreibbar;  ///< name of a file, without its folder, that no writer can replace
    zeit_ms klang_haelt_auf = 0;   ///< each sound keeps the program for so long
    double zufallszahl = 0;        ///< from 0 up to below 1
    int beendet = 0;               ///< how often the process was asked to end

private:
    friend class virtueller_zeitgeber;

    std::unique_ptr<plattform::zeitgeber> erzeugen(plattform::zeitgeber_art art, dauer_ms intervall) override;
    std::unique_ptr<schnittstelle> starten(dauer_ms abstand, std::function<void(zeit_ms)> blick) override;
    void zeigen(std::string_view text, std::string_view titel) override;
    void knoepfe_beschriften(std::string_view ja, std::string_view nein, std::string_view ausweg) override {
        knoepfe_der_fragen = std::string(ja) + "/" + std::string(nein) + "/" + std::string(ausweg);
    }
    bool fragen(std::string_view text, std::string_view titel, const plattform::antwortworte& worte) override;
    bool anbieten(std::string_view text, std::string_view titel, const plattform::antwortworte& worte) override {
        ++angebote;
        return fragen(text, titel, worte);
    }
    plattform::dreifache_antwort fragen_mit_ausweg(std::string_view text, std::string_view titel,
                                                   const plattform::antwortworte& worte) override;
    void mitteilen(std::string_view text) override { mitgeteilt.emplace_back(text); }
    void bereitstellen(std::string_view /*datei*/) override {}
    void spielen(std::string_view datei) override {
        sounds.emplace_back(datei);
        jetzt_ += klang_haelt_auf;
    }
    bool ist_einzige_instanz() override { return erste_instanz; }
    void beenden() override { ++beendet; }
    double bruchteil() override { return zufallszahl; }
    bool neue_datei(const std::filesystem::path& pfad, std::string_view inhalt) const override;
    bool ist_verweis(const std::filesystem::path& pfad) const override { return is_symlink(pfad); }
    plattform::groesse_px groesse() const override { return bildschirm_groesse; }

    struct feste_uhrzeit final : plattform::kalender {
        plattform::datum_uhrzeit jetzt() const override { return moment; }
        plattform::datum_uhrzeit moment{2026, 11, 21, 14, 3, 22};
    };

    feste_uhrzeit kalender_;
    zeit_ms jetzt_ = 1000000;
    std::vector<virtueller_zeitgeber*> laufende_;
    std::vector<std::unique_ptr<plattform::zeitgeber>> haengende_;  ///< of threads that nobody waits for any more
    std::filesystem::path ordner_;
};

}  // namespace tarvel::test
