#include "ui/vergleichsbild.h"

#include <QFontMetricsF>
#include <QLocale>
#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <utility>

#include "core/texte.h"
#include "ui/stil.h"
#include "ui/teilung.h"
#include "ui/textanzeige.h"

namespace tarvel::ui {
namespace {

constexpr double zeile_px = 34;
constexpr double zeile_blatt = 88;  // tenths of a millimetre
constexpr double kopf_blatt = 190;
constexpr double fuss_blatt = 40;
constexpr double kopfzeilen = 1.2;  // rows of the captions, ...
constexpr double achszeilen = 1.7;  // ... and of the axis below
constexpr double name_anteil = 0.24;
constexpr double schrift_anteil_max = 0.021;  // of the width
constexpr double zahl_anteil = 0.095;
constexpr double striche = 6;

class Vergleichszeichnung {
public:
    Vergleichszeichnung(QPainter& maler, const QRectF& flaeche, const vergleichsbild_inhalt& inhalt, double zeile,
                        const stil::farbsatz& farben)
        : maler_(maler), f_(flaeche), i_(inhalt), zeile_(zeile), farben_(farben) {
        zahl_breite_ = f_.width() * zahl_anteil;
        const double links = f_.left() + f_.width() * name_anteil;
        feld_ = QRectF(QPointF(links + zeile_ / 2, f_.top() + kopfzeilen * zeile_),
                       QPointF(f_.right() - 4 * zahl_breite_ - zeile_ / 2, f_.bottom() - achszeilen * zeile_));
        skala_messen();
        namen_messen();
    }

    void zeichnen(std::size_t von) {
        const auto platz = static_cast<std::size_t>(std::max(feld_.height() / zeile_ + 0.01, 0.0));
        const std::size_t bis = std::min(i_.fahrer.size(), von + platz);
        feld_.setBottom(feld_.top() + static_cast<double>(bis - std::min(von, bis)) * zeile_);
        koepfe();
        for (std::size_t n = von; n < bis; ++n) {
            if ((n - von) % 2 == 1) {
                maler_.fillRect(QRectF(f_.left(), oben(n - von), f_.width(), zeile_), farben_.streifen);
            }
        }
        achse();
        for (std::size_t n = von; n < bis; ++n) {
            zeile(i_.fahrer[n], oben(n - von), n);
        }
    }

private:
    double oben(std::size_t reihe) const { return feld_.top() + static_cast<double>(reihe) * zeile_; }

    /// The same for all pages, so that they can be laid side by side.
    void skala_messen() {
        zeit_ms von = i_.fahrer.front().beste;
        zeit_ms bis = 0;
        for (const fahrerstreuung& fahrer : i_.fahrer) {
            von = std::min(von, fahrer.beste);
            bis = std::max(bis, fahrer.laengste_uebliche);
        }
        constexpr double rand_ms = 5;  // at least, for laps that are all the same
        const double rand = std::max(static_cast<double>(bis - von) * 0.03, rand_ms);
        von_ = static_cast<double>(von) - rand;
        bis_ = static_cast<double>(bis) + rand;
        const QFontMetricsF masse(schrift_mit(achsschrift_px(), false));
        schritt_ = teilung((bis_ - von_) / striche);
        while (schritt_ < bis_ - von_ && masse.horizontalAdvance(achszahl(bis_) + " ") > x(von_ + schritt_) - x(von_)) {
            schritt_ = teilung(1.5 * schritt_);
        }
    }

    QString achszahl(double zeit) const {
        const QLocale sprache = i_.trennzeichen[1] == "." ? QLocale::c() : QLocale(QLocale::German);
        const int stellen = schritt_ < 10 ? 3 : schritt_ < 100 ? 2 : schritt_ < 1000 ? 1 : 0;
        return sprache.toString(zeit / 1000, 'f', stellen);
    }

    double achsschrift_px() const { return std::min(zeile_ * 0.4, f_.width() * schrift_anteil_max); }

    double x(double zeit) const { return feld_.left() + feld_.width() * (zeit - von_) / (bis_ - von_); }

