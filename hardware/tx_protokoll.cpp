#include "hardware/tx_protokoll.h"

#include <algorithm>
#include <utility>

#include "core/text.h"

namespace tarvel::tx {
namespace {

constexpr std::size_t zeile_max = 80;
constexpr std::size_t sensor_laenge = 2;
constexpr int modus_max = 4;

bool enthaelt(std::string_view zeile, std::string_view wort) {
    return zeile.find(wort) != std::string_view::npos;
}

sensor sensor_lesen(std::string_view zeile) {
    constexpr int vor_dem_ersten = 64;
    const bool ziffer = zeile[0] >= '0' && zeile[0] <= '9';
    return {ziffer ? zeile[0] - '0' : 0, vor_dem_ersten - static_cast<unsigned char>(zeile[1])};
}

modus modus_lesen(std::string_view zahl) {
    const auto nummer = static_cast<int>(ganzzahl_lesen(zahl, 0, modus_max + 1));
    return {nummer > modus_max ? 0 : nummer};
}

}  // namespace

meldung zeile_lesen(std::string_view zeile) {
    constexpr std::string_view modus_wort = "mod";
    if (zeile.size() != sensor_laenge && enthaelt(zeile, "V")) {
        return firmware{von_1252(zeile)};
    }
    if (enthaelt(zeile, "TRAXIUM-USB")) {
        return gruss{};
    }
    if (enthaelt(zeile, "TXUSB_OK")) {
        return aktiviert{};
    }
    if (enthaelt(zeile, "MODUS")) {
        return modusfrage{};
    }
    if (const std::size_t ort = zeile.find(modus_wort); ort != std::string_view::npos) {
        return modus_lesen(zeile.substr(ort + modus_wort.size()));
    }
    if (enthaelt(zeile, "RC2")) {
        return taster{enthaelt(zeile, "RC2Long")};
    }
    return zeile.size() == sensor_laenge ? meldung(sensor_lesen(zeile)) : meldung();
}

bool ist_modul(const meldung& was) {
    constexpr std::size_t laengste_version = 24;
    if (const auto* version = std::get_if<firmware>(&was)) {
        const std::string& text = version->text;
        return text.size() <= laengste_version && text.find_first_of(",;:$") == std::string::npos &&
               text.find_first_of("0123456789") != std::string::npos;
    }
    return std::holds_alternative<gruss>(was) || std::holds_alternative<aktiviert>(was) ||
           std::holds_alternative<modusfrage>(was);
}

std::string schaltbefehl(int nummer, bool an) {
    constexpr int vor_an = 64;
    constexpr int vor_aus = 96;
    if (nummer < 1 || nummer > ausgang_max) {
        return {};
    }
    return {static_cast<char>((an ? vor_an : vor_aus) + nummer)};
}

std::string modusbefehl(int nummer) {
    std::string befehl = "0";
    if (nummer >= 1 && nummer <= modus_max) {
        befehl += static_cast<char>('0' + nummer);
    }
    return befehl;
}

std::optional<std::string_view> zeilenpuffer::nehmen(char byte) {
    if (byte == '\n' || byte == '\0') {
        return std::nullopt;
    }
    if (byte != '\r') {
        zu_lang_ = zu_lang_ || tx_puffer_.size() == zeile_max;
        if (!zu_lang_) {
            tx_puffer_ += byte;
        }
        return std::nullopt;
    }
    zeile_.clear();
    std::swap(zeile_, tx_puffer_);
    if (std::exchange(zu_lang_, false)) {
        return std::nullopt;
    }
    return zeile_;
}

void zeilenpuffer::leeren() {
    tx_puffer_.clear();
    zu_lang_ = false;
}

}  // namespace tarvel::tx
