#include "hardware/tastaturbelegung.h"

#include <map>
#include <optional>

#include "core/spuren.h"
#include "core/text.h"

namespace tarvel {
namespace {

constexpr int loeschzeichen = 127;

/// Code of a field's character; `keine_taste` for a blank or empty field, 0 for a character that no key can be.
int feldcode(const std::string& zeichen) {
    if (gekuerzt(zeichen).empty()) {
        return tastenbelegung::keine_taste;
    }
    const int code = ansi_code(zeichen).value_or(0);
    return code >= erstes_druckbares && code != loeschzeichen ? code : 0;
}

}  // namespace

tastaturbelegung::tastaturbelegung(umgebung um)
    : fensterlogik(um.fenster, um.ablage, fenstername::Tastaturbelegung), um_(um) {
    for (std::size_t nummer = 0; nummer < taste.size(); ++nummer) {
        taste.at(nummer).laenge_max(1);
        taste.at(nummer).bei_aenderung = [this, nummer] { getippt(nummer); };
    }
    Command1.bei_klick = [this] { uebernehmen(); };
    Command2.bei_klick = [this] { um_.fenster.entladen(fenstername::Tastaturbelegung); };
    const auto vorbelegen = [this](belegung_stufe stufe) {
        tastenbelegung vorlage;
        vorlage.vorbelegen(stufe);
        anzeigen(vorlage);
    };
    Command3.bei_klick = [vorbelegen] { vorbelegen(belegung_stufe::standard); };
    Command4.bei_klick = [vorbelegen] { vorbelegen(belegung_stufe::alle); };
    Command5.bei_klick = [this] {
        hinweis.text(wort_hinweis_);
        for (feld& zeichen : taste) {
            zeichen.text("");
        }
    };
}

void tastaturbelegung::laden() {
    texte_lesen();
    anzeigen(um_.belegung);
    taste.at(static_cast<std::size_t>(tastenzeilen().front().zeile)).fokus_setzen();
}

sprachliste tastaturbelegung::sprache_e_tast() {
    sprachliste texte("language/language_e_tast.txt");
    texte.ueberschrift("Tastaturbelegung").text("Tastaturbelegung", titel);
    texte.text(
        "Je Feld ein Zeichen, nicht die Leertaste. Groß- und Kleinbuchstaben sind verschiedene Tasten, ein leeres Feld "
        "hat keine Taste.",
        [this](const std::string& neu) {
            wort_hinweis_ = neu;
            hinweis.text(neu);
        });
    for (const int spur : alle_spuren) {
        std::string rahmentext = "Spur " + std::to_string(spur);
        rahmentext += "/Auto " + std::to_string(spur);
        texte.text(rahmentext, Frame.at(static_cast<std::size_t>(spur)));
    }
    texte.text("sonstige Tastenbelegung", Frame[0]).text("Übernehmen", Command1).text("Abbrechen", Command2);
    texte.text("Standard", Command3).text("alle belegen", Command4).text("Felder löschen", Command5);
    for (const tastenzeile& zeile : tastenzeilen()) {
        if (zeile.spur <= 1) {  // the rows of a lane have the same names on every lane
            texte.text(zeile.name, [this, name = zeile.name](const std::string& neu) { zeile_benennen(name, neu); });
        }
    }
    texte.text("Felder doppelt belegt!!!", doppelt_text_);
    return texte.text("Ungültiges Zeichen!!!", ungueltig_text_);
}

void tastaturbelegung::zeile_benennen(std::string_view name, const std::string& neu) {
    for (const tastenzeile& zeile : tastenzeilen()) {
        if (zeile.name == name) {
            const auto nummer = static_cast<std::size_t>(zeile.zeile);
            const std::string davor =
                zeile.spur > 0 ? Frame.at(static_cast<std::size_t>(zeile.spur)).text() + ": " : "";
            Label.at(nummer).text(neu);
            taste.at(nummer).ansage(davor + neu);
        }
    }
}

void tastaturbelegung::anzeigen(const tastenbelegung& belegung) {
    getippt_.fill(0);
    hinweis.text(wort_hinweis_);
    for (const tastenzeile& zeile : tastenzeilen()) {
        const int code = belegung.taste(zeile.zeile);
        taste.at(static_cast<std::size_t>(zeile.zeile))
            .text(code == tastenbelegung::keine_taste ? std::string() : ansi_zeichen(code));
    }
}

std::optional<tastaturbelegung::fehler> tastaturbelegung::fehler_suchen() const {
    std::map<int, std::size_t> vergeben;
    for (const tastenzeile& zeile : tastenzeilen()) {
        const auto nummer = static_cast<std::size_t>(zeile.zeile);
        const int code = feldcode(taste.at(nummer).text());
        const auto [erstes, neu] = vergeben.try_emplace(code, nummer);
        if (code == 0) {
            return fehler{0, nummer};
        }
        if (code != tastenbelegung::keine_taste && !neu) {
            return fehler{erstes->second, nummer};
        }
    }
    return std::nullopt;
}

void tastaturbelegung::getippt(std::size_t nummer) {
    getippt_.at(nummer) = ++anschlaege_;
    if (gekuerzt(taste.at(nummer).text()).empty()) {
        taste.at(nummer).text("");  // a blank is no key, and is not to look like one that is there
    }
    if (hinweis.text() != wort_hinweis_ && !fehler_suchen()) {
        hinweis.text(wort_hinweis_);
    }
}

bool tastaturbelegung::pruefen() {
    const std::optional<fehler> falsch = fehler_suchen();
    if (!falsch) {
        return true;
    }
    const feld& eines = taste.at(falsch->nummer);
    const bool doppelt = falsch->erste > 0;
    hinweis.text(eines.text() + " – " + (doppelt ? taste.at(falsch->erste).ansage() + ", " : "") + eines.ansage());
    um_.meldungen.zeigen(doppelt ? doppelt_text_ : ungueltig_text_, um_.txt.titel[1]);
    // the one that was typed last is the one that was meant to change
    const bool das_erste = doppelt && getippt_.at(falsch->erste) > getippt_.at(falsch->nummer);
    taste.at(das_erste ? falsch->erste : falsch->nummer).fokus_setzen();
    return false;
}

void tastaturbelegung::uebernehmen() {
    if (!pruefen()) {
        return;
    }
    um_.belegung.leeren();
    for (const tastenzeile& zeile : tastenzeilen()) {
        um_.belegung.taste(zeile.zeile, feldcode(taste.at(static_cast<std::size_t>(zeile.zeile)).text()));
    }
    if (!um_.belegung.tastenbelegung_speichern(um_.ablage)) {
        um_.meldungen.zeigen(um_.txt.meldung[4], um_.txt.titel[1]);
    }
    um_.fenster.entladen(fenstername::Tastaturbelegung);
}

}  // namespace tarvel
