#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <initializer_list>
#include <limits>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

#include "core/protokollzeile.h"
#include "platform/schnittstelle.h"
#include "platform/uhr.h"

namespace tarvel {

/// A stamp or count as a log holds it. A damaged log may hold any number: nothing that is computed with these
/// overflows.
constexpr std::int64_t protokoll_stempel(std::int64_t wert) {
    constexpr std::int64_t grenze = 10'000'000'000'000;
    return wert < -grenze ? -grenze : wert > grenze ? grenze : wert;
}
/// A fraction, by its bits, likewise; `sonst` if it is none.
double protokoll_bruch(std::int64_t bits, double sonst);

/// Takes the lines that a log is written in.
class protokollsenke : public schnittstelle {
public:
    virtual void anhaengen(std::string_view zeile) = 0;
};

/// Stands between a part of the program and the world. All that reaches the part from outside comes through here as a
/// *doing* with its name, and all that the part asks outside as an *answer*: so it can be written down, and done again
/// from what was written, in the same order and with the same answers. What the part decides meanwhile is noted too,
/// and compared when it is done again.
///
/// A doing within which another one comes from outside (while it asks a device, or shows a message) holds that one. Its
/// place in it is a *step*: how many questions and gates came before. A look that finds nothing is not written down,
/// but for one now and then that shows how long the part has lived.
class mitschrift {
public:
    static constexpr std::size_t werte_max = 6;
    static constexpr std::int64_t unbekannt = std::numeric_limits<std::int64_t>::min();
    using werte = std::array<std::int64_t, werte_max>;
    using tat = std::function<void(const werte&)>;

    enum class sorte {
        handlung,
        zaehlung,  ///< counts on, many times a second; where it does no more than that, only the number is written
        blick      ///< comes again and again, and mostly changes nothing; it looks at what else has happened
    };

    /// What was done again differs from what was written.
    struct unterschied {
        int zeile = 0;  ///< of the log, from 1
        std::string geschrieben;
        std::string stattdessen;
    };

    mitschrift() { zuege_.reserve(tiefe_max); }

    /// What the looks that find nothing change all the same, as two numbers: they are written where they are not as
    /// the doing before has left them. The second is not written if it is 0.
    using beiwerk = std::array<std::int64_t, 2>;
    void nebenbei(std::function<beiwerk()> lesen, std::function<void(const beiwerk&)> setzen) {
        nebenbei_lesen_ = std::move(lesen);
        nebenbei_setzen_ = std::move(setzen);
    }
    /// Enters a doing; its name is a word of its own. With how many values it comes.
    int eingang(std::string name, std::size_t anzahl, tat was, sorte art = sorte::handlung);
    /// The doing of a command, to be called by it.
    std::function<void()> befehl(std::string name, std::function<void()> was);
    /// It is done. From within the part itself it is no more than a call.
    void geschieht(int eingang, const werte& w = {});

    /// Writes from here on.
    void schreiben(protokollsenke& senke, zeit_ms beginn, std::function<zeit_ms()> uhr);
    /// Goes on writing behind what has been done again, whose last line had the sum `kette`: first what the last doing
    /// has decided beyond it. On this clock the times of the doings count from `beginn`.
    void weiterschreiben(protokollsenke& senke, std::uint16_t kette, zeit_ms beginn, std::function<zeit_ms()> uhr);
    void aufhoeren();
    bool schreibt() const { return betrieb_ == betrieb::schreiben; }
    /// A line that is only for the reader who comes later. Within a doing it waits for that one's end.
    void kopfzeile(std::string_view text);

    /// Does again what these lines hold, whose first is number `erste_zeile` of the log.
    void lesen(std::vector<std::string_view> zeilen, int erste_zeile, zeit_ms beginn);
    /// The next doing. False at the end of the lines, and at a difference.
    bool weiter();
    /// The next doing as it stands there, behind the lines that are only for the reader; none at the end.
    std::optional<protokollsatz> naechste_tat();
    /// When it came, in ms from the beginning of the log.
    std::optional<zeit_ms> naechste_zeit();
    /// Told of each line that is only for the reader, as it is passed.
    std::function<void(std::string_view text)> bei_kopfzeile;
    /// Outside all doings, the clock as it is read again goes on to this time from the beginning.
    void uhr_vor(zeit_ms zeit) { zuletzt_ = beginn_ + zeit; }
    bool liest() const { return betrieb_ == betrieb::lesen; }
    /// The clock at the last doing that was done again, and what the times count from there.
    zeit_ms gelesen_bis() const { return zuletzt_; }
    zeit_ms beginn() const { return beginn_; }
    const std::optional<unterschied>& abweichung() const { return abweichung_; }

