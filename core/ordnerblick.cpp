#include "core/ordnerblick.h"

#include <algorithm>
#include <system_error>

namespace fs = std::filesystem;

namespace tarvel {
namespace {

constexpr std::size_t namen_max = 5000;

char klein(char zeichen) {
    return zeichen >= 'A' && zeichen <= 'Z' ? static_cast<char>(zeichen + ('a' - 'A')) : zeichen;
}

}  // namespace

fs::path pfad_aus_utf8(std::string_view text) {
    try {
        return {std::u8string(text.begin(), text.end())};
    } catch (const std::system_error&) {
        return {};
    }
}

std::string pfad_als_utf8(const fs::path& pfad) {
    try {
        const std::u8string text = pfad.u8string();
        return {text.begin(), text.end()};
    } catch (const std::system_error&) {
        return {};
    }
}

bool beginnt_mit(std::string_view name, std::string_view anfang) {
    return name.size() >= anfang.size() &&
           std::equal(anfang.begin(), anfang.end(), name.begin(), [](char a, char b) { return klein(a) == klein(b); });
}

bool endet_auf(std::string_view name, std::string_view endung) {
    return name.size() >= endung.size() && beginnt_mit(name.substr(name.size() - endung.size()), endung);
}

ordnerblick ordner_ansehen(const fs::path& ort, const std::vector<std::string>& endungen) {
    ordnerblick blick;
    std::error_code fehler;
    const auto optionen = fs::directory_options::skip_permission_denied;
    for (fs::directory_iterator eintrag(ort, optionen, fehler), schluss; !fehler && eintrag != schluss;
         eintrag.increment(fehler)) {
        std::error_code egal;
        const std::string name = pfad_als_utf8(eintrag->path().filename());
        if (name.empty() || name.front() == '.') {
            continue;
        }
        const bool passt = std::any_of(endungen.begin(), endungen.end(),
                                       [&](const std::string& endung) { return endet_auf(name, endung); });
        if (eintrag->is_directory(egal)) {
            blick.ordner.push_back(name);
        } else if (passt && eintrag->is_regular_file(egal)) {
            blick.dateien.push_back(name);
        }
        if (std::max(blick.ordner.size(), blick.dateien.size()) >= namen_max) {
            break;
        }
    }
    std::sort(blick.ordner.begin(), blick.ordner.end());
    std::sort(blick.dateien.begin(), blick.dateien.end());
    return blick;
}

std::optional<std::chrono::seconds> dateialter(const fs::path& datei) {
    std::error_code fehler;
    const auto geaendert = fs::last_write_time(datei, fehler);
    return fehler ? std::nullopt
                  : std::optional(
                        std::chrono::duration_cast<std::chrono::seconds>(fs::file_time_type::clock::now() - geaendert));
}

std::vector<std::string> laufwerke() {
    std::vector<std::string> wurzeln;
    std::error_code fehler;
    for (char buchstabe = 'A'; buchstabe <= 'Z'; ++buchstabe) {
        const std::string laufwerk = std::string(1, buchstabe) + ":/";
        const fs::path wurzel(laufwerk);
        if (wurzel.has_root_name() && fs::exists(wurzel, fehler)) {
            wurzeln.push_back(laufwerk);
        }
    }
    if (wurzeln.empty()) {
        wurzeln.emplace_back("/");
    }
    return wurzeln;
}

}  // namespace tarvel
