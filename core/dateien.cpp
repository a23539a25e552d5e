#include "core/dateien.h"

#include <algorithm>
#include <cstdint>
#include <fstream>
#include <iterator>
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

}  // namespace

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

std::optional<std::vector<std::string>> dateien::zeilen_lesen(std::string_view name, std::size_t zeilen_max,
                                                              std::size_t bytes_max) const {
    std::error_code fehler;
    const fs::path datei = pfad(name);
    if (datei.empty() || !fs::is_regular_file(datei, fehler) || fs::file_size(datei, fehler) > datei_max) {
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
    const fs::path datei = pfad(name);
    std::error_code fehler;
    if (datei.empty()) {
        return false;
    }
    fs::create_directories(datei.parent_path(), fehler);
    fs::path daneben = datei;
    daneben += neben_endung;
    {
        std::ofstream ausgabe(daneben, std::ios::binary | std::ios::trunc);
        if (!ausgabe) {
            return false;
        }
        for (const std::string& zeile : zeilen) {
            ausgabe << nach_1252(zeile) << "\r\n";
        }
        ausgabe.close();
        if (!ausgabe) {
            fs::remove(daneben, fehler);
            return false;
        }
    }
    fs::rename(daneben, datei, fehler);
    if (fehler) {
        std::error_code egal;
        fs::remove(daneben, egal);
        return false;
    }
    return true;
}

bool dateien::gibt_es(std::string_view name) const {
    const fs::path datei = pfad(name);
    std::error_code fehler;
    return !datei.empty() && fs::is_regular_file(datei, fehler);
}

bool dateien::ordner_anlegen(std::string_view name) const {
    const fs::path ordner = pfad(name);
    std::error_code fehler;
    return !ordner.empty() && fs::create_directories(ordner, fehler) && !fehler;
}

bool dateien::umbenennen(std::string_view alt, std::string_view neu) const {
    const fs::path von = pfad(alt);
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
    const fs::path nach = pfad(neu);
    std::error_code fehler;
    return !von.empty() && !nach.empty() && fs::copy_file(von, nach, fs::copy_options::overwrite_existing, fehler) &&
           !fehler;
}

bool dateien::hereinkopieren(const fs::path& quelle, std::string_view neu) const {
    const fs::path nach = pfad(neu);
    std::error_code fehler;
    if (nach.empty() || !fs::is_regular_file(quelle, fehler) || fs::file_size(quelle, fehler) > datei_max || fehler) {
        return false;
    }
    if (fs::equivalent(quelle, nach, fehler)) {
        return true;
    }
    fs::create_directories(nach.parent_path(), fehler);
    fs::path daneben = nach;
    daneben += neben_endung;
    std::error_code misslungen;
    fs::copy_file(quelle, daneben, fs::copy_options::overwrite_existing, misslungen);
    if (!misslungen) {
        fs::rename(daneben, nach, misslungen);
    }
    if (misslungen) {
        fs::remove(daneben, fehler);
    }
    return !misslungen;
}

bool dateien::loeschen(std::string_view name) const {
    const fs::path datei = pfad(name);
    std::error_code fehler;
    return !datei.empty() && fs::is_regular_file(datei, fehler) && fs::remove(datei, fehler) && !fehler;
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
