#pragma once

#include <array>
#include <atomic>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "hardware/ftd2xx.h"
#include "hardware/uebergabe.h"
#include "platform/dienste.h"

namespace tarvel {

/// What a box has said in one piece, and when that was there.
struct tk_stueck {
    static constexpr std::size_t platz = 250;

    std::string_view text() const { return {bytes.data(), laenge}; }

    zeit_ms stempel = 0;  ///< machine's clock
    std::size_t laenge = 0;
    std::array<char, platz> bytes{};
};

/// What a box was told.
struct tk_befehl {
    static constexpr std::size_t platz = 250;

    std::string_view text() const { return {bytes.data(), laenge}; }

    bool geschrieben = false;
    std::size_t laenge = 0;
    std::array<char, platz> bytes{};
};

/// The channel to a Timekeeper. A thread of its own has the box: it reads, so that each piece is stamped as it arrives,
/// and writes, so that a driver that is stuck holds nobody up. The program takes the pieces, and gives what to write.
class tk_leitung {
public:
    explicit tk_leitung(const plattform::dienste& dienste)
        : bibliotheken_(dienste.bibliotheken), abtaster_dienst_(dienste.abtaster) {}
    tk_leitung(const tk_leitung&) = delete;
    tk_leitung& operator=(const tk_leitung&) = delete;
    ~tk_leitung() { schliessen(); }

    std::function<void(const std::string&)> melden;  ///< a line about what was done, or failed

    bool tk_oeffnen();
    /// Waits for what is still to be written, until the box takes no more.
    void schliessen();
    bool offen() const { return tk_handle_ != nullptr; }
    /// The box is gone: the calls fail.
    bool gestoert() const;
    /// Puts the text into its frame, to be written. False if there is no box, or no room; whether the box has taken it
    /// tells `erledigt`.
    bool tk_senden(std::string_view text);
    /// The next text that has been written, or could not be; none if nothing has happened since.
    std::optional<tk_befehl> erledigt() { return erledigte_.nehmen(); }
    /// The next piece; none if nothing waits.
    std::optional<tk_stueck> tk_lesen() { return stuecke_.nehmen(); }

    /// Status of the last reading that failed, once; 0 none.
    ftd2xx::status lesefehler_abholen() { return lesefehler_.exchange(ftd2xx::gut); }
    /// The same of the question how much waits.
    ftd2xx::status wartefehler_abholen() { return wartefehler_.exchange(ftd2xx::gut); }

private:
    static constexpr std::size_t stuecke_max = 128;
    static constexpr std::size_t befehle_max = 64;

    void sagen(const std::string& zeile) const;
    std::optional<int> geraet_suchen() const;
    bool einstellen();
    void nachsehen(zeit_ms jetzt);
    void ausstehendes_schreiben();

    plattform::bibliothek_dienst& bibliotheken_;
    plattform::abtaster_dienst& abtaster_dienst_;
    ftd2xx ft_;
    ftd2xx::griff tk_handle_ = nullptr;
    std::atomic<bool> schreiben_misslang_ = false;
    uebergabe<tk_befehl, befehle_max> befehle_;
    uebergabe<tk_befehl, befehle_max> erledigte_;
    uebergabe<tk_stueck, stuecke_max> stuecke_;
    std::atomic<int> fehler_in_folge_ = 0;
    std::atomic<ftd2xx::status> lesefehler_ = ftd2xx::gut;
    std::atomic<ftd2xx::status> wartefehler_ = ftd2xx::gut;
    std::unique_ptr<schnittstelle> abtaster_;  ///< looks while the channel is open
};

}  // namespace tarvel
