#include <algorithm>

#include "core/text.h"
#include "hardware/uart_einstellungen.h"

/// The pages of the wizard on which the sensors and buttons are heard.
namespace tarvel {
namespace {

constexpr farbe ausgeloest_farbe = 0x90EE90;
constexpr std::size_t name_laenge_max = 20;
const std::string noch_nicht = "–";

/// A name that the command file can keep.
bool brauchbar(const std::string& ereignis) {
    return !ereignis.empty() && ereignis.size() <= name_laenge_max && ereignis != at_nicht_belegt &&
           std::all_of(ereignis.begin(), ereignis.end(),
                       [](char zeichen) { return static_cast<unsigned char>(zeichen) >= ' '; });
}

/// Shows the event's row, of the first `anzahl`, as the one that was triggered just now; a new event gets the first
/// free row. False if there is none.
template <class Zeilen>
bool zeile_ausloesen(Zeilen& zeilen, std::size_t anzahl, const std::string& ereignis) {
    const auto ende = zeilen.begin() + static_cast<std::ptrdiff_t>(anzahl);
    const auto mit_text = [&](const std::string& text) {
        return std::find_if(zeilen.begin(), ende, [&](const auto& eine) { return eine.ereignis.text() == text; });
    };
    auto zeile = mit_text(ereignis);
    zeile = zeile == ende ? mit_text(noch_nicht) : zeile;
    if (zeile == ende) {
        return false;
    }
    for (auto& andere : zeilen) {
        andere.ereignis.hintergrund({});
    }
    zeile->ereignis.text(ereignis);
    zeile->ereignis.hintergrund(ausgeloest_farbe);
    return true;
}

std::string gehoert(const bezeichnung& ereignis) {
    return ereignis.text() == noch_nicht ? std::string() : ereignis.text();
}

}  // namespace

void uart_einstellungen::ausgeloest(const std::string& ereignis) {
    if (!brauchbar(ereignis) || ereignis == profil_.at_zeit_anfordern) {
        return;
    }
    if (seite_ == seite_sensoren) {
        zeile_ausloesen(sensoren, anzahl_, ereignis);
    } else if (seite_ == seite_chaos && std::none_of(sensoren.begin(), sensoren.end(), [&](const sensorzeile& eine) {
                   return eine.ereignis.text() == ereignis;
               })) {
        zeile_ausloesen(taster, tasterzeilen(), ereignis);
    }
}

void uart_einstellungen::sensoren_vergessen() {
    int nummer = 0;
    for (sensorzeile& eine : sensoren) {
        eine.zeile.sichtbar(nummer < static_cast<int>(anzahl_));
        eine.ereignis.text(noch_nicht);
        eine.ereignis.hintergrund({});
        eine.spur.platz(nummer % spuren_max);
        eine.funktion.platz(0);
        eine.tanken.platz(0);
        ++nummer;
    }
}

bool uart_einstellungen::ein_stecker() const {
    return stecker.platz() <= 0;
}

std::size_t uart_einstellungen::tasterzeilen() const {
    const auto anzahl = static_cast<std::size_t>(std::clamp(chaos_anzahl.platz(), 0, taster_max));
    return ein_stecker() ? std::min<std::size_t>(anzahl, 1) : anzahl;
}

void uart_einstellungen::tasterzeilen_zeigen() {
    const bool mehrere = chaos_anzahl.platz() > 1;
    Label_stecker.sichtbar(mehrere);
    stecker.sichtbar(mehrere);
    std::size_t nummer = 0;
    for (tasterzeile& eine : taster) {
        eine.zeile.sichtbar(nummer < tasterzeilen());
        eine.ereignis.text(noch_nicht);
        eine.ereignis.hintergrund({});
        eine.cbo_chaos.sichtbar(!ein_stecker());
        eine.cbo_chaos.platz(0);
        ++nummer;
    }
}

at_zuordnung uart_einstellungen::zuordnung() const {
    at_zuordnung z;
    for (std::size_t i = 0; i < anzahl_; ++i) {
        const sensorzeile& eine = sensoren.at(i);
        z.sensoren.push_back({gehoert(eine.ereignis), eine.spur.platz() + 1,
                              static_cast<at_funktion>(eine.funktion.platz()), eine.tanken.platz()});
    }
    for (std::size_t i = 0; i < tasterzeilen(); ++i) {
        const tasterzeile& eine = taster.at(i);
        const int gewaehlt = eine.cbo_chaos.platz();  // at place 0 none
        const int fahrer = gewaehlt > 0 ? gewaehlt : at_chaostaster::keiner;
        z.taster.push_back({gehoert(eine.ereignis), ein_stecker() ? at_chaostaster::alle : fahrer});
    }
    return z;
}

bool uart_einstellungen::zuordnung_pruefen() {
    const at_zuordnung z = zuordnung();
    if (z.doppelt()) {
        um_.meldungen.zeigen(wort_.doppelt, um_.txt.titel[1]);
        return false;
    }
    const bool alle =
        std::all_of(z.sensoren.begin(), z.sensoren.end(), [](const at_sensor& s) { return s.zugewiesen(); });
    return alle || um_.meldungen.fragen(wort_.ohne_funktion, um_.txt.titel[0]);
}

void uart_einstellungen::zusammenfassen() {
    const at_zuordnung z = zuordnung();
    const auto vorspann = [](const auto& zeile) { return zeile.nummer.text() + " (" + zeile.ereignis.text() + "): "; };
    zusammenfassung.leeren();
    zusammenfassung.hinzufuegen("COM" + std::to_string(offener_port_));
    for (std::size_t i = 0; i < z.sensoren.size(); ++i) {
        const at_sensor& sensor = z.sensoren[i];
        std::string zeile = vorspann(sensoren.at(i));
        if (!sensor.zugewiesen()) {
            zusammenfassung.hinzufuegen(zeile + wort_.funktion.front());
            continue;
        }
        zeile += wort_.spur + " " + std::to_string(sensor.spur);
        if (sensor.funktion != at_funktion::keine) {
            zeile += ", " + wort_.funktion.at(static_cast<std::size_t>(sensor.funktion));
        }
        if (sensor.tanksensor != 0) {
            zeile += ", " + wort_.tanken.at(static_cast<std::size_t>(sensor.tanksensor));
        }
        zusammenfassung.hinzufuegen(zeile);
    }
    for (std::size_t i = 0; i < z.taster.size(); ++i) {
        const int fahrer = z.taster[i].fahrer;
        const auto platz = static_cast<std::size_t>(std::max(fahrer, 0));
        zusammenfassung.hinzufuegen(vorspann(taster.at(i)) +
                                    (fahrer == at_chaostaster::alle ? wort_.chaos.back() : wort_.chaos.at(platz)));
    }
    zusammenfassung.hinzufuegen(wort_.sensorbefehl + ": " + z.eintragen(profil_).at_is_befehl);
    zusammenfassung.hinzufuegen(wort_.befehlsdatei + ": " + um_.einst.uart.uart_datei);
    if (um_.ablage.gibt_es(um_.einst.uart.uart_datei)) {
        zusammenfassung.hinzufuegen(wort_.gesichert + ": " + sicherungsname());
    }
}

std::string uart_einstellungen::sicherungsname() const {
    std::string name = um_.einst.uart.uart_datei + ".alt";
    for (int nummer = 2; um_.ablage.gibt_es(name); ++nummer) {
        name = um_.einst.uart.uart_datei + ".alt" + std::to_string(nummer);
    }
    return name;
}

void uart_einstellungen::fertigstellen() {
    // the file so far may have lines of its owner's
    const bool gesichert = !um_.ablage.gibt_es(um_.einst.uart.uart_datei) ||
                           um_.ablage.kopieren(um_.einst.uart.uart_datei, sicherungsname());
    if (!gesichert || !at_profil_speichern(um_.ablage, um_.einst.uart.uart_datei, zuordnung().eintragen(profil_))) {
        um_.meldungen.zeigen(um_.txt.meldung[26], um_.txt.titel[1]);
        return;
    }
    um_.einst.uart.uart_port = offener_port_;
    einstellungen_sichern();
    um_.fenster.entladen(fenstername::UART_einstellungen);
}

}  // namespace tarvel
