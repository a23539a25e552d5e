#include "core/protokollfortsetzung.h"

#include <fstream>
#include <iterator>

#include "core/dateien.h"

namespace tarvel {

std::optional<protokollfortsetzung> protokollfortsetzung::lesen(const std::filesystem::path& datei) {
    if (!ist_lesbar(datei, bytes_max)) {
        return std::nullopt;
    }
    std::ifstream strom(datei, std::ios::binary);
    protokollfortsetzung gelesen;
    gelesen.datei_ = datei;
    gelesen.inhalt_.assign(std::istreambuf_iterator<char>(strom), {});
    if (strom.bad()) {
        return std::nullopt;
    }
    protokollleser leser(gelesen.inhalt_);
    while (leser.zeile()) {
    }
    gelesen.kette_ = leser.kette();
    const std::size_t ganz = leser.gelesen();
    gelesen.beschaedigt_ = gelesen.inhalt_.find("\r\n", ganz) != std::string::npos;
    gelesen.inhalt_.resize(ganz);
    return ganz > 0 ? std::optional(std::move(gelesen)) : std::nullopt;
}

std::unique_ptr<plattform::anhaengedatei> protokollfortsetzung::oeffnen(plattform::anhaenge_dienst& dienst) const {
    return dienst.oeffnen(datei_, inhalt_.size());
}

}  // namespace tarvel
