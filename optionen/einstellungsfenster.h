#pragma once

#include <array>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "core/dateien.h"
#include "core/einstellungszugriff.h"
#include "core/fensterlogik.h"
#include "core/fensterregister.h"
#include "core/sprache.h"
#include "core/steuerelemente.h"
#include "optionen/gruppenkaesten.h"
#include "optionen/listenseite.h"
#include "optionen/optionsfolgen.h"
#include "optionen/optionsseite.h"
#include "optionen/schemawahl.h"
#include "platform/klang.h"
#include "platform/meldungen.h"
#include "platform/serienport.h"

namespace tarvel {

/// The options window `einstellungen`: shows every value of the settings and takes them over, within their limits.
/// What is taken over is in force even if it could not be saved; the window stays open then.
class einstellungsfenster final : public fensterlogik {
public:
    /// The pages in their order. Those of drivers and vehicles are lists, all others rows.
    enum seitennummer {
        seite_start_ziel,
        seite_wettkampf,
        seite_tanken,
        seite_sektoren,
        seite_fahrer,
        seite_fahrzeuge,
        seite_bestzeiten,
        seite_hardware,
        seite_sounds,
        seite_farben,
        seite_trennzeichen,
        seiten_anzahl
    };

    struct umgebung {
        einstellungs_ziel ziel;
        texte& txt;
        const dateien& ablage;
        fensterregister& fenster;
        plattform::meldungen& meldungen;
        plattform::klang& klang;
        const plattform::serienport_dienst& anschluesse;
        speichernfenster& dateiwahl;
        bildwahl& bilder;
        optionsfolgen& folgen;
    };
    struct listen {
        namensliste& fahrer;
        const std::string& fahrer_datei;
        namensliste& fahrzeuge;
        const std::string& fahrzeug_datei;
    };

    einstellungsfenster(umgebung um, listen l);

    liste seitenliste;                               ///< the titles of the pages
    std::array<rahmen, seiten_anzahl> seitenrahmen;  ///< the pages; only the chosen one is visible
    rahmen hardware_rahmen;
    std::array<haken, 8> hardware;  ///< of them exactly one is set
    /// The program can speak to these; whoever owns the devices fills it in.
    std::array<bool, 8> unterstuetzt{true};
    bezeichnung hardware_hinweis;  ///< says so of the others
    befehl Command1;               ///< take over and save
    befehl Command2;               ///< cancel
    listenseite fahrerseite;
    listenseite fahrzeugseite;

    /// What the button of a row does, by the row's name; it must exist.
    void aktion_verbinden(std::string_view name, std::function<void()> wohin);

    /// Load handler: all texts and all values.
    void laden() override;
    /// A picture that was chosen is copied at once, also if the list is not taken over.
    void entladen() override { um_.folgen.optionen_geschlossen(); }
    /// Nothing is taken over, nor what the wizard of the AT-2560 has changed and not saved.
    void schliessen() override;
    /// Opens the window on a page.
    void oeffnen(seitennummer erste);
    /// Shows what the settings say of the best times now, and the files that are there.
    void bestzeiten_zeigen();
    /// Shows in these rows what the settings say now, after a device's own window has changed them.
    void zeilen_zeigen(std::span<const std::string_view> namen);
    /// What the page says of the AT-2560's port is in force: its wizard is about to open it.
    void uart_portwerte_uebernehmen();
    /// What the settings say of the AT-2560 now stays when the window is cancelled.
    void uart_gesichert() { uart_vorher_ = um_.ziel.einst.uart; }
    /// The language files of the window.
    std::vector<sprachliste> sprachdateien() override;

    /// The rows of a page; null for the pages that are lists.
    optionsseite* zeilenseite(int nummer) { return seiten_.at(static_cast<std::size_t>(nummer)).get(); }
    /// A row by the name of its control; it must exist.
    optionszeile& zeile(std::string_view name);

private:
    sprachliste sprache_e();
    sprachliste sprache_e_s();
    sprachliste sprache_e_h();
    void erklaeren(optionszeile& eine) const;
    void seite_zeigen(int nummer);
    void hardware_waehlen(std::size_t nummer);
    void hardware_gruppen_zeigen();
    void hardware_uebernehmen();
    void sprachwahl_verbinden();
    void sounds_verbinden();
    void sounds_auffrischen();
    void werte_zeigen();
    void werte_uebernehmen();
    void zeile_uebernehmen(optionszeile& eine);
    void sektoranzeige_trennen();
    bool nebendateien_speichern(const einstellungen& vorher);
    /// What is on the pages of the lists may go, if need be after a question.
    bool listen_aufgeben();
    void Command1_Click();
    void fuer_alle_zeilen(const std::function<void(optionszeile&)>& tun);

    umgebung um_;
    std::array<optionsseite_zeiger, seiten_anzahl> seiten_;
    /// A small file beside that of the settings, with an option's value.
    struct nebendatei {
        bool (*gleich)(const einstellungen& eine, const einstellungen& andere);
        bool (*schreiben)(const dateien& ablage, const einstellungen& einst);
        std::string fehler;  ///< said when it could not be written
        bool offen = false;  ///< it could not be read or written, and is written the next time

        template <auto Wert, auto Schreiben>
        static nebendatei mit() {
            return {[](const einstellungen& eine, const einstellungen& andere) { return eine.*Wert == andere.*Wert; },
                    [](const dateien& ablage, const einstellungen& einst) { return Schreiben(ablage, einst.*Wert); },
                    {},
                    false};
        }
    };
    enum nebendatei_nummer : std::size_t {
        datei_trennzeichen,
        datei_gruppen,
        datei_anzeige,
        datei_rennbild,
        nebendateien_anzahl
    };

    std::vector<std::string> sprachordner_;  ///< in the order of the choice
    std::vector<soundfeld*> sounds_;         ///< in the order of their numbers, from 1 on at index 0
    std::vector<std::string> erklaerungen_;  ///< as the table of them
    std::string grenzen_titel_;
    std::string alte_bleibt_;
    at2560_anschluss uart_vorher_;
    std::string keine_zahl_;
    std::string verwerfen_;
    std::string text_4x4_;  ///< of its tick box; elsewhere it has its short name
    std::array<nebendatei, nebendateien_anzahl> nebendateien_;
    std::optional<schemawahl> schema_;  ///< these two once their rows are there
    std::optional<gruppenkaesten> gruppen_;
};

}  // namespace tarvel