    void text(const QRectF& feld, Qt::Alignment ausrichtung, const QString& inhalt, bool fett, const QColor& farbe,
              double groesse = 0.46) {
        blatttext(maler_, feld, ausrichtung, inhalt,
                  {std::min(zeile_ * groesse, f_.width() * schrift_anteil_max), fett, farbe});
    }

    /// Of the number before a name.
    double nummer_em() const {
        constexpr std::size_t zweistellig = 10;
        return i_.fahrer.size() < zweistellig ? 1.5 : 2.2;
    }

    double namensbreite() const { return f_.width() * name_anteil - zeile_ * 0.2 - nummer_em() * name_px_; }

    /// All names have one size. Where it is too large for one of them, that takes two lines, for its letters would be
    /// too small in one.
    void namen_messen() {
        constexpr double einzeilig = 0.46;
        constexpr double zweizeilig = 0.38;
        const double px = std::min(zeile_ * einzeilig, f_.width() * schrift_anteil_max);
        name_px_ = px;
        for (const fahrerstreuung& fahrer : i_.fahrer) {
            const QStringList zeilen = namenszeilen(QString::fromStdString(fahrer.name), px);
            double passend = zeilen.size() > 1 ? std::min(px, zeile_ * zweizeilig) : px;
            for (const QString& zeile : zeilen) {
                passend = std::min<double>(passend,
                                           eingepasst(schrift_mit(passend, true), zeile, namensbreite()).pixelSize());
            }
            name_px_ = std::min(name_px_, passend);
        }
    }

    QStringList namenszeilen(const QString& ganz, double px) const {
        const QFontMetricsF masse(schrift_mit(px, true));
        return masse.horizontalAdvance(ganz) <= namensbreite() ? QStringList(ganz)
                                                               : umbrochen(ganz, masse, 2).split('\n');
    }

    /// The second line of a long one begins below the name, not below its number.
    void name(const QRectF& feld, std::size_t nummer, const QString& ganz) {
        const blattschrift art{name_px_, true, farben_.schrift};
        const QStringList zeilen = namenszeilen(ganz, name_px_);
        const double hoehe = 1.1 * name_px_;
        double y = feld.center().y() - hoehe * static_cast<double>(zeilen.size()) / 2;
        blatttext(maler_, {feld.left(), y, nummer_em() * name_px_, hoehe}, Qt::AlignLeft, QString::number(nummer) + ".",
                  art);
        for (const QString& zeile : zeilen) {
            blatttext(maler_, {feld.left() + nummer_em() * name_px_, y, namensbreite(), hoehe}, Qt::AlignLeft, zeile,
                      art);
            y += hoehe;
        }
    }

    /// The accent, faint.
    QColor kastenfarbe() const {
        constexpr double anteil = 0.3;
        const auto gemischt = [](int vorn, int hinten) {
            return static_cast<int>(std::lround(anteil * vorn + (1 - anteil) * hinten));
        };
        const QColor& vorn = farben_.akzent;
        const QColor& hinten = farben_.karte;
        return {gemischt(vorn.red(), hinten.red()), gemischt(vorn.green(), hinten.green()),
                gemischt(vorn.blue(), hinten.blue())};
    }

    QRectF zahlfeld(int spalte, double y) const {
        return {f_.right() - (4 - spalte) * zahl_breite_, y, zahl_breite_ - zeile_ * 0.15, zeile_};
    }

    void koepfe() {
        const std::array<QString, 4> worte{i_.beste, i_.median, i_.streuung, i_.zeiten};
        for (int spalte = 0; spalte < 4; ++spalte) {
            text(zahlfeld(spalte, f_.top() + 0.1 * zeile_), Qt::AlignRight, worte.at(static_cast<std::size_t>(spalte)),
                 false, farben_.schrift_leise, 0.4);
        }
    }

