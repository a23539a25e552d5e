#include "optionen/optionszeile.h"

#include <algorithm>
#include <cmath>

#include "core/einstellungszeile.h"
#include "core/text.h"

namespace tarvel {

zahl_regel begrenzt(double min, double max) {
    return {min, max, {}, min, max};
}

namespace option {
namespace {

constexpr int zahlenfeld_laenge = 8;
constexpr int ereignisse_anzahl = 60;

/// The row with its control and its texts. What the row is called belongs to the tick box itself.
template <class Element>
std::pair<optionszeile_zeiger, Element*> neue_zeile(const beschriftet& b) {
    auto zeile = std::make_unique<optionszeile>();
    zeile->name = b.name;
    auto& element = zeile->element.emplace<Element>();
    optionszeile* z = zeile.get();
    zeile->texte_nennen = [z, text = std::string(b.text), einheit = std::string(b.einheit)](sprachliste& texte) {
        if (!text.empty()) {
            texte.text(text, [z](const std::string& neu) { z->beschriftung.text(neu); });
        }
        if (!einheit.empty()) {
            texte.text(einheit, z->einheit);
        }
    };
    return {std::move(zeile), &element};
}

/// Adds the entries of a choice to the texts of its row.
void eintraege_nennen(optionszeile& zeile, const std::vector<std::string_view>& deutsch) {
    zeile.eintraege.assign(deutsch.begin(), deutsch.end());
    zeile.texte_nennen = [&zeile, davor = zeile.texte_nennen, deutsch = zeile.eintraege](sprachliste& texte) {
        davor(texte);
        for (std::size_t i = 0; i < deutsch.size(); ++i) {
            texte.text(deutsch[i], zeile.eintraege[i]);
        }
    };
}

}  // namespace

double zahl_im_feld(const steuerelement& element) {
    std::string text = element.text();
    werte_pruefen2(text);
    return zahl_lesen(text);
}

std::string zahl_als_text(double zahl) {
    return zahl_text(zahl, ',');
}

optionszeile_zeiger mit_warnung(optionszeile_zeiger zeile, std::string_view text,
                                std::function<bool(const einstellungs_ziel&)> wenn) {
    zeile->warnungen.push_back({std::string(text), {}, std::move(wenn)});
    return zeile;
}

optionszeile_zeiger leerer_kasten(const beschriftet& b) {
    return neue_zeile<haken>(b).first;
}

optionszeile_zeiger aktion(const beschriftet& b) {
    return neue_zeile<befehl>(b).first;
}

optionszeile_zeiger hinweis(const beschriftet& b) {
    optionszeile_zeiger zeile = neue_zeile<haken>(b).first;
    zeile->element = std::monostate();
    return zeile;
}

optionszeile_zeiger kasten(const beschriftet& b, const zugriff<bool>& ziel) {
    auto [zeile, element] = neue_zeile<haken>(b);
    zeile->zeigen = [ziel, e = element](const einstellungs_ziel& z) { e->gesetzt(ziel(z)); };
    zeile->uebernehmen = [ziel, e = element](const einstellungs_ziel& z, const auto&) { ziel(z) = e->gesetzt(); };
    return std::move(zeile);
}

optionszeile_zeiger leeres_feld(const beschriftet& b, int laenge_max) {
    auto [zeile, element] = neue_zeile<feld>(b);
    element->laenge_max(laenge_max);
    return std::move(zeile);
}

optionszeile_zeiger zahl(const beschriftet& b, const zahlzugriff& ziel, const zahl_regel& regel, int faktor) {
    auto [zeile, element] = neue_zeile<feld>(b);
    optionszeile* zeiger = zeile.get();
    element->laenge_max(zahlenfeld_laenge);
    zeile->nur_zahlen = regel.min <= 0 || regel.meldung.empty();
    if (!regel.meldung.empty()) {
        zeile->texte_nennen = [zeiger, davor = zeile->texte_nennen,
                               meldung = std::string(regel.meldung)](sprachliste& texte) {
            davor(texte);
            texte.text(meldung, zeiger->grenzen_meldung);
        };
    }
    zeile->zeigen = [ziel, faktor, e = element](const einstellungs_ziel& z) {
        e->text(zahl_als_text(static_cast<double>(ziel(z)) / faktor));
    };
    zeile->uebernehmen = [ziel, faktor, regel, zeiger, e = element](const einstellungs_ziel& z,
                                                                    const optionszeile::melder& melden) {
        double zahl = zahl_im_feld(*e);
        const bool ausserhalb = zahl < regel.min || zahl > regel.max;
        if (ausserhalb && !regel.meldung.empty()) {
            melden(zeiger->grenzen_meldung);
            return;
        }
        if (ausserhalb) {
            zahl = zahl < regel.min ? regel.darunter : regel.darueber;
        }
        ziel(z, static_cast<int>(std::lround(zahl * faktor)));
    };
    return std::move(zeile);
}

optionszeile_zeiger text(const beschriftet& b, const zugriff<std::string>& ziel, int laenge_max,
                         std::size_t mindestens) {
    auto [zeile, element] = neue_zeile<feld>(b);
    element->laenge_max(laenge_max);
    zeile->zeigen = [ziel, e = element](const einstellungs_ziel& z) { e->text(ziel(z)); };
    zeile->uebernehmen = [ziel, mindestens, e = element](const einstellungs_ziel& z, const auto&) {
        const std::string neu = als_zeile(e->text());
        if (laenge(neu) >= mindestens) {
            ziel(z) = neu;
        }
    };
    return std::move(zeile);
}

optionszeile_zeiger meter(const beschriftet& b, const zugriff<std::string>& ziel) {
    optionszeile_zeiger zeile = text(b, ziel, zahlenfeld_laenge);
    zeile->nur_zahlen = true;
    zeile->auch_leer = true;
    zeile->uebernehmen = [ziel, davor = zeile->uebernehmen](const einstellungs_ziel& z, const auto& melden) {
        davor(z, melden);
        werte_pruefen2(ziel(z));
    };
    return zeile;
}

optionszeile_zeiger wahl(const beschriftet& b, const zahlzugriff& ziel, int erster,
                         const std::vector<std::string_view>& eintraege) {
    auto [zeile, element] = neue_zeile<auswahl>(b);
    eintraege_nennen(*zeile, eintraege);
    zeile->zeigen = [ziel, erster, zeiger = zeile.get(), e = element](const einstellungs_ziel& z) {
        e->eintraege(zeiger->eintraege);
        e->platz(ziel(z) - erster);
    };
    zeile->uebernehmen = [ziel, erster, e = element](const einstellungs_ziel& z, const auto&) {
        if (e->platz() >= 0) {  // a value without an entry stays as it is
            ziel(z, e->platz() + erster);
        }
    };
    return std::move(zeile);
}

optionszeile_zeiger entweder(const beschriftet& b, const zugriff<bool>& ziel, std::string_view wahr,
                             std::string_view falsch) {
    auto [zeile, element] = neue_zeile<auswahl>(b);
    eintraege_nennen(*zeile, {wahr, falsch});
    zeile->zeigen = [ziel, zeiger = zeile.get(), e = element](const einstellungs_ziel& z) {
        e->eintraege(zeiger->eintraege);
        e->platz(ziel(z) ? 0 : 1);
    };
    zeile->uebernehmen = [ziel, e = element](const einstellungs_ziel& z, const auto&) { ziel(z) = e->platz() == 0; };
    return std::move(zeile);
}

optionszeile_zeiger wortliste(const beschriftet& b, const zugriff<std::string>& ziel,
                              const std::vector<std::string>& worte) {
    auto [zeile, element] = neue_zeile<auswahl>(b);
    element->eintraege(worte);
    zeile->zeigen = [ziel, e = element](const einstellungs_ziel& z) { e->text(ziel(z)); };
    zeile->uebernehmen = [ziel, e = element](const einstellungs_ziel& z, const auto&) { ziel(z) = e->text(); };
    return std::move(zeile);
}

optionszeile_zeiger ereignis(const beschriftet& b, const zugriff<int>& ziel) {
    auto [zeile, element] = neue_zeile<auswahl>(b);
    zeile->zeigen = [ziel, e = element](const einstellungs_ziel& z) {
        e->eintraege({z.txt.ereignis_name.begin(), z.txt.ereignis_name.end()});
        e->platz(std::clamp(ziel(z), 0, ereignisse_anzahl - 1));
    };
    zeile->uebernehmen = [ziel, e = element](const einstellungs_ziel& z, const auto&) {
        ziel(z) = std::max(e->platz(), 0);
    };
    return std::move(zeile);
}

optionszeile_zeiger farbwahl(const beschriftet& b, const zugriff<farbe>& ziel) {
    auto [zeile, element] = neue_zeile<farbfeld>(b);
    zeile->zeigen = [ziel, e = element](const einstellungs_ziel& z) { e->wert(ziel(z)); };
    zeile->uebernehmen = [ziel, e = element](const einstellungs_ziel& z, const auto&) { ziel(z) = e->wert(); };
    return std::move(zeile);
}

optionszeile_zeiger sound(const beschriftet& b, const zugriff<std::string>& ziel, std::string_view leer) {
    auto [zeile, element] = neue_zeile<soundfeld>(b);
    element->datei.frei(true);
    element->datei.laenge_max(200);
    zeile->zeigen = [ziel, e = element](const einstellungs_ziel& z) { e->datei.text(ziel(z)); };
    zeile->uebernehmen = [ziel, leer, e = element](const einstellungs_ziel& z, const auto&) {
        const std::string neu = als_zeile(e->datei.text());
        ziel(z) = neu.empty() ? std::string(leer) : neu;
    };
    return std::move(zeile);
}

}  // namespace option
}  // namespace tarvel
