#include "core/mitschriftdienste.h"

#include <algorithm>
#include <bit>
#include <string>
#include <utility>

namespace tarvel {

/// A timer each of whose ticks is a doing.
class mitschriftdienste::zeitgeber final : public plattform::zeitgeber {
public:
    zeitgeber(zeitgeber_dienst& dienst, std::unique_ptr<plattform::zeitgeber> echter, mitschrift::sorte sorte)
        : dienst_(dienst), echter_(std::move(echter)) {
        const int nummer = dienst_.m.eingang(
            "t" + std::to_string(dienst_.anzahl++), 0, [this](const mitschrift::werte& /*keine*/) { bei_tick(); },
            sorte);
        echter_->bei_tick = [this, nummer] { dienst_.m.geschieht(nummer); };
        dienst_.alle.push_back(this);
    }
    zeitgeber(const zeitgeber&) = delete;
    zeitgeber& operator=(const zeitgeber&) = delete;
    ~zeitgeber() override { std::erase(dienst_.alle, this); }

    void intervall(dauer_ms dauer) override { echter_->intervall(dauer); }
    void an() override {
        an_ = true;
        dienst_.m.mehr_als_gezaehlt();
        if (!dienst_.m.liest()) {
            echter_->an();
        }
    }
    void aus() override {
        if (std::exchange(an_, false)) {
            dienst_.m.mehr_als_gezaehlt();
        }
        echter_->aus();
    }
    bool laeuft() const override { return an_; }

private:
    zeitgeber_dienst& dienst_;
    std::unique_ptr<plattform::zeitgeber> echter_;
    bool an_ = false;
};

mitschriftdienste::mitschriftdienste(mitschrift& m, const plattform::dienste& echte)
    : echte_(echte),
      uhr_(m, echte.uhr),
      zeitgeber_(std::make_unique<zeitgeber_dienst>(m, echte.zeitgeber)),
      zufall_(m, echte.zufall),
      kalender_(m, echte.kalender),
      meldungen_(m, echte.meldungen),
      klang_(m, echte.klang) {}

mitschriftdienste::~mitschriftdienste() = default;

std::unique_ptr<plattform::zeitgeber> mitschriftdienste::zeitgeber_dienst::erzeugen(plattform::zeitgeber_art art,
                                                                                    dauer_ms intervall) {
    using sorte = mitschrift::sorte;
    constexpr dauer_ms schnell{12};
    const bool abfragend = art == plattform::zeitgeber_art::abfragend;
    const sorte haeufig = abfragend ? sorte::blick : sorte::zaehlung;
    const bool oft = intervall > 0ms && intervall <= (abfragend ? 1ms : schnell);
    return std::make_unique<zeitgeber>(*this, echte.erzeugen(art, intervall), oft ? haeufig : sorte::handlung);
}

void mitschriftdienste::zeitgeber_starten() {
    for (zeitgeber* einer : zeitgeber_->alle) {
        if (einer->laeuft()) {
            einer->an();
        }
    }
}

double mitschriftdienste::zufall::bruchteil() {
    const std::int64_t gezogen = m.antwort("zufall", [&] { return std::bit_cast<std::int64_t>(echte.bruchteil()); });
    constexpr double hoechstens = 0x1.fffffffffffffp-1;  // below 1
    return std::clamp(protokoll_bruch(gezogen, 0), 0.0, hoechstens);
}

plattform::datum_uhrzeit mitschriftdienste::kalender::jetzt() const {
    constexpr std::int64_t stelle = 100;
    std::int64_t rest = m.antwort("datum", [&] {
        const plattform::datum_uhrzeit d = echte.jetzt();
        std::int64_t alles = d.jahr;
        for (const int teil : {d.monat, d.tag, d.stunde, d.minute, d.sekunde}) {
            alles = alles * stelle + teil;
        }
        return alles;
    });
    plattform::datum_uhrzeit d;
    for (int* teil : {&d.sekunde, &d.minute, &d.stunde, &d.tag, &d.monat}) {
        *teil = static_cast<int>(rest % stelle);
        rest /= stelle;
    }
    d.jahr = static_cast<int>(rest);
    return d;
}

void mitschriftdienste::meldungen::zeigen(std::string_view text, std::string_view titel) {
    m.tor([&] { echte.zeigen(text, titel); });
}

void mitschriftdienste::meldungen::bestaetigen(std::string_view text, std::string_view titel) {
    m.tor([&] { echte.bestaetigen(text, titel); });
}

bool mitschriftdienste::meldungen::fragen(std::string_view text, std::string_view titel,
                                          const plattform::antwortworte& worte) {
    bool ja = false;
    m.tor([&] { ja = echte.fragen(text, titel, worte); });
    return m.antwort("antwort", [&] { return ja ? 1 : 0; }) == 1;
}

bool mitschriftdienste::meldungen::anbieten(std::string_view text, std::string_view titel,
                                            const plattform::antwortworte& worte) {
    bool ja = false;
    m.tor([&] { ja = echte.anbieten(text, titel, worte); });
    return m.antwort("antwort", [&] { return ja ? 1 : 0; }) == 1;
}

plattform::dreifache_antwort mitschriftdienste::meldungen::fragen_mit_ausweg(std::string_view text,
                                                                             std::string_view titel,
                                                                             const plattform::antwortworte& worte) {
    plattform::dreifache_antwort gewaehlt = plattform::dreifache_antwort::abbrechen;
    m.tor([&] { gewaehlt = echte.fragen_mit_ausweg(text, titel, worte); });
    return static_cast<plattform::dreifache_antwort>(
        m.antwort("antwort", [&] { return static_cast<std::int64_t>(gewaehlt); }));
}

void mitschriftdienste::meldungen::mitteilen(std::string_view text) {
    m.tor([&] { echte.mitteilen(text); });
}

void mitschriftdienste::klang::spielen(std::string_view datei) {
    if (!m.liest()) {
        echte.spielen(datei);
    }
}

plattform::dienste mitschriftdienste::dienste() {
    return {uhr_,
            *zeitgeber_,
            meldungen_,
            klang_,
            kalender_,
            echte_.bildschirm,
            echte_.prozess,
            zufall_,
            echte_.serienports,
            echte_.bibliotheken,
            echte_.druckerport,
            echte_.abtaster,
            echte_.dateisystem,
            echte_.anhaenge,
            echte_.programmordner};
}

}  // namespace tarvel
