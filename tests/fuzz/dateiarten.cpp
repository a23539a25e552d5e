#include "tests/fuzz/dateiarten.h"

#include <algorithm>
#include <stdexcept>

#include "core/bestzeiten.h"
#include "core/nebendateien.h"
#include "core/sprache.h"
#include "core/text.h"
#include "core/wechselschema.h"
#include "hardware/at2560_profil.h"
#include "hardware/tastenbelegung.h"
#include "results/einzelrennen_datei.h"
#include "results/ergebnisdatei.h"

namespace fs = std::filesystem;

namespace tarvel::test {
namespace {

/// A million files each written once are no work for a disk.
fs::path schneller_ordner() {
    const fs::path im_speicher = "/dev/shm";
    return fs::is_directory(im_speicher) ? im_speicher : fs::temp_directory_path();
}

/// Nor is a file of best times: what is no entry is an empty one.
bool bestzeiten_lesen(werkbank& bank, const std::string& bytes) {
    bestzeiten gelesen;
    bank.legen("Ergebnisse/Bestzeiten/klub.bst", bytes);
    fordern(gelesen.laden(bank.eingang, "klub"), "best times are refused");
    for (const int spur : alle_spuren) {
        for (int zeile = 1; zeile <= bestzeiten::zeilen_anzahl; ++zeile) {
            const bestzeit& eintrag = gelesen.eintrag(zeile, spur);
            fordern(eintrag.leer() ? eintrag == bestzeit{} : eintrag.ms > 0 && eintrag.ms < keine_bestzeit,
                    "a time that is none has an owner");
            fordern(gelesen.gesamt().ms <= gelesen.beste(spur), "a record that a lane beats");
        }
    }
    bestzeiten zurueck;
    fordern(gelesen.speichern(bank.ausgang, "klub"), "best times cannot be written");
    fordern(zurueck.laden(bank.ausgang, "klub") && zurueck == gelesen, "best times change on the way through the file");
    return !gelesen.gesamt().leer();
}

/// An entry of the schemes is valid as a whole, or says that it is not.
bool wechselschema_lesen(werkbank& bank, const std::string& bytes) {
    bool gelesen = false;
    bank.legen("Wechselschema.ws", bytes);
    const auto schemas = wechselschemas_lesen(bank.eingang, "ungültig", gelesen);
    fordern(gelesen && schemas.front().folge == wechsel_standard, "the built-in scheme is always there");
    for (const wechselschema& schema : schemas) {
        fordern(ist_eine_zeile(schema.anzeige), "an entry is one line");
        fordern(schema.folge.has_value() || schema.anzeige.ends_with("ungültig"), "an invalid scheme does not say so");
        if (schema.folge) {
            const auto von = wechsel_nachfolger(*schema.folge, spuren<bool>{{true, true, true, true, true, true}});
            fordern(std::is_permutation(von.begin(), von.end(), alle_spuren.begin()), "a driver is lost");
        }
    }
    const bool eigene = schemas.size() > 1 && schemas.back().folge.has_value();
    fordern(wechselschema_speichern(bank.eingang, schemas, "neu\x01", wechsel_standard) == schema_ablage::gespeichert,
            "a scheme cannot be added");
    return eigene;
}

bool ergebnis_lesen(werkbank& bank, const std::string& bytes) {
    bank.legen("ergebnis.csv", bytes);
    const auto zeilen = ergebnis_zeilen_lesen(bank.eingang, "ergebnis.csv");
    const ergebnis_typ typ = datei_typ_erkennen(zeilen);
    fordern(zeilen.size() <= 10000, "more lines than there is room for");
    fordern(bank.ausgang.zeilen_schreiben("ergebnis.csv", zeilen), "a result cannot be written");
    const auto zurueck = ergebnis_zeilen_lesen(bank.ausgang, "ergebnis.csv");
    fordern(zurueck == zeilen && datei_typ_erkennen(zurueck) == typ, "a result changes on the way through its file");
    if (const auto gelesen = einzelrennen_lesen(zeilen)) {
        const auto neu = einzelrennen_zeilen(gelesen->ergebnis, gelesen->wort, gelesen->trennzeichen);
        const auto wieder = einzelrennen_lesen(neu);
        fordern(wieder && einzelrennen_zeilen(wieder->ergebnis, wieder->wort, wieder->trennzeichen) == neu,
                "a race that was read changes each time it is written");
    }
    return typ != ergebnis_typ::unbekannt;
}

/// No language file is refused: what it lacks stays German.
bool sprache_lesen(werkbank& bank, const std::string& bytes) {
    programm& p = bank.t.p;
    const auto anwenden = [&] {
        p.txt.sprache_m1_laden(bank.eingang);
        p.form1.sprache_m2().anwenden(bank.eingang);
        p.form1.rennart_geaendert();
    };
    bank.legen("language/language_m1.txt", bytes);
    bank.legen("language/language_m2.txt", bytes);
    anwenden();
    fordern(std::all_of(p.txt.meldung.begin(), p.txt.meldung.end(), ist_eine_zeile) &&
                ist_eine_zeile(p.form1.Command1.text()),
            "a text is one line");
    fs::remove_all(bank.t.maschine.ordner() / "language");
    anwenden();
    fordern(p.txt.text_runden == "Runden" && p.form1.Command1.text() == "Einzelrennen",
            "without its file a text is not German");
    return true;
}

std::string als_bytes(const std::vector<std::string>& zeilen) {
    std::string bytes;
    for (const std::string& zeile : zeilen) {
        bytes += nach_1252(zeile) + "\r\n";
    }
    return bytes;
}

/// A file of an older version, which ends early and has the words of another language.
std::string alte_einstellungen(std::vector<std::string> zeilen) {
    constexpr std::ptrdiff_t ende = 306;
    zeilen.resize(ende);
    zeilen[0] = "Tarvel Version 1.82";
    std::replace(zeilen.begin(), zeilen.end(), std::string("Wahr"), std::string("True"));
    std::replace(zeilen.begin(), zeilen.end(), std::string("Falsch"), std::string("False"));
    zeilen.emplace_back("{EOF}");
    return als_bytes(zeilen);
}

std::string volles_ergebnis() {
    rennergebnis ergebnis;
    ergebnis.datum = "21.11.2026";
    ergebnis.uhrzeit = "14:03:22";
    ergebnis.rundenzeilen = 3;
    ergebnis.gemessen = {true, true, false};
    for (const int nummer : {1, 4}) {
        rennergebnis::spur s;
        s.nummer = nummer;
        s.fahrer = "J\xC3\xB6rg";
        s.fahrzeug = "Viper";
        s.laenge = "12.5";
        s.sektorlaenge = {"5", "7.5", ""};
        s.disqualifiziert = nummer == 4;
        s.runden = {{900, {}, {}}, {8000, {3000, 5000, 0}, {}}};
        ergebnis.spuren.push_back(s);
    }
    const ergebnis_worte wort{
        "Rennergebnis",    "Tanken aktiv",     "Rundendirektvergleich", "Spur",      "Rundenzahl",
        "Disqualifiziert", "Spurl\xC3\xA4nge", "Sektorl\xC3\xA4nge",    "Restmeter", "Gesamtmeter",
        "Gesamtzeit"};
    std::string bytes;
    for (const std::string& zeile : einzelrennen_zeilen(ergebnis, wort, trennzeichen_standard)) {
        bytes += nach_1252(zeile) + "\r\n";
    }
    return bytes;
}

std::string volle_liste() {
    std::vector<std::string> zeilen(101, "Max");
    zeilen.front() = "Fahrerliste:";
    zeilen.emplace_back("{pic}");
    zeilen.insert(zeilen.end(), 100, "bild");
    zeilen.emplace_back("{ende}");
    return als_bytes(zeilen);
}

std::string alle_tasten(const werkbank& bank) {
    tastenbelegung belegung;
    belegung.vorbelegen(belegung_stufe::alle);
    fordern(belegung.tastenbelegung_speichern(bank.ausgang), "keys cannot be written");
    return bank.t.maschine.datei_lesen("ausgang/tvk_taste.ini");
}

std::string volle_bestzeiten() {
    std::string bytes;
    for (int nummer = 0; nummer < spuren_max * bestzeiten::zeilen_anzahl; ++nummer) {
        bytes += " " + std::to_string(8000 + nummer) + "\r\n\"J\xF6rg, jun.\"\r\n\"Viper\"\r\n\"21.11.2026\"\r\n";
    }
    return bytes;
}

std::string volle_befehlsdatei(const werkbank& bank) {
    at_profil profil;
    profil.at_is_befehl = "IS,2.3";
    fordern(at_profil_speichern(bank.ausgang, at_standarddatei, profil), "commands cannot be written");
    return bank.t.maschine.datei_lesen("ausgang/" + std::string(at_standarddatei));
}

std::vector<std::string> wettkampfstaende(const programm& p) {
    std::vector<std::string> bytes;
    for (const std::vector<std::string>& zeilen : volle_wettkampfstaende(p.txt)) {
        bytes.push_back(als_bytes(zeilen));
    }
    return bytes;
}

std::vector<std::string> sprachdateien(programm& p) {
    std::vector<std::string> bytes;
    for (const sprachliste& sprache : p.sprachdateien()) {
        bytes.push_back(als_bytes(sprache.deutsche_datei()));
    }
    return bytes;
}

}  // namespace

werkbank::werkbank() : t(schneller_ordner()) {}

geraeteprobe::geraeteprobe(werkbank& bank) : p_(bank.t.p) {
    for (ereignis_art nummer = 0; nummer < ereignis_tabelle::zeilen_anzahl; ++nummer) {
        p_.ereignisse[nummer] = {};
    }
    p_.einst.hardware = {};
}

geraeteprobe::~geraeteprobe() {
    p_.einst.hardware = {};
    p_.geraete.schliessen();  // whatever it is: the IO board switches beside each of them
}

void werkbank::legen(const std::string& name, const std::string& bytes) {
    t.maschine.meldungen_gezeigt.clear();
    t.maschine.datei_schreiben(name, bytes);
}

bool ist_eine_zeile(const std::string& text) {
    return text.find('\n') == std::string::npos && laenge(text) <= zeile_max;
}

void in_stuecken(std::string_view bytes, const std::function<void(std::string_view)>& hoeren) {
    constexpr std::size_t stueck_max = 23;
    while (!bytes.empty()) {
        const std::size_t stueck = std::min(1 + static_cast<unsigned char>(bytes.front()) % stueck_max, bytes.size());
        hoeren(bytes.substr(0, stueck));
        bytes.remove_prefix(stueck);
    }
}

bool ereignisse_abholen(programm& p, const std::function<void(ereignis_art, const ereignis_zeile&)>& pruefen) {
    bool gehoert = false;
    for (ereignis_art nummer = 1; nummer < ereignis_tabelle::zeilen_anzahl; ++nummer) {
        ereignis_zeile& zeile = p.ereignisse[nummer];
        if (std::exchange(zeile.aktiv, false)) {
            gehoert = true;
            pruefen(nummer, zeile);
        }
        zeile.ereignis_zeit = 0;
    }
    return gehoert;
}

bool kontakte_abfragen(werkbank& bank, messquelle& geraet) {
    programm& p = bank.t.p;
    const zeit_ms jetzt = p.ereignisse.messzeit = bank.t.maschine.jetzt();
    geraet.abfragen();
    return ereignisse_abholen(p, [&](ereignis_art nummer, const ereignis_zeile& zeile) {
        fordern(art::ist_eingang(nummer), "an event of an output");
        fordern(zeile.ereignis_zeit == jetzt, "an event of another moment");
    });
}

void fordern(bool erfuellt, const char* was) {
    if (!erfuellt) {
        throw std::logic_error(was);
    }
}

std::map<std::string, dateiart> dateiarten(werkbank& bank) {
    const std::vector<std::string> zeilen = bank.t.p.datei.schreiben();
    const std::string einstellungen = als_bytes(zeilen);
    std::map<std::string, dateiart> arten{
        {"einstellungen", {{einstellungen, alte_einstellungen(zeilen)}, einstellungen_lesen}},
        {"wettkampfdatei",
         {{"Wettkampfdatei: Vereinsmeister\r\n" + einstellungen + "Teilnehmer\r\n 2 \r\n"}, wettkampfdatei_lesen}},
        {"wettkampfstand", {wettkampfstaende(bank.t.p), wettkampfstand_lesen}},
        {"namensliste",
         {{"Fahrerliste:\r\nJ\xF6rg\r\nAnna\r\n{pic}\r\njoerg\r\n\r\n{ende}\r\n", volle_liste(),
           bank.t.maschine.datei_lesen("Listen/fahrzeuge.kfz")},
          namensliste_lesen}},
        {"trennzeichen", {{" 58 \r\n 44 \r\n 59 \r\n", "183,46,124"}, trennzeichen_lesen}},
        {"werbezeile", {{"\"Bahn, Bier und Benzin\"\r\n", "Bahn und Bier\r\n"}, werbezeile_lesen}},
        {"startdatei",
         {{"2\r\n5\r\nEinstellungen\\einstellungen.ini\r\n0\r\n\r\n",
           "\"2\", 6 ,\"Einstellungen\\klub.ini\",\"0\",\"\"\r\n"},
          startdatei_lesen}},
        {"tasten", {{alle_tasten(bank)}, tasten_lesen}},
        {"ergebnis",
         {{volles_ergebnis(),
           "Rennergebnis;15.11.2026;16:43:45\r\n\r\nAnna; 2;23.40;\r\nTarvel\r\nTV-ERD\r\nhttps://tarvel.invalid\r\n",
           "Titel\r\nNr;Name\r\n1;Anna\r\nTV-WKD\r\n", "TV-JJ2-WKD\r\n", "Tarvel Tagesrennen\r\n0;Anna; 2\r\n"},
          ergebnis_lesen}},
        {"ergebnistabelle",
         {{volles_ergebnis(),
           "Titel\r\nNr;Name\r\n1;Anna;3;1;2;0;0;0;0;30.5;10;20.5;0;0;0;0;00:09,000;00:08,500;00:00,000;00:00,000;"
           "00:00,000;00:00,000;00:26,000\r\nTV-WKD\r\n",
           "Titel\r\nNr;Name\r\n1.;Anna; 7; 3; 4;00:08,000;00:08,100;01:02,000\r\nTV-JJ2-WKD\r\n",
           "Tarvel Tagesrennen\r\nA;Anna; 2;20.00;00:08,000;00:17,000\r\n0;Ben; 1;9.50;00:09,000;1:00:09,000\r\n"},
          tabelle_betrachten}},
        {"tagesrennen",
         {{"Tarvel Parameter-Datei f\xFCr das Tagesrennen\r\nErgebnisse\\Tagesrennen\\Samstag.csv\r\n 1 \r\nA bis 12 "
           "Jahre\r\n"
           "B\r\n\r\n\r\n\r\n",
           "Tarvel Tagesrennen\r\nA;Anna; 2;20.00;00:08,000;00:17,000\r\n0;Ben; 1;9.50;00:09,000;00:09,000\r\n"},
          tagesrennen_lesen}},
        {"wechselschema", {{"\r\n#Rennen\r\n123456P\r\n\r\n#Zwei\r\n1P65432\r\n"}, wechselschema_lesen}},
        {"bestzeiten", {{volle_bestzeiten(), "8123,Anna,Viper,21.11.2026\r\n"}, bestzeiten_lesen}},
        {"sprache", {sprachdateien(bank.t.p), sprache_lesen}},
        {"befehlsdatei", {{volle_befehlsdatei(bank)}, befehlsdatei_lesen}},
        {"at2560",
         {{":S13,100:S11,200;:T,5;:S7,300;\r\n:S9,4294967295;", ":T,12;:S13,-5.5;:V.1;:S13,1;:S11,99999999999999999;"},
          at2560_hoeren}},
        {"rennprotokoll", rennprotokoll_datei()},
        {"tk_datei", {{"Tarvel Timekeeper-Einstellungen\r\n\r\n2\r\n16\r\n15\r\n1\r\n59\r\n0\r\n"}, tk_datei_lesen}},
        {"timekeeper",
         {{"\x02"
           "D1\x17"
           "510\x03\x02\x17"
           "600\x03\x02"
           "D13\x17"
           "650\x03\x02NAK\x03\x02"
           "D2\x17"
           "700\x03",
           "\x02"
           "Chaos_bttn\x17"
           "9\x03\x02\x17"
           "999999\x03\x02"
           "D24\x17"
           "99999999999999999\x03\x02"
           "D3\x17"
           "12\x03"},
          timekeeper_hoeren}},
        {"iow_datei", iow_datei()},
        {"iow", iow_berichte()},
        {"lpt", {{std::string("\xc0\x80\x40\x07\x20\xa0\x88\x80", 8)}, lpt_hoeren}},
        {"modul4x4",
         {{"TRAXIUM-USB\rTXUSB_OK\rV1.2\rMODUS\rmod1\r1?\r4:\r0>\r", "V2.0\rmod4\r1?\r8?\rRC2Long\rRC2\rmod9\r"},
          modul4x4_hoeren}},
        {"race_control",
         {{"\x83\x84\x60\x09\x20\x30\x09\x21\x40\x50\x22\x0F\x0F\x23\x20\x20", "\x60\x0E\x20\x92\x21\x0A\x70\x88\x22"},
          race_control_hoeren}},
    };
    arten.merge(gedaechtnisdateien());
    return arten;
}

}  // namespace tarvel::test
