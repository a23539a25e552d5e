#include "hardware/lpt_register.h"
#include "programm/druckeranschluss_verdrahtung.h"
#include "tests/fuzz/dateiarten.h"

namespace tarvel::test {

/// No file, but what the status register reads, a byte each millisecond. Its lowest bits mean nothing: all of them set
/// stand for a port that is not there just then.
bool lpt_hoeren(werkbank& bank, const std::string& bytes) {
    constexpr unsigned ohne_bedeutung = 7;
    programm& p = bank.t.p;
    auto& werte = bank.t.maschine.druckerport.register_werte;
    const geraeteprobe probe(bank);
    p.einst.hardware.hw_lpt = true;
    p.einst.lpt.lpt_eingang = {0, art::rundenzaehlung[1], art::chaostaster, art::tanken_ein[1], 43, 55};
    const int status = p.einst.lpt.anschluss.lpt_adresse + lpt::status;
    werte[status] = lpt::in_ruhe;
    p.geraete.hardware_starten(false);
    druckeranschluss& geraet = p.geraete.von<druckeranschluss_verdrahtung>().anschluss;
    fordern(geraet.verbunden(), "the port is closed");
    bool gehoert = false;
    for (const char byte : bytes) {
        const auto wert = static_cast<std::uint8_t>(byte);
        const bool da = (wert & ohne_bedeutung) != ohne_bedeutung;
        if (da) {
            werte[status] = wert;
        } else {
            werte.erase(status);
        }
        bank.t.maschine.laufen(1);
        fordern(geraet.verbunden() == da, "a port that is not there is said to be");
        gehoert = kontakte_abfragen(bank, geraet) || gehoert;
    }
    return gehoert;
}

}  // namespace tarvel::test
