#include "race/soundsensoren.h"

#include <array>
#include <cstddef>

namespace tarvel {
namespace {

/// In the order in which they are looked at, which decides what is heard of one tick: the last.
struct soundsensor {
    ereignis_art art;
    int sound;
};

constexpr std::array<soundsensor, soundsensoren_max> sensoren{
    {{17, 41}, {9, 45}, {18, 40}, {10, 44}, {19, 39}, {11, 43}, {20, 38}, {12, 42}}};

}  // namespace

void soundsensoren::soundsensoren_pruefen() {
    if (!um_.einst.sound_an) {
        return;
    }
    for (std::size_t i = 0; i < sensoren.size(); ++i) {
        ereignis_zeile& ereignis = um_.ereignisse[sensoren.at(i).art];
        plattform::zeitgeber& sperre = *um_.zeitgeber.soundtrigger.at(i);
        if (ereignis.aktiv && !sperre.laeuft()) {
            um_.sounds.spielen(sensoren.at(i).sound);
            ereignis.aktiv = false;
            sperre.an();
        }
    }
}

}  // namespace tarvel
