#include "core/renndauer.h"

#include "core/text.h"

namespace tarvel {

renndauer_angabe renndauer_lesen(std::string_view eingabe) {
    std::string text(gekuerzt(eingabe));
    werte_pruefen2(text);
    const std::size_t punkt = text.find('.');
    std::string sekunden = punkt == std::string::npos ? "00" : text.substr(punkt + 1);
    if (sekunden.size() == 1) {
        sekunden += "0";  // 5,3 means five and a half minutes
    }
    return {ganzzahl_lesen(text.substr(0, punkt), 0, 99999999), ganzzahl_lesen(sekunden, 0, 59)};
}

renndauer_angabe renndauer_aus_ms(zeit_ms dauer) {
    return {dauer / 60000, dauer / 1000 % 60};
}

std::string renndauer_angabe::text() const {
    std::string neu = std::to_string(minuten);
    if (sekunden >= 1) {
        neu += ',';
        neu += ziffern(sekunden, 2);
    }
    return neu;
}

}  // namespace tarvel
