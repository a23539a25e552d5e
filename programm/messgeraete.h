#pragma once

#include <cassert>

#include "hardware/geraetebedienung.h"
#include "programm/geraete_im_rennen.h"
#include "programm/geraeteverdrahtung.h"

namespace tarvel {

/// The timing devices, and how they meet the operator. One of them at a time is in force.
class messgeraete final : public geraetebedienung {
public:
    explicit messgeraete(const geraete_umgebung& um);

    /// Closes whatever was open, opens the device of the settings and puts the outputs to rest. A device that cannot be
    /// reached leaves the race to the keyboard. One that keeps the operator waiting waits for `nachholen` itself as the
    /// program starts (`spaeter`).
    void hardware_starten(bool spaeter);
    /// The main window is on the screen: opens what has waited for it.
    void nachholen();
    void schliessen();
    /// The program ends.
    void beenden();

    /// The device that is chosen can be heard.
    bool verbunden() const;
    /// A device that is chosen, and not only just to be opened, cannot be heard.
    bool getrennt() const;
    tarvel::rennverbindung& rennverbindung() { return rennverbindung_; }

    /// A device with its windows, by the type of its wiring.
    template <class Verdrahtung>
    Verdrahtung& von() {
        Verdrahtung* gefunden = nullptr;
        for (const auto& eines : alle_) {
            gefunden = gefunden == nullptr ? dynamic_cast<Verdrahtung*>(eines.teile.get()) : gefunden;
        }
        assert(gefunden != nullptr);
        return *gefunden;
    }

    /// One of their windows, by its type: who draws it need not know its device.
    template <class Fenster>
    Fenster& fenster() {
        Fenster* gefunden = nullptr;
        for (const auto& eines : alle_) {
            for (fensterlogik* logik : eines.teile->fenster()) {
                gefunden = gefunden == nullptr ? dynamic_cast<Fenster*>(logik) : gefunden;
            }
        }
        assert(gefunden != nullptr);
        return *gefunden;
    }

    void wartehinweis(bool an) override;
    void port_fehlt(const std::string& meldung) override;
    void nicht_zu_oeffnen(messgeraet& geraet, const std::string& meldung) override;
    void verloren() override;

private:
    struct eintrag {
        std::unique_ptr<geraeteverdrahtung> teile;
        bool wartet = false;  ///< to be opened
    };

    bool gewaehlt(const eintrag& eines) const { return um_.einst.hardware.gewaehlt(eines.teile->geraet().welches()); }
    void anschliessen(messgeraet& geraet);
    void trennen(messgeraet& geraet);
    void wartende_oeffnen(bool auch_aufhaltende);
    void ausgaben_anzeigen();
    void verbindung_anzeigen();
    void anzeigetakt_tick();
    bool trotzdem_starten();

    geraete_umgebung um_;
    geraete_im_rennen rennverbindung_;
    std::unique_ptr<plattform::zeitgeber> anzeigetakt_;  ///< keeps the state of the device on the main window
    std::vector<eintrag> alle_;
    static constexpr int alarm_nach = 2;  ///< half seconds: a line may falter
    int getrennt_seit_ = 0;               ///< ticks of `anzeigetakt_`
    bool gewarnt_ = false;                ///< the operator has been asked, or told, that the device is gone
};

}  // namespace tarvel
