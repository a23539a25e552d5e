// In place of the FTDI chips' library: one chip with a simulated Timekeeper and its cars behind it, which drive in real
// time for as long as anybody calls. The options are those of the other simulators, in a line of the file simulator.txt
// of the working folder or as SimulatorEinstellen gives them.

#include <algorithm>
#include <chrono>
#include <cstdint>
#include <cstdio>
#include <deque>
#include <fstream>
#include <map>
#include <memory>
#include <mutex>
#include <sstream>
#include <string>
#include <vector>

#include "tools/simulator/kommandozeile.h"
#include "tools/simulator/timekeeper.h"

#ifdef _WIN32
#define ERSATZ_RUF extern "C" __declspec(dllexport)
#else
#define ERSATZ_RUF extern "C" __attribute__((visibility("default")))
#endif

namespace {

using namespace tarvel;
using status = std::uint32_t;
using wort = std::uint32_t;
using griff = void*;

constexpr status gut = 0;
constexpr status falscher_griff = 1;
constexpr status nicht_gefunden = 2;
constexpr status nicht_zu_oeffnen = 3;
constexpr status ein_ausgabe_fehler = 4;
constexpr status falsche_baudrate = 7;
constexpr wort nur_anzahl = 0x80000000;

/// Tells the laps on the console as they are driven, and keeps their times.
class rundenbuch {
public:
    void aufnehmen(const simulator::geraet& g, bool still) {
        if (g.aufstellungen() != aufstellung_) {
            aufstellung_ = g.aufstellungen();
            letzte_.clear();
            zeiten_.clear();
        }
        for (; gelesen_ < g.fahrten().size(); ++gelesen_) {
            const simulator::ueberfahrt& u = g.fahrten()[gelesen_];
            if (u.sensor != 1) {
                continue;
            }
            if (const auto vorher = letzte_.find(u.wagen); vorher != letzte_.end()) {
                zeiten_[u.wagen].push_back(u.stempel - vorher->second);
            }
            letzte_[u.wagen] = u.stempel;
            if (!still) {
                melden(u.wagen);
            }
        }
    }
    const std::vector<zeit_ms>& zeiten(int wagen) { return zeiten_[wagen]; }

private:
    void melden(int wagen) {
        const std::vector<zeit_ms>& alle = zeiten_[wagen];
        constexpr zeit_ms sekunde = 1000;
        if (alle.empty()) {
            std::printf("Wagen %d  erste Überfahrt\n", wagen);
        } else {
            std::printf("Wagen %d  Runde %zu   %d,%03d s\n", wagen, alle.size(),
                        static_cast<int>(alle.back() / sekunde), static_cast<int>(alle.back() % sekunde));
        }
        std::fflush(stdout);
    }

    std::map<int, zeit_ms> letzte_;  ///< stamp of each car
    std::map<int, std::vector<zeit_ms>> zeiten_;
    std::size_t gelesen_ = 0;
    int aufstellung_ = 0;
};

/// The chip on its cable. The program calls from two threads.
class kabel {
public:
    kabel() {
        std::string zeile;
        std::getline(std::ifstream("simulator.txt") >> std::ws, zeile);
        anlegen(zeile, false);
    }

    void einstellen(const std::string& optionen) {
        const std::unique_lock sperre(sperre_);
        anlegen(optionen, true);
    }
    std::unique_lock<std::mutex> sperren() {
        std::unique_lock sperre(sperre_);
        weiter();
        return sperre;
    }
    void von_hand(bool steckt) { von_hand_gezogen_ = !steckt; }
    bool steckt() const { return steckt_; }
    bool gueltig(griff g) const { return offen_ && g == griff_von(); }
    status oeffnen(griff& g) {
        if (!steckt_ || offen_) {
            return steckt_ ? nicht_zu_oeffnen : nicht_gefunden;
        }
        offen_ = true;
        abgerissen_ = false;
        puffer_.clear();
        g = griff_von();
        return gut;
    }
    void schliessen() { offen_ = false; }
    status zustand(griff g) const { return !gueltig(g) ? falscher_griff : abgerissen_ ? ein_ausgabe_fehler : gut; }
    simulator::timekeeper& box() { return *box_; }
    std::deque<char>& puffer() { return puffer_; }
    rundenbuch& runden() { return runden_; }

private:
    griff griff_von() const { return const_cast<kabel*>(this); }

