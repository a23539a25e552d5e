#include <algorithm>

#include "core/namensliste.h"
#include "tests/fuzz/dateiarten.h"

namespace tarvel::test {
namespace {

bool liste_lesen(const werkbank& bank, const char* kopfwort, std::string_view datei) {
    using eintraege = std::vector<listeneintrag>;
    const eintraege eingebaut{{"A", ""}, {"B", ""}};
    namensliste liste({kopfwort, "pictures", "nopic.jpg"});
    liste.eingebaut({"A", "B"});
    if (!liste.laden(bank.eingang, datei)) {
        fordern(liste.eintraege() == eingebaut, "an unusable list leaves its names");
        return false;
    }
    eintraege gelesen = liste.eintraege();
    fordern(gelesen.size() <= namensliste::namen_max, "more names than rows");
    fordern(liste.speichern(bank.ausgang, datei), "list cannot be written");
    fordern(liste.laden(bank.ausgang, datei), "a list that the program has written it refuses");
    gelesen.erase(std::find_if(gelesen.begin(), gelesen.end(), [](const listeneintrag& e) { return e.name.empty(); }),
                  gelesen.end());
    fordern(liste.eintraege() == gelesen, "a list changes on the way through its file");
    return true;
}

}  // namespace

bool namensliste_lesen(werkbank& bank, std::string_view bytes) {
    constexpr std::string_view datei = "namen.lst";
    bank.legen(datei, bytes);
    const bool fahrer = liste_lesen(bank, "Fahrerliste:", datei);
    const bool fahrzeuge = liste_lesen(bank, "Fahrzeugliste:", datei);
    fordern(!fahrer || !fahrzeuge, "a list of drivers is no list of vehicles");
    return fahrer || fahrzeuge;
}

}  // namespace tarvel::test
