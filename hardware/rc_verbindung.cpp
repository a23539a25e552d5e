#include "hardware/rc_verbindung.h"

#include "core/text.h"

namespace tarvel {
namespace {

constexpr std::string_view portwerte = "4800,N,8,1";

enum status : unsigned { nichts = 0, ereignis_da = 2, senden_erstes = 0x8003, senden_letztes = 0x8006 };
enum code : unsigned { ueberfahrt = 0x200, verlassen = 0x300, zustand_1 = 0x400, zustand_2 = 0x500, aktiv = 0x600 };

constexpr unsigned code_maske = 0xFF00;
constexpr unsigned sensor_maske = 0x3;

/// 0 for a name that is no port's.
int portnummer(const std::string& name) {
    constexpr std::string_view davor = "COM";
    if (!name.starts_with(davor)) {
        return 0;
    }
    return static_cast<int>(ganzzahl_lesen(name.substr(davor.size()), 0, rc_verbindung::comport_max));
}

}  // namespace

rc_verbindung::rc_verbindung(plattform::serienport_dienst& serienports, plattform::zeitgeber_dienst& zeitgeber,
                             plattform::bibliothek_dienst& bibliotheken)
    : bibliothek_(bibliotheken),
      port_(serienports.erzeugen()),
      rc_timer_(zeitgeber.erzeugen(plattform::zeitgeber_art::abfragend, rc_antwortzeit)),
      bibliothek_da_(bibliothek_.laden()) {
    port_->bei_empfang = [this](std::string_view bytes, zeit_ms /*stempel*/) { empfangen(bytes); };
    port_->bei_verlust = [this] { zumachen(rc_schritt::unterbrochen); };
    rc_timer_->bei_tick = [this] { zumachen(rc_schritt::stumm); };
}

void rc_verbindung::melden(rc_schritt schritt) {
    for (rc_hoerer* hoerer : hoerer_) {
        hoerer->rc_geschehen(schritt);
    }
}

bool rc_verbindung::oeffnen(const std::string& rc_comport) {
    schliessen();
    bibliothek_da_ = bibliothek_.laden();
    if (!bibliothek_da_) {
        melden(fehlender_ruf().empty() ? rc_schritt::bibliothek_fehlt : rc_schritt::ruf_fehlt);
        return false;
    }
    return rc_einschalten(rc_comport);
}

bool rc_verbindung::rc_einschalten(const std::string& rc_comport) {
    melden(rc_schritt::port_oeffnet);
    const int nummer = portnummer(rc_comport);
    if (nummer == 0 || !port_->oeffnen(nummer, portwerte)) {
        melden(rc_schritt::port_fehlt);
        return false;
    }
    zustand_.rc_box = bibliothek_.box_oeffnen(rc_comport);
    if (zustand_.rc_box < 0) {
        port_->schliessen();
        melden(rc_schritt::box_fehlt);
        return false;
    }
    zustand_.rc_aktiv = true;
    rc_timer_->an();
    melden(rc_schritt::angesprochen);
    return true;
}

void rc_verbindung::schliessen() {
    if (port_->offen()) {
        zumachen(rc_schritt::geschlossen);
    }
}

void rc_verbindung::zumachen(rc_schritt warum) {
    rc_timer_->aus();
    port_->schliessen();
    zustand_ = {};
    melden(warum);
}

void rc_verbindung::empfangen(std::string_view bytes) {
    for (const char byte : bytes) {
        if (!zustand_.rc_aktiv) {  // somebody has closed the port meanwhile
            return;
        }
        byte_empfangen(byte);
    }
    for (rc_hoerer* hoerer : hoerer_) {
        hoerer->rc_gelesen();
    }
}

void rc_verbindung::byte_empfangen(char byte) {
    const unsigned rc_ergebnis = bibliothek_.byte_geben(zustand_.rc_box, byte);
    if (rc_ergebnis == ereignis_da) {
        ereignis_holen();
    } else if (rc_ergebnis >= senden_erstes && rc_ergebnis <= senden_letztes) {
        melden(rc_schritt::sendedaten);
        sendedaten_schreiben();
        melden(rc_schritt::uebertragen);
    } else if (rc_ergebnis != nichts) {
        melden(rc_schritt::unbekannter_fehler);
    }
}

void rc_verbindung::sendedaten_schreiben() {
    if (const std::string daten = bibliothek_.sendedaten(); !daten.empty()) {
        port_->schreiben(daten);
    }
}

void rc_verbindung::ereignis_holen() {
    const std::optional<unsigned> wort = bibliothek_.ereignis();
    if (!wort) {
        return;
    }
    switch (*wort & code_maske) {
        case ueberfahrt:
        case verlassen: {
            const rc_kontakt kontakt{static_cast<int>(*wort & sensor_maske), (*wort & code_maske) == ueberfahrt,
                                     bibliothek_.stempel()};
            for (rc_hoerer* hoerer : hoerer_) {
                hoerer->rc_meldet(kontakt);
            }
            break;
        }
        case zustand_1:
        case zustand_2:
            break;
        case aktiv:
            bereit_melden();
            break;
        default:
            melden(rc_schritt::unbekanntes_ereignis);
    }
}

void rc_verbindung::bereit_melden() {
    if (zustand_.rc_bereit) {
        return;
    }
    sendedaten_schreiben();
    zustand_.rc_bereit = true;
    rc_timer_->aus();
    melden(rc_schritt::bereit);
}

}  // namespace tarvel
