#include "programm/geraet_mit_fenster.h"

#include "programm/messgeraete.h"

namespace tarvel {

void geraet_mit_fenster::geraet_verbinden() {
    if (einst_.hardware.gewaehlt(geraet().welches())) {
        alle_.hardware_starten(false);
    }
}

}  // namespace tarvel
