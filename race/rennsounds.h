#pragma once

#include "core/einstellungen.h"
#include "platform/klang.h"

namespace tarvel {

namespace sound {
inline constexpr int rennstart_vorbereitet = 1;
inline constexpr int rennen_gestartet = 2;
inline constexpr int rennen_beendet = 3;
inline constexpr int rennen_abgebrochen = 4;
inline constexpr int pause_beginnt = 5;
inline constexpr int pause_endet = 6;
inline constexpr int beste_runde = 6;       // + lane
inline constexpr int fruehstart = 12;       // + lane
inline constexpr int disqualifiziert = 18;  // + lane
inline constexpr int tankwarnung = 24;      // + lane
inline constexpr int tank_leer = 30;        // + lane
inline constexpr int runde = 37;
inline constexpr int ampelschritt = 46;
inline constexpr int sektorzeit = 48;
inline constexpr int erster_im_ziel = 47;
}  // namespace sound

/// Plays the sounds of race events by their number 1 to 64, if sounds are on.
class rennsounds {
public:
    rennsounds(const einstellungen& einst, plattform::klang& klang) : einst_(einst), klang_(klang) {}

    /// An event without a file plays nothing.
    void spielen(int nummer) const;
    /// Has the files of all events read ahead, after the settings have changed.
    void bereitstellen() const;

private:
    const einstellungen& einst_;
    plattform::klang& klang_;
};

}  // namespace tarvel
