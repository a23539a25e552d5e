#pragma once

#include <fstream>

#include "platform/dienste.h"

namespace tarvel {

/// A machine on which nothing happens by itself: no clock, no screen, no device. What is driven again on it goes by
/// its log alone.
class stille_maschine {
public:
    explicit stille_maschine(std::filesystem::path ordner) : ordner_(std::move(ordner)) {}

    plattform::dienste dienste() {
        return {uhr_,         zeitgeber_,    meldungen_,   klang_,    kalender_,    bildschirm_, prozess_, zufall_,
                anschluesse_, bibliotheken_, druckerport_, abtaster_, dateisystem_, anhaenge_,   ordner_};
    }

private:
    struct uhr final : plattform::uhr {
        zeit_ms jetzt() const override { return 0; }
    };
    struct zeitgeber_dienst final : plattform::zeitgeber_dienst {
        struct zeitgeber final : plattform::zeitgeber {
            void intervall(dauer_ms /*dauer*/) override {}
            void an() override { an_ = true; }
            void aus() override { an_ = false; }
            bool laeuft() const override { return an_; }
            bool an_ = false;
        };
        std::unique_ptr<plattform::zeitgeber> erzeugen(plattform::zeitgeber_art /*art*/,
                                                       dauer_ms /*intervall*/) override {
            return std::make_unique<zeitgeber>();
        }
    };
    struct meldungen final : plattform::meldungen {
        void zeigen(std::string_view /*text*/, std::string_view /*titel*/) override {}
        bool fragen(std::string_view /*text*/, std::string_view /*titel*/,
                    const plattform::antwortworte& /*worte*/) override {
            return false;
        }
        plattform::dreifache_antwort fragen_mit_ausweg(std::string_view /*text*/, std::string_view /*titel*/,
                                                       const plattform::antwortworte& /*worte*/) override {
            return plattform::dreifache_antwort::abbrechen;
        }
    };
    struct klang final : plattform::klang {
        void bereitstellen(std::string_view /*datei*/) override {}
        void spielen(std::string_view /*datei*/) override {}
    };
    struct kalender final : plattform::kalender {
        plattform::datum_uhrzeit jetzt() const override { return {}; }
    };
    struct bildschirm final : plattform::bildschirm {
        plattform::groesse_px groesse() const override { return {1920, 1080}; }
    };
    struct prozess final : plattform::prozess {
        bool ist_einzige_instanz() override { return true; }
        void beenden() override {}
    };
    struct zufall final : plattform::zufall {
        double bruchteil() override { return 0; }
    };
    struct anschluesse final : plattform::serienport_dienst {
        struct kein_port final : plattform::serienport {
            bool oeffnen(int /*nummer*/, std::string_view /*werte*/) override { return false; }
            void schliessen() override {}
            bool offen() const override { return false; }
            bool schreiben(std::string_view /*bytes*/) override { return false; }
        };
        std::unique_ptr<plattform::serienport> erzeugen() override { return std::make_unique<kein_port>(); }
        std::vector<int> vorhandene() const override { return {}; }
    };
    struct bibliotheken final : plattform::bibliothek_dienst {
        std::unique_ptr<plattform::bibliothek> laden(std::string_view /*name*/) override { return nullptr; }
    };
    struct druckerport final : plattform::druckerport {
        std::optional<std::uint8_t> lesen(int /*adresse*/) override { return std::nullopt; }
        bool schreiben(int /*adresse*/, std::uint8_t /*wert*/) override { return false; }
    };
    struct abtaster final : plattform::abtaster_dienst {
        std::unique_ptr<schnittstelle> starten(dauer_ms /*abstand*/, std::function<void(zeit_ms)> /*blick*/) override {
            return std::make_unique<schnittstelle>();
        }
    };
    struct dateisystem final : plattform::dateisystem {
        bool neue_datei(const std::filesystem::path& pfad, std::string_view inhalt) const override {
            std::ofstream datei(pfad, std::ios::binary);
            return static_cast<bool>(datei.write(inhalt.data(), static_cast<std::streamsize>(inhalt.size())));
        }
        bool ist_verweis(const std::filesystem::path& pfad) const override { return is_symlink(pfad); }
    };
    struct anhaenge final : plattform::anhaenge_dienst {
        std::unique_ptr<plattform::anhaengedatei> oeffnen(const std::filesystem::path& /*pfad*/,
                                                          std::optional<std::uintmax_t> /*laenge*/) override {
            return nullptr;
        }
    };

    uhr uhr_;
    zeitgeber_dienst zeitgeber_;
    meldungen meldungen_;
    klang klang_;
    kalender kalender_;
    bildschirm bildschirm_;
    prozess prozess_;
    zufall zufall_;
    anschluesse anschluesse_;
    bibliotheken bibliotheken_;
    druckerport druckerport_;
    abtaster abtaster_;
    dateisystem dateisystem_;
    anhaenge anhaenge_;
    std::filesystem::path ordner_;
};

}  // namespace tarvel
