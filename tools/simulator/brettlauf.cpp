#include "tools/simulator/brettlauf.h"

#include <algorithm>
#include <chrono>
#include <fstream>
#include <iterator>
#include <sstream>
#include <vector>

#include "tools/simulator/kommandozeile.h"

namespace tarvel::simulator {
namespace {

constexpr const char* optionendatei = "simulator.txt";
constexpr int spuren_max = 4;  // that the boards are wired for

zeit_ms maschinenzeit() {
    return std::chrono::duration_cast<std::chrono::milliseconds>(std::chrono::steady_clock::now().time_since_epoch())
        .count();
}

}  // namespace

void brettlauf::anlegen(const std::string& zeile, bool still) {
    std::istringstream woerter(zeile);
    std::vector<std::string> teile{"simulator"};
    teile.insert(teile.end(), std::istream_iterator<std::string>(woerter), {});
    std::vector<const char*> argumente;
    std::transform(teile.begin(), teile.end(), std::back_inserter(argumente), [](const auto& t) { return t.c_str(); });

    kommandozeile optionen("Optionen der Ersatzbibliothek");
    flotte wagen;
    rennen_einstellung rennen;
    lauf_ = {};
    gemeinsame_optionen(optionen, spuren_max, wagen, rennen, lauf_);
    if (!optionen.lesen(static_cast<int>(argumente.size()), argumente.data()) || optionen.hilfe_gewuenscht()) {
        optionen.hilfe_zeigen();
    }
    rennen.wagen = wagen.wagen();
    brett_ = std::make_unique<kontaktbrett>(wie_(rennen));
    beginn_ = maschinenzeit();
    von_hand_gezogen_ = false;
    schreiber_.reset();
    if (!still) {
        schreiber_ = std::make_unique<rundenschreiber>(*brett_);
        brett_->melden = [](std::string_view text) { zeile_schreiben("  " + std::string(text)); };
    }
}

void brettlauf::einstellen(const std::string& zeile, bool still) {
    const std::lock_guard sperre(schloss_);
    anlegen(zeile, still);
}

bool brettlauf::steckt() const {
    const zeit_ms s = (maschinenzeit() - beginn_) / 1000;
    const bool gezogen = lauf_.abziehen_s >= 0 && s >= lauf_.abziehen_s;
    const bool wieder = lauf_.einstecken_s > lauf_.abziehen_s && s >= lauf_.einstecken_s;
    return !von_hand_gezogen_ && (!gezogen || wieder);
}

bool brettlauf::mit_brett(const std::function<void(kontaktbrett&)>& tun) {
    const std::lock_guard sperre(schloss_);
    if (brett_ == nullptr) {
        std::ifstream datei(optionendatei);
        anlegen({std::istreambuf_iterator<char>(datei), {}}, false);
    }
    brett_->weiter(maschinenzeit());
    if (!steckt()) {
        brett_->aenderungen();  // nobody hears of them
        return false;
    }
    tun(*brett_);
    if (schreiber_ != nullptr) {
        schreiber_->schreiben();
    }
    return true;
}

void brettlauf::stecker(bool steckt) {
    const std::lock_guard sperre(schloss_);
    von_hand_gezogen_ = !steckt;
}

int brettlauf::runden(int wagen, int* zeiten, int platz) {
    const std::lock_guard sperre(schloss_);
    if (brett_ == nullptr) {
        return 0;
    }
    const std::vector<zeit_ms> alle = brett_->runden(wagen);
    const auto anzahl = std::min(alle.size(), static_cast<std::size_t>(std::max(platz, 0)));
    std::transform(alle.begin(), alle.begin() + static_cast<std::ptrdiff_t>(anzahl), zeiten,
                   [](zeit_ms zeit) { return static_cast<int>(zeit); });
    return static_cast<int>(alle.size());
}

}  // namespace tarvel::simulator