    void achse() {
        maler_.setPen(QPen(farben_.linie, std::max(1.0, zeile_ / 34)));
        const auto erster = static_cast<std::int64_t>(std::ceil(von_ / schritt_));
        const auto letzter = static_cast<std::int64_t>(std::floor(bis_ / schritt_));
        for (std::int64_t i = erster; i <= letzter; ++i) {
            const double wert = static_cast<double>(i) * schritt_;
            const double hier = x(wert);
            maler_.setPen(QPen(farben_.linie, std::max(1.0, zeile_ / 34)));
            maler_.drawLine(QPointF(hier, feld_.top()), QPointF(hier, feld_.bottom() + zeile_ * 0.15));
            text({hier - 2 * zeile_, feld_.bottom() + zeile_ * 0.15, 4 * zeile_, zeile_ * 0.7}, Qt::AlignHCenter,
                 achszahl(wert), false, farben_.schrift_leise, 0.4);
        }
        const double halb = feld_.center().x() - f_.left();  // as wide as it can be in the middle of the axis
        text({f_.left(), feld_.bottom() + zeile_ * 0.75, 2 * halb, zeile_ * 0.8}, Qt::AlignHCenter, i_.achse, false,
             farben_.schrift_leise, 0.4);
    }

    void zeile(const fahrerstreuung& fahrer, double y, std::size_t nummer) {
        name({f_.left() + zeile_ * 0.2, y, f_.width() * name_anteil - zeile_ * 0.2, zeile_}, nummer + 1,
             QString::fromStdString(fahrer.name));
        marke(fahrer, y);
        const auto zeit = [this](zeit_ms dauer) {
            return QString::fromStdString(zeit_formatieren(dauer, dauer >= 60000, i_.trennzeichen));
        };
        text(zahlfeld(0, y), Qt::AlignRight, zeit(fahrer.beste), true, farben_.schrift);
        text(zahlfeld(1, y), Qt::AlignRight, zeit(fahrer.median), true, farben_.schrift);
        text(zahlfeld(2, y), Qt::AlignRight, zeit(fahrer.streuung()), false, farben_.schrift);
        text(zahlfeld(3, y), Qt::AlignRight, QString::number(fahrer.anzahl), false, farben_.schrift_leise);
    }

    void marke(const fahrerstreuung& fahrer, double y) {
        const double mitte = y + zeile_ / 2;
        const double halb = zeile_ * 0.26;
        const double strich = std::max(1.5, zeile_ / 17);
        const auto wo = [this](zeit_ms zeit) { return x(static_cast<double>(zeit)); };
        maler_.setPen(QPen(farben_.schrift_leise, strich * 0.7));
        maler_.drawLine(QPointF(wo(fahrer.beste), mitte), QPointF(wo(fahrer.laengste_uebliche), mitte));
        for (const zeit_ms ende : {fahrer.beste, fahrer.laengste_uebliche}) {
            maler_.drawLine(QPointF(wo(ende), mitte - halb / 2), QPointF(wo(ende), mitte + halb / 2));
        }
        const QRectF haelfte(QPointF(wo(fahrer.viertel), mitte - halb), QPointF(wo(fahrer.dreiviertel), mitte + halb));
        maler_.setPen(QPen(farben_.akzent, strich * 0.5));
        maler_.setBrush(kastenfarbe());
        maler_.drawRect(haelfte);
        maler_.setPen(QPen(farben_.akzent, strich * 1.6, Qt::SolidLine, Qt::FlatCap));
        maler_.drawLine(QPointF(wo(fahrer.median), mitte - halb), QPointF(wo(fahrer.median), mitte + halb));
    }

