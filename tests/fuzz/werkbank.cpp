#include "tests/fuzz/werkbank.h"

#include <fstream>
#include <stdexcept>

namespace fs = std::filesystem;

namespace tarvel::test {
namespace {

/// A million files each written once are no work for a disk.
fs::path schneller_ordner() {
    const fs::path im_speicher = "/dev/shm";
    std::error_code fehler;
    return fs::is_directory(im_speicher, fehler) ? im_speicher : fs::temp_directory_path();
}

}  // namespace

werkbank::werkbank() : t(schneller_ordner()) {
    fs::create_directories(ordner() / "ausgang");
}

void werkbank::legen(std::string_view name, std::string_view bytes) {
    t.maschine.meldungen_gezeigt.clear();
    std::ofstream datei(ordner() / name, std::ios::binary | std::ios::trunc);
    datei.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    datei.close();
    if (!datei) {
        throw std::runtime_error("no room in " + ordner().string());
    }
}

void fordern(bool erfuellt, const char* was) {
    if (!erfuellt) {
        throw std::logic_error(was);
    }
}

}  // namespace tarvel::test
