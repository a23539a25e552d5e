#pragma once

#include <algorithm>
#include <cassert>
#include <cstdint>
#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "tests/plattform/test_bibliotheken.h"

namespace tarvel::test {

/// The FTDI chips' library on a script. One at a time, as its calls know no other.
class test_ftdi {
public:
    test_ftdi() {
        assert(eines_ == nullptr);
        eines_ = this;
    }
    test_ftdi(const test_ftdi&) = delete;
    test_ftdi& operator=(const test_ftdi&) = delete;
    ~test_ftdi() { eines_ = nullptr; }

    /// Before the program that calls it, as it must outlive that.
    void eintragen(test_bibliotheken& bibliotheken) const {
        const auto ruf = [&](const char* name, auto* funktion) { bibliotheken.ruf("ftd2xx", name, funktion); };
        ruf("FT_ListDevices", liste);
        ruf("FT_Open", oeffnen);
        ruf(
            "FT_Close", +[](void*) { return eines_->enden(); });
        ruf("FT_Read", lesen);
        ruf("FT_Write", schreiben);
        ruf(
            "FT_SetBaudRate", +[](void*, std::uint32_t) { return ergebnis("FT_SetBaudRate"); });
        ruf(
            "FT_SetDataCharacteristics",
            +[](void*, std::uint8_t, std::uint8_t, std::uint8_t) { return ergebnis("FT_SetDataCharacteristics"); });
        ruf(
            "FT_SetFlowControl",
            +[](void*, std::uint16_t, std::uint8_t, std::uint8_t) { return ergebnis("FT_SetFlowControl"); });
        ruf(
            "FT_SetTimeouts", +[](void*, std::uint32_t, std::uint32_t) { return ergebnis("FT_SetTimeouts"); });
        ruf(
            "FT_SetChars",
            +[](void*, std::uint8_t, std::uint8_t, std::uint8_t, std::uint8_t) { return ergebnis("FT_SetChars"); });
        ruf(
            "FT_GetQueueStatus", +[](void*, std::uint32_t* anzahl) {
                *anzahl = static_cast<std::uint32_t>(eines_->wartet.size());
                return ergebnis("FT_GetQueueStatus");
            });
    }

    std::vector<std::string> geraete{"USB Serial Cable", "Timekeeper USB"};
    std::map<std::string, std::uint32_t> fehler;   ///< status of the calls that fail, by their names
    std::string wartet;                            ///< what the box has said
    std::string gesendet;                          ///< what it was told, without the frames and with a "," behind each
    std::function<void(std::string_view)> geraet;  ///< hears it
    bool offen = false;

    /// The plug is pulled, and is in again.
    void abziehen() {
        geraete.resize(1);
        for (const char* ruf : {"FT_GetQueueStatus", "FT_Read", "FT_Write"}) {
            fehler[ruf] = 2;
        }
    }
    void einstecken() {
        geraete = {"USB Serial Cable", "Timekeeper USB"};
        fehler.clear();
        wartet.clear();
    }

private:
    static std::uint32_t ergebnis(const char* ruf) {
        const auto gefunden = eines_->fehler.find(ruf);
        return gefunden == eines_->fehler.end() ? 0 : gefunden->second;
    }
    static std::uint32_t liste(void* erstes, void* zweites, std::uint32_t was) {
        if (was == 0x80000000) {
            *static_cast<std::uint32_t*>(erstes) = static_cast<std::uint32_t>(eines_->geraete.size());
        } else {
            const std::string& text = eines_->geraete.at(reinterpret_cast<std::uintptr_t>(erstes));
            std::copy_n(text.c_str(), text.size() + 1, static_cast<char*>(zweites));
        }
        return ergebnis("FT_ListDevices");
    }
    static std::uint32_t oeffnen(int nummer, void** griff) {
        const bool da = eines_->geraete.at(static_cast<std::size_t>(nummer)) == "Timekeeper USB" && !eines_->offen;
        *griff = eines_;
        eines_->offen = da && ergebnis("FT_Open") == 0;
        return da ? ergebnis("FT_Open") : 3;
    }
    std::uint32_t enden() {
        offen = false;
        return 0;
    }
    static std::uint32_t lesen(void* /*griff*/, void* ziel, std::uint32_t hoechstens, std::uint32_t* gelesen) {
        const std::uint32_t status = ergebnis("FT_Read");
        *gelesen = 0;
        if (status == 0) {
            *gelesen = std::min(hoechstens, static_cast<std::uint32_t>(eines_->wartet.size()));
            eines_->wartet.copy(static_cast<char*>(ziel), *gelesen);
            eines_->wartet.erase(0, *gelesen);
        }
        return status;
    }
    static std::uint32_t schreiben(void* /*griff*/, void* bytes, std::uint32_t anzahl, std::uint32_t* geschrieben) {
        *geschrieben = ergebnis("FT_Write") == 0 ? anzahl : 0;
        const std::string_view text(static_cast<const char*>(bytes), *geschrieben);
        if (text.size() > 2) {
            eines_->gesendet += std::string(text.substr(1, text.size() - 2)) + ",";
        }
        if (eines_->geraet) {
            eines_->geraet(text);
        }
        return ergebnis("FT_Write");
    }

    static inline test_ftdi* eines_ = nullptr;
};

}  // namespace tarvel::test
