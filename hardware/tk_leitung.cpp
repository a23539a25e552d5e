#include "hardware/tk_leitung.h"

#include <algorithm>

#include "hardware/tk_protokoll.h"

namespace tarvel {
namespace {

constexpr std::string_view boxname = "Timekeeper USB";
constexpr ftd2xx::wort baud = 230400;
constexpr ftd2xx::wort frist_ms = 5000;
constexpr int weg_nach = 200;  // looks that fail in turn

}  // namespace

void tk_leitung::sagen(const std::string& zeile) const {
    if (melden) {
        melden(zeile);
    }
}

bool tk_leitung::tk_oeffnen() {
    schliessen();
    if (const std::string fehlt = ft_.laden(bibliotheken_); !fehlt.empty()) {
        sagen(fehlt.starts_with("FT_") ? "ftd2xx lacks " + fehlt : fehlt + " not found");
        return false;
    }
    const std::optional<int> nummer = geraet_suchen();
    if (!nummer) {
        return false;
    }
    if (ft_.oeffnen(*nummer, tk_handle_) != ftd2xx::gut || tk_handle_ == nullptr) {
        tk_handle_ = nullptr;
        sagen("Open Failed");
        return false;
    }
    if (!einstellen()) {
        schliessen();
        return false;
    }
    fehler_in_folge_ = 0;
    schreiben_misslang_ = false;
    lesefehler_ = wartefehler_ = ftd2xx::gut;
    abtaster_ = abtaster_dienst_.starten(dauer_ms{1}, [this](zeit_ms jetzt) { nachsehen(jetzt); });
    return true;
}

std::optional<int> tk_leitung::geraet_suchen() const {
    constexpr ftd2xx::wort geraete_max = 127;  // of one machine
    ftd2xx::wort anzahl = 0;
    if (ft_.anzahl(anzahl) != ftd2xx::gut) {
        sagen("FT_GetNumDevices failed");
        return std::nullopt;
    }
    sagen("Number recognized devices: " + std::to_string(anzahl));
    std::optional<int> gefunden;
    for (ftd2xx::wort nummer = 0; nummer < std::min(anzahl, geraete_max); ++nummer) {
        std::string text;
        if (ft_.beschreibung(nummer, text) != ftd2xx::gut) {
            continue;
        }
        sagen("Device description received:  #" + std::to_string(nummer) + " " + text);
        if (text == boxname && !gefunden) {
            gefunden = static_cast<int>(nummer);
            sagen("Authorized device opened");
        }
    }
    if (!gefunden) {
        sagen("ListDevices failed");
    }
    return gefunden;
}

bool tk_leitung::einstellen() {
    const auto gelungen = [this](ftd2xx::status ergebnis, const char* sonst) {
        if (ergebnis != ftd2xx::gut) {
            sagen(sonst);
        }
        return ergebnis == ftd2xx::gut;
    };
    if (!gelungen(ft_.baudrate(tk_handle_, baud), "SetBaudRate Failed") ||
        !gelungen(ft_.format_8n1(tk_handle_), "SetDataCharacteristics Failed") ||
        !gelungen(ft_.ohne_flusskontrolle(tk_handle_), "SetFlowControl Failed")) {
        return false;
    }
    // both only make it quicker, so a refusal is no failure
    ft_.fristen(tk_handle_, frist_ms, frist_ms);
    ft_.abgeben_bei(tk_handle_, static_cast<ftd2xx::byte>(tk::satzende));
    return true;
}

void tk_leitung::schliessen() {
    abtaster_.reset();  // before the handle goes that it looks at
    if (tk_handle_ != nullptr) {
        ausstehendes_schreiben();
        ft_.schliessen(tk_handle_);
        tk_handle_ = nullptr;
    }
    stuecke_.leeren();
    befehle_.leeren();
    erledigte_.leeren();
}

bool tk_leitung::gestoert() const {
    return offen() && (schreiben_misslang_ || fehler_in_folge_ >= weg_nach);
}

bool tk_leitung::tk_senden(std::string_view text) {
    tk_befehl neu;
    if (!offen() || text.size() > neu.bytes.size()) {
        return false;
    }
    neu.laenge = text.copy(neu.bytes.data(), neu.bytes.size());
    return befehle_.geben(neu);
}

void tk_leitung::ausstehendes_schreiben() {
    bool geht = true;  // after one that failed no other is tried: each of them may take the whole time limit
    while (auto befehl = befehle_.nehmen()) {
        geht = geht && ft_.schreiben(tk_handle_, tk::satzanfang + std::string(befehl->text()) + tk::satzende);
        schreiben_misslang_ = !geht;
        befehl->geschrieben = geht;
        erledigte_.geben(*befehl);  // nobody may want to know
    }
}

void tk_leitung::nachsehen(zeit_ms jetzt) {
    const auto misslungen = [this](std::atomic<ftd2xx::status>& wo, ftd2xx::status ergebnis) {
        wo = ergebnis;
        fehler_in_folge_ = std::min(fehler_in_folge_ + 1, weg_nach);
    };
    ausstehendes_schreiben();
    ftd2xx::wort wartende = 0;
    if (const ftd2xx::status ergebnis = ft_.wartende(tk_handle_, wartende); ergebnis != ftd2xx::gut) {
        misslungen(wartefehler_, ergebnis);
        return;
    }
    if (wartende == 0) {
        fehler_in_folge_ = 0;
        return;
    }
    if (stuecke_.voll()) {
        return;  // the chip's driver keeps it
    }
    tk_stueck neu;
    ftd2xx::wort gelesen = 0;
    const auto hoechstens = static_cast<ftd2xx::wort>(std::min<std::size_t>(wartende, tk_stueck::platz));
    const ftd2xx::status ergebnis = ft_.lesen(tk_handle_, neu.bytes.data(), hoechstens, gelesen);
    if (ergebnis != ftd2xx::gut) {
        misslungen(lesefehler_, ergebnis);
        if (ergebnis != ftd2xx::ein_ausgabe_fehler) {
            return;
        }
    } else {
        fehler_in_folge_ = 0;
    }
    neu.stempel = jetzt;
    neu.laenge = std::min<std::size_t>(gelesen, hoechstens);
    if (neu.laenge > 0) {
        stuecke_.geben(neu);
    }
}

}  // namespace tarvel
