#include "hardware/tk_leitung.h"

#include <algorithm>
#include <atomic>
#include <utility>

#include "hardware/tk_protokoll.h"
#include "hardware/uebergabe.h"

namespace tarvel {
namespace {

constexpr std::string_view boxname = "Timekeeper USB";
constexpr ftd2xx::wort baud = 230400;
constexpr ftd2xx::wort frist_ms = 5000;
constexpr int weg_nach = 200;  // looks that fail in turn
constexpr std::size_t stuecke_max = 128;
constexpr std::size_t befehle_max = 64;

}  // namespace

/// An open channel. Who lets go of it last closes it.
struct tk_leitung::kanal {
    kanal(std::shared_ptr<ftd2xx> bibliothek, ftd2xx::griff griff) : ft(std::move(bibliothek)), tk_handle(griff) {}
    kanal(const kanal&) = delete;
    kanal& operator=(const kanal&) = delete;
    ~kanal() {
        ausstehendes_schreiben();
        ft->schliessen(tk_handle);
    }

    void nachsehen(zeit_ms jetzt);
    void ausstehendes_schreiben();
    void misslungen(std::atomic<ftd2xx::status>& wo, ftd2xx::status ergebnis) {
        wo = ergebnis;
        fehler_in_folge = std::min(fehler_in_folge + 1, weg_nach);
    }

