#include "tests/plattform/test_plattform.h"

#include <algorithm>
#include <atomic>
#include <chrono>
#include <fstream>
#include <iterator>

#include "core/ordnerblick.h"

namespace fs = std::filesystem;

namespace tarvel::test {

class virtueller_zeitgeber final : public plattform::zeitgeber {
public:
    virtueller_zeitgeber(test_plattform& maschine, plattform::zeitgeber_art art, dauer_ms intervall)
        : maschine_(maschine), art_(art), intervall_(intervall.count()) {}
    virtueller_zeitgeber(const virtueller_zeitgeber&) = delete;
    virtueller_zeitgeber& operator=(const virtueller_zeitgeber&) = delete;
    ~virtueller_zeitgeber() override { aus(); }

    void intervall(dauer_ms dauer) override {
        intervall_ = dauer.count();
        if (laeuft()) {
            aus();
            an();
        }
    }
    void an() override {
        if (laeuft_) {
            return;
        }
        laeuft_ = true;
        if (intervall_ > 0) {
            faellig = maschine_.jetzt_ + intervall_;
            maschine_.laufende_.push_back(this);
        }
    }
    void aus() override {
        laeuft_ = false;
        std::erase(maschine_.laufende_, this);
    }
    bool laeuft() const override { return laeuft_; }

    void feuern() {
        const bool holt_nach = art_ == plattform::zeitgeber_art::zaehlend;
        faellig = (holt_nach ? faellig : maschine_.jetzt_) + intervall_;
        if (bei_tick) {
            bei_tick();
        }
    }

    zeit_ms faellig = 0;

private:
    test_plattform& maschine_;
    plattform::zeitgeber_art art_;
    zeit_ms intervall_;
    bool laeuft_ = false;
};

test_plattform::test_plattform(const fs::path& unter) {
    static std::atomic<int> nummer{0};
    const auto start = std::chrono::steady_clock::now().time_since_epoch().count();
    ordner_ = unter / ("tarvel-test-" + std::to_string(start) + "-" + std::to_string(++nummer));
    fs::create_directories(ordner_);
}

test_plattform::~test_plattform() {
    std::error_code egal;
    fs::remove_all(ordner_, egal);
}

plattform::dienste test_plattform::dienste() {
    return {*this,       *this,        *this,       *this, kalender_, *this,           *this,  *this,
            anschluesse, bibliotheken, druckerport, *this, *this,     anhaengedateien, ordner_};
}

void test_plattform::laufen(zeit_ms dauer) {
    const zeit_ms ende = jetzt_ + dauer;
    if (!faeden_stehen) {
        haengende_.clear();
    }
    while (true) {
        virtueller_zeitgeber* naechster = nullptr;
        for (virtueller_zeitgeber* zeitgeber : laufende_) {
            if (zeitgeber->faellig <= ende && (naechster == nullptr || zeitgeber->faellig < naechster->faellig)) {
                naechster = zeitgeber;
            }
        }
        if (naechster == nullptr) {
            break;
        }
        jetzt_ = std::max(jetzt_, naechster->faellig);
        naechster->feuern();
    }
    jetzt_ = std::max(jetzt_, ende);
}

std::unique_ptr<plattform::zeitgeber> test_plattform::erzeugen(plattform::zeitgeber_art art, dauer_ms intervall) {
    return std::make_unique<virtueller_zeitgeber>(*this, art, intervall);
}

namespace {

/// Looks as the clock moves: between two looks nothing else happens. One that hangs at its end is left behind.
struct virtueller_abtaster final : schnittstelle {
    virtueller_abtaster(std::unique_ptr<plattform::zeitgeber> wecker, const bool& steht,
                        std::vector<std::unique_ptr<plattform::zeitgeber>>& haengende)
        : takt(std::move(wecker)), faeden_stehen(steht), zurueckgelassene(haengende) {
        takt->an();
    }
    ~virtueller_abtaster() override {
        takt->aus();
        if (faeden_stehen) {
            zurueckgelassene.push_back(std::move(takt));
        }
    }

    std::unique_ptr<plattform::zeitgeber> takt;
    const bool& faeden_stehen;
    std::vector<std::unique_ptr<plattform::zeitgeber>>& zurueckgelassene;
};

}  // namespace

std::unique_ptr<schnittstelle> test_plattform::starten(dauer_ms abstand, std::function<void(zeit_ms)> blick) {
    auto takt = erzeugen(plattform::zeitgeber_art::abfragend, abstand);
    takt->bei_tick = [this, blick = std::move(blick)] {
        if (!faeden_stehen) {
            blick(jetzt_);
        }
    };
    return std::make_unique<virtueller_abtaster>(std::move(takt), faeden_stehen, haengende_);
}

void test_plattform::zeigen(std::string_view text, std::string_view titel) {
    meldungen_gezeigt.push_back({std::string(text), std::string(titel)});
    if (waehrend_meldung) {
        waehrend_meldung();
    }
}

bool test_plattform::fragen(std::string_view text, std::string_view titel, const plattform::antwortworte& worte) {
    fragen_gestellt.push_back({std::string(text), std::string(titel)});
    antworten_der_frage = std::string(worte.ja) + "/" + std::string(worte.nein);
    if (waehrend_frage) {
        waehrend_frage();
    }
    return antwort;
}

plattform::dreifache_antwort test_plattform::fragen_mit_ausweg(std::string_view text, std::string_view titel,
                                                               const plattform::antwortworte& worte) {
    fragen_gestellt.push_back({std::string(text), std::string(titel)});
    antworten_der_frage = std::string(worte.ja) + "/" + std::string(worte.nein);
    return antwort_mit_ausweg;
}

bool test_plattform::neue_datei(const fs::path& pfad, std::string_view inhalt) const {
    const std::string name = pfad_als_utf8(pfad.filename());
    if (fs::exists(fs::symlink_status(pfad)) ||
        (!nicht_schreibbar.empty() && name.starts_with(nicht_schreibbar + "."))) {
        return false;
    }
    std::ofstream datei(pfad, std::ios::binary);
    datei << inhalt;
    datei.close();
    return static_cast<bool>(datei);
}

std::string test_plattform::datei_lesen(const std::string& name) const {
    std::ifstream datei(ordner_ / pfad_aus_utf8(name), std::ios::binary);
    return {std::istreambuf_iterator<char>(datei), {}};
}

void test_plattform::datei_schreiben(const std::string& name, const std::string& bytes) const {
    fs::create_directories((ordner_ / pfad_aus_utf8(name)).parent_path());
    std::ofstream(ordner_ / pfad_aus_utf8(name), std::ios::binary) << bytes;
}

bool test_plattform::datei_da(const std::string& name) const {
    return fs::exists(ordner_ / pfad_aus_utf8(name));
}

}  // namespace tarvel::test
