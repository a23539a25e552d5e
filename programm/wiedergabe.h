#pragma once

#include <array>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "core/fensterlogik.h"
#include "core/fensterumgebung.h"
#include "platform/dienste.h"
#include "programm/rennspieler.h"

namespace tarvel {

/// Where in the race the replay stands, and what there is to jump to.
class zeitleiste : public steuerelement {
public:
    using marken_liste = std::vector<rennspieler::marke>;

    zeit_ms stelle() const { return stelle_; }
    void stelle(zeit_ms neu) { setzen(stelle_, neu); }
    zeit_ms anfang() const { return anfang_; }
    zeit_ms ende() const { return ende_; }
    const marken_liste& marken() const { return marken_; }
    void strecke(zeit_ms anfang, zeit_ms ende, marken_liste marken);
    /// Another one with each race.
    unsigned auflage() const { return auflage_; }
    /// Colours of the lanes.
    spuren<farbe> farben{};

    /// The operator wants to see this moment.
    std::function<void(zeit_ms)> bei_griff;
    void greifen(zeit_ms stelle);

private:
    zeit_ms stelle_ = 0;
    zeit_ms anfang_ = 0;
    zeit_ms ende_ = 0;
    marken_liste marken_;
    unsigned auflage_ = 0;
};

/// The window in which a race runs again from its log, on a race window of its own: nothing of the program itself is
/// touched, no device, lamp or sound, no file.
class wiedergabe final : public fensterlogik {
public:
    struct umfeld {
        fenster_umgebung um;
        const plattform::uhr& uhr;
        plattform::zeitgeber_dienst& zeitgeber;
        std::filesystem::path programmordner;
    };

    explicit wiedergabe(umfeld u);
    ~wiedergabe() override;

    static constexpr std::array<int, 3> tempi{1, 4, 16};

    befehl Command_spielen;  ///< plays, or stops
    befehl Command_vorige;   ///< to the happening before
    befehl Command_naechste;
    befehl Command_schliessen;
    std::array<haken, tempi.size()> tempo;  ///< one of them is set
    zeitleiste leiste;
    bezeichnung Label_zeit;
    bezeichnung hinweis;  ///< what is wrong with the log

    /// Opens the window with the race of this log; its name is below the program folder. It stands at the beginning, or
    /// shortly before the moment `ab`, in ms from the beginning of the log. A log that cannot be played shows its
    /// message, and so does a race that is under way.
    void zeigen(const std::string& protokoll, std::optional<zeit_ms> ab = {});

    /// No race runs, and none is being prepared.
    std::function<bool()> darf = [] { return true; };
    /// Gives the program of the replay what no log holds.
    std::function<void(programm&)> ausstatten;
    /// The race is there anew, in this program: draw it. Null: it goes, and the last one is still there.
    std::function<void(programm*)> zeichnen;

    void laden() override;
    void entladen() override;
    void schliessen() override;
    std::vector<sprachliste> sprachdateien() override { return {sprache()}; }
    /// The texts of the window.
    sprachliste sprache();
    bool spielt() const { return spielt_; }
    rennspieler* spieler() { return spieler_.get(); }

private:
    struct worte {
        std::string spielen, anhalten, rennen_laeuft, unlesbar, fremd, beschaedigt, abgewichen, springt, ganze_laenge,
            uebersprungen;
    };

    void spielen_klick();
    void zur_marke(bool vor);
    void spielen(bool an);
    void springen(zeit_ms ziel);
    void tick();
    void weiterspielen(zeit_ms vergangen);
    /// On the way to a moment that was asked for, a stretch at a time.
    void weiter_springen();
    void neu_zeichnen();
    void stand_zeigen();
    int schnelle() const;

    fenster_umgebung um_;
    umfeld u_;
    worte wort_;
    std::unique_ptr<plattform::zeitgeber> takt_;
    std::unique_ptr<rennspieler> spieler_;
    std::optional<zeit_ms> ziel_;  ///< of a jump that is under way
    bool neues_spiel_ = false;     ///< the race stands in another program than the one that is drawn
    bool spielt_ = false;
    zeit_ms zuletzt_ = 0;  ///< the clock at the last tick
    struct {
        zeit_ms bis = 0;
        zeit_ms dauer = 0;
        zeit_ms zeigen_bis = 0;  ///< by the clock
    } uebersprungen_;
};

}  // namespace tarvel
