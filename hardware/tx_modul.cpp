#include "hardware/tx_modul.h"

#include <algorithm>
#include <utility>

#include "hardware/tx_eingang.h"

namespace tarvel {
namespace {

constexpr dauer_ms suchtakt{500};
constexpr dauer_ms statustakt{1000};
constexpr zeit_ms erst_allein_ms = 1500;  // the port that it had the last time, before others are disturbed
constexpr zeit_ms stille_ms = 2000;       // then it is asked whether it is still there: an answer holds up an event
constexpr int fragen_max = 3;
constexpr int ausgaenge_nach_gruss = 9;

bool zwischen(int wert, int von, int bis) {
    return wert >= von && wert <= bis;
}

}  // namespace

tx_modul::tx_modul(const umgebung& um)
    : um_(um),
      folge_(um.ereignisse, um.rennen),
      suche_(um.serienports),
      takt_(um.zeitgeber.erzeugen(plattform::zeitgeber_art::abfragend, suchtakt)) {
    suche_.bei_meldung = [this](const tx_leitung& leitung, const tx::meldung& was, zeit_ms stempel) {
        gehoert(leitung, was, stempel);
    };
    suche_.bei_ereignis = [this](int nummer) { notieren("EVENT " + std::to_string(nummer)); };
    suche_.bei_verlust = [this](const tx_leitung& leitung) { verloren(leitung); };
    takt_->bei_tick = [this] { stand_ == stand::da ? nachfragen() : suche_tick(); };
}

bool tx_modul::oeffnen() {
    modus_soll_ = static_cast<int>(um_.einst.hardware.hw_4x4_modus) - static_cast<int>(modul_4x4::aus);
    schliessen();
    return tx_initialisieren(anlass::start);
}

bool tx_modul::probe_oeffnen() {
    schliessen();
    return tx_initialisieren(anlass::probe);
}

void tx_modul::wieder_aufnehmen() {
    if (gewuenscht_ && stand_ == stand::zu) {
        tx_initialisieren(anlass::wieder);
    }
}

void tx_modul::schliessen() {
    takt_->aus();
    suche_.beenden();
    leitung_.reset();
    abgelegt_.reset();
    gewuenscht_ = false;
    stand_ = stand::zu;
    stand_melden();
}

bool tx_modul::tx_initialisieren(anlass warum) {
    const zeit_ms jetzt = um_.uhr.jetzt();
    abgelegt_.reset();
    if (warum != anlass::wieder) {
        datei_ = tx_datei_laden(um_.ablage);
    }
    anlass_ = warum;
    auskunft_ = {};
    auskunft_.modus = modus_soll_;
    suche_seit_ = suche_zuletzt_ = jetzt;
    alle_versucht_ = false;
    stand_ = stand::sucht;
    takt_->intervall(suchtakt);
    takt_->an();
    stand_melden();
    const std::vector<int> da = um_.serienports.vorhandene();
    const bool bekannt = std::find(da.begin(), da.end(), datei_.port) != da.end() && port_versuchen(datei_.port);
    const bool offen = bekannt || uebrige_versuchen();
    if (!offen) {
        gescheitert(false);
    }
    return offen;
}

/// False if none of them can be opened.
bool tx_modul::uebrige_versuchen() {
    alle_versucht_ = true;
    bool eine = false;
    for (const int nummer : um_.serienports.vorhandene()) {
        const bool fremd =
            anlass_ == anlass::wieder && std::find(fremde_.begin(), fremde_.end(), nummer) != fremde_.end();
        if (leitung_ == nullptr && !fremd && !suche_.versucht(nummer)) {
            eine = port_versuchen(nummer) || eine;
        }
    }
    return eine || leitung_ != nullptr;
}

bool tx_modul::port_versuchen(int nummer) {
    constexpr std::size_t fehlernummer = 9;
    const plattform::portangaben port = um_.serienports.angaben(nummer);
    notieren("Port: COM" + std::to_string(nummer));
    for (const auto& [was, wert] :
         {std::pair("Typ: ", &port.typ), std::pair(" Name:", &port.name), std::pair(" DESC: ", &port.beschreibung)}) {
        if (!wert->empty()) {
            notieren(was + *wert);
        }
    }
    const bool offen = suche_.versuchen(nummer);
    if (const int fehler = um_.serienports.fehlernummer(); !offen && fehler != 0) {
        notieren(um_.txt.tx_text.at(fehlernummer) + " " + std::to_string(fehler));
    }
    return offen;
}

void tx_modul::suche_tick() {
    const zeit_ms jetzt = um_.uhr.jetzt();
    const zeit_ms still = jetzt - std::exchange(suche_zuletzt_, jetzt) - suchtakt.count();
    suche_seit_ += std::max<zeit_ms>(still, 0);  // a program that stands still hears no answer
    const zeit_ms dauer = jetzt - suche_seit_;
    if (dauer >= frist.count()) {
        gescheitert(true);
    } else if (leitung_ != nullptr) {
        senden({&tx::firmware_frage, 1});
    } else if (!alle_versucht_ && dauer >= erst_allein_ms) {
        uebrige_versuchen();
    } else {
        suche_.nochmals_gruessen();
    }
}

void tx_modul::gescheitert(bool geoeffnet) {
    const bool vergebens_gewartet = anlass_ == anlass::start;
    const bool weiter_gewuenscht = gewuenscht_;
    const std::string text = fehlertext(geoeffnet);
    if (anlass_ != anlass::wieder) {
        notieren(text);
    }
    schliessen();
    gewuenscht_ = weiter_gewuenscht;
    if (vergebens_gewartet) {
        um_.bedienung.nicht_zu_oeffnen(*this, text);
    }
}

void tx_modul::aufgeben() {
    if (wird_eingerichtet()) {
        gescheitert(true);
    }
}

std::string tx_modul::fehlertext(bool geoeffnet) const {
    constexpr std::size_t nicht_geoeffnet = 10;
    constexpr std::size_t nicht_aktiviert = 12;
    constexpr std::size_t aus_und_einstecken = 13;
    return um_.txt.tx_text.at(geoeffnet ? nicht_aktiviert : nicht_geoeffnet) + ". " +
           um_.txt.tx_text.at(aus_und_einstecken);
}

void tx_modul::gefunden() {
    constexpr std::size_t am_port = 11;
    constexpr std::size_t ist_aktiviert = 14;
    stand_ = stand::da;
    gewuenscht_ = true;
    takt_->intervall(statustakt);
    unbeantwortet_ = 0;
    if (!auskunft_.ok) {  // it was awake, and did not greet
        verarbeiten(tx::aktiviert{});
    }
    fremde_ = um_.serienports.vorhandene();
    std::erase(fremde_, leitung_->nummer);
    notieren(um_.txt.tx_text.at(am_port) + " " + std::to_string(datei_.port));
    notieren(um_.txt.tx_text.at(ist_aktiviert));
    stand_melden();
    bereit_melden();
}

/// The race has its outputs as they were.
void tx_modul::bereit_melden() {
    if (anlass_ != anlass::probe) {
        um_.bedienung.wartehinweis(false);
    }
}

/// A mode that it has missed would have it tell its sensors in another one's way.
void tx_modul::modus_wiederholen() {
    if (auskunft_.modus_bereit && !auskunft_.tx_mode_gelesen && modus_soll_ != 0 && modus_wiederholt_ < fragen_max) {
        ++modus_wiederholt_;
        modus_senden();
    }
}

void tx_modul::nachfragen() {
    modus_wiederholen();
    if (um_.uhr.jetzt() - letzte_zeile_ < stille_ms) {
        return;
    }
    if (unbeantwortet_ == fragen_max) {
        verloren(*leitung_);
        return;
    }
    ++unbeantwortet_;
    senden({&tx::firmware_frage, 1});
}

void tx_modul::verloren(const tx_leitung& leitung) {
    if (&leitung != leitung_.get()) {
        return;
    }
    const bool war_da = stand_ == stand::da;
    leitung_->MSCommTX->schliessen();
    abgelegt_ = std::move(leitung_);
    if (war_da) {
        takt_->aus();
        stand_ = stand::zu;
        notieren(fehlertext(true));
        stand_melden();
        if (anlass_ != anlass::probe) {
            um_.bedienung.verloren();
        }
    }
}

void tx_modul::gehoert(const tx_leitung& leitung, const tx::meldung& was, zeit_ms stempel) {
    if (&leitung != leitung_.get()) {
        if (leitung_ != nullptr || !tx::ist_modul(was)) {
            return;
        }
        leitung_ = suche_.nehmen(leitung);
    }
    letzte_zeile_ = stempel;
    unbeantwortet_ = 0;
    std::visit([this](const auto& inhalt) { verarbeiten(inhalt); }, was);
}

void tx_modul::verarbeiten(tx::gruss /*was*/) {
    auskunft_.ok = false;
    senden({&tx::gruss_antwort, 1});
}

void tx_modul::verarbeiten(tx::aktiviert /*was*/) {
    auskunft_.ok = true;
    auskunft_.ausgaenge = ausgaenge_nach_gruss;
    tx_modus_setzen(modus_soll_);
    if (!auskunft_.firmware_da) {
        senden({&tx::firmware_frage, 1});
    } else if (stand_ == stand::da) {  // it has begun anew: its outputs are at rest
        bereit_melden();
    }
}

void tx_modul::verarbeiten(tx::modusfrage /*was*/) {
    auskunft_.modus_bereit = true;
    senden({&tx::modus_antwort, 1});
}

void tx_modul::verarbeiten(const tx::firmware& was) {
    const tx_datei bisher = datei_;
    const bool neu = !auskunft_.firmware_da || was.text != datei_.firmware;
    auskunft_.firmware_da = true;
    datei_.firmware = was.text;
    datei_.port = leitung_->nummer;
    if (neu || std::exchange(firmware_gefragt_, false)) {
        notieren("Firmware: " + was.text);
        stand_melden();
    }
    if (stand_ != stand::da) {
        gefunden();
    }
    if (datei_ != bisher) {  // in a race it is the same again and again
        tx_datei_speichern(um_.ablage, datei_);
    }
}

void tx_modul::verarbeiten(tx::modus was) {
    auskunft_.modus = was.nummer;
    auskunft_.tx_mode_gelesen = true;
    notieren(um_.txt.tx_modus(auskunft_.modus));
    stand_melden();
}

void tx_modul::verarbeiten(tx::taster was) {
    constexpr std::size_t lang = 7;
    constexpr std::size_t normal = 8;
    notieren(um_.txt.tx_text.at(was.lang ? lang : normal));
    folge_.melden(art::chaostaster, letzte_zeile_);
}

void tx_modul::verarbeiten(const tx::sensor& was) {
    const tx::sensor eingang = auskunft_.modus == kontakt_modus ? tx::sensor{0, was.gruppe} : was;
    if (eingang.wert < 1 || eingang.wert > tx_eingang_max) {
        return;
    }
    const ereignis_art nummer = tx_eingang(um_.einst.s6, eingang.gruppe, eingang.wert);
    if (nummer != 0) {
        folge_.melden(nummer, letzte_zeile_);
    }
    for (tx_zuschauer* wer : zuschauer_) {
        wer->ausgeloest(eingang, nummer);
    }
}

void tx_modul::rennfenster_offen() {
    if (um_.einst.hardware.hw_4x4() && !verbunden() && !wird_eingerichtet()) {
        um_.bedienung.port_fehlt(fehlertext(false));
    }
}

int tx_modul::lampenausgang(int lampe, bool spuren_6) {
    constexpr int vor_der_ersten = 10;
    constexpr int immer = 3;
    return zwischen(lampe, 1, spuren_6 ? immer : lampen) ? vor_der_ersten - lampe : 0;
}

int tx_modul::stromausgang(int spur, bool spuren_6) {
    constexpr int immer = 4;
    return zwischen(spur, 1, spuren_6 ? spuren_max : immer) ? spur : 0;
}

void tx_modul::schalten(const schaltung& befehl) {
    using ausgang = schaltung::ausgang;
    const bool lampe = befehl.was == ausgang::ampel_rot;
    if (!lampe && befehl.was != ausgang::bahnstrom) {
        return;
    }
    const int alle = lampe ? lampen : spuren_max;
    for (int nummer = 1; nummer <= alle; ++nummer) {
        const int platz = lampe ? lampenausgang(nummer, datei_.spuren_6) : stromausgang(nummer, datei_.spuren_6);
        if (platz != 0 && (befehl.nummer == 0 || befehl.nummer == nummer)) {
            tx_ausgang_setzen(platz, befehl.an);
        }
    }
}

void tx_modul::spuren_6_setzen(bool an) {
    if (datei_.spuren_6 != an) {
        datei_.spuren_6 = an;
        tx_datei_speichern(um_.ablage, datei_);
        bereit_melden();
    }
}

void tx_modul::tx_modus_setzen(int neu) {
    modus_soll_ = neu;
    modus_wiederholt_ = 0;
    modus_senden();
}

void tx_modul::modus_senden() {
    auskunft_.modus_bereit = auskunft_.tx_mode_gelesen = false;
    senden(tx::modusbefehl(modus_soll_));
}

void tx_modul::tx_ausgang_setzen(int nummer, bool an) {
    std::string befehl;
    const int bis = nummer == 0 ? auskunft_.ausgaenge : std::min(nummer, tx::ausgang_max);
    for (int n = std::max(nummer, 1); n <= bis; ++n) {
        an_.at(static_cast<std::size_t>(n)) = an;
        befehl += tx::schaltbefehl(n, an);
    }
    senden(befehl);
}

void tx_modul::befehl_senden(char zeichen) {
    firmware_gefragt_ = zeichen == tx::firmware_frage;
    senden({&zeichen, 1});
}

void tx_modul::senden(std::string_view bytes) {
    if (leitung_ != nullptr) {
        leitung_->MSCommTX->schreiben(bytes);
    }
}

void tx_modul::notieren(const std::string& zeile) const {
    for (tx_zuschauer* wer : zuschauer_) {
        wer->notiert(zeile);
    }
}

void tx_modul::stand_melden() const {
    for (tx_zuschauer* wer : zuschauer_) {
        wer->stand_geaendert();
    }
}

}  // namespace tarvel
