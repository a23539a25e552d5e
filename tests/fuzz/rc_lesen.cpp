#include "programm/race_control_verdrahtung.h"
#include "tests/fuzz/dateiarten.h"

namespace tarvel::test {
namespace {

/// A library that makes of each byte what the byte says: nothing, an event, a wish to send, an error, or a clock that
/// goes on or jumps.
struct sprunghafte_bibliothek {
    static inline unsigned byte = 0;
    static inline std::uint32_t stempel = 0;

    static void InitBoxes() {}
    static std::int32_t OpenBox(std::int32_t /*box*/, const char* /*name*/) { return 3; }
    static std::int32_t RX_data(std::int32_t /*box*/, std::int32_t neu) {
        byte = static_cast<unsigned>(neu) & 0xFFU;
        if (byte < 0x10) {
            stempel += byte * byte * byte;
            return 0;
        }
        if (byte < 0x80) {
            return 2;
        }
        if (byte < 0x90) {
            return byte < 0x88 ? static_cast<std::int32_t>(0x8000 + byte % 8) : -1;
        }
        stempel = byte < 0xA0 ? byte * 0x01234567U : stempel;
        return 0;
    }
    static std::uint8_t Get_Event(std::int32_t* ereignis) {
        *ereignis = static_cast<std::int32_t>(byte << 16 | (byte & 0x70U) << 4 | (byte & 3U));
        return static_cast<std::uint8_t>(byte & 8U ? 0 : byte);
    }
    static std::int32_t Get_TXDat(char* daten) {
        constexpr std::array<std::int32_t, 5> anzahlen{0, 1, 1023, 1500, -3};
        daten[0] = 'x';
        return anzahlen.at(byte % anzahlen.size());
    }
    static std::uint32_t Get_TStamp(std::int32_t /*box*/) { return stempel; }
};

void hinlegen(test_bibliotheken& b) {
    using s = sprunghafte_bibliothek;
    b.ruf("RaceControl", "InitBoxes", &s::InitBoxes);
    b.ruf("RaceControl", "OpenBox", &s::OpenBox);
    b.ruf("RaceControl", "RX_data", &s::RX_data);
    b.ruf("RaceControl", "Get_Event", &s::Get_Event);
    b.ruf("RaceControl", "Get_TXDat", &s::Get_TXDat);
    b.ruf("RaceControl", "Get_TStamp", &s::Get_TStamp);
}

}  // namespace

/// What a box says, in pieces, and what its library makes of it.
bool race_control_hoeren(werkbank& bank, const std::string& bytes) {
    constexpr int com = 3;
    programm& p = bank.t.p;
    hinlegen(bank.t.maschine.bibliotheken);
    bank.t.maschine.anschluesse.da = {com};
    p.einst.rc.anschluss.rc_com_port = "COM3";
    const geraeteprobe probe(bank);
    p.einst.hardware.hw_race_control = true;
    p.geraete.hardware_starten(false);
    fordern(bank.t.maschine.anschluesse.offen(com), "the port is closed");
    bool gehoert = false;
    in_stuecken(bytes, [&](std::string_view stueck) {
        bank.t.maschine.anschluesse.senden(com, stueck);
        bank.t.maschine.laufen(1);
        bank.t.maschine.uhr_stellen(30);
        const zeit_ms jetzt = p.rennen.zeit.messzeit_lesen();
        for (const ereignis_art art : art::rundenzaehlung) {
            ereignis_zeile& zeile = p.ereignisse[art];
            fordern(!zeile.aktiv || zeile.ereignis_zeit <= jetzt, "an event from the future");
            gehoert = std::exchange(zeile.aktiv, false) || gehoert;
        }
    });
    bank.t.maschine.meldungen_gezeigt.clear();
    return gehoert;
}

}  // namespace tarvel::test