    QPainter& maler_;
    QRectF f_;
    const vergleichsbild_inhalt& i_;
    double zeile_;
    const stil::farbsatz& farben_;
    double name_px_ = 0;
    double zahl_breite_ = 0;
    QRectF feld_;  ///< of the marks
    double von_ = 0;
    double bis_ = 1;
    double schritt_ = 1;
};

std::size_t zeilen_je_seite(const QSizeF& groesse) {
    const double platz = groesse.height() - kopf_blatt - fuss_blatt - (kopfzeilen + achszeilen) * zeile_blatt;
    return static_cast<std::size_t>(std::max(platz / zeile_blatt, 1.0));
}

void seite_zeichnen(QPainter& maler, const QSizeF& groesse, const vergleichsbild_inhalt& inhalt, int nummer) {
    blatttext(maler, {0, 0, groesse.width(), 90}, Qt::AlignLeft, inhalt.titel, {78, true, stil::schrift});
    blatttext(maler, {0, 95, groesse.width(), 60}, Qt::AlignLeft, inhalt.kopf, {44, false, stil::schrift_leise});
    const QRectF flaeche(0, kopf_blatt, groesse.width(), groesse.height() - kopf_blatt - fuss_blatt);
    vergleich_zeichnen(maler, flaeche, inhalt, static_cast<std::size_t>(nummer) * zeilen_je_seite(groesse), zeile_blatt,
                       stil::auf_papier());
    blatttext(maler, {0, groesse.height() - fuss_blatt, groesse.width(), fuss_blatt}, Qt::AlignRight,
              QString::fromStdString(std::string(programm_name) + " " + std::string(programm_version)),
              {26, false, stil::schrift_leise});
}

}  // namespace

void vergleich_zeichnen(QPainter& maler, const QRectF& flaeche, const vergleichsbild_inhalt& inhalt, std::size_t von,
                        double zeilenhoehe, const stil::farbsatz& farben) {
    if (inhalt.fahrer.empty()) {
        blatttext(maler, flaeche, Qt::AlignCenter, inhalt.leer, {zeilenhoehe / 2, false, farben.schrift_leise});
        return;
    }
    Vergleichszeichnung(maler, flaeche, inhalt, zeilenhoehe, farben).zeichnen(von);
}

blattseiten vergleichsseiten(const vergleichsbild_inhalt& inhalt) {
    return {inhalt.titel,
            [anzahl = inhalt.fahrer.size()](const QSizeF& groesse) {
                const std::size_t je_seite = zeilen_je_seite(groesse);
                return static_cast<int>(std::max<std::size_t>((anzahl + je_seite - 1) / je_seite, 1));
            },
            [inhalt](QPainter& maler, const QSizeF& groesse, int nummer) {
                seite_zeichnen(maler, groesse, inhalt, nummer);
            }};
}

void Vergleichsbild::setInhalt(vergleichsbild_inhalt inhalt) {
    inhalt_ = std::move(inhalt);
    const double zeilen = static_cast<double>(inhalt_.fahrer.size()) + kopfzeilen + achszeilen;
    setMinimumHeight(static_cast<int>(std::ceil(zeilen * zeile_px)) + 16);
    setAccessibleName(inhalt_.titel);
    QString beschreibung;
    for (const fahrerstreuung& fahrer : inhalt_.fahrer) {
        const auto zeit = [this](zeit_ms dauer) {
            return QString::fromStdString(zeit_formatieren(dauer, true, inhalt_.trennzeichen));
        };
        beschreibung += QString::fromStdString(fahrer.name) + ": " + inhalt_.beste + " " + zeit(fahrer.beste) + ", " +
                        inhalt_.median + " " + zeit(fahrer.median) + ", " + inhalt_.streuung + " " +
                        zeit(fahrer.streuung()) + "\n";
    }
    setAccessibleDescription(beschreibung);
    update();
}

void Vergleichsbild::paintEvent(QPaintEvent* /*ereignis*/) {
    QPainter maler(this);
    maler.setRenderHint(QPainter::Antialiasing);
    const stil::farbsatz& farben = stil::auf_dem_schirm();
    maler.fillRect(rect(), farben.karte);
    const QRectF flaeche = QRectF(rect()).adjusted(12, 8, -12, -8);
    // few rows stand wider apart
    const double zeilen =
        static_cast<double>(std::max<std::size_t>(inhalt_.fahrer.size(), 1)) + kopfzeilen + achszeilen;
    constexpr double breite_je_zeile = 28;  // a large window has large letters
    const double zeile_max = std::max(zeile_px * 1.5, flaeche.width() / breite_je_zeile);
    vergleich_zeichnen(maler, flaeche, inhalt_, 0, std::clamp(flaeche.height() / zeilen, zeile_px, zeile_max), farben);
}

}  // namespace tarvel::ui
