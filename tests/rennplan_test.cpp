#include "competition/rennplan.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <map>
#include <set>

#include "tests/plattform/umgebung.h"

namespace tarvel {
namespace {

using m = wettkampf_modus;
using zahlen = std::vector<int>;

const std::set<m> mit_gruppen{
    m::gruppen,          m::gruppen_verteilt,          m::am_stueck,      m::am_stueck_verteilt,     m::einmal,
    m::schema_am_stueck, m::schema_am_stueck_verteilt, m::schema_gruppen, m::schema_gruppen_verteilt};
const std::set<m> verteilt{m::gruppen_verteilt, m::am_stueck_verteilt, m::schema_am_stueck_verteilt,
                           m::schema_gruppen_verteilt};
const std::set<m> am_stueck{m::am_stueck, m::am_stueck_verteilt, m::schema_am_stueck, m::schema_am_stueck_verteilt};

struct planfahrt {
    int rennen;
    int spur;
};

/// One plan, and every promise that it gives.
class Pruefung {
public:
    explicit Pruefung(const planvorgabe& v)
        : v_(v),
          plan_(rennplan_erstellen(v)),
          anzahl_(static_cast<int>(std::count(v.aktiv.begin(), v.aktiv.end(), true))),
          fahrer_(std::min(v.fahrer, planfahrer_max(v.aktiv))),
          plaetze_(static_cast<int>(plan_.teilnehmer.size())),
          am_stueck_(am_stueck.contains(v.modus)),
          gruppen_(mit_gruppen.contains(v.modus)) {}

    /// What is broken; empty if nothing is.
    const std::string& fehler() {
        startliste();
        laenge();
        for (int r = 1; fehler_.empty() && r <= plan_.rennen_gesamt(); ++r) {
            for (int teil = 1; teil <= plan_.teile; ++teil) {
                rennen(r, plan_.feld(r, teil));
            }
        }
        for (int platz = 1; fehler_.empty() && platz <= plaetze_; ++platz) {
            fahrten(platz);
        }
        return fehler_;
    }

private:
    void fordern(bool wahr, const char* was) {
        if (!wahr) {
            fehler_ += std::string(was) + "; ";
        }
    }

    void startliste() {
        int wer = 0;
        std::set<int> nummern;
        zahlen fueller(static_cast<std::size_t>((plaetze_ + anzahl_ - 1) / anzahl_));
        for (int i = 0; i < plaetze_; ++i) {
            const startplatz& p = plan_.platz(i + 1);
            int& hier = fueller.at(static_cast<std::size_t>(i / anzahl_));
            fordern(p.ist_fueller() || (p.fahrer == ++wer && hier == 0), "drivers in order, before fillers");
            hier += p.ist_fueller() ? 1 : 0;
            fordern(!p.ist_fueller() || nummern.insert(p.fueller).second, "filler twice");
        }
        const int voll = (fahrer_ + anzahl_ - 1) / anzahl_ * anzahl_;
        fordern(wer == fahrer_, "driver lost");
        fordern(plaetze_ == (gruppen_ ? voll : std::max(fahrer_, anzahl_)), "no more fillers than needed");
        fordern(nummern.empty() || *nummern.rbegin() == static_cast<int>(nummern.size()), "fillers from 1 on");
        if (verteilt.contains(v_.modus)) {
            fordern(std::is_sorted(fueller.begin(), fueller.end()) && fueller.back() - fueller.front() <= 1, "spread");
        } else {
            fordern(std::count(fueller.begin(), fueller.end() - 1, 0) + 1 == std::ssize(fueller), "fillers at the end");
        }
    }

    void laenge() {
        const bool bewegte_wagen = v_.centermode && am_stueck_;
        int gesamt = bewegte_wagen || v_.modus == m::einmal ? plaetze_ / anzahl_ : plaetze_;
        gesamt *= v_.modus == m::jeder_gegen_jeden ? plaetze_ - 1 : 1;
        fordern(plan_.rennen_gesamt() == gesamt, "number of races");
        fordern(plan_.teile == (bewegte_wagen ? anzahl_ : 1), "parts");
    }

    void rennen(int nummer, const startfeld& feld) {
        const int gruppe =
            am_stueck_ && plan_.teile == 1 ? (nummer - 1) / anzahl_ : (nummer - 1) % (plaetze_ / anzahl_);
        for (const int spur : alle_spuren) {
            const int wer = feld[spur];
            fordern((wer != 0) == v_.aktiv[spur], "all lanes in use, and no other");
            if (wer != 0) {
                fordern(std::count(feld.begin(), feld.end(), wer) == 1, "twice in a race");
                fordern(!gruppen_ || (wer - 1) / anzahl_ == gruppe, "each group when it is its turn");
                seine_.at(static_cast<std::size_t>(wer)).push_back({nummer, spur});
            }
        }
    }

