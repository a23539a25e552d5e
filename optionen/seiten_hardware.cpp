#include <type_traits>
#include <variant>

#include "core/portadresse.h"
#include "optionen/optionsseite.h"

namespace tarvel::optionsseiten {
namespace {

using namespace option;
using e = einstellungen;
using iow = iow_anschluss;
using rc = race_control_einstellungen;
using rc_anschluss = race_control_anschluss;
using lpt = druckeranschluss_einstellungen;
using s6 = modul_4x4_einstellungen;
using tk = timekeeper_anschluss;
using cu = control_unit_einstellungen;
using cu_anschluss = control_unit_anschluss;
using uart = at2560_anschluss;

constexpr int comports_max = 20;

std::vector<std::string> comport_namen(int anzahl) {
    std::vector<std::string> namen;
    for (int nummer = 1; nummer <= anzahl; ++nummer) {
        namen.push_back("COM" + std::to_string(nummer));
    }
    return namen;
}

/// A port number, with 0 for none.
optionszeile_zeiger comport(const beschriftet& b, const zahlzugriff& ziel, int anzahl) {
    const std::vector<std::string> namen = comport_namen(anzahl);
    std::vector<std::string_view> eintraege{"Kein Comport"};
    eintraege.insert(eintraege.end(), namen.begin(), namen.end());
    return wahl(b, ziel, 0, eintraege);
}

/// The address of the printer port, in hexadecimal digits.
optionszeile_zeiger lpt_adresse() {
    optionszeile_zeiger zeile = leeres_feld({"lpt_text", "Druckeranschluß:", "hexadezimal"}, 4);
    feld* element = &std::get<feld>(zeile->element);
    optionszeile* zeiger = zeile.get();
    zeile->texte_nennen = [zeiger, davor = zeile->texte_nennen](sprachliste& texte) {
        davor(texte);
        texte.text("Die Adresse ist keine hexadezimale Zahl von 100 bis FFFD.", zeiger->grenzen_meldung);
    };
    zeile->zeigen = [element](const einstellungs_ziel& z) {
        element->text(portadresse_text(z.einst.lpt.anschluss.lpt_adresse));
    };
    zeile->uebernehmen = [element, zeiger](const einstellungs_ziel& z, const optionszeile::melder& melden) {
        if (const auto adresse = portadresse_lesen(element->text())) {
            z.einst.lpt.anschluss.lpt_adresse = *adresse;
        } else {
            melden(zeiger->grenzen_meldung);
        }
    };
    return zeile;
}

void allgemein(optionsseite& seite) {
    seite.gruppe("Alle Messgeräte", 0)
        << kasten({"zeit_methode_alt", "alternative Sensorzeit"}, wert(&e::zeit_methode_alt))
        << kasten({"sensorkalibrierung", "Sensorkalibrierung"}, wert(&e::sensorkalibrierung))
        << kasten({"bahnstabsch", "Bahnstromabschaltung umkehren"}, wert(&e::bahnstrom_invers))
        << kasten({"opt_ampel", "Ampelschaltung umkehren"}, wert(&e::ampel_invers));
}

/// A value that is kept, and that nobody can send to its device.
optionszeile_zeiger aufbewahrt(optionszeile_zeiger zeile) {
    zeile->beschriftung.aktiviert(false);
    std::visit(
        [](auto& element) {
            if constexpr (std::is_base_of_v<steuerelement, std::decay_t<decltype(element)>>) {
                element.aktiviert(false);
            }
        },
        zeile->element);
    return zeile;
}

void race_control(optionsseite& seite) {
    optionsgruppe& gruppe = seite.gruppe("Race Control", 1);
    gruppe << wortliste({"selComPort", "COM-Port"}, wert(&e::rc, &rc::anschluss, &rc_anschluss::rc_com_port),
                        comport_namen(comports_max));
    for (std::size_t sensor = 0; sensor < 4; ++sensor) {
        const std::string nummer = std::to_string(sensor + 1);
        gruppe << wahl({"selSpur_" + nummer, "Sensor " + nummer}, element(wert(&e::rc, &rc::rc_sensor), sensor), 13,
                       {"Spur 4", "Spur 3", "Spur 2", "Spur 1"});
    }
    gruppe
        << kasten({"check_rctank", "bis Überfahrt Sensor 3 + 4"}, wert(&e::rc, &rc::rc_tank_sensor34))
        << kasten({"check_rcziel", "Rennende auf Sensor 3 + 4"}, wert(&e::rc, &rc::rc_ziel_sensor34))
        << aktion({"rc_einrichten", "Box prüfen und Sensoren zuordnen"})
        << hinweis({"rc_aufbewahrt",
                    "Die folgenden Werte bleiben gespeichert. Die Bibliothek des Herstellers hat keinen Aufruf, der "
                    "sie zur Box bringt; dort gilt, was die Box selbst eingestellt hat."})
        << aufbewahrt(entweder({"rc_mod1", "Modus"}, wert(&e::rc, &rc::rc_mod1), "Modus 1", "Modus 2"))
        << aufbewahrt(zahl({"selLevel", "Empfindlichkeit", "0 bis 130"}, wert(&e::rc, &rc::rc_level), begrenzt(0, 130)))
        << aufbewahrt(
               zahl({"selDelayMS", "Verzögerung (ms)", "0 bis 50"}, wert(&e::rc, &rc::rc_delay_ms), begrenzt(0, 50)))
        << aufbewahrt(zahl({"selPostMS", "Nachlauf (ms)", "0 bis 15"}, wert(&e::rc, &rc::rc_post_ms), begrenzt(0, 15)))
        << aufbewahrt(kasten({"cbxRevZZ", "Reverse 1 - 2"}, wert(&e::rc, &rc::rc_rev_zz)))
        << aufbewahrt(kasten({"cbxRevSZ", "Reverse 3 - 4"}, wert(&e::rc, &rc::rc_rev_sz)))
        << aufbewahrt(kasten({"rc_schalter", "Kennzeichen der Box"}, wert(&e::rc, &rc::rc_schalter)))
        << aufbewahrt(zahl({"rc_wert", "Wert der Box"}, wert(&e::rc, &rc::rc_wert), begrenzt(-999999999, 999999999)));
}

void druckeranschluss(optionsseite& seite) {
    optionsgruppe& gruppe = seite.gruppe("Druckeranschluss", 1);
    gruppe << lpt_adresse() << aktion({"lpt_einrichten", "Druckeranschluss einrichten und testen"});
    constexpr std::array<int, 5> eingangspins{10, 11, 12, 13, 15};
    for (std::size_t i = 0; i < eingangspins.size(); ++i) {
        gruppe << ereignis({"ecomb_" + std::to_string(i + 1), "Eingang Pin " + std::to_string(eingangspins.at(i))},
                           element(wert(&e::lpt, &lpt::lpt_eingang), i + 1));
    }
    for (std::size_t i = 1; i <= 12; ++i) {
        const std::string pin = i <= 8 ? "Ausgang Pin " + std::to_string(i + 1) : "Ausgang " + std::to_string(i);
        gruppe << ereignis({"comb_" + std::to_string(i), pin}, element(wert(&e::lpt, &lpt::lpt_ausgang), i));
    }
}

using modul_4x4_modus = tarvel::modul_4x4;

void modul_4x4_seite(optionsseite& seite) {
    optionsgruppe& gruppe = seite.gruppe("4x4 USB", 1);
    gruppe << wahl({"optModus", "Modus"}, hardware(&tarvel::messhardware::hw_4x4_modus),
                   static_cast<int>(modul_4x4_modus::modus_1),
                   {"Digital IR-Modus", "PRO-X Lochposition", "PRO-X Lochzählung", "Kontakt Modus"})
           << kasten({"manuell_s6", "manuelle Modusabfrage bei Programmstart"}, wert(&e::s6, &s6::s6_option))
           << aktion({"tx_einrichten", "4x4 USB einrichten und prüfen"});
    for (std::size_t i = 1; i <= 8; ++i) {
        gruppe << ereignis({"s6_eingang_" + std::to_string(i), "Eingang " + std::to_string(i)},
                           element(wert(&e::s6, &s6::s6_eingang), i));
    }
    for (const int spur : alle_spuren) {
        const std::string name = "s6_eingang_modus_" + std::to_string(spur) + "_";
        const std::string text = "Spur/Auto " + std::to_string(spur) + ", Sensorposition ";
        for (std::size_t modus = 1; modus <= 4; ++modus) {
            const std::string m = std::to_string(modus);
            gruppe << ereignis({name + m, text + m}, [spur, modus](const einstellungs_ziel& z) -> int& {
                return z.einst.s6.s6_eingang_modus[spur].at(modus);
            });
        }
    }
}

void control_unit(optionsseite& seite) {
    optionsgruppe& gruppe = seite.gruppe("Carrera Control Unit", 1);
    gruppe << comport({"cu_comport", "COM-Port"}, wert(&e::cu, &cu::anschluss, &cu_anschluss::cu_modus), comports_max)
           << aktion({"cu_einrichten", "Control Unit einrichten und prüfen"})
           << kasten({"opt_cu_tankautomatik", "automatische Tankfunktion"}, wert(&e::cu, &cu::cu_tankautomatik))
           << kasten({"opt_cu_prgstart", "Rennstart über Software"}, wert(&e::cu, &cu::cu_sondermodus))
           << kasten({"opt_cu_alterRZ", "Blackbox mit Rundenzähler 30342 verwenden"}, wert(&e::cu, &cu::cu_option));
    for (const int spur : alle_spuren) {
        const std::string nummer = std::to_string(spur);
        gruppe << zahl({"cu_spur_wert_" + nummer, "Regler " + nummer, "0 bis 15"},
                       je_spur(wert(&e::cu, &cu::cu_spur_wert), spur), begrenzt(0, 15));
    }
}

void at_2560(optionsseite& seite) {
    seite.gruppe("AT-2560 USB", 1)
        << comport({"uart_port", "COM-Port"}, wert(&e::uart, &uart::uart_port), 16)
        << wortliste({"uart_baud", "Baudrate"}, wert(&e::uart, &uart::uart_baud),
                     {"4800", "9600", "19200", "38400", "57600", "115200"})
        << zahl({"uart_datenbits", "Datenbits", "4 bis 8"}, wert(&e::uart, &uart::uart_datenbits), begrenzt(4, 8))
        << wortliste({"uart_parity", "Parität"}, wert(&e::uart, &uart::uart_parity), {"N", "E", "O", "M", "S"})
        << wortliste({"uart_stopbits", "Stoppbits"}, wert(&e::uart, &uart::uart_stopbits), {"1", "1.5", "2"})
        << text({"uart_datei", "Befehlsdatei"}, wert(&e::uart, &uart::uart_datei), 60, 6)
        << aktion({"uart_datei_waehlen", "Befehlsdatei auswählen"})
        << aktion({"uart_einrichten", "Zeitmessung einrichten"}) << aktion({"uart_pruefen", "Gerät prüfen"});
}

}  // namespace

optionsseite_zeiger messhardware() {
    auto seite = std::make_unique<optionsseite>("Messhardware");
    allgemein(*seite);
    seite->gruppe("Simulationsmodus", 1);  // the keyboard has its own window
    seite->gruppe("IOW 40 USB", 1) << text({"iow_datei", "Zuordnungsdatei"}, wert(&e::iow, &iow::iow_datei), 60)
                                   << aktion({"iow_einrichten", "Modul einrichten und testen"});
    race_control(*seite);
    druckeranschluss(*seite);
    modul_4x4_seite(*seite);
    seite->gruppe("Timekeeper", 1) << text({"tk_datei", "Einstellungsdatei"}, wert(&e::tk, &tk::tk_datei), 60)
                                   << aktion({"tk_einrichten", "Timekeeper einrichten"});
    control_unit(*seite);
    at_2560(*seite);
    return seite;
}

}  // namespace tarvel::optionsseiten
