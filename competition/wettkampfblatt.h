#pragma once

#include <array>
#include <string>
#include <vector>

#include "competition/rangfolge.h"
#include "competition/wettkampf.h"
#include "core/sprache.h"
#include "core/steuerelemente.h"
#include "core/zeit.h"

namespace tarvel {

/// Words of the printed standing.
struct wettkampfblatt_worte {
    std::string nummer, name, runden, meter, beste, gesamtzeit, gesamt, spur, heat;
    std::string rangliste, einzeln, rennplan, rennen, spalte_rennen, gefahren, seite, nach, von, zeichenfolge;
    std::array<std::string, 3> wertung;  ///< by metres, laps, best lap

    sprachliste& eintragen(sprachliste& texte);
    const std::string& wertung_von(sortier_modus modus) const;
    /// How far the evening is, and by what it is judged.
    std::string stand_von(const wettkampf& w) const;
};

/// The standing of a competition as pages for the wall: tables of texts, one below the other, as many as it takes.
struct wettkampfblatt {
    struct zelle {
        std::string text;
        std::string zusatz = {};  ///< small, under the text
    };
    struct spalte {
        std::string kopf;
        int spur = 0;         ///< lane in whose colour the head stands, 0 for none
        bool zahlen = false;  ///< else names: these take what room is left
    };
    struct tabelle {
        std::string titel;
        std::string legende;  ///< what a cell holds, or over the bars, what their colours are
        std::vector<spalte> spalten;
        std::vector<std::vector<zelle>> zeilen;
        std::vector<wettkampf_balken> balken = {};  ///< of the rows; empty for a table without bars
    };

    std::string titel;
    std::string kopf;
    std::string seite;  ///< word before the number of a page
    std::vector<tabelle> tabellen;
    spuren<farbe> farben;  ///< of the lanes
};

/// The ranking with its bars, what each driver has on each lane or in each heat, and the plan of the races.
wettkampfblatt wettkampfblatt_bilden(const wettkampf& w, const wettkampfblatt_worte& wort, const spuren<farbe>& farben,
                                     const trennzeichen_tabelle& trennzeichen);

}  // namespace tarvel
