#include "ui/rundenblatt.h"

#include <algorithm>

#include "core/texte.h"
#include "ui/blattausgabe.h"
#include "ui/stil.h"

namespace tarvel::ui {
namespace {

// all measures in tenths of a millimetre
constexpr double kopf_hoch = 150;
constexpr double namen_hoch = 52;
constexpr double zeile_hoch = 42;
constexpr double fuss_hoch = 50;
constexpr double nummer_breit = 90;
constexpr double spalte_min = 190;
constexpr double spalte_max = 300;
constexpr double luft = 50;  // between two blocks
constexpr double schrift = 32;

const QColor jede_zweite{247, 248, 250};

/// How a page is divided.
struct rundenteilung {
    rundenteilung(const ergebnisblatt& blatt, const QSizeF& groesse)
        : zeilen(static_cast<std::size_t>(
              std::max((groesse.height() - kopf_hoch - namen_hoch - fuss_hoch) / zeile_hoch, 1.0))) {
        const auto spalten = static_cast<double>(std::max<std::size_t>(blatt.rundenspalten.size(), 1));
        const double schmal = nummer_breit + spalten * spalte_min + luft;
        bloecke = std::max(static_cast<std::size_t>((groesse.width() + luft) / schmal), std::size_t{1});
        block_breit = (groesse.width() + luft) / static_cast<double>(bloecke) - luft;
        spalte_breit = std::min((block_breit - nummer_breit) / spalten, spalte_max);
        block_breit = nummer_breit + spalten * spalte_breit;
        for (const ergebnisblatt::rundenspalte& spalte : blatt.rundenspalten) {
            runden = std::max(runden, spalte.zeiten.size());
        }
    }
    std::size_t je_seite() const { return bloecke * zeilen; }
    int seiten() const { return static_cast<int>((runden + je_seite() - 1) / je_seite()); }

    std::size_t zeilen;
    std::size_t bloecke = 1;
    std::size_t runden = 0;
    double block_breit = 0;
    double spalte_breit = 0;
};

void namen_zeichnen(QPainter& maler, const ergebnisblatt& blatt, double links, double spalte_breit) {
    double x = links + nummer_breit;
    for (const ergebnisblatt::rundenspalte& spalte : blatt.rundenspalten) {
        const QRectF feld(x, kopf_hoch, spalte_breit, namen_hoch);
        maler.fillRect(QRectF(x + 8, feld.bottom() - 10, spalte_breit - 16, 7), spalte.farbe);
        blatttext(maler, feld.adjusted(8, 0, -8, -10), Qt::AlignRight, spalte.fahrer, {schrift, true, stil::schrift});
        x += spalte_breit;
    }
}

void runde_zeichnen(QPainter& maler, const ergebnisblatt& blatt, std::size_t runde, const QRectF& zeile,
                    double spalte_breit) {
    if (runde % 2 == 0) {
        maler.fillRect(zeile, jede_zweite);
    }
    blatttext(maler, {zeile.left(), zeile.top(), nummer_breit - 20, zeile.height()}, Qt::AlignRight,
              QString::number(runde) + ".", {schrift, false, stil::schrift_leise});
    double x = zeile.left() + nummer_breit;
    for (const ergebnisblatt::rundenspalte& spalte : blatt.rundenspalten) {
        if (runde <= spalte.zeiten.size()) {
            const bool beste = runde == spalte.beste;
            blatttext(maler, {x + 8, zeile.top(), spalte_breit - 16, zeile.height()}, Qt::AlignRight,
                      spalte.zeiten[runde - 1], {schrift, beste, beste ? stil::akzent : stil::schrift});
        }
        x += spalte_breit;
    }
}

}  // namespace

int rundenblatt_seiten(const ergebnisblatt& blatt, const QSizeF& groesse) {
    return rundenteilung(blatt, groesse).seiten();
}

void rundenblatt_zeichnen(QPainter& maler, const ergebnisblatt& blatt, const QSizeF& groesse, int nummer) {
    const rundenteilung t(blatt, groesse);
    blatttext(maler, {0, 0, groesse.width(), 75}, Qt::AlignLeft, blatt.rundentitel, {62, true, stil::schrift});
    const QString kopf = blatt.verein.isEmpty() ? blatt.kopf : blatt.verein + "  ·  " + blatt.kopf;
    blatttext(maler, {0, 75, groesse.width(), 52}, Qt::AlignLeft, kopf, {38, false, stil::schrift_leise});
    std::size_t runde = static_cast<std::size_t>(nummer) * t.je_seite() + 1;
    for (std::size_t block = 0; block < t.bloecke && runde <= t.runden; ++block) {
        const double links = static_cast<double>(block) * (t.block_breit + luft);
        namen_zeichnen(maler, blatt, links, t.spalte_breit);
        for (std::size_t zeile = 0; zeile < t.zeilen && runde <= t.runden; ++zeile, ++runde) {
            const double oben = kopf_hoch + namen_hoch + static_cast<double>(zeile) * zeile_hoch;
            runde_zeichnen(maler, blatt, runde, {links, oben, t.block_breit, zeile_hoch}, t.spalte_breit);
        }
    }
    const QString fuss = QString::fromStdString(std::string(programm_name)) + "  ·  " + QString::number(nummer + 1) +
                         " / " + QString::number(t.seiten());
    blatttext(maler, {0, groesse.height() - 40, groesse.width(), 40}, Qt::AlignRight, fuss,
              {26, false, stil::schrift_leise});
}

}  // namespace tarvel::ui
