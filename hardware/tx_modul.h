#pragma once

#include <array>
#include <memory>
#include <string>
#include <vector>

#include "core/dateien.h"
#include "core/einstellungen.h"
#include "core/texte.h"
#include "hardware/ereignisfolge.h"
#include "hardware/geraetebedienung.h"
#include "hardware/messgeraet.h"
#include "hardware/rennverbindung.h"
#include "hardware/tx_datei.h"
#include "hardware/tx_suche.h"
#include "hardware/tx_zuschauer.h"
#include "platform/serienport.h"
#include "platform/zeitgeber.h"

namespace tarvel {

/// What the module has told of itself since it was looked for.
struct tx_auskunft {
    bool firmware_da = false;      ///< its version
    bool ok = false;               ///< its greeting has been answered
    bool modus_bereit = false;     ///< it waits for a mode
    bool tx_mode_gelesen = false;  ///< it has told the one that it has taken
    int modus = 0;                 ///< 1 to 4, 0 none
    int ausgaenge = 0;             ///< how many outputs it has
};

/// The 4x4 USB module. It has no clock: an event has the time at which its line arrives.
class tx_modul final : public messgeraet {
public:
    /// A module that has not told its version by then is none.
    static constexpr dauer_ms frist{6000};
    static constexpr int kontakt_modus = tx::kontakt_modus;
    static constexpr int lampen = tx::lampen;

    struct umgebung {
        const einstellungen& einst;
        const texte& txt;
        const dateien& ablage;
        ereignis_tabelle& ereignisse;
        const plattform::uhr& uhr;
        plattform::zeitgeber_dienst& zeitgeber;
        plattform::serienport_dienst& serienports;
        rennverbindung& rennen;
        geraetebedienung& bedienung;
    };

    explicit tx_modul(const umgebung& um);

    hardware_art welches() const override { return hardware_art::usb_4x4; }
    std::optional<ausgabe_platz> ausgabeplatz() const override { return ausgabe_platz::modul_4x4; }
    /// Begins to look for the module. If it is not found, the operator's side hears of it in the end.
    bool oeffnen() override;
    void schliessen() override;
    void wieder_aufnehmen() override;
    bool verbunden() const override { return stand_ == stand::da; }
    bool haelt_auf() const override { return true; }

    void abfragen() override { folge_.abfragen(); }
    void einfahren_beginnt() override { folge_.leeren(); }
    void rennen_bereit() override { folge_.leeren(); }
    void rennfenster_offen() override;
    void schalten(const schaltung& befehl) override;

    // for the windows
    void zuschauen(tx_zuschauer& wer) { zuschauer_.push_back(&wer); }
    /// The same without a race behind it: whoever does not find it stays as he was. False if there is no port.
    bool probe_oeffnen();
    /// A search begins, or goes on, that the operator waits for.
    bool wird_eingerichtet() const { return stand_ == stand::sucht && anlass_ == anlass::start; }
    bool sucht() const { return stand_ == stand::sucht; }
    /// The operator waits no longer.
    void aufgeben();
    int modus() const { return auskunft_.modus; }
    const tx_datei& datei() const { return datei_; }
    void spuren_6_setzen(bool an);
    /// 1 to 4, 0 none; of the module that is there, and of one that comes.
    void tx_modus_setzen(int neu);
    /// Switches an output; 0 all of them in one go.
    void tx_ausgang_setzen(int nummer, bool an);
    bool ausgang_an(int nummer) const { return an_.at(static_cast<std::size_t>(nummer)); }
    /// The output of a red lamp, or of a lane's power; 0 if it has none.
    static int lampenausgang(int lampe, bool spuren_6);
    static int stromausgang(int spur, bool spuren_6);
    /// One of the module's commands, as it stands.
    void befehl_senden(char zeichen);

private:
    enum class stand { zu, sucht, da };
    enum class anlass { start, wieder, probe };

    bool tx_initialisieren(anlass warum);
    bool uebrige_versuchen();
    bool port_versuchen(int nummer);
    void suche_tick();
    void gescheitert(bool geoeffnet);
    void gefunden();
    void nachfragen();
    void modus_wiederholen();
    void modus_senden();
    void verloren(const tx_leitung& leitung);
    void gehoert(const tx_leitung& leitung, const tx::meldung& was, zeit_ms stempel);
    void verarbeiten(std::monostate /*rauschen*/) {}
    void verarbeiten(tx::gruss was);
    void verarbeiten(tx::aktiviert was);
    void verarbeiten(tx::modusfrage was);
    void verarbeiten(const tx::firmware& was);
    void verarbeiten(tx::modus was);
    void verarbeiten(tx::taster was);
    void verarbeiten(const tx::sensor& was);
    void bereit_melden();
    std::string fehlertext(bool geoeffnet) const;
    void senden(std::string_view bytes);
    void notieren(const std::string& zeile) const;
    void stand_melden() const;

    umgebung um_;
    ereignisfolge folge_;
    tx_suche suche_;
    std::unique_ptr<tx_leitung> leitung_;   ///< to the module
    std::unique_ptr<tx_leitung> abgelegt_;  ///< the one that was lost, until nobody is in its handlers any more
    std::unique_ptr<plattform::zeitgeber> takt_;
    std::vector<tx_zuschauer*> zuschauer_;
    tx_datei datei_;
    tx_auskunft auskunft_;
    stand stand_ = stand::zu;
    anlass anlass_ = anlass::start;
    zeit_ms suche_seit_ = 0;
    zeit_ms suche_zuletzt_ = 0;  ///< look
    bool alle_versucht_ = false;
    std::vector<int> fremde_;  ///< ports that were there beside the module's
    bool gewuenscht_ = false;  ///< found once, and not closed since
    bool firmware_gefragt_ = false;
    int modus_soll_ = 0;
    std::array<bool, tx::ausgang_max + 1> an_{};
    zeit_ms letzte_zeile_ = 0;  ///< when it was there
    int unbeantwortet_ = 0;
    int modus_wiederholt_ = 0;
};

}  // namespace tarvel
