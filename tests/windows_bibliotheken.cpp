// Loads the libraries that stand in for the vendors' as Windows does, and calls them as the drivers do:
//   windows_bibliotheken <library>...
// What cannot be tried without Windows: that a name is found in a DLL, and what its calls take and give.

#include <windows.h>

#include <array>
#include <cstdio>
#include <filesystem>
#include <map>
#include <memory>
#include <string>

#include "hardware/ftd2xx.h"
#include "hardware/iow_platine.h"
#include "hardware/rc_bibliothek.h"
#include "hardware/rufbinder.h"
#include "tools/ersatz/race_control/draht.h"

namespace tarvel {
namespace {

class dll final : public plattform::bibliothek {
public:
    explicit dll(HMODULE modul) : modul_(modul) {}
    dll(const dll&) = delete;
    dll& operator=(const dll&) = delete;
    ~dll() override { FreeLibrary(modul_); }
    ruf finden(const char* name) const override { return reinterpret_cast<ruf>(GetProcAddress(modul_, name)); }

private:
    HMODULE modul_;
};

class dll_dienst final : public plattform::bibliothek_dienst {
public:
    std::map<std::string, std::string, std::less<>> pfade;  ///< by the name without suffix

    std::unique_ptr<plattform::bibliothek> laden(std::string_view name) override {
        const auto pfad = pfade.find(name);
        const HMODULE modul = pfad == pfade.end() ? nullptr : LoadLibraryA(pfad->second.c_str());
        return modul == nullptr ? nullptr : std::make_unique<dll>(modul);
    }
};

int fehler = 0;

void fordern(bool erfuellt, const char* was) {
    std::printf("%-8s %s\n", erfuellt ? "ok" : "FALSCH", was);
    fehler += erfuellt ? 0 : 1;
}

void ftd2xx_pruefen(dll_dienst& dienst) {
    ftd2xx ft;
    ftd2xx::wort anzahl = 0;
    std::string text;
    ftd2xx::griff griff = nullptr;
    fordern(ft.laden(dienst).empty(), "ftd2xx has every call");
    if (!ft.laden(dienst).empty()) {
        return;
    }
    fordern(ft.anzahl(anzahl) == ftd2xx::gut && anzahl == 2, "two devices");
    fordern(ft.beschreibung(1, text) == ftd2xx::gut && text == "Timekeeper USB", "the second is a Timekeeper");
    fordern(ft.oeffnen(1, griff) == ftd2xx::gut && griff != nullptr, "it opens");
    fordern(ft.baudrate(griff, 230400) == ftd2xx::gut && ft.format_8n1(griff) == ftd2xx::gut &&
                ft.ohne_flusskontrolle(griff) == ftd2xx::gut && ft.fristen(griff, 5000, 5000) == ftd2xx::gut &&
                ft.abgeben_bei(griff, 3) == ftd2xx::gut,
            "and is set up");
    fordern(ft.schreiben(griff, "\x02product\x03"), "it takes a question");
    std::array<char, 250> puffer{};
    ftd2xx::wort gelesen = 0;
    fordern(ft.wartende(griff, anzahl) == ftd2xx::gut && anzahl > 0 &&
                ft.lesen(griff, puffer.data(), static_cast<ftd2xx::wort>(puffer.size()), gelesen) == ftd2xx::gut &&
                std::string(puffer.data(), gelesen).find("Timekeeper_USB") != std::string::npos,
            "and answers");
    fordern(ft.schliessen(griff) == ftd2xx::gut, "and closes");
}

void race_control_pruefen(dll_dienst& dienst) {
    rc_bibliothek rc(dienst);
    fordern(rc.laden(), "RaceControl has every call");
    if (!rc.laden()) {
        return;
    }
    const int box = rc.box_oeffnen("COM7");
    fordern(box >= 0, "a box opens");
    fordern(!rc.ereignis() && rc.byte_geben(box, 'x') == 0 && rc.sendedaten().empty(), "and is still");
    unsigned status = 0;
    for (const char byte : simulator::rc_draht::schreiben({simulator::rc_draht::art::aktiv, 0, 9600})) {
        status = rc.byte_geben(box, byte);
    }
    fordern(status == 2 && rc.ereignis() == 0x600U && !rc.ereignis(), "until it becomes active");
    fordern(rc.stempel() == 9600, "by its clock");
}

void platine_pruefen(dll_dienst& dienst) {
    const auto bibliothek = std::make_shared<iow_bibliothek>(dienst);
    iow_platine platine(bibliothek);
    fordern(platine.iow_oeffnen() && bibliothek->es_fehlt().empty(), "iowkit has every call, and a board");
    fordern(platine.iow_berichtgroesse() == 5, "an IO-Warrior 40");
    fordern(platine.offen() && platine.schreiben(std::array<std::uint8_t, 5>{0, 255, 255, 255, 255}),
            "that is written");
}

void druckeranschluss_pruefen(dll_dienst& dienst) {
    const auto port = dienst.laden("inpout32");
    fordern(port != nullptr, "inpout32 loads");
    if (port == nullptr) {
        return;
    }
    short (*lesen)(short) = nullptr;
    void (*schreiben)(short, short) = nullptr;
    rufbinder binden(*port);
    binden(lesen, "Inp32");
    binden(schreiben, "Out32");
    fordern(binden.fehlt().empty(), "and has both calls");
    schreiben(0x378, 0xA5);
    fordern((lesen(0x378) & 0xFF) == 0xA5, "a register keeps what it is given");
}

}  // namespace
}  // namespace tarvel

int main(int argc, char** argv) {
    tarvel::dll_dienst dienst;
    for (int i = 1; i < argc; ++i) {
        const std::filesystem::path pfad = std::filesystem::absolute(argv[i]).make_preferred();
        dienst.pfade[pfad.stem().string()] = pfad.string();
    }
    tarvel::ftd2xx_pruefen(dienst);
    tarvel::race_control_pruefen(dienst);
    tarvel::platine_pruefen(dienst);
    tarvel::druckeranschluss_pruefen(dienst);
    return tarvel::fehler == 0 ? 0 : 1;
}
