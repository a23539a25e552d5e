#pragma once

#include <array>
#include <cstddef>
#include <string>

#include "core/steuerelemente.h"

namespace tarvel {

/// What a lane is in, as the hall should know it.
enum class lage : std::size_t { faehrt, pause, fruehstart, strafe, box, leer, ziel, disqualifiziert };
inline constexpr std::size_t lagen_anzahl = 8;

/// What a lane says beside that, for a moment or while it waits.
enum class spurhinweis { keiner, ungezaehlt, runde_wartet };

/// How its word looks. The colour alone never tells: each has a mark of its own, and lanes have colours too.
enum class lagefarbe { keine, achtung, strafe, box, leer, ziel, aus };
enum class lagezeichen { keines, balken, dreieck, uhr, zapfsaeule, leerer_tank, zielflagge, kreuz, durchgestrichen };
struct lagebild {
    lagefarbe farbe;
    lagezeichen zeichen;
};
const lagebild& bild_von(lage was);
lagezeichen zeichen_von(spurhinweis was);

/// A lane's state for the race window.
struct spurlage {
    lage was = lage::faehrt;
    int zahl = 0;         ///< seconds left, 0 where they are not known; litres in the tank; place
    int stand = 0;        ///< of the tank, in thousandths
    bool fuehrt = false;  ///< the best placed of those that are in the race

    bool operator==(const spurlage&) const = default;
};

/// What stands behind the word; empty for nothing.
std::string zahl_von(const spurlage& l);

/// The same as a control; its text is word and number.
class lage_anzeige : public steuerelement {
public:
    const spurlage& stand() const { return stand_; }
    void stand(const spurlage& neu) { setzen(stand_, neu); }

private:
    spurlage stand_;
};

/// The text is the word, and hidden where there is none.
class hinweis_anzeige : public steuerelement {
public:
    spurhinweis art() const { return art_; }
    void art(spurhinweis neu) { setzen(art_, neu); }

private:
    spurhinweis art_ = spurhinweis::keiner;
};

/// The words, index is the state. A soft hyphen shows where a word may be broken.
using lageworte = std::array<std::string, lagen_anzahl>;

/// Without soft hyphens; `in_zeilen` breaks the line at them instead.
std::string ohne_trennstellen(const std::string& wort);
std::string in_zeilen(const std::string& wort);

}  // namespace tarvel