    void anlegen(const std::string& optionen, bool still) {
        simulator::flotte wagen;
        simulator::rennen_einstellung rennen;
        simulator::kommandozeile zeile(
            "Timekeeper USB mit fahrenden Wagen hinter der FTDI-Bibliothek. Optionen in simulator.txt:");
        lauf_ = {};
        simulator::gemeinsame_optionen(zeile, simulator::timekeeper::spuren, wagen, rennen, lauf_);
        std::istringstream woerter(optionen);
        std::vector<std::string> texte{"ftd2xx"};
        for (std::string eines; woerter >> eines;) {
            texte.push_back(eines);
        }
        std::vector<const char*> argumente(texte.size());
        std::transform(texte.begin(), texte.end(), argumente.begin(), [](const std::string& t) { return t.c_str(); });
        verstanden_ = zeile.lesen(static_cast<int>(argumente.size()), argumente.data());
        if (zeile.hilfe_gewuenscht()) {
            zeile.hilfe_zeigen();
        }
        rennen.wagen = wagen.wagen();
        box_ = std::make_unique<simulator::timekeeper>(rennen);
        box_->senden = [this](std::string_view bytes) { puffer_.insert(puffer_.end(), bytes.begin(), bytes.end()); };
        runden_ = {};
        still_ = still;
        steckt_ = false;
        beginn_ = 0;
    }

    void weiter() {
        using namespace std::chrono;
        const zeit_ms jetzt = duration_cast<milliseconds>(steady_clock::now().time_since_epoch()).count();
        beginn_ = beginn_ == 0 ? jetzt : beginn_;
        constexpr zeit_ms sekunde = 1000;
        const zeit_ms vergangen = jetzt - beginn_;
        const bool gezogen = lauf_.abziehen_s >= 0 && vergangen >= lauf_.abziehen_s * sekunde;
        const bool wieder = lauf_.einstecken_s > lauf_.abziehen_s && vergangen >= lauf_.einstecken_s * sekunde;
        const bool soll = verstanden_ && !von_hand_gezogen_ && (!gezogen || wieder);
        if (soll && !steckt_) {
            box_->verbunden();
        }
        abgerissen_ = abgerissen_ || (offen_ && steckt_ && !soll);  // the handle does not outlive the plug
        steckt_ = soll;
        box_->weiter(jetzt);
        runden_.aufnehmen(*box_, still_);
    }

    std::mutex sperre_;
    simulator::lauf_einstellung lauf_;
    std::unique_ptr<simulator::timekeeper> box_;
    rundenbuch runden_;
    std::deque<char> puffer_;
    zeit_ms beginn_ = 0;
    bool verstanden_ = false;
    bool still_ = false;
    bool steckt_ = false;
    bool von_hand_gezogen_ = false;
    bool offen_ = false;
    bool abgerissen_ = false;
};

kabel& das_kabel() {
    static kabel eines;
    return eines;
}

status eingestellt(griff g) {
    const auto sperre = das_kabel().sperren();
    return das_kabel().zustand(g);
}

}  // namespace

ERSATZ_RUF status FT_ListDevices(void* erstes, void* zweites, wort was) {
    const auto sperre = das_kabel().sperren();
    const bool da = das_kabel().steckt();
    if (was == nur_anzahl) {
        *static_cast<wort*>(erstes) = da ? 2 : 1;
        return gut;
    }
    constexpr std::uintptr_t andere = 0;  // somebody else's cable is in the machine too
    const auto nummer = reinterpret_cast<std::uintptr_t>(erstes);
    if (nummer > 1 || (nummer == 1 && !da)) {
        return nicht_gefunden;
    }
    const std::string text = nummer == andere ? "USB Serial Cable" : "Timekeeper USB";
    std::copy_n(text.c_str(), text.size() + 1, static_cast<char*>(zweites));
    return gut;
}