    const std::shared_ptr<ftd2xx> ft;
    const ftd2xx::griff tk_handle;
    uebergabe<tk_befehl, befehle_max> befehle;
    uebergabe<tk_befehl, befehle_max> erledigte;
    uebergabe<tk_stueck, stuecke_max> stuecke;
    std::atomic<bool> schreiben_misslang = false;
    std::atomic<int> fehler_in_folge = 0;
    std::atomic<ftd2xx::status> lesefehler = ftd2xx::gut;
    std::atomic<ftd2xx::status> wartefehler = ftd2xx::gut;
};

tk_leitung::tk_leitung(const plattform::dienste& dienste)
    : bibliotheken_(dienste.bibliotheken), abtaster_dienst_(dienste.abtaster), ft_(std::make_shared<ftd2xx>()) {}

void tk_leitung::sagen(const std::string& zeile) const {
    if (melden) {
        melden(zeile);
    }
}

bool tk_leitung::tk_oeffnen() {
    schliessen();
    if (const std::string fehlt = ft_->laden(bibliotheken_); !fehlt.empty()) {
        sagen(fehlt.starts_with("FT_") ? "ftd2xx lacks " + fehlt : fehlt + " not found");
        return false;
    }
    const std::optional<int> nummer = geraet_suchen();
    if (!nummer) {
        return false;
    }
    ftd2xx::griff tk_handle = nullptr;
    if (ft_->oeffnen(*nummer, tk_handle) != ftd2xx::gut || tk_handle == nullptr) {
        sagen("Open Failed");
        return false;
    }
    auto neuer = std::make_shared<kanal>(ft_, tk_handle);
    if (!einstellen(tk_handle)) {
        return false;
    }
    kanal_ = neuer;
    abtaster_ = abtaster_dienst_.starten(dauer_ms{1}, [neuer](zeit_ms jetzt) { neuer->nachsehen(jetzt); });
    return true;
}

std::optional<int> tk_leitung::geraet_suchen() const {
    constexpr ftd2xx::wort geraete_max = 127;  // of one machine
    ftd2xx::wort anzahl = 0;
    if (ft_->anzahl(anzahl) != ftd2xx::gut) {
        sagen("FT_GetNumDevices failed");
        return std::nullopt;
    }
    sagen("Number recognized devices: " + std::to_string(anzahl));
    std::optional<int> gefunden;
    for (ftd2xx::wort nummer = 0; nummer < std::min(anzahl, geraete_max); ++nummer) {
        std::string text;
        if (ft_->beschreibung(nummer, text) != ftd2xx::gut) {
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

bool tk_leitung::einstellen(ftd2xx::griff tk_handle) const {
    const auto gelungen = [this](ftd2xx::status ergebnis, const char* sonst) {
        if (ergebnis != ftd2xx::gut) {
            sagen(sonst);
        }
        return ergebnis == ftd2xx::gut;
    };
    if (!gelungen(ft_->baudrate(tk_handle, baud), "SetBaudRate Failed") ||
        !gelungen(ft_->format_8n1(tk_handle), "SetDataCharacteristics Failed") ||
        !gelungen(ft_->ohne_flusskontrolle(tk_handle), "SetFlowControl Failed")) {
        return false;
    }
    // both only make it quicker, so a refusal is no failure
    ft_->fristen(tk_handle, frist_ms, frist_ms);
    ft_->abgeben_bei(tk_handle, static_cast<ftd2xx::byte>(tk::satzende));
    return true;
}

void tk_leitung::schliessen() {
    kanal_.reset();  // its thread is the last that holds it
    abtaster_.reset();
}

bool tk_leitung::gestoert() const {
    return offen() && (kanal_->schreiben_misslang || kanal_->fehler_in_folge >= weg_nach);
}

std::optional<tk_befehl> tk_leitung::erledigt() {
    return offen() ? kanal_->erledigte.nehmen() : std::nullopt;
}

std::optional<tk_stueck> tk_leitung::tk_lesen() {
    return offen() ? kanal_->stuecke.nehmen() : std::nullopt;
}

ftd2xx::status tk_leitung::lesefehler_abholen() {
    return offen() ? kanal_->lesefehler.exchange(ftd2xx::gut) : ftd2xx::gut;
}

ftd2xx::status tk_leitung::wartefehler_abholen() {
    return offen() ? kanal_->wartefehler.exchange(ftd2xx::gut) : ftd2xx::gut;
}

bool tk_leitung::tk_senden(std::string_view text) {
    tk_befehl neu;
    if (!offen() || text.size() > neu.bytes.size()) {
        return false;
    }
    neu.laenge = text.copy(neu.bytes.data(), neu.bytes.size());
    return kanal_->befehle.geben(neu);
}

void tk_leitung::kanal::ausstehendes_schreiben() {
    bool geht = true;  // after one that failed no other is tried: each of them may take the whole time limit
    while (auto befehl = befehle.nehmen()) {
        geht = geht && ft->schreiben(tk_handle, tk::satzanfang + std::string(befehl->text()) + tk::satzende);
        schreiben_misslang = !geht;
        befehl->geschrieben = geht;
        erledigte.geben(*befehl);  // nobody may want to know
    }
}

void tk_leitung::kanal::nachsehen(zeit_ms jetzt) {
    ausstehendes_schreiben();
    ftd2xx::wort wartende = 0;
    if (const ftd2xx::status ergebnis = ft->wartende(tk_handle, wartende); ergebnis != ftd2xx::gut) {
        misslungen(wartefehler, ergebnis);
        return;
    }
    if (wartende == 0) {
        fehler_in_folge = 0;
        return;
    }
    if (stuecke.voll()) {
        return;  // the chip's driver keeps it
    }
    tk_stueck neu;
    ftd2xx::wort gelesen = 0;
    const auto hoechstens = static_cast<ftd2xx::wort>(std::min<std::size_t>(wartende, tk_stueck::platz));
    const ftd2xx::status ergebnis = ft->lesen(tk_handle, neu.bytes.data(), hoechstens, gelesen);
    if (ergebnis != ftd2xx::gut) {
        misslungen(lesefehler, ergebnis);
        if (ergebnis != ftd2xx::ein_ausgabe_fehler) {
            return;
        }
    } else {
        fehler_in_folge = 0;
    }
    neu.stempel = jetzt;
    neu.laenge = std::min<std::size_t>(gelesen, hoechstens);
    if (neu.laenge > 0) {
        stuecke.geben(neu);
    }
}

}  // namespace tarvel
