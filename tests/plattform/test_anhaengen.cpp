#include "tests/plattform/test_anhaengen.h"

#include <algorithm>
#include <fstream>
#include <system_error>

namespace fs = std::filesystem;

namespace tarvel::test {
namespace {

class test_anhaengedatei final : public plattform::anhaengedatei {
public:
    test_anhaengedatei(test_anhaenge_dienst& dienst, const fs::path& pfad)
        : dienst_(dienst), datei_(pfad, std::ios::binary | std::ios::app) {}

    bool offen() const { return datei_.is_open(); }
    bool anhaengen(std::string_view bytes) override {
        if (gescheitert_) {
            return false;
        }
        const std::uintmax_t passend = std::min<std::uintmax_t>(bytes.size(), dienst_.platz);
        dienst_.platz -= passend;
        datei_.write(bytes.data(), static_cast<std::streamsize>(passend)).flush();
        gescheitert_ = passend < bytes.size() || !datei_;
        ++dienst_.angehaengt;
        return true;
    }
    bool gescheitert() const override { return gescheitert_; }
    bool sichern() override {
        ++dienst_.gesichert;
        return !gescheitert_;
    }

private:
    test_anhaenge_dienst& dienst_;
    std::ofstream datei_;
    bool gescheitert_ = false;
};

}  // namespace

std::unique_ptr<plattform::anhaengedatei> test_anhaenge_dienst::oeffnen(const fs::path& pfad,
                                                                        std::optional<std::uintmax_t> laenge) {
    std::error_code fehler;
    if (!ordner_schreibbar || fs::is_symlink(fs::symlink_status(pfad, fehler))) {
        return nullptr;
    }
    fs::create_directories(pfad.parent_path(), fehler);
    const std::uintmax_t groesse = fs::file_size(pfad, fehler);
    if (!fehler && laenge && *laenge < groesse) {
        fs::resize_file(pfad, *laenge, fehler);
    }
    auto datei = std::make_unique<test_anhaengedatei>(*this, pfad);
    if (!datei->offen()) {
        return nullptr;
    }
    ++geoeffnet;
    return datei;
}

}  // namespace tarvel::test
