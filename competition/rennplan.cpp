#include "competition/rennplan.h"

#include <algorithm>
#include <array>
#include <deque>
#include <numeric>

namespace tarvel {
namespace {

constexpr int fahrer_max = 99;
constexpr int fahrer_max_sechs_spuren = 96;  // the tables hold 100, and groups of six must come out even
constexpr int jeder_fahrer_max = 10;
constexpr wechsel_folge aufsteigend{0, 1, 2, 3, 4, 5, 6, wechsel_pause};

/// What the kinds have to work with.
struct planansatz {
    std::vector<startplatz> teilnehmer;
    std::vector<int> bahnen;  ///< the active lanes, in order
    wechsel_folge folge;      ///< in which the drivers move
    spuren<bool> aktiv;

    int anzahl() const { return static_cast<int>(teilnehmer.size()); }
    int je_rennen() const { return static_cast<int>(bahnen.size()); }
    int gruppen() const { return anzahl() / je_rennen(); }
    bool ist_fueller(int nummer) const { return teilnehmer.at(static_cast<std::size_t>(nummer - 1)).ist_fueller(); }
    int naechster(int nummer) const { return nummer % anzahl() + 1; }
};

using felder = std::vector<startfeld>;

std::vector<int> aktive_spuren(const spuren<bool>& aktiv) {
    std::vector<int> bahnen;
    std::copy_if(alle_spuren.begin(), alle_spuren.end(), std::back_inserter(bahnen),
                 [&](int spur) { return aktiv[spur]; });
    return bahnen;
}

startfeld gedreht(const startfeld& feld, const spuren<int>& herkunft) {
    startfeld neu;
    for (const int spur : alle_spuren) {
        neu[spur] = herkunft[spur] == 0 ? 0 : feld[herkunft[spur]];
    }
    return neu;
}

/// The group's places, in the order of the list.
startfeld gruppe(const planansatz& a, int nummer) {
    startfeld feld;
    int platz = nummer * a.je_rennen();
    for (const int spur : a.bahnen) {
        feld[spur] = ++platz;
    }
    return feld;
}

felder alle_gruppen(const planansatz& a) {
    felder neu;
    for (int nummer = 0; nummer < a.gruppen(); ++nummer) {
        neu.push_back(gruppe(a, nummer));
    }
    return neu;
}

felder gruppen_wechselnd(const planansatz& a) {
    const spuren<int> herkunft = wechsel_nachfolger(a.folge, a.aktiv);
    felder neu = alle_gruppen(a);
    const std::size_t gruppen = neu.size();
    while (neu.size() < gruppen * a.bahnen.size()) {
        neu.push_back(gedreht(neu.at(neu.size() - gruppen), herkunft));
    }
    return neu;
}

felder gruppen_am_stueck(const planansatz& a) {
    const spuren<int> herkunft = wechsel_nachfolger(a.folge, a.aktiv);
    felder neu;
    for (startfeld feld : alle_gruppen(a)) {
        for (int durchgang = 0; durchgang < a.je_rennen(); ++durchgang) {
            neu.push_back(feld);
            feld = gedreht(feld, herkunft);
        }
    }
    return neu;
}

/// The first lane from `ab` on that nobody has in this race and that is new to the driver; 0 if there is none.
int naechste_bahn(const planansatz& a, std::size_t ab, const startfeld& feld, const spuren<bool>& hatte) {
    for (std::size_t schritt = 0; schritt < a.bahnen.size(); ++schritt) {
        const int spur = a.bahnen.at((ab + schritt) % a.bahnen.size());
        if (feld[spur] == 0 && !hatte[spur]) {
            return spur;
        }
    }
    return 0;
}

/// Walks round the list. A lane that holds somebody already is passed over, or one driver would push out another.
felder rotation(const planansatz& a) {
    std::vector<spuren<bool>> hatte(static_cast<std::size_t>(a.anzahl()) + 1);
    felder neu(static_cast<std::size_t>(a.anzahl()));
    int wer = 0;
    for (startfeld& feld : neu) {
        const auto setzen = [&](int spur) {
            feld[spur] = wer;
            hatte.at(static_cast<std::size_t>(wer))[spur] = !a.ist_fueller(wer);  // fillers may go anywhere
        };
        for (std::size_t i = 0; i < a.bahnen.size(); ++i) {
            if (feld[a.bahnen[i]] == 0) {
                wer = a.naechster(wer);
                const int spur = naechste_bahn(a, i, feld, hatte.at(static_cast<std::size_t>(wer)));
                if (spur != 0) {
                    setzen(spur);
                }
            }
        }
        for (const int spur : a.bahnen) {  // those that were left when their driver moved on
            if (feld[spur] == 0) {
                wer = a.naechster(wer);
                setzen(spur);
            }
        }
    }
    return neu;
}

/// Each pair meets twice, the second time with the lanes exchanged.
felder jeder_gegen_jeden(const planansatz& a) {
    felder neu;
    for (int abstand = 1; abstand < a.anzahl(); ++abstand) {
        for (int wer = 1; wer <= a.anzahl(); ++wer) {
            startfeld feld;
            feld[a.bahnen.front()] = wer;
            feld[a.bahnen.back()] = (wer + abstand - 1) % a.anzahl() + 1;
            neu.push_back(feld);
        }
    }
    return neu;
}

/// The lanes are a ring with the queue of those who wait in the place of the pause.
felder schema_rotation(const planansatz& a) {
    const wechsel_folge ziel = wechsel_ziel(a.folge, a.aktiv);
    std::deque<int> schlange;
    for (int wer = a.je_rennen() + 1; wer <= a.anzahl(); ++wer) {
        schlange.push_back(wer);
    }
    felder neu{gruppe(a, 0)};
    while (static_cast<int>(neu.size()) < a.anzahl()) {
        const startfeld& voriges = neu.back();
        schlange.push_back(voriges[ziel.at(wechsel_pause)]);
        startfeld feld;
        for (const int spur : a.bahnen) {
            const int woher = ziel.at(static_cast<std::size_t>(spur));
            feld[spur] = woher == wechsel_pause ? schlange.front() : voriges[woher];
        }
        schlange.pop_front();
        neu.push_back(feld);
    }
    return neu;
}

/// The active lanes as they follow each other in the drivers' order.
std::vector<int> bahnen_in_folge(const planansatz& a) {
    std::vector<int> ring;
    for (const int wert : a.folge) {
        if (wert >= 1 && wert <= spuren_max && a.aktiv[wert]) {
            ring.push_back(wert);
        }
    }
    return ring;
}

/// The races walk round the list, as many drivers in each as there are lanes, so that nobody waits a race longer than
/// need be. With every race a driver goes one lane on from where he began; where that is must keep those who meet
/// apart. With g = gcd(T, S) the list is T/g blocks of g drivers, and S/g blocks in a row, counted on and on round the
/// list, are a race. Within a block the drivers begin S/g lanes apart. From block to block they begin c lanes on, where
/// c * T/g = 1 mod S/g: then a round of the list, T/g blocks, is one lane, as it must be, and any S/g blocks in a row
/// all stand elsewhere.
felder schema_gleichmaessig(const planansatz& a) {
    const std::vector<int> ring = bahnen_in_folge(a);
    const int teiler = std::gcd(a.anzahl(), a.je_rennen());
    const int abstand = a.je_rennen() / teiler;
    int c = 0;
    while ((c * (a.anzahl() / teiler) - 1) % abstand != 0) {
        ++c;
    }
    std::vector<int> stelle;
    stelle.reserve(static_cast<std::size_t>(a.anzahl()));
    for (int wer = 0; wer < a.anzahl(); ++wer) {
        stelle.push_back(c * (wer / teiler) % abstand + abstand * (wer % teiler));
    }
    felder neu;
    int wer = 0;
    while (static_cast<int>(neu.size()) < a.anzahl()) {
        startfeld feld;
        for (int i = 0; i < a.je_rennen(); ++i) {
            int& seine = stelle.at(static_cast<std::size_t>(wer));
            feld[ring.at(static_cast<std::size_t>(seine % a.je_rennen()))] = wer + 1;
            ++seine;
            wer = (wer + 1) % a.anzahl();
        }
        neu.push_back(feld);
    }
    return neu;
}

enum class fuellung { nur_spuren, am_ende, verteilt };

struct planart {
    fuellung fueller;
    bool schema;  ///< drivers move in the chosen order
    felder (*aufbau)(const planansatz&);
};

/// By the number of the kind.
constexpr std::array<planart, wettkampf_modus_max> planarten{{
    {fuellung::nur_spuren, false, rotation},
    {fuellung::am_ende, false, gruppen_wechselnd},
    {fuellung::verteilt, false, gruppen_wechselnd},
    {fuellung::verteilt, false, gruppen_am_stueck},
    {fuellung::am_ende, false, gruppen_am_stueck},
    {fuellung::nur_spuren, false, jeder_gegen_jeden},
    {fuellung::am_ende, false, alle_gruppen},
    {fuellung::nur_spuren, true, schema_rotation},
    {fuellung::am_ende, true, gruppen_am_stueck},
    {fuellung::verteilt, true, gruppen_am_stueck},
    {fuellung::am_ende, true, gruppen_wechselnd},
    {fuellung::verteilt, true, gruppen_wechselnd},
    {fuellung::nur_spuren, true, schema_gleichmaessig},
}};

const planart* art_von(wettkampf_modus modus) {
    const int nummer = static_cast<int>(modus);
    return nummer >= 1 && nummer <= wettkampf_modus_max ? &planarten.at(static_cast<std::size_t>(nummer - 1)) : nullptr;
}

/// Fillers end their groups, one each from the last group backward and then round again.
std::vector<startplatz> verteilte_startliste(int fahrer, int je_gruppe) {
    const int gruppen = (fahrer + je_gruppe - 1) / je_gruppe;
    const int fueller = gruppen * je_gruppe - fahrer;
    std::vector<startplatz> liste;
    int wer = 0;
    for (int von_hinten = gruppen - 1; von_hinten >= 0; --von_hinten) {
        std::vector<startplatz> hinten;
        for (int nummer = von_hinten + 1; nummer <= fueller; nummer += gruppen) {
            hinten.push_back({0, nummer});
        }
        for (std::size_t frei = hinten.size(); frei < static_cast<std::size_t>(je_gruppe); ++frei) {
            liste.push_back({++wer, 0});
        }
        liste.insert(liste.end(), hinten.begin(), hinten.end());
    }
    return liste;
}

std::vector<startplatz> startliste(int fahrer, int je_rennen, fuellung wie) {
    if (wie == fuellung::verteilt) {
        return verteilte_startliste(fahrer, je_rennen);
    }
    std::vector<startplatz> liste;
    for (int wer = 1; wer <= fahrer; ++wer) {
        liste.push_back({wer, 0});
    }
    const auto reicht = [&] {
        const int anzahl = static_cast<int>(liste.size());
        return anzahl >= je_rennen && (wie == fuellung::nur_spuren || anzahl % je_rennen == 0);
    };
    for (int nummer = 1; !reicht(); ++nummer) {
        liste.push_back({0, nummer});
    }
    return liste;
}

}  // namespace

startfeld rennplan::feld(int rennen_nummer, int teil) const {
    if (rennen_nummer < 1 || rennen_nummer > rennen_gesamt() || teil < 1 || teil > teile) {
        return {};
    }
    startfeld dran = rennen.at(static_cast<std::size_t>(rennen_nummer - 1));
    for (int vorher = 1; vorher < teil; ++vorher) {
        dran = gedreht(dran, herkunft);
    }
    return dran;
}

int rennplan::heat(int rennen_nummer, int spur) const {
    const int wer = feld(rennen_nummer)[spur];
    if (wer == 0) {
        return 0;
    }
    return static_cast<int>(std::count_if(rennen.begin(), rennen.begin() + rennen_nummer, [&](const startfeld& dort) {
        return std::find(dort.begin(), dort.end(), wer) != dort.end();
    }));
}

int rennplan::spur_von(int rennen_nummer, int platz) const {
    const startfeld dort = feld(rennen_nummer);
    const auto* spur = std::find_if(alle_spuren.begin(), alle_spuren.end(), [&](int s) { return dort[s] == platz; });
    return platz == 0 || spur == alle_spuren.end() ? 0 : *spur;
}

planmangel plan_pruefen(const planvorgabe& vorgabe) {
    const bool jeder = vorgabe.modus == wettkampf_modus::jeder_gegen_jeden;
    const std::size_t anzahl = aktive_spuren(vorgabe.aktiv).size();
    if (vorgabe.fahrer < 2) {
        return planmangel::zu_wenige_fahrer;
    }
    if (jeder && vorgabe.fahrer > jeder_fahrer_max) {
        return planmangel::zu_viele_fahrer;
    }
    if (anzahl == 0) {
        return planmangel::keine_spur;
    }
    return jeder && anzahl != 2 ? planmangel::nicht_zwei_spuren : planmangel::keiner;
}

int planfahrer_max(const spuren<bool>& aktiv) {
    return std::count(aktiv.begin(), aktiv.end(), true) == spuren_max ? fahrer_max_sechs_spuren : fahrer_max;
}

rennplan rennplan_erstellen(const planvorgabe& vorgabe) {
    const planart* art = art_von(vorgabe.modus);
    if (art == nullptr || plan_pruefen(vorgabe) != planmangel::keiner) {
        return {};
    }
    const int fahrer = std::min(vorgabe.fahrer, planfahrer_max(vorgabe.aktiv));
    const std::vector<int> bahnen = aktive_spuren(vorgabe.aktiv);
    const int je_rennen = static_cast<int>(bahnen.size());
    const wechsel_folge schema = wechsel_folge_ergaenzt(vorgabe.folge);
    const planansatz ansatz{startliste(fahrer, je_rennen, art->fueller), bahnen, art->schema ? schema : aufsteigend,
                            vorgabe.aktiv};
    rennplan plan{ansatz.teilnehmer, std::max(fahrer, je_rennen), {}, 1, {}};
    if (vorgabe.centermode && art->aufbau == gruppen_am_stueck) {
        plan.rennen = alle_gruppen(ansatz);
        plan.teile = je_rennen;
        plan.herkunft = wechsel_nachfolger(schema, vorgabe.aktiv);  // by which any race moves its cars on
    } else {
        plan.rennen = art->aufbau(ansatz);
    }
    return plan;
}

std::vector<std::string> teilnehmer_namen(const rennplan& plan, std::span<const std::string> fahrer,
                                          std::string_view frei_text) {
    std::vector<std::string> namen;
    for (const startplatz& platz : plan.teilnehmer) {
        const auto wer = static_cast<std::size_t>(platz.fahrer);
        if (platz.ist_fueller()) {
            namen.push_back(std::string(frei_text) + " " + std::to_string(platz.fueller));
        } else {
            namen.push_back(wer <= fahrer.size() ? fahrer[wer - 1] : std::string());
        }
    }
    return namen;
}

}  // namespace tarvel
