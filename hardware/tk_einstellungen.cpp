#include "hardware/tk_einstellungen.h"

#include <algorithm>

#include "core/text.h"
#include "core/zeit.h"
#include "hardware/timekeeper.h"

namespace tarvel {
namespace {

using plattform::zeitgeber_art;
using ausgang = schaltung::ausgang;

constexpr std::size_t datenzeilen_max = 2000;   // of the log
constexpr std::size_t mitschrift_max = 100000;  // lines
constexpr zeit_ms tk_leuchtdauer_ms = 500;
constexpr farbe tk_lampe_an = 0x00C800;

/// The signs of the frame as signs that can be seen.
std::string lesbar(std::string_view bytes) {
    std::string text(bytes);
    std::replace(text.begin(), text.end(), tk::satzanfang, '<');
    std::replace(text.begin(), text.end(), tk::satzende, '>');
    std::replace(text.begin(), text.end(), tk::feldtrenner, '|');
    std::replace_if(
        text.begin(), text.end(), [](char zeichen) { return zeichen < ' ' || zeichen > '~'; }, '?');
    return text;
}

std::string debug_datei(int spur) {
    return "tk_debug_info-" + std::to_string(spur) + ".txt";
}

}  // namespace

tk_einstellungen::tk_einstellungen(const umgebung& um, const plattform::dienste& dienste)
    : geraetefenster(um.fenster, um.ablage, fenstername::timekeeper),
      um_(um),
      meldungen_(dienste.meldungen),
      uhr_(dienste.uhr),
      leitung_(dienste),
      Timer1_(dienste.zeitgeber.erzeugen(zeitgeber_art::abfragend, 1ms)),
      lampen_(dienste.zeitgeber.erzeugen(zeitgeber_art::abfragend, 100ms)) {
    Timer1_->bei_tick = [this] { Timer1_tick(); };
    lampen_->bei_tick = [this] { lampen_loeschen(); };
    leitung_.melden = [this](const std::string& zeile) { melden(zeile); };
    tk_command.laenge_max(200);
    tk_datei.laenge_max(60);
    befehle_verbinden();
    ausgaenge_verbinden();
}

void tk_einstellungen::befehle_verbinden() {
    for (std::size_t modus = 0; modus < Option.size(); ++modus) {
        Option.at(modus).bei_aenderung = [this, modus] {
            modus_waehlen(modus);
            modus_senden();
        };
    }
    firmware_lesen.bei_klick = [this] {
        firmware.text("");
        senden("product");
        senden("version");
    };
    for (const int spur : alle_spuren) {
        debug_open[spur].bei_klick = [this, spur] { senden("open " + std::to_string(spur)); };
    }
    debug_close.bei_klick = [this] { senden("close"); };
    Send.bei_klick = [this] { senden(tk_command.text()); };
    suchen.bei_klick = [this] { verbinden(); };
    Laden.bei_klick = [this] {
        tk_profil profil;
        if (!tk_profil_laden(um_.ablage, tk_datei.text(), profil)) {
            meldungen_.zeigen(um_.txt.meldung[23], um_.txt.titel[1]);
            return;
        }
        profil_zeigen(profil);
        modus_senden();
    };
    Werkseinstellungen.bei_klick = [this] {
        profil_zeigen({});
        modus_senden();
    };
    Speichern.bei_klick = [this] { speichern(); };
    Abbrechen.bei_klick = [this] { schliessen(); };
}

void tk_einstellungen::ausgaenge_verbinden() {
    for (std::size_t i = 0; i < ampel_check.size(); ++i) {
        ampel_check.at(i).bei_aenderung = [this, i] {
            const ausgang was = i == gruen      ? ausgang::ampel_gruen
                                : i == gelb     ? ausgang::chaosanzeige
                                : i == rennende ? ausgang::rennende
                                                : ausgang::ampel_rot;
            schalten(was, was == ausgang::ampel_rot ? static_cast<int>(i) + 1 : 0, ampel_check.at(i).gesetzt());
        };
    }
    const auto alle_lampen = [this](bool an) {
        schalten(ausgang::ampel_rot, 0, an);
        schalten(ausgang::ampel_gruen, 0, an);
        schalten(ausgang::chaosanzeige, 0, an);
        for (std::size_t i = 0; i < rennende; ++i) {
            ampel_check.at(i).gesetzt(an);
        }
    };
    ampel_alle_an.bei_klick = [alle_lampen] { alle_lampen(true); };
    ampel_alle_aus.bei_klick = [alle_lampen] { alle_lampen(false); };
    for (const int spur : alle_spuren) {
        relais_check[spur].bei_aenderung = [this, spur] {
            schalten(ausgang::bahnstrom, spur, relais_check[spur].gesetzt());
        };
    }
    const auto alle_relais = [this](bool an) {
        schalten(ausgang::bahnstrom, 0, an);
        for (haken& eines : relais_check) {
            eines.gesetzt(an);
        }
    };
    relais_alle_an.bei_klick = [alle_relais] { alle_relais(true); };
    relais_alle_aus.bei_klick = [alle_relais] { alle_relais(false); };
}

void tk_einstellungen::laden() {
    texte_lesen();
    ansagen();
    List1.leeren();
    firmware.text("");
    tk_command.text("");
    for (haken& lampe : ampel_check) {
        lampe.gesetzt(false);
    }
    for (haken& relais : relais_check) {
        relais.gesetzt(false);
    }
    tk_datei.text(um_.einst.tk.tk_datei);
    tk_profil profil;
    tk_profil_laden(um_.ablage, um_.einst.tk.tk_datei, profil);
    profil_zeigen(profil);
    geraet_nehmen();
    Timer1_->an();
    lampen_->an();
    verbinden();
}

void tk_einstellungen::entladen() {
    alles_aus();
    debug_beenden();
    Timer1_->aus();
    lampen_->aus();
    leitung_.schliessen();
    geraet_zurueckgeben();
}

/// What was switched on to be looked at does not stay on.
void tk_einstellungen::alles_aus() {
    const auto ausschalten = [](haken& einer) {
        if (einer.gesetzt()) {
            einer.umschalten();
        }
    };
    std::for_each(ampel_check.begin(), ampel_check.end(), ausschalten);
    std::for_each(relais_check.begin(), relais_check.end(), ausschalten);
}

void tk_einstellungen::melden(std::string_view zeile) {
    if (List1.zeilen().size() >= datenzeilen_max) {
        List1.leeren();
    }
    List1.hinzufuegen(zeile);
    List1.markieren(static_cast<int>(List1.zeilen().size()) - 1);
}

void tk_einstellungen::verbinden() {
    empfang_.leeren();
    letzte_ = {};
    fehler_gemeldet_ = false;
    if (leitung_.tk_oeffnen()) {
        senden("activate");
        modus_senden();
    }
}

void tk_einstellungen::senden(const std::string& text) {
    if (!text.empty() && !leitung_.tk_senden(nach_1252(text))) {
        melden("Write Failed");
    }
}

void tk_einstellungen::erledigt(const tk_befehl& befehl) {
    const std::string text = von_1252(befehl.text());
    if (!befehl.geschrieben) {
        melden("Write Failed");
        return;
    }
    melden("Command sent: " + text);
    const std::string oeffnen = "open ";
    const int spur = text.starts_with(oeffnen) && text.size() == oeffnen.size() + 1 ? text.back() - '0' : 0;
    if (spur >= 1 && spur <= spuren_max) {
        debug_beginnen(spur);
    } else if (text == "close") {
        debug_beenden();
    }
}

void tk_einstellungen::schalten(schaltung::ausgang was, int nummer, bool an) {
    senden(tk_schaltbefehl({was, nummer, an}));
}

void tk_einstellungen::modus_waehlen(std::size_t modus) {
    for (std::size_t i = 0; i < Option.size(); ++i) {
        Option.at(i).gesetzt(i == modus);
    }
}

bool tk_einstellungen::digital() const {
    return Option[2].gesetzt() || Option[3].gesetzt();
}

void tk_einstellungen::modus_senden() {
    const tk_profil profil = profil_lesen();
    melden(wort_.modus.at(static_cast<std::size_t>(profil.modus)));
    letzte_ = {};
    senden("timest_start");
    for (const std::string_view befehl : tk_modusbefehle(profil.modus)) {
        senden(std::string(befehl));
    }
    senden("mode?");
    senden("digital?");
}

void tk_einstellungen::profil_zeigen(const tk_profil& profil) {
    modus_waehlen(static_cast<std::size_t>(profil.modus));
    const std::vector<ereignis_art>& arten = tk_eingaenge();
    for (std::size_t i = 0; i < kanaele.size(); ++i) {
        const auto ort = std::find(arten.begin(), arten.end(), profil.tk_sensor_art.at(i));
        kanaele.at(i).sensorart.platz(static_cast<int>(ort - arten.begin()));
    }
}

tk_profil tk_einstellungen::profil_lesen() const {
    tk_profil profil;
    const auto modus = std::find_if(Option.begin(), Option.end(), [](const haken& eine) { return eine.gesetzt(); });
    profil.modus = static_cast<spurmodus>(modus - Option.begin());
    for (std::size_t i = 0; i < kanaele.size(); ++i) {
        const int platz = std::max(kanaele.at(i).sensorart.platz(), 0);
        profil.tk_sensor_art.at(i) = tk_eingaenge().at(static_cast<std::size_t>(platz));
    }
    return profil;
}

void tk_einstellungen::Timer1_tick() {
    while (const auto befehl = leitung_.erledigt()) {
        erledigt(*befehl);
    }
    while (const auto stueck = leitung_.tk_lesen()) {
        fehler_gemeldet_ = false;
        const std::string text = lesbar(stueck->text());
        melden("Data received: " + text);
        if (mitschrift_.spur != 0 && mitschrift_.zeilen.size() < mitschrift_max) {
            mitschrift_.zeilen.push_back(von_1252(stueck->text()));
        }
        empfang_.anhaengen(stueck->text());
        while (const auto inhalt = empfang_.naechster()) {
            satz_zeigen(*inhalt);
        }
    }
    lesefehler_melden();
}

void tk_einstellungen::lesefehler_melden() {
    const ftd2xx::status lesen = leitung_.lesefehler_abholen();
    const ftd2xx::status warten = leitung_.wartefehler_abholen();
    if (!fehler_gemeldet_ && lesen != ftd2xx::gut) {
        fehler_gemeldet_ = true;
        melden("FT_Read error ftStatus=" + std::to_string(lesen));
    } else if (!fehler_gemeldet_ && warten != ftd2xx::gut) {
        fehler_gemeldet_ = true;
        melden("Queue error");
    }
}

void tk_einstellungen::satz_zeigen(std::string_view inhalt) {
    const tk::satz satz = tk::satz_lesen(inhalt, digital());
    if (const auto* sensor = std::get_if<tk::sensor>(&satz)) {
        sensor_zeigen(*sensor);
    } else if (const auto* taste = std::get_if<tk::chaostaste>(&satz)) {
        melden(um_.txt.ereignis_name.at(art::chaostaster) + " " + std::to_string(taste->tk_chaos_wert));
    } else if (inhalt == "Timekeeper_USB") {
        melden("Device recognized");
    } else if (inhalt == "Timekeeper_active") {
        melden("Device activated");
    } else if (std::holds_alternative<tk::antwort>(satz) && firmware.text().empty() && inhalt.starts_with("V")) {
        firmware.text(lesbar(inhalt));
    }
}

void tk_einstellungen::sensor_zeigen(const tk::sensor& satz) {
    if (satz.tk_sensor < 1 || satz.tk_sensor > tk::sensoren_max) {
        return;
    }
    const auto i = static_cast<std::size_t>(satz.tk_sensor - 1);
    kanal& k = kanaele.at(i);
    k.lampe.hintergrund(tk_lampe_an);
    leuchtet_bis_.at(i) = uhr_.jetzt() + tk_leuchtdauer_ms;
    const std::string wer = satz.wagen > 0 ? std::to_string(satz.wagen) + ": " : std::string();
    const zeit_ms seither = letzte_.at(i) ? std::max<zeit_ms>(satz.zeit - *letzte_.at(i), 0) : 0;
    k.ergebnis.text(wer + zeit_formatieren(seither, true, um_.einst.trennzeichen));
    letzte_.at(i) = satz.zeit;
}

void tk_einstellungen::lampen_loeschen() {
    for (std::size_t i = 0; i < kanaele.size(); ++i) {
        if (leuchtet_bis_.at(i) <= uhr_.jetzt()) {
            kanaele.at(i).lampe.hintergrund({});
        }
    }
}

void tk_einstellungen::debug_beginnen(int spur) {
    debug_beenden();
    mitschrift_.spur = spur;
    melden(debug_datei(spur) + " open");
}

void tk_einstellungen::debug_beenden() {
    if (mitschrift_.spur == 0) {
        return;
    }
    const bool geschrieben = um_.ablage.zeilen_schreiben(debug_datei(mitschrift_.spur), mitschrift_.zeilen);
    melden(geschrieben ? "file closed" : wort_.nicht_geschrieben);
    mitschrift_ = {};
}

void tk_einstellungen::speichern() {
    const std::string stamm = tk_datei.text();
    const tk_profil profil = profil_lesen();
    if (!dateiname_zulaessig(stamm) || !tk_profil_speichern(um_.ablage, stamm, profil)) {
        meldungen_.zeigen(um_.txt.meldung[22], um_.txt.titel[1]);
        return;
    }
    um_.einst.tk.tk_datei = stamm;
    um_.einst.hardware.tk_spurmodus = profil.modus;
    einstellungen_sichern();
    schliessen();
}

}  // namespace tarvel
