#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "hardware/rc_bibliothek.h"
#include "platform/dienste.h"
#include "platform/schnittstelle.h"
#include "platform/serienport.h"
#include "platform/zeitgeber.h"

namespace tarvel {

/// What happens between the program and a Race Control box, in the order in which a start goes well, and what may go
/// wrong with it.
enum class rc_schritt {
    port_oeffnet,
    angesprochen,  ///< the library has taken the port
    sendedaten,    ///< it has asked for data to be sent
    uebertragen,   ///< and these have gone out
    bereit,        ///< the box is active
    geschlossen,
    bibliothek_fehlt,
    ruf_fehlt,
    port_fehlt,
    box_fehlt,     ///< the library takes no box at the port
    unterbrochen,  ///< the port is gone
    stumm,         ///< the box has not become active in time
    unbekanntes_ereignis,
    unbekannter_fehler
};

/// A contact of the box.
struct rc_kontakt {
    int sensor = 0;      ///< from 0
    bool belegt = true;  ///< a car has come, else it has left
    std::uint32_t stempel = 0;
};

class rc_hoerer : public schnittstelle {
public:
    virtual void rc_geschehen(rc_schritt /*schritt*/) {}
    virtual void rc_meldet(const rc_kontakt& /*kontakt*/) {}
    /// All that has come in together has been told.
    virtual void rc_gelesen() {}
};

/// After the port has opened the box becomes active within this time, or it is not there.
inline constexpr dauer_ms rc_antwortzeit{2000};

/// The line to a Race Control box: the bytes go through the vendor's library, what it makes of them goes to those who
/// listen.
class rc_verbindung {
public:
    static constexpr int sensoren = 4;
    static constexpr int comport_max = 20;

    rc_verbindung(plattform::serienport_dienst& serienports, plattform::zeitgeber_dienst& zeitgeber,
                  plattform::bibliothek_dienst& bibliotheken);

    /// Must outlive the line.
    void zuhoeren(rc_hoerer& hoerer) { hoerer_.push_back(&hoerer); }

    /// The vendor's library gets ready as the program starts; a missing one is looked for again with each opening.
    bool bibliothek_laden() { return bibliothek_.laden(); }
    bool bibliothek_da() const { return bibliothek_da_; }
    const std::string& fehlender_ruf() const { return bibliothek_.fehlender_ruf(); }

    /// Closes what was open, opens the port "COMn" and has the box become active. False if it comes to nothing at once;
    /// the rest is told.
    bool oeffnen(const std::string& rc_comport);
    void schliessen();
    bool offen() const { return port_->offen(); }
    bool bereit() const { return zustand_.rc_bereit; }
    /// The box's clock, of an active box.
    std::uint32_t stempel() const { return bibliothek_.stempel(); }

private:
    struct zustand {
        int rc_box = 0;
        bool rc_aktiv = false;   ///< the library has a box
        bool rc_bereit = false;  ///< and that is active
    };

    bool rc_einschalten(const std::string& rc_comport);
    void empfangen(std::string_view bytes);
    void byte_empfangen(char byte);
    void ereignis_holen();
    void sendedaten_schreiben();
    void bereit_melden();
    void zumachen(rc_schritt warum);
    void melden(rc_schritt schritt);

    rc_bibliothek bibliothek_;
    std::unique_ptr<plattform::serienport> port_;
    std::unique_ptr<plattform::zeitgeber> rc_timer_;
    std::vector<rc_hoerer*> hoerer_;
    zustand zustand_;
    bool bibliothek_da_ = false;
};

}  // namespace tarvel