    void fahrten(int platz) {
        const std::vector<planfahrt>& f = seine_.at(static_cast<std::size_t>(platz));
        const auto oft = v_.modus == m::jeder_gegen_jeden ? plaetze_ - 1 : 1;
        for (const int spur : alle_spuren) {
            const bool dort = v_.aktiv[spur] && v_.modus != m::einmal && !plan_.platz(platz).ist_fueller();
            const auto auf =
                std::count_if(f.begin(), f.end(), [&](const planfahrt& eine) { return eine.spur == spur; });
            fordern(!dort || auf == oft, "every lane once");
        }
        fordern(v_.modus != m::einmal || f.size() == 1, "one race");
        for (std::size_t i = 1; i < f.size(); ++i) {
            wechsel(f[i - 1], f[i]);
        }
    }

    /// What lies between two races of a driver.
    void wechsel(const planfahrt& von, const planfahrt& nach) {
        const int wartet = nach.rennen - von.rennen - 1;
        const auto [ziel, pause] = naechste(von.spur);
        if (v_.modus != m::rotation && v_.modus != m::jeder_gegen_jeden) {
            fordern(nach.spur == ziel, "order of lanes");
        }
        fordern(v_.modus != m::schema_rotation || wartet == (pause ? plaetze_ - anzahl_ : 0), "waits for his turn");
        fordern(v_.modus != m::schema_gleichmaessig || wartet <= (plaetze_ - 1) / anzahl_, "waits for too long");
    }

    /// The lane after this one, and whether the pause lies between.
    std::pair<int, bool> naechste(int spur) const {
        const bool schema = v_.modus >= m::schema_rotation || plan_.teile > 1;
        const wechsel_folge folge = schema ? v_.folge : wechsel_folge{0, 1, 2, 3, 4, 5, 6, 7};
        auto i = static_cast<std::size_t>(std::find(folge.begin(), folge.end(), spur) - folge.begin());
        bool pause = false;
        do {
            i = i % 7 + 1;
            pause = pause || folge.at(i) == wechsel_pause;
        } while (folge.at(i) == wechsel_pause || !v_.aktiv[folge.at(i)]);
        return {folge.at(i), pause};
    }

