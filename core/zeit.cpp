#include "core/zeit.h"

#include "core/text.h"

namespace tarvel {

zeit_teile zeit_zerlegen(zeit_ms zeit) {
    return {zeit / 3600000, zeit / 60000 % 60, zeit / 1000 % 60, zeit % 1000};
}

std::string zeit_formatieren(zeit_ms zeit, bool lang, const trennzeichen_tabelle& trennzeichen) {
    const zeit_teile teile = zeit_zerlegen(zeit);
    std::string text;
    if (lang) {
        text = ziffern(teile.minuten, 2) + trennzeichen[0];
    }
    text += ziffern(teile.sekunden, 2);
    text += trennzeichen[1];
    text += ziffern(teile.millisekunden, 3);
    return text;
}

std::string minuten_davor(zeit_ms zeit, const trennzeichen_tabelle& trennzeichen) {
    constexpr zeit_ms minute = 60000;
    return zeit < minute ? std::string() : std::to_string(zeit / minute) + trennzeichen[0];
}

std::string datum_text(const plattform::datum_uhrzeit& moment) {
    return ziffern(moment.tag, 2) + "." + ziffern(moment.monat, 2) + "." + ziffern(moment.jahr, 4);
}

std::string uhrzeit_text(const plattform::datum_uhrzeit& moment) {
    return datum_text(moment) + "-" + ziffern(moment.stunde, 2) + ":" + ziffern(moment.minute, 2) + ":" +
           ziffern(moment.sekunde, 2);
}

}  // namespace tarvel
