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
constexpr double spalte_breit = 190;
constexpr double luft = 50;  // between two blocks
constexpr double schrift = 32;

const QColor jede_zweite{247, 248, 250};

/// How a page is divided.
struct rundenteilung {
    rundenteilung(const ergebnisblatt& blatt, const QSizeF& groesse)
        : block_breit(nummer_breit + static_cast<double>(blatt.rundenspalten.size()) * spalte_breit),
          bloecke(std::max(static_cast<std::size_t>((groesse.width() + luft) / (block_breit + luft)), std::size_t{1})),
          zeilen(static_cast<std::size_t>(
              std::max((groesse.height() - kopf_hoch - namen_hoch - fuss_hoch) / zeile_hoch, 1.0))) {
        for (const ergebnisblatt::rundenspalte& spalte : blatt.rundenspalten) {
            runden = std::max(runden, spalte.zeiten.size());
        }
    }
    std::size_t je_seite() const { return bloecke * zeilen; }
    int seiten() const { return static_cast<int>((runden + je_seite() - 1) / je_seite()); }

    double block_breit;
    std::size_t bloecke;
    std::size_t zeilen;
    std::size_t runden = 0;
};

void namen_zeichnen(QPainter& maler, const ergebnisblatt& blatt, double links) {
    double x = links + nummer_breit;
    for (const ergebnisblatt::rundenspalte& spalte : blatt.rundenspalten) {
        const QRectF feld(x, kopf_hoch, spalte_breit, namen_hoch);
        maler.fillRect(QRectF(x + 8, feld.bottom() - 10, spalte_breit - 16, 7), spalte.farbe);
        blatttext(maler, feld.adjusted(8, 0, -8, -10), Qt::AlignRight, spalte.fahrer, {schrift, true, stil::schrift});
        x += spalte_breit;
    }
}

void runde_zeichnen(QPainter& maler, const ergebnisblatt& blatt, std::size_t runde, const QRectF& zeile) {
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
        namen_zeichnen(maler, blatt, links);
        for (std::size_t zeile = 0; zeile < t.zeilen && runde <= t.runden; ++zeile, ++runde) {
            const double oben = kopf_hoch + namen_hoch + static_cast<double>(zeile) * zeile_hoch;
            runde_zeichnen(maler, blatt, runde, {links, oben, t.block_breit, zeile_hoch});
        }
    }
    const QString fuss = QString::fromStdString(std::string(programm_name)) + "  ·  " + QString::number(nummer + 1) +
                         " / " + QString::number(t.seiten());
    blatttext(maler, {0, groesse.height() - 40, groesse.width(), 40}, Qt::AlignRight, fuss,
              {26, false, stil::schrift_leise});
}

}  // namespace tarvel::ui
