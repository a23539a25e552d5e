#include "results/papiername.h"

#include <system_error>
#include <vector>

namespace tarvel {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view ordnerdatei = "tvk_papier.ini";

fs::path aus_utf8(const std::string& text) {
    return {std::u8string(text.begin(), text.end())};
}

fs::path letzter_ordner(const dateien& ablage) {
    const auto zeilen = ablage.zeilen_lesen(ordnerdatei, 1);
    std::error_code fehler;
    const fs::path ordner = zeilen && !zeilen->empty() ? aus_utf8(zeilen->front()) : fs::path();
    return ordner.is_absolute() && fs::is_directory(ordner, fehler) ? ordner : fs::path();
}

}  // namespace

std::string papiername(std::string_view ordner, const papierzeit& wann, const std::string& was) {
    constexpr std::size_t datum_zeichen = 10;
    constexpr std::size_t uhrzeit_zeichen = 5;
    std::string name;
    if (const std::string& d = wann.datum; d.size() == datum_zeichen) {
        name = d.substr(6) + "-" + d.substr(3, 2) + "-" + d.substr(0, 2) + " ";
        if (wann.uhrzeit.size() >= uhrzeit_zeichen) {
            name += wann.uhrzeit.substr(0, 2) + "." + wann.uhrzeit.substr(3, 2) + " ";
        }
    }
    return std::string(ordner) + "\\" + als_dateiname(name + was);
}

fs::path papierdatei_vorschlagen(const dateien& ablage, const std::string& name, std::string_view endung) {
    const fs::path ordner = letzter_ordner(ablage);
    const fs::path unten = ablage.pfad(name + std::string(endung));
    const fs::path erste = ordner.empty() ? unten : ordner / unten.filename();
    fs::path frei = erste;
    std::error_code fehler;
    for (int nummer = 2; fs::exists(frei, fehler) && nummer < 100; ++nummer) {
        frei = erste.parent_path() / erste.stem();
        frei += " (" + std::to_string(nummer) + ")" + std::string(endung);
    }
    return frei;
}

void papierordner_merken(const dateien& ablage, const fs::path& datei) {
    const std::u8string ordner = datei.parent_path().u8string();
    ablage.zeilen_schreiben(ordnerdatei, {std::string(ordner.begin(), ordner.end())});
}

}  // namespace tarvel
