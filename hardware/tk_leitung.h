#pragma once

#include <array>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "hardware/ftd2xx.h"
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
    explicit tk_leitung(const plattform::dienste& dienste);
    tk_leitung(const tk_leitung&) = delete;
    tk_leitung& operator=(const tk_leitung&) = delete;
    ~tk_leitung() { schliessen(); }

    std::function<void(const std::string&)> melden;  ///< a line about what was done, or failed

    bool tk_oeffnen();
    /// What is still to be written is written, until the box takes no more. Waits for that, but not for a driver that
    /// is stuck: it is left to the thread, which closes the channel as soon as it comes back.
    void schliessen();
    bool offen() const { return kanal_ != nullptr; }
    /// The box is gone: the calls fail.
    bool gestoert() const;
    /// Puts the text into its frame, to be written. False if there is no box, or no room; whether the box has taken it
    /// tells `erledigt`.
    bool tk_senden(std::string_view text);
    /// The next text that has been written, or could not be; none if nothing has happened since.
    std::optional<tk_befehl> erledigt();
    /// The next piece; none if nothing waits.
    std::optional<tk_stueck> tk_lesen();

    /// Status of the last reading that failed, once; 0 none.
    ftd2xx::status lesefehler_abholen();
    /// The same of the question how much waits.
    ftd2xx::status wartefehler_abholen();

private:
    struct kanal;

    void sagen(const std::string& zeile) const;
    std::optional<int> geraet_suchen() const;
    bool einstellen(ftd2xx::griff tk_handle) const;

    plattform::bibliothek_dienst& bibliotheken_;
    plattform::abtaster_dienst& abtaster_dienst_;
    std::shared_ptr<ftd2xx> ft_;
    std::shared_ptr<kanal> kanal_;             ///< none while it is closed
    std::unique_ptr<schnittstelle> abtaster_;  ///< looks while the channel is open
};

}  // namespace tarvel
