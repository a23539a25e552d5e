#include "competition/tagesdatei.h"
#include "tests/fuzz/dateiarten.h"

namespace tarvel::test {

/// The bytes as what the window of the day race keeps, and as the list of the day.
bool tagesrennen_lesen(werkbank& bank, const std::string& bytes) {
    bool gelesen = false;
    bank.legen("Tagesrennen.ini", bytes);
    if (const auto neu = tagesparameter_laden(bank.eingang)) {
        fordern(tagesparameter_speichern(bank.ausgang, *neu), "parameters cannot be written");
        const auto wieder = tagesparameter_laden(bank.ausgang);
        fordern(wieder && wieder->klassen == neu->klassen && wieder->klassen_text == neu->klassen_text,
                "parameters read again are others");
        tagesdatei_pruefen(bank.eingang, neu->name);
        gelesen = true;
    }
    bank.legen("Ergebnisse/Tagesrennen/Tag.csv", bytes);
    if (tagesdatei_pruefen(bank.eingang, "Tag") == tagesdatei_zustand::bereit) {
        for (const tageszeile& zeile : tageszeilen_lesen(bank.eingang, "Tag", trennzeichen_standard)) {
            fordern(zeile.name.find(trennzeichen_standard[2]) == std::string::npos, "a name holds a separator");
        }
        gelesen = true;
    }
    return gelesen;
}

}  // namespace tarvel::test