ERSATZ_RUF status FT_Open(int nummer, griff* g) {
    const auto sperre = das_kabel().sperren();
    return nummer == 1 ? das_kabel().oeffnen(*g) : nicht_gefunden;
}

ERSATZ_RUF status FT_Close(griff g) {
    const auto sperre = das_kabel().sperren();
    if (!das_kabel().gueltig(g)) {
        return falscher_griff;
    }
    das_kabel().schliessen();
    return gut;
}

ERSATZ_RUF status FT_SetBaudRate(griff g, wort baud) {
    constexpr wort richtige = 230400;
    const status ergebnis = eingestellt(g);
    return ergebnis == gut && baud != richtige ? falsche_baudrate : ergebnis;
}
ERSATZ_RUF status FT_SetDataCharacteristics(griff g, std::uint8_t, std::uint8_t, std::uint8_t) {
    return eingestellt(g);
}
ERSATZ_RUF status FT_SetFlowControl(griff g, std::uint16_t, std::uint8_t, std::uint8_t) {
    return eingestellt(g);
}
ERSATZ_RUF status FT_SetTimeouts(griff g, wort, wort) {
    return eingestellt(g);
}
ERSATZ_RUF status FT_SetChars(griff g, std::uint8_t, std::uint8_t, std::uint8_t, std::uint8_t) {
    return eingestellt(g);
}

ERSATZ_RUF status FT_GetQueueStatus(griff g, wort* wartende) {
    const auto sperre = das_kabel().sperren();
    *wartende = static_cast<wort>(das_kabel().puffer().size());
    return das_kabel().zustand(g);
}

ERSATZ_RUF status FT_Read(griff g, void* ziel, wort hoechstens, wort* gelesen) {
    const auto sperre = das_kabel().sperren();
    *gelesen = 0;
    const status ergebnis = das_kabel().zustand(g);
    if (ergebnis == gut) {
        auto& puffer = das_kabel().puffer();
        const auto anzahl = std::min<std::size_t>(hoechstens, puffer.size());
        std::copy_n(puffer.begin(), anzahl, static_cast<char*>(ziel));
        puffer.erase(puffer.begin(), puffer.begin() + static_cast<std::ptrdiff_t>(anzahl));
        *gelesen = static_cast<wort>(anzahl);
    }
    return ergebnis;
}

ERSATZ_RUF status FT_Write(griff g, void* bytes, wort anzahl, wort* geschrieben) {
    const auto sperre = das_kabel().sperren();
    const status ergebnis = das_kabel().zustand(g);
    *geschrieben = ergebnis == gut ? anzahl : 0;
    if (ergebnis == gut) {
        das_kabel().box().empfangen({static_cast<const char*>(bytes), anzahl});
    }
    return ergebnis;
}

/// Begins anew with these options, in silence.
ERSATZ_RUF void SimulatorEinstellen(const char* optionen) {
    das_kabel().einstellen(optionen);
}

/// Pulls the plug, or puts it in.
ERSATZ_RUF void SimulatorStecken(int steckt) {
    const auto sperre = das_kabel().sperren();
    das_kabel().von_hand(steckt != 0);
}

/// Lap times of a car in ms, its first lap first, at most `platz` of them; returns how many there are.
ERSATZ_RUF int SimulatorRunden(int wagen, int* zeiten, int platz) {
    const auto sperre = das_kabel().sperren();
    const std::vector<zeit_ms>& alle = das_kabel().runden().zeiten(wagen);
    const auto anzahl = std::min(alle.size(), static_cast<std::size_t>(std::max(platz, 0)));
    std::transform(alle.begin(), alle.begin() + static_cast<std::ptrdiff_t>(anzahl), zeiten,
                   [](zeit_ms zeit) { return static_cast<int>(zeit); });
    return static_cast<int>(alle.size());
}
