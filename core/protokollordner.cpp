#include "core/protokollordner.h"

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <system_error>
#include <vector>

#include "core/ordnerblick.h"
#include "core/text.h"

namespace fs = std::filesystem;

namespace tarvel {
namespace {

constexpr std::chrono::days frist{90};
constexpr std::size_t protokolle_max = 200;
constexpr std::size_t eintraege_max = 50000;  // looked at in one start,
constexpr std::size_t loeschungen_max = 500;  // and deleted: either takes a blink at most

constexpr std::uintmax_t suche_bytes_max = 8 * protokoll_bytes_max;  // and of all

constexpr std::string_view endung = ".txt";
constexpr std::string_view zeitmuster = "0000-00-00 00-00-00";  // "0" stands for any digit
constexpr std::string_view weggelegte = "Weggelegt.txt";        // their names
constexpr char vor_nummer = '_';                                // behind the "." in the order of names
constexpr int nummer_max = 9999;

bool ist_ziffer(char zeichen) {
    return zeichen >= '0' && zeichen <= '9';
}

bool hat_muster(std::string_view muster, std::string_view text) {
    return std::equal(muster.begin(), muster.end(), text.begin(), text.end(),
                      [](char soll, char ist) { return soll == '0' ? ist_ziffer(ist) : ist == soll; });
}

bool ist_protokollname(std::string_view name) {
    if (name.size() < zeitmuster.size() + endung.size() || !name.ends_with(endung)) {
        return false;
    }
    const std::string_view nummer = name.substr(zeitmuster.size(), name.size() - zeitmuster.size() - endung.size());
    return hat_muster(zeitmuster, name.substr(0, zeitmuster.size())) &&
           (nummer.empty() || (nummer.size() > 1 && nummer.front() == vor_nummer &&
                               std::all_of(nummer.begin() + 1, nummer.end(), ist_ziffer)));
}

std::string tag_text(std::chrono::year_month_day tag) {
    return ziffern(static_cast<int>(tag.year()), 4) + "-" + ziffern(static_cast<unsigned>(tag.month()), 2) + "-" +
           ziffern(static_cast<unsigned>(tag.day()), 2);
}

std::chrono::year_month_day tag_von(const plattform::datum_uhrzeit& moment) {
    return std::chrono::year(moment.jahr) / moment.monat / moment.tag;
}

std::string zeit_text(const plattform::datum_uhrzeit& moment) {
    return tag_text(tag_von(moment)) + " " + ziffern(moment.stunde, 2) + "-" + ziffern(moment.minute, 2) + "-" +
           ziffern(moment.sekunde, 2);
}

/// From the oldest to the newest.
std::vector<std::string> protokolle(const fs::path& ort) {
    std::vector<std::string> namen;
    std::error_code fehler;
    std::size_t gesehen = 0;
    for (fs::directory_iterator eintrag(ort, fehler), schluss; !fehler && eintrag != schluss && gesehen < eintraege_max;
         eintrag.increment(fehler), ++gesehen) {
        std::error_code egal;
        std::string name = pfad_als_utf8(eintrag->path().filename());
        if (ist_protokollname(name) && fs::is_regular_file(eintrag->symlink_status(egal))) {
            namen.push_back(std::move(name));
        }
    }
    std::sort(namen.begin(), namen.end());
    return namen;
}

std::string im_ordner(std::string_view name) {
    return std::string(protokoll_ordner) + "\\" + std::string(name);
}

}  // namespace

std::string neuer_protokollname(const dateien& ablage, const plattform::datum_uhrzeit& jetzt) {
    const std::string zeit = zeit_text(jetzt);
    std::string name = zeit + std::string(endung);
    std::error_code fehler;
    for (int nummer = 2; fs::exists(fs::symlink_status(ablage.pfad(im_ordner(name)), fehler)) && nummer <= nummer_max;
         ++nummer) {
        name = zeit + vor_nummer + ziffern(nummer, 4) + std::string(endung);
    }
    return name;
}

std::vector<std::string> protokolle_auflisten(const dateien& ablage, std::size_t anzahl) {
    std::vector<std::string> namen;
    if (ablage.ist_eigener_ordner(protokoll_ordner)) {
        namen = protokolle(ablage.pfad(protokoll_ordner));
    }
    std::reverse(namen.begin(), namen.end());
    namen.resize(std::min(namen.size(), anzahl));
    return namen;
}

std::optional<std::string> protokoll_lesen(const dateien& ablage, std::string_view name, std::size_t bytes_max) {
    const fs::path datei = ablage.pfad(im_ordner(name));
    std::ifstream eingabe;
    const bool ganz = bytes_max >= protokoll_bytes_max;
    if (ist_lesbar(datei, ganz ? protokoll_bytes_max : std::numeric_limits<std::uintmax_t>::max())) {
        eingabe.open(datei, std::ios::binary);
    }
    if (!eingabe.is_open()) {
        return std::nullopt;
    }
    std::string inhalt(bytes_max, '\0');
    eingabe.read(inhalt.data(), static_cast<std::streamsize>(bytes_max));
    inhalt.resize(static_cast<std::size_t>(eingabe.gcount()));
    return eingabe.bad() ? std::nullopt : std::optional(std::move(inhalt));
}

namespace {

std::vector<std::string> weggelegte_lesen(const dateien& ablage) {
    return ablage.zeilen_lesen(im_ordner(weggelegte), protokolle_max).value_or(std::vector<std::string>{});
}

/// The names but for this one, and those of logs that are no more.
std::vector<std::string> weggelegte_ohne(const dateien& ablage, const std::string& name) {
    std::vector<std::string> namen = weggelegte_lesen(ablage);
    std::erase_if(namen, [&](const std::string& einer) { return einer == name || !ablage.gibt_es(im_ordner(einer)); });
    return namen;
}

}  // namespace

bool protokoll_weggelegt(const dateien& ablage, std::string_view name) {
    const std::vector<std::string> namen = weggelegte_lesen(ablage);
    return std::find(namen.begin(), namen.end(), name) != namen.end();
}

void protokoll_weglegen(const dateien& ablage, const std::string& name) {
    std::vector<std::string> namen = weggelegte_ohne(ablage, name);
    namen.push_back(name);
    ablage.zeilen_schreiben(im_ordner(weggelegte), namen);
}

void protokoll_hervorholen(const dateien& ablage, const std::string& name) {
    if (protokoll_weggelegt(ablage, name)) {
        ablage.zeilen_schreiben(im_ordner(weggelegte), weggelegte_ohne(ablage, name));
    }
}

void protokolle_aufraeumen(const dateien& ablage, const plattform::datum_uhrzeit& heute, std::string_view in_gebrauch) {
    if (!ablage.ist_eigener_ordner(protokoll_ordner)) {
        return;
    }
    const std::vector<std::string> namen = protokolle(ablage.pfad(protokoll_ordner));
    const std::string erster_tag = tag_text(std::chrono::sys_days(tag_von(heute)) - frist);
    const auto zu_alt = std::lower_bound(namen.begin(), namen.end(), erster_tag) - namen.begin();
    const std::size_t zu_viele = namen.size() - std::min(namen.size(), protokolle_max);
    const std::size_t anzahl = std::min(std::max(static_cast<std::size_t>(zu_alt), zu_viele), loeschungen_max);
    for (std::size_t nr = 0; nr < anzahl; ++nr) {
        if (namen[nr] != in_gebrauch) {
            ablage.loeschen(im_ordner(namen[nr]));
        }
    }
}

namespace {

/// The answer of the calendar, as a log has it; empty if that is no time.
std::string im_protokoll(const rennende_angabe& ende) {
    constexpr std::string_view datumsmuster = "00.00.0000";
    constexpr std::string_view uhrzeitmuster = "00:00:00";
    if (!hat_muster(datumsmuster, ende.datum) || !hat_muster(uhrzeitmuster, ende.uhrzeit)) {
        return {};
    }
    const std::string tag(ende.datum);
    const std::string zeit(ende.uhrzeit);
    return "datum " + tag.substr(6, 4) + tag.substr(3, 2) + tag.substr(0, 2) + zeit.substr(0, 2) + zeit.substr(3, 2) +
           zeit.substr(6, 2) + "*";
}

}  // namespace

std::optional<std::string> protokoll_zu_ergebnis(const dateien& ablage, std::string_view ergebnis,
                                                 const rennende_angabe& ende) {
    std::string name(ergebnis);
    std::replace(name.begin(), name.end(), '/', '\\');
    const std::string vermerk = "\n# " + std::string(ergebnis_vermerk) + name + "*";
    const std::string endzeit = im_protokoll(ende);
    std::vector<std::string> namen = protokolle(ablage.pfad(protokoll_ordner));
    std::optional<std::string> mit_ende;
    std::optional<std::string> mit_namen;
    std::uintmax_t gelesen = 0;
    for (auto protokoll = namen.rbegin(); protokoll != namen.rend() && gelesen < suche_bytes_max; ++protokoll) {
        const fs::path datei = ablage.pfad(im_ordner(*protokoll));
        if (!ist_lesbar(datei, protokoll_bytes_max)) {
            continue;
        }
        std::ifstream strom(datei, std::ios::binary);
        const std::string inhalt{std::istreambuf_iterator<char>(strom), {}};
        gelesen += inhalt.size();
        const bool genannt = inhalt.find(vermerk) != std::string::npos;
        const bool endet = endzeit.empty() || inhalt.find(endzeit) != std::string::npos;
        if (genannt && endet) {
            return im_ordner(*protokoll);
        }
        if (genannt && !mit_namen) {
            mit_namen = im_ordner(*protokoll);
        }
        if (endet && !endzeit.empty() && !mit_ende) {
            mit_ende = im_ordner(*protokoll);
        }
    }
    return mit_ende ? mit_ende : mit_namen;
}

}  // namespace tarvel