    planvorgabe v_;
    rennplan plan_;
    int anzahl_;   ///< of lanes
    int fahrer_;   ///< who have a place
    int plaetze_;  ///< with fillers
    bool am_stueck_;
    bool gruppen_;
    std::array<std::vector<planfahrt>, 101> seine_;
    std::string fehler_;
};

spuren<bool> lanes(int maske) {
    spuren<bool> aktiv;
    for (const int spur : alle_spuren) {
        aktiv[spur] = (maske >> (spur - 1) & 1) != 0;
    }
    return aktiv;
}

void pruefen(const planvorgabe& v) {
    if (plan_pruefen(v) == planmangel::keiner) {
        EXPECT_EQ(Pruefung(v).fehler(), "")
            << "kind " << static_cast<int>(v.modus) << ", " << v.fahrer << " drivers, centermode " << v.centermode
            << ", order " << wechsel_folge_text(v.folge) << ", lanes " << testing::PrintToString(v.aktiv.werte_);
    } else {
        EXPECT_EQ(v.modus, m::jeder_gegen_jeden);
        EXPECT_TRUE(rennplan_erstellen(v).rennen.empty());
    }
}

const std::vector<wechsel_folge> folgen{wechsel_standard, {0, 2, 4, 7, 6, 5, 3, 1}, {0, 7, 1, 2, 3, 4, 5, 6}};

/// What a kind of plan heeds.
std::vector<planvorgabe> spielarten(m modus) {
    std::vector<planvorgabe> alle;
    for (const bool centermode : {false, true}) {
        for (const wechsel_folge& folge : folgen) {
            if ((modus >= m::schema_rotation || centermode || folge == wechsel_standard) &&
                (!centermode || am_stueck.contains(modus))) {
                alle.push_back({modus, 0, {}, folge, centermode});
            }
        }
    }
    return alle;
}

// All of them take minutes; each day has its share. TARVEL_PLAENE=1 checks all, TARVEL_SAAT=<day> the share of that
// day.
TEST(Rennplan, HaeltWasErVerspricht) {
    const unsigned schritt = std::max(test::aus_umgebung("TARVEL_PLAENE", 13), 1U);
    const auto heute = std::chrono::floor<std::chrono::days>(std::chrono::system_clock::now()).time_since_epoch();
    unsigned nummer = test::aus_umgebung("TARVEL_SAAT", static_cast<unsigned>(heute.count()));
    unsigned geprueft = 0;
    for (int modus = 1; modus <= wettkampf_modus_max; ++modus) {
        for (planvorgabe v : spielarten(static_cast<m>(modus))) {
            for (int maske = 1; maske < 64; ++maske) {
                v.aktiv = lanes(maske);
                for (v.fahrer = 2; v.fahrer <= 99; ++v.fahrer) {
                    if (nummer++ % schritt == 0) {
                        pruefen(v);
                        ++geprueft;
                    }
                }
            }
        }
    }
    RecordProperty("plans", static_cast<int>(geprueft));
}

zahlen fueller(const planvorgabe& v) {
    zahlen nummern;
    for (const startplatz& platz : rennplan_erstellen(v).teilnehmer) {
        nummern.push_back(platz.fueller);
    }
    return nummern;
}

TEST(Rennplan, FuellerStehenWoSieHingehoeren) {
    EXPECT_EQ(fueller({m::gruppen, 5, lanes(0b11)}), (zahlen{0, 0, 0, 0, 0, 1}));
    EXPECT_EQ(fueller({m::gruppen_verteilt, 5, lanes(0b111)}), (zahlen{0, 0, 0, 0, 0, 1}));
    EXPECT_EQ(fueller({m::gruppen_verteilt, 7, lanes(0b111)}), (zahlen{0, 0, 0, 0, 0, 2, 0, 0, 1}));
    EXPECT_EQ(fueller({m::schema_gruppen_verteilt, 7, lanes(63)}), (zahlen{0, 0, 0, 0, 2, 4, 0, 0, 0, 1, 3, 5}));
    EXPECT_EQ(fueller({m::rotation, 2, lanes(0b1111)}), (zahlen{0, 0, 1, 2}));
    const rennplan plan = rennplan_erstellen({m::am_stueck_verteilt, 4, lanes(0b111)});
    EXPECT_EQ(teilnehmer_namen(plan, std::vector<std::string>{"Anna", "Bernd", "Clara", "Dirk"}, "frei"),
              (std::vector<std::string>{"Anna", "Bernd", "frei 2", "Clara", "Dirk", "frei 1"}));
}

TEST(Rennplan, JederTrifftJedenZweimalMitGetauschtenSpuren) {
    const rennplan plan = rennplan_erstellen({m::jeder_gegen_jeden, 10, lanes(0b100100)});
    EXPECT_EQ(plan.rennen_gesamt(), 90);
    std::set<std::pair<int, int>> paare;
    std::map<int, int> gefahren;
    for (int r = 1; r <= plan.rennen_gesamt(); ++r) {
        const startfeld feld = plan.feld(r);
        EXPECT_TRUE(paare.insert({feld[3], feld[6]}).second) << r;
        EXPECT_EQ(plan.heat(r, 3), ++gefahren[feld[3]]) << r;
        EXPECT_EQ(plan.heat(r, 6), ++gefahren[feld[6]]) << r;
        EXPECT_EQ(plan.spur_von(r, feld[6]), 6) << r;
    }
    EXPECT_EQ(plan.spur_von(1, 9), 0);
    EXPECT_EQ(plan.heat(1, 1), 0);
    EXPECT_EQ(plan.feld(91), startfeld{});
}

TEST(Rennplan, SagtWarumEsKeinenGibtUndWerKeinenPlatzHat) {
    EXPECT_EQ(plan_pruefen({m::rotation, 1, {}}), planmangel::zu_wenige_fahrer);
    EXPECT_EQ(plan_pruefen({m::rotation, 2, {}}), planmangel::keine_spur);
    EXPECT_EQ(plan_pruefen({m::jeder_gegen_jeden, 11, {}}), planmangel::zu_viele_fahrer);
    EXPECT_EQ(plan_pruefen({m::jeder_gegen_jeden, 10, lanes(0b111)}), planmangel::nicht_zwei_spuren);
    EXPECT_EQ(planfahrer_max(lanes(63)), 96);
    EXPECT_EQ(planfahrer_max(lanes(0b10101)), 99);
    EXPECT_TRUE(rennplan_erstellen({static_cast<m>(14), 9, lanes(63)}).rennen.empty());
}

TEST(WettkampfModus, FolgtAusSchemaUndKaestchen) {
    const auto modus = [](const wechsel_folge& folge, gruppenwahl wahl) {
        return static_cast<int>(wettkampf_modus_bestimmen(wechselweise::normal, folge, wahl));
    };
    zahlen standard;
    zahlen anderes;
    for (int i = 0; i < 8; ++i) {
        const gruppenwahl wahl{(i & 1) != 0, (i & 2) != 0, (i & 4) != 0};
        standard.push_back(modus({0, 1, 6, 5, 4, 4, 3, 2}, wahl));  // lane 4 once, and the pause behind
        anderes.push_back(modus(folgen.at(1), wahl));
    }
    EXPECT_EQ(standard, (zahlen{1, 2, 1, 3, 1, 5, 1, 4}));
    EXPECT_EQ(anderes, (zahlen{8, 11, 13, 12, 8, 9, 13, 10}));
    EXPECT_EQ(wettkampf_modus_bestimmen(wechselweise::jeder_gegen_jeden, folgen.at(1), {true}), m::jeder_gegen_jeden);
    EXPECT_EQ(wettkampf_modus_bestimmen(wechselweise::nur_einmal, {}, {}), m::einmal);
    EXPECT_EQ(wechsel_folge_text(wechsel_folge_ergaenzt({0, 3, 3, 9, 1})), "3-1-2-4-5-6-P");
}

}  // namespace
}  // namespace tarvel
