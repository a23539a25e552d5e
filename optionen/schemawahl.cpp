#include "optionen/schemawahl.h"

#include <algorithm>

#include "core/text.h"

namespace tarvel {

schemawahl::schemawahl(const umgebung& um, const zeilen& z)
    : um_(um),
      ungueltig_(z.folge),
      auswahl_(std::get<auswahl>(z.auswahl.element)),
      folge_(std::get<feld>(z.folge.element)),
      name_(std::get<feld>(z.name.element)) {
    auswahl_.bei_aenderung = [this] { auswahl_geaendert(); };
    folge_.bei_aenderung = [this] { folge_melden(); };
    std::get<befehl>(z.hinzufuegen.element).bei_klick = [this] { schema_hinzufuegen(); };
}

void schemawahl::texte_nennen(sprachliste& texte) {
    texte.text("Datei Wechselschema.ws fehlerfaft", datei_fehler_);
    texte.text("Bitte einen Namen für das neue Schema eingeben.", name_fehlt_);
    texte.text("Ein Schema mit diesem Namen gibt es schon. Es wurde nichts gespeichert.", name_vergeben_);
}

void schemawahl::zeigen(const std::string& gewaehlt) {
    bool gelesen = false;
    schemas_ = wechselschemas_lesen(um_.ablage, ungueltig_.grenzen_meldung, gelesen);
    if (!gelesen) {
        melden(datei_fehler_);
    }
    const auto ist_gewaehlt = [&](const wechselschema& schema) { return schema.anzeige == gewaehlt; };
    if (std::none_of(schemas_.begin(), schemas_.end(), ist_gewaehlt)) {
        schemas_.push_back({gewaehlt, std::nullopt});
    }
    eintraege_zeigen();
    name_.text("");
}

void schemawahl::eintraege_zeigen() {
    std::vector<std::string> eintraege;
    for (const wechselschema& schema : schemas_) {
        eintraege.push_back(schema.anzeige);
    }
    auswahl_.eintraege(eintraege);
}

void schemawahl::auswahl_geaendert() {
    const int platz = auswahl_.platz();
    if (platz >= 0 && schemas_.at(static_cast<std::size_t>(platz)).folge) {
        folge_.text(wechsel_folge_text(*schemas_.at(static_cast<std::size_t>(platz)).folge));
        folge_melden();
    }
}

void schemawahl::folge_melden() const {
    if (folge_geaendert) {
        folge_geaendert();
    }
}

void schemawahl::schema_hinzufuegen() {
    const std::string name(gekuerzt(name_.text()));
    const auto folge = wechsel_folge_lesen(folge_.text());
    if (name.empty()) {
        melden(name_fehlt_);
        name_.fokus_setzen();
        return;
    }
    if (!folge) {
        melden(ungueltig_.grenzen_meldung);
        folge_.fokus_setzen();
        return;
    }
    const schema_ablage ergebnis = wechselschema_speichern(um_.ablage, schemas_, name, *folge);
    if (ergebnis != schema_ablage::gespeichert) {
        melden(ergebnis == schema_ablage::name_vergeben ? name_vergeben_ : datei_fehler_);
        return;
    }
    schemas_.push_back({wechselschema_anzeige(name, *folge), *folge});
    eintraege_zeigen();
    auswahl_.platz(static_cast<int>(schemas_.size()) - 1);
    name_.text("");
}

}  // namespace tarvel
