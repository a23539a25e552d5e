#include "core/dateien.h"

#include <algorithm>
#include <cstdint>
#include <fstream>
#include <iterator>
#include <random>
#include <system_error>

#include "core/ordnerblick.h"
#include "core/text.h"

namespace fs = std::filesystem;

namespace tarvel {
namespace {

constexpr const char* neben_endung = ".tarvel-neu";

/// Refused by one file system or another.
bool unzulaessig(char zeichen) {
    return static_cast<unsigned char>(zeichen) < ' ' ||
           std::string_view("\\/:*?\"<>|").find(zeichen) != std::string_view::npos;
}

constexpr std::uintmax_t datei_max = std::uintmax_t{16} * 1024 * 1024;  // far above any file of the program

/// The standard library cannot tell whether the disk has a file.
class einfaches_dateisystem final : public plattform::dateisystem {
public:
    bool neue_datei(const fs::path& pfad, std::string_view inhalt) const override {
        std::error_code fehler;
        if (fs::exists(fs::symlink_status(pfad, fehler))) {
            return false;
        }
        std::ofstream ausgabe(pfad, std::ios::binary);
        ausgabe.write(inhalt.data(), static_cast<std::streamsize>(inhalt.size()));
        ausgabe.close();
        if (!ausgabe) {
            fs::remove(pfad, fehler);
        }
        return static_cast<bool>(ausgabe);
    }
    bool ist_verweis(const fs::path& pfad) const override {
        std::error_code fehler;
        return fs::is_symlink(fs::symlink_status(pfad, fehler));
    }
};

/// The whole content; none of what is no file, or too large.
std::optional<std::string> inhalt_lesen(const fs::path& datei) {
    std::ifstream eingabe;
    if (ist_lesbar(datei, datei_max)) {
        eingabe.open(datei, std::ios::binary);
    }
    if (!eingabe.is_open()) {
        return std::nullopt;
    }
    std::string inhalt{std::istreambuf_iterator<char>(eingabe), {}};
    return eingabe.bad() ? std::nullopt : std::optional(std::move(inhalt));
}

/// A name beside the file that nobody can know before.
fs::path daneben(const fs::path& datei) {
    fs::path name = datei;
    name += "." + std::to_string(std::random_device{}()) + neben_endung;
    return name;
}

}  // namespace

dateien::dateien(fs::path programmordner) : ordner_(std::move(programmordner)) {
    static const einfaches_dateisystem einfach;
    system_ = &einfach;
}

bool ist_lesbar(const fs::path& datei, std::uintmax_t bytes_max) {
    std::error_code fehler;
    return fs::is_regular_file(datei, fehler) && fs::file_size(datei, fehler) <= bytes_max && !fehler;
}

bool dateiname_zulaessig(std::string_view name) {
    return std::none_of(name.begin(), name.end(), unzulaessig) && !name.starts_with('.');
}

std::string als_dateiname(std::string_view text) {
    std::string name(text);
    std::replace_if(name.begin(), name.end(), unzulaessig, '_');
    if (name.starts_with('.')) {
        name.front() = '_';
    }
    return name;
}

fs::path dateien::pfad(std::string_view name) const {
    std::string text(name);
    std::replace(text.begin(), text.end(), '\\', '/');
    const fs::path roh = pfad_aus_utf8(text);
    const bool unlesbar = roh.empty() && !text.empty();
    if (unlesbar || text.find('\0') != std::string::npos) {
        return {};
    }
    const fs::path ziel = roh.lexically_normal();
    if (ziel.is_absolute() || ziel.has_root_path() || (!ziel.empty() && *ziel.begin() == "..")) {
        return {};
    }
    return ordner_ / ziel;
}

std::string dateien::sprachdatei(std::string_view name) const {
    const std::size_t trenner = name.find_first_of("\\/");
    return sprachordner_.empty() || trenner == std::string_view::npos
               ? std::string(name)
               : sprachordner_ + std::string(name.substr(trenner));
}

std::optional<std::vector<std::string>> dateien::zeilen_lesen(std::string_view name, std::size_t zeilen_max,
                                                              std::size_t bytes_max) const {
    const fs::path datei = pfad(name);
    if (datei.empty() || !ist_lesbar(datei, datei_max)) {
        return std::nullopt;
    }
    std::ifstream eingabe(datei, std::ios::binary);
    if (!eingabe) {
        return std::nullopt;
    }
    std::vector<std::string> zeilen;
    std::string zeile;
    while (zeilen.size() < zeilen_max && std::getline(eingabe, zeile)) {
        while (!zeile.empty() && zeile.back() == '\r') {
            zeile.pop_back();
        }
        std::replace(zeile.begin(), zeile.end(), '\r', ' ');  // as the writers do: what was read is what is written
        zeilen.push_back(von_1252(std::string_view(zeile).substr(0, bytes_max)));
    }
    if (eingabe.bad()) {
        return std::nullopt;
    }
    return zeilen;
}

bool dateien::zeilen_schreiben(std::string_view name, const std::vector<std::string>& zeilen) const {
    std::string inhalt;
    for (const std::string& zeile : zeilen) {
        inhalt += nach_1252(zeile) + "\r\n";
    }
    return ersetzen(schreibpfad(name), inhalt);
}

bool dateien::ersetzen(const fs::path& datei, std::string_view inhalt) const {
    if (datei.empty()) {
        return false;
    }
    std::error_code fehler;
    fs::create_directories(datei.parent_path(), fehler);
    const fs::path neu = daneben(datei);
    if (!system_->neue_datei(neu, inhalt)) {
        return false;
    }
    fs::rename(neu, datei, fehler);
    if (fehler) {
        std::error_code egal;
        fs::remove(neu, egal);
    }
    return !fehler;
}

bool dateien::gibt_es(std::string_view name) const {
    const fs::path datei = pfad(name);
    std::error_code fehler;
    return !datei.empty() && fs::is_regular_file(datei, fehler);
}

bool dateien::ordner_anlegen(std::string_view name) const {
    const fs::path ordner = schreibpfad(name);
    std::error_code fehler;
    return !ordner.empty() && fs::create_directories(ordner, fehler) && !fehler;
}

bool dateien::umbenennen(std::string_view alt, std::string_view neu) const {
    const fs::path von = schreibpfad(alt);
    const fs::path nach = pfad(neu);
    std::error_code fehler;
    if (von.empty() || nach.empty() || fs::exists(nach, fehler) || fehler) {
        return false;
    }
    fs::rename(von, nach, fehler);
    return !fehler;
}

bool dateien::kopieren(std::string_view alt, std::string_view neu) const {
    const fs::path von = pfad(alt);
    const auto inhalt = von.empty() ? std::nullopt : inhalt_lesen(von);
    return inhalt && ersetzen(schreibpfad(neu), *inhalt);
}

bool dateien::hereinkopieren(const fs::path& quelle, std::string_view neu) const {
    const fs::path nach = schreibpfad(neu);
    std::error_code fehler;
    if (!nach.empty() && fs::equivalent(quelle, nach, fehler)) {
        return true;
    }
    const auto inhalt = inhalt_lesen(quelle);
    return inhalt && ersetzen(nach, *inhalt);
}

bool dateien::loeschen(std::string_view name) const {
    const fs::path datei = schreibpfad(name);
    std::error_code fehler;
    return !datei.empty() && fs::is_regular_file(datei, fehler) && fs::remove(datei, fehler) && !fehler;
}

bool dateien::wegraeumen(std::string_view name, std::string_view ordner) const {
    const fs::path von = schreibpfad(name);
    const fs::path ort = pfad(ordner);
    std::error_code fehler;
    if (von.empty() || ort.empty() || !fs::is_regular_file(fs::symlink_status(von, fehler))) {
        return false;
    }
    fs::create_directories(ort, fehler);
    fs::path nach = ort / von.filename();
    for (int nummer = 2; fs::exists(fs::symlink_status(nach, fehler)); ++nummer) {
        nach = ort / von.stem();
        nach += "-" + std::to_string(nummer);
        nach += von.extension();
    }
    std::error_code misslungen;
    fs::rename(von, nach, misslungen);
    if (!misslungen) {
        fs::last_write_time(nach, fs::file_time_type::clock::now(), fehler);
    }
    return !misslungen;
}

bool dateien::ist_eigener_ordner(std::string_view ordner) const {
    const fs::path ort = pfad(ordner);
    if (ort.empty()) {
        return false;
    }
    fs::path weg = ordner_;
    const fs::path teile = ort.lexically_relative(ordner_);
    return std::none_of(teile.begin(), teile.end(), [&](const fs::path& teil) {
        const bool hier = teil.empty() || teil == ".";
        return !hier && system_->ist_verweis(weg /= teil);
    });
}

void dateien::aeltere_loeschen(std::string_view ordner, std::chrono::days als) const {
    if (nur_lesen_) {
        return;
    }
    const auto grenze = fs::file_time_type::clock::now() - als;
    for (const std::string& name : auflisten(ordner, "", "")) {
        std::error_code fehler;
        const fs::path datei = pfad(ordner) / pfad_aus_utf8(name);
        const auto geaendert = fs::last_write_time(datei, fehler);
        if (!fehler && geaendert < grenze) {
            fs::remove(datei, fehler);
        }
    }
}

void dateien::reste_loeschen(std::string_view ordner) const {
    std::vector<fs::path> reste;
    std::error_code fehler;
    for (fs::directory_iterator eintrag(schreibpfad(ordner), fehler), schluss; !fehler && eintrag != schluss;
         eintrag.increment(fehler)) {
        std::error_code egal;
        if (endet_auf(pfad_als_utf8(eintrag->path().filename()), neben_endung) &&
            !fs::is_directory(eintrag->symlink_status(egal))) {
            reste.push_back(eintrag->path());
        }
    }
    for (const fs::path& rest : reste) {
        fs::remove(rest, fehler);
    }
}

std::vector<std::string> dateien::auflisten(std::string_view ordner, std::string_view anfang,
                                            std::string_view ende) const {
    std::vector<std::string> namen;
    std::error_code fehler;
    const fs::path ort = pfad(ordner);
    if (ort.empty()) {
        return namen;
    }
    for (fs::directory_iterator eintrag(ort, fehler), schluss; !fehler && eintrag != schluss;
         eintrag.increment(fehler)) {
        std::error_code egal;
        std::string name = pfad_als_utf8(eintrag->path().filename());
        if (eintrag->is_regular_file(egal) && !endet_auf(name, neben_endung) &&
            name.size() >= anfang.size() + ende.size() && beginnt_mit(name, anfang) && endet_auf(name, ende)) {
            namen.push_back(std::move(name));
        }
    }
    std::sort(namen.begin(), namen.end());
    return namen;
}

}  // namespace tarvel
