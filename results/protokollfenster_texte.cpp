#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>

#include "core/platzhalter.h"
#include "core/text.h"
#include "results/ergebnisdatei.h"
#include "results/papiername.h"
#include "results/protokollfenster.h"

// What the window says, and how it names a race.

namespace tarvel {

std::string protokollfenster::beschreibung(const protokollkopf& kopf, std::string_view ende) const {
    constexpr std::size_t stunde_minute = 5;
    std::string_view zeitpunkt = kopf.zeitpunkt;  // "21.11.2026-14:03:22"
    const std::size_t strich = std::min(zeitpunkt.find('-'), zeitpunkt.size());
    std::string text = std::string(zeitpunkt.substr(0, strich)) + " ";
    zeitpunkt.remove_prefix(std::min(strich + 1, zeitpunkt.size()));
    text += eingesetzt(ende.empty() ? wort_.ab : wort_.von_bis,
                       {std::string(links(zeitpunkt, stunde_minute)), std::string(links(ende, stunde_minute))}) +
            "  ";
    const rennziel ziel = kopf.param.renn_ziel;
    if (ziel == ziel_ohne_ende) {
        text += wort_.ohne_ende;
    } else if (ziel.ist_zeit()) {
        text += eingesetzt(wort_.zeitrennen, {hergang_zeit(std::clamp<zeit_ms>(ziel.ms(), 0, 360'000'000), 0, ',')});
    } else {
        text += ziel.runden() == 1 ? wort_.eine_runde : eingesetzt(wort_.rundenrennen, {std::to_string(ziel.runden())});
    }
    std::string namen;
    for (const int spur : alle_spuren) {
        if (kopf.param.spur_aktiv[spur]) {
            namen += (namen.empty() ? ": " : ", ") + kopf.param.fahrer_name[spur];
        }
    }
    return text + namen;
}

std::string protokollfenster::hinweis() const {
    if (!hergang_.kopf) {
        return name_.empty() ? wort_.keine : wort_.unlesbar;
    }
    const std::size_t anzahl = hergang_.abgelehnte(0).size();
    std::string text = anzahl == 1 ? wort_.einer : eingesetzt(wort_.mehrere, {std::to_string(anzahl)});
    if (const zeit_ms gestanden = hergang_.pausen(); gestanden > 0) {
        text += "  " + eingesetzt(wort_.mit_pausen, {hergang_zeit(gestanden, 0, worte_.komma)});
    }
    return hergang_.ganz ? text : text + "  " + wort_.beschaedigt;
}

std::string protokollfenster::blatt_datei() const {
    return papiername(ergebnis_ordner::einzelrennen, {}, name_.substr(0, name_.rfind('.')) + " " + titel.text());
}

hergangsworte protokollfenster::in_worten() {
    texte_lesen();
    return worte_;
}

sprachliste protokollfenster::sprache_pr() {
    sprachliste texte("language\\language_pr.txt", sprachliste::form::zeilen);
    texte.text("Protokoll", titel).text("Rennen, das neueste zuerst", Label_dateien);
    texte.text("Spur", Label_spur).text("alle Spuren", wort_.alle_spuren).text("Spur", wort_.spur);
    texte.text("Runden", Check_gruppe[runden]).text("Abgelehnt", Check_gruppe[abgelehnt]);
    texte.text("Start und Ziel", Check_gruppe[start_ziel]).text("Pausen", Check_gruppe[pausen]);
    texte.text("Strafen", Check_gruppe[strafen]).text("Tanken", Check_gruppe[gruppe::tanken]);
    texte.text("Plätze, Sektoren", Check_gruppe[plaetze]).text("Befehle, Tasten", Check_gruppe[befehle]);
    texte.text("Geräte", Check_gruppe[geraete]);
    texte.text("Größer", Command_groesser).text("Kleiner", Command_kleiner).text("Alles", Command_ganz);
    texte.text("Drucken", Command_drucken).text("Als PDF speichern", Command_pdf);
    texte.text("Wiedergabe", Command_wiedergabe).text("Schließen", Command_schliessen);
    texte.text("ab Grün", wort_.spalten[0]).text("Spur", wort_.spalten[1]).text("Fahrer", wort_.spalten[2]);
    texte.text("Was geschah", wort_.spalten[3]);
    texte.text("Rennen über %1 Runden", wort_.rundenrennen).text("Zeitrennen über %1", wort_.zeitrennen);
    texte.text("Rennen ohne Ende", wort_.ohne_ende);
    texte.text("Dieses Protokoll ist nicht lesbar oder aus einer anderen Version.", wort_.unlesbar);
    texte.text("Ein Teil am Ende ist beschädigt; gezeigt wird, was davor steht.", wort_.beschaedigt);
    texte.text("Es gibt noch kein Protokoll.", wort_.keine).text("1 Überfahrt nicht gezählt.", wort_.einer);
    texte.text("%1 Überfahrten nicht gezählt.", wort_.mehrere);
    texte.text("Zu diesem Rennen gibt es kein Protokoll.", wort_.kein_protokoll);
    texte.text("Die PDF-Datei konnte nicht geschrieben werden.", wort_.pdf_fehler);
    texte.text("Der Drucker nimmt die Seite nicht an.", wort_.druckfehler);
    worte_.eintragen(texte);
    texte.text("Die Zeiten gehen vom Grün an weiter; die Rennuhr stand in Pausen %1 still.", wort_.mit_pausen);
    texte.text("Zeit seit Grün, mit Pausen. Die Rennuhr steht in einer Pause still.", wort_.zeit_tipp);
    korrektur_.eintragen(worte_.nachtragen(texte)).text("Rennen über 1 Runde", wort_.eine_runde);
    texte.text("ab %1", wort_.ab).text("%1 bis %2", wort_.von_bis);
    return korrektur_.nachtragen(texte);
}

}  // namespace tarvel
