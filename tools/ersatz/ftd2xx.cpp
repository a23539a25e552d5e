// In place of the FTDI chips' library: one chip with a simulated Timekeeper and its cars behind it. How they drive
// stands in TARVEL_TIMEKEEPER, as the options of the simulator programs do; --protokoll tells where the laps go.

#include <algorithm>
#include <chrono>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <deque>
#include <fstream>
#include <iostream>
#include <map>
#include <memory>
#include <mutex>
#include <sstream>
#include <string>
#include <utility>
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
constexpr status ein_ausgabe_fehler = 4;
constexpr wort nur_anzahl = 0x80000000;

/// The laps as lines, in a file or on the console.
class rundenschreiber {
public:
    void oeffnen(const std::string& name) { datei_.open(name); }

    void schreiben(const simulator::geraet& g) {
        if (g.aufstellungen() != aufstellung_) {
            aufstellung_ = g.aufstellungen();
            stand_.clear();
        }
        for (; gelesen_ < g.fahrten().size(); ++gelesen_) {
            if (g.fahrten()[gelesen_].sensor == 1) {
                zeile(g.fahrten()[gelesen_]);
            }
        }
    }

private:
    struct stand {
        int runde = -1;
        zeit_ms stempel = 0;
    };

    void zeile(const simulator::ueberfahrt& u) {
        stand& s = stand_[u.wagen];
        const zeit_ms dauer = u.stempel - std::exchange(s.stempel, u.stempel);
        std::string text = "Wagen " + std::to_string(u.wagen) + "  ";
        if (++s.runde == 0) {
            text += "erste Überfahrt";
        } else {
            std::string tausendstel = std::to_string(dauer % 1000);
            tausendstel.insert(0, 3 - tausendstel.size(), '0');
            text +=
                "Runde " + std::to_string(s.runde) + "   " + std::to_string(dauer / 1000) + "," + tausendstel + " s";
        }
        (datei_.is_open() ? static_cast<std::ostream&>(datei_) : std::cout) << text << std::endl;
    }

    std::ofstream datei_;
    std::map<int, stand> stand_;
    std::size_t gelesen_ = 0;
    int aufstellung_ = 0;
};

/// The chip on its cable. The program calls from two threads.
class kabel {
public:
    kabel() {
        simulator::flotte wagen;
        simulator::rennen_einstellung rennen;
        simulator::kommandozeile zeile(
            "TARVEL_TIMEKEEPER: Timekeeper USB mit fahrenden Wagen hinter der FTDI-Bibliothek");
        std::string protokoll;
        simulator::gemeinsame_optionen(zeile, simulator::timekeeper::spuren, wagen, rennen, lauf_);
        zeile.text("--protokoll", "DATEI", "dorthin gehen die Runden, sonst auf die Konsole", protokoll);
        const char* const umgebung = std::getenv("TARVEL_TIMEKEEPER");
        std::istringstream woerter(umgebung != nullptr ? umgebung : "");
        std::vector<std::string> texte{"ftd2xx"};
        for (std::string wort_text; woerter >> wort_text;) {
            texte.push_back(wort_text);
        }
        std::vector<const char*> argumente;
        for (const std::string& text : texte) {
            argumente.push_back(text.c_str());
        }
        gelesen_ = zeile.lesen(static_cast<int>(argumente.size()), argumente.data());
        if (zeile.hilfe_gewuenscht()) {
            zeile.hilfe_zeigen();
        }
        if (!protokoll.empty()) {
            runden_.oeffnen(protokoll);
        }
        rennen.wagen = wagen.wagen();
        box_ = std::make_unique<simulator::timekeeper>(rennen);
        box_->senden = [this](std::string_view bytes) { puffer_.insert(puffer_.end(), bytes.begin(), bytes.end()); };
    }

    std::unique_lock<std::mutex> sperren() {
        std::unique_lock sperre(sperre_);
        weiter();
        return sperre;
    }
    bool steckt() const { return steckt_; }
    bool gueltig(griff g) const { return offen_ && g == griff_von(); }
    /// The handle does not outlive the plug.
    status oeffnen(griff& g) {
        if (!steckt_ || offen_) {
            return steckt_ ? 3 : nicht_gefunden;
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

private:
    griff griff_von() const { return const_cast<kabel*>(this); }

    void weiter() {
        using namespace std::chrono;
        const zeit_ms jetzt = duration_cast<milliseconds>(steady_clock::now().time_since_epoch()).count();
        beginn_ = beginn_ == 0 ? jetzt : beginn_;
        constexpr zeit_ms sekunde = 1000;
        const zeit_ms vergangen = jetzt - beginn_;
        const bool gezogen = lauf_.abziehen_s >= 0 && vergangen >= lauf_.abziehen_s * sekunde;
        const bool wieder = lauf_.einstecken_s > lauf_.abziehen_s && vergangen >= lauf_.einstecken_s * sekunde;
        const bool soll = gelesen_ && (!gezogen || wieder);
        if (soll && !steckt_) {
            box_->verbunden();
        }
        abgerissen_ = abgerissen_ || (offen_ && steckt_ && !soll);
        steckt_ = soll;
        box_->weiter(jetzt);
        runden_.schreiben(*box_);
    }

    std::mutex sperre_;
    simulator::lauf_einstellung lauf_;
    std::unique_ptr<simulator::timekeeper> box_;
    rundenschreiber runden_;
    std::deque<char> puffer_;
    zeit_ms beginn_ = 0;
    bool gelesen_ = false;
    bool steckt_ = false;
    bool offen_ = false;
    bool abgerissen_ = false;  ///< the plug was pulled while the channel was open
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
    std::strcpy(static_cast<char*>(zweites), nummer == andere ? "USB Serial Cable" : "Timekeeper USB");
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
    return ergebnis == gut && baud != richtige ? 7 : ergebnis;
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
