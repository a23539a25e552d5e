#include "hardware/cu_leitung.h"

namespace tarvel {
namespace {

constexpr std::string_view portwerte = "19200,N,8,1";
constexpr std::string_view abfrage = "?\r";
constexpr std::size_t empfang_max = 65536;  // characters: what half a minute of unanswered polls may bring at once
constexpr zeit_ms antwort_max_ms = 50;      // then the poll is lost, and the next one goes out

}  // namespace

cu_leitung::cu_leitung(const plattform::dienste& dienste) : uhr_(dienste.uhr), port_(dienste.serienports.erzeugen()) {
    port_->bei_empfang = [this](std::string_view bytes, zeit_ms /*stempel*/) { empfangen(bytes); };
}

bool cu_leitung::oeffnen(int nummer) {
    schliessen();
    return nummer >= 1 && nummer <= cu_comport_max && port_->oeffnen(nummer, portwerte);
}

void cu_leitung::schliessen() {
    port_->schliessen();
    empfang_.clear();
    antwort_offen_ = false;
}

bool cu_leitung::senden(std::string_view befehl) {
    return port_->offen() && port_->schreiben(std::string(1, cu::befehlszeichen).append(befehl));
}

void cu_leitung::abfragen() {
    const zeit_ms jetzt = uhr_.jetzt();
    if (antwort_offen_ && jetzt - abgefragt_ < antwort_max_ms) {
        return;  // polls must not queue up in front of the commands
    }
    antwort_offen_ = true;
    abgefragt_ = jetzt;
    senden(abfrage);
}

void cu_leitung::empfangen(std::string_view bytes) {
    empfang_.append(bytes);
    if (empfang_.size() > empfang_max) {
        empfang_.erase(0, empfang_.size() - empfang_max);
    }
    if (bytes.find(cu::satzende) != std::string_view::npos) {
        antwort_offen_ = false;
    }
}

}  // namespace tarvel