    /// The clock as the part sees it.
    zeit_ms uhr(zeit_ms echte) { return liest() ? zeit_nachlesen() : zeit_merken(echte); }
    /// The doing under way moves more than its own count.
    void mehr_als_gezaehlt() {
        if (schreibt() && !zuege_.empty() && zuege_.back().tor == 0) {
            zuege_.back().merklich = true;
        }
    }
    /// The answer to a question, which is asked for outside. Written each time, or only if it is another than the last.
    template <class Frage>
    std::int64_t antwort(std::string_view name, Frage fragen) {
        return liest() ? antwort_nachlesen(name).value_or(0) : antwort_merken(name, fragen());
    }
    /// The last answer to a question that is only written where it changes. Each log begins with none.
    struct letzte_antwort {
        std::int64_t wert = 0;
        int lauf = 0;
    };
    template <class Frage>
    std::int64_t zustand(std::string_view name, letzte_antwort& zuletzt, Frage fragen) {
        if (liest()) {
            zuletzt.wert = antwort_nachlesen(name).value_or(zuletzt.wert);
        } else if (const letzte_antwort neu{fragen(), lauf_}; neu.wert != zuletzt.wert || neu.lauf != zuletzt.lauf) {
            zuletzt = neu;
            antwort_merken(name, neu.wert);
        } else {
            schritt();
        }
        return zuletzt.wert;
    }
    /// Something outside is told or asked, and may do something here meanwhile. When it is done again, only that is.
    template <class Rest>
    void tor(Rest aussen) {
        if (liest()) {
            tor_nachlesen();
            return;
        }
        const int vorher = tor_oeffnen();
        aussen();
        tor_schliessen(vorher);
    }
    /// What the part has decided.
    void vermerken(std::string_view wort, std::initializer_list<std::int64_t> zahlen = {});

private:
    enum class betrieb { aus, schreiben, lesen };

    struct eintrag {
        std::string name;
        std::size_t anzahl = 0;
        tat was;
        sorte art = sorte::handlung;
        bool geweckt = false;  ///< something has happened since this look's last one
        int laeufe = 0;        ///< how often it has counted on since the last line
    };

    struct zug {
        struct sprung {
            int schritt = 0;
            zeit_ms zeit = 0;
        };
        int eingang = 0;
        werte w{};
        zeit_ms beginn = 0;
        beiwerk nebenbei{};  ///< as it began
        zeit_ms zeit = 0;    ///< as it was read last
        int schritt = 0;
        bool steht_da = false;
        bool merklich = false;
        int tor = 0;  ///< step of the gate that is open, 0 if none is
        std::array<sprung, 16> spruenge{};
        std::size_t spruenge_anzahl = 0;
    };

    /// What has counted on and is not written yet.
    struct zaehllauf {
        bool offen = false;
        std::size_t tiefe = 0;  ///< within so many doings
        zeit_ms zeit = 0;       ///< of the last one
    };

    static constexpr std::size_t tiefe_max = 32;

    bool von_aussen() const { return zuege_.empty() || zuege_.back().tor != 0; }
    int tiefe() const { return static_cast<int>(zuege_.size()); }
    void schritt() {
        if (!zuege_.empty() && zuege_.back().tor == 0) {
            ++zuege_.back().schritt;
        }
    }
    void ausfuehren(int eingang, const werte& w) { eingaenge_[static_cast<std::size_t>(eingang)].was(w); }
    void wecken();
    /// The doing, which nobody has noticed yet, is at its end: it is one more of its kind, or a line after all.
    void zaehlung_beenden();
    void laeufe_schreiben();
    /// The doings under way, as far as they are not written down.
    void zuege_schreiben();
    void ausstehende_schreiben();
    void zug_schreiben(std::size_t nummer);
    /// The beginning of a line within them.
    protokollschreiber& inhalt_beginnen();
    void anhaengen() { senke_->anhaengen(schreiber_.fertig()); }
    zeit_ms zeit_merken(zeit_ms echte);
    std::int64_t antwort_merken(std::string_view name, std::int64_t wert);
    int tor_oeffnen();
    void tor_schliessen(int vorher);

    zeit_ms zeit_nachlesen();
    std::optional<std::int64_t> antwort_nachlesen(std::string_view name);
    void tor_nachlesen();
    std::optional<protokollsatz> naechster() const;
    void satz_ausfuehren(const protokollsatz& s);
    void laeufe_ausfuehren(const protokollsatz& s);
    bool ist_tat(std::string_view wort) const;
    void abweichen(std::string stattdessen);
    void kopfzeile_lesen(std::string_view rest);

    betrieb betrieb_ = betrieb::aus;
    int lauf_ = 0;  ///< number of the log
    std::vector<eintrag> eingaenge_;
    std::unordered_map<std::string, int> nummer_;
    std::function<beiwerk()> nebenbei_lesen_ = [] { return beiwerk{}; };
    std::function<void(const beiwerk&)> nebenbei_setzen_ = [](const beiwerk& /*werte*/) {};
    beiwerk nebenbei_{unbekannt};          ///< as the last doing that was written has left it
    std::vector<zug> zuege_;               ///< that are under way, each within the one before
    std::vector<std::string> ausstehend_;  ///< lines for the reader that wait for their end

    protokollsenke* senke_ = nullptr;
    protokollschreiber schreiber_;
    zeit_ms beginn_ = 0;
    zeit_ms lebenszeichen_ = 0;  ///< when the last doing was written
    zaehllauf laeufe_;
    std::function<zeit_ms()> uhr_;

    std::vector<std::string_view> zeilen_;
    std::size_t ort_ = 0;
    int erste_zeile_ = 1;
    zeit_ms zuletzt_ = 0;                ///< the clock outside all doings
    std::vector<std::string> nachtrag_;  ///< decided beyond the last line
    std::optional<unterschied> abweichung_;
};

}  // namespace tarvel
