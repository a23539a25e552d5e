#include "ui/wettkampfblatt.h"

#include <QFontMetricsF>
#include <algorithm>
#include <memory>
#include <utility>

#include "core/texte.h"
#include "ui/stil.h"
#include "ui/wettkampfbalken.h"

namespace tarvel::ui {
namespace {

constexpr double aushang_titel = 78;
constexpr double aushang_kopf = 44;
constexpr double schrift_tabelle = 46;
constexpr double schrift_legende = 28;
constexpr double aushang_spalte = 31;
constexpr double aushang_fuss = 26;

constexpr double kopf_erste = 190;  // title and date on the first page
constexpr double kopf_weitere = 96;
constexpr double zeile_titel = 72;  // of a table
constexpr double aushang_zeile_spalten = 56;
constexpr double aushang_zeile_fuss = 40;
constexpr double aushang_abstand = 40;
constexpr double aushang_luft = 30;  // at both sides of a cell together

constexpr std::size_t wenige_zeilen = 12;  // so few are written large
constexpr std::size_t wenige_rennen = 20;
constexpr std::size_t zeilen_am_stueck = 3;
constexpr std::size_t namensspalte = 1;
constexpr double aushang_zahlen_anteil = 0.8;
constexpr double aushang_balken_anteil = 0.36;

const QColor aushang_gold{255, 250, 232};
const QColor aushang_streifen{247, 248, 250};

struct zeilenmass {
    double hoehe;
    double schrift;
    double zusatz;
};

bool mit_zusatz(const wettkampfblatt::tabelle& t) {
    return std::any_of(t.zeilen.begin(), t.zeilen.end(), [](const auto& zeile) {
        return std::any_of(zeile.begin(), zeile.end(), [](const auto& zelle) { return !zelle.zusatz.empty(); });
    });
}

zeilenmass mass_von(const wettkampfblatt::tabelle& t) {
    if (mit_zusatz(t)) {
        return {96, 38, 29};
    }
    if (!t.balken.empty()) {
        return t.zeilen.size() <= wenige_zeilen ? zeilenmass{92, 50, 0} : zeilenmass{68, 40, 0};
    }
    return t.zeilen.size() <= wenige_rennen ? zeilenmass{74, 46, 0} : zeilenmass{56, 36, 0};
}

constexpr double kopfhoehe = zeile_titel + aushang_zeile_spalten;

double stueckhoehe(const wettkampfblatt::tabelle& t, std::size_t zeilen) {
    return kopfhoehe + static_cast<double>(zeilen) * mass_von(t).hoehe;
}

/// Draws one part of a table.
class Tabellenzeichnung {
public:
    Tabellenzeichnung(QPainter& maler, const wettkampfblatt& blatt, const wettkampfblatt::tabelle& t, double breite)
        : maler_(maler), blatt_(blatt), t_(t), mass_(mass_von(t)), zusatz_(mit_zusatz(t)), breite_(breite) {
        spalten_messen();
    }
    void zeichnen(const tabellenstueck& stueck);

private:
    bool ist_name(std::size_t i) const { return !t_.spalten[i].zahlen; }
    /// Figures with others under them stand around their middle.
    Qt::Alignment ausrichtung(std::size_t i) const {
        return ist_name(i) || i == 0 ? Qt::AlignLeft : zusatz_ ? Qt::AlignHCenter : Qt::AlignRight;
    }
    double noetig(std::size_t i) const;
    void spalten_messen();
    void kopf(double oben, bool fortgesetzt);
    void spurkopf(const QRectF& feld, int spur, const QString& text, Qt::Alignment ausrichtung);
    void balkenkopf(double oben);
    void zeile(std::size_t n, const QRectF& feld);

    QPainter& maler_;
    const wettkampfblatt& blatt_;
    const wettkampfblatt::tabelle& t_;
    zeilenmass mass_;
    bool zusatz_;
    double breite_;
    std::vector<double> breiten_;  ///< of the columns
    double balken_links_ = 0;
};

QString aushangtext(const std::string& text) {
    return QString::fromStdString(text);
}

QRectF mit_luft(double x, double y, double breite, double hoehe) {
    return QRectF(x, y, breite, hoehe).adjusted(aushang_luft / 2, 0, -aushang_luft / 2, 0);
}

double Tabellenzeichnung::noetig(std::size_t i) const {
    const QFontMetricsF wert(schrift_mit(mass_.schrift, true));
    const QFontMetricsF zusatz(schrift_mit(std::max(mass_.zusatz, 1.0), false));
    double breite = QFontMetricsF(schrift_mit(aushang_spalte, true)).horizontalAdvance(aushangtext(t_.spalten[i].kopf));
    for (const auto& zeile : t_.zeilen) {
        breite = std::max({breite, wert.horizontalAdvance(aushangtext(zeile[i].text)),
                           zusatz_ ? zusatz.horizontalAdvance(aushangtext(zeile[i].zusatz)) : 0.0});
    }
    return breite + aushang_luft + 2;
}

void Tabellenzeichnung::spalten_messen() {
    const double rand = t_.balken.empty() ? breite_ : breite_ * (1 - aushang_balken_anteil);
    double zahlen = 0;
    int namen = 0;
    for (std::size_t i = 0; i < t_.spalten.size(); ++i) {
        breiten_.push_back(ist_name(i) ? 0 : noetig(i));
        zahlen += breiten_.back();
        namen += ist_name(i) ? 1 : 0;
    }
    const double schrumpfung = std::min(1.0, rand * aushang_zahlen_anteil / std::max(zahlen, 1.0));
    double je_name = (rand - zahlen * schrumpfung) / std::max(namen, 1);
    double je_zahl = 0;
    if (zusatz_) {  // what the names do not need goes to the figures
        const double rest = std::max(je_name - noetig(namensspalte), 0.0);
        je_name -= rest;
        je_zahl = rest / static_cast<double>(std::max<std::size_t>(t_.spalten.size(), 3) - 2);
    } else if (!t_.balken.empty()) {  // or to the bars
        je_name = std::min(je_name, noetig(namensspalte));
    }
    for (std::size_t i = 0; i < breiten_.size(); ++i) {
        breiten_[i] = ist_name(i) ? je_name : breiten_[i] * schrumpfung + (i > namensspalte ? je_zahl : 0);
        balken_links_ += breiten_[i];
    }
}

void Tabellenzeichnung::zeichnen(const tabellenstueck& stueck) {
    kopf(stueck.oben, stueck.von > 0);
    double y = stueck.oben + kopfhoehe;
    for (std::size_t n = stueck.von; n < stueck.bis; ++n) {
        zeile(n, {0, y, breite_, mass_.hoehe});
        y += mass_.hoehe;
    }
    maler_.setPen(QPen(stil::schrift_leise, 3));
    maler_.drawLine(QPointF(0, y), QPointF(breite_, y));
}

void Tabellenzeichnung::kopf(double oben, bool fortgesetzt) {
    blatttext(maler_, {aushang_luft / 2, oben, breite_ / 2, zeile_titel}, Qt::AlignLeft,
              aushangtext(t_.titel) + (fortgesetzt ? " …" : ""), {schrift_tabelle, true, stil::akzent});
    if (t_.balken.empty()) {
        blatttext(maler_, {breite_ / 2, oben, breite_ / 2 - aushang_luft / 2, zeile_titel}, Qt::AlignRight,
                  aushangtext(t_.legende), {schrift_legende, false, stil::schrift_leise});
    } else {
        balkenkopf(oben + zeile_titel);
    }
    double x = 0;
    const double y = oben + zeile_titel;
    for (std::size_t i = 0; i < t_.spalten.size(); ++i) {
        const wettkampfblatt::spalte& spalte = t_.spalten[i];
        const QRectF feld = mit_luft(x, y, breiten_[i], aushang_zeile_spalten - 6);
        x += breiten_[i];
        if (spalte.spur == 0) {
            blatttext(maler_, feld, ausrichtung(i), aushangtext(spalte.kopf),
                      {aushang_spalte, false, stil::schrift_leise});
            continue;
        }
        spurkopf(feld, spalte.spur, aushangtext(spalte.kopf), ausrichtung(i));
    }
    maler_.setPen(QPen(stil::schrift_leise, 3));
    maler_.drawLine(QPointF(0, oben + kopfhoehe), QPointF(breite_, oben + kopfhoehe));
}

void Tabellenzeichnung::spurkopf(const QRectF& feld, int spur, const QString& text, Qt::Alignment ausrichtung) {
    const QColor farbe = stil::farbe_von(blatt_.farben[spur]);
    maler_.setPen(QPen(QColor(0, 0, 0, 110), 2));
    maler_.setBrush(farbe);
    maler_.drawRoundedRect(feld.adjusted(-8, 2, 8, -2), 10, 10);
    blatttext(maler_, feld.adjusted(6, 0, -6, 0), ausrichtung, text, {aushang_spalte, true, stil::schrift_auf(farbe)});
}

/// Which colour is which lane.
void Tabellenzeichnung::balkenkopf(double oben) {
    const double links = balken_links_ + aushang_luft;
    const double wort =
        QFontMetricsF(schrift_mit(aushang_spalte, false)).horizontalAdvance(aushangtext(t_.legende)) + 24;
    QRectF marke(links + wort, oben, aushang_zeile_spalten * 0.7, aushang_zeile_spalten - 6);
    for (const int spur : alle_spuren) {
        if (std::any_of(t_.balken.begin(), t_.balken.end(), [spur](const auto& b) { return b.runden[spur] > 0; })) {
            spurkopf(marke, spur, QString::number(spur), Qt::AlignHCenter);
            marke.translate(aushang_zeile_spalten * 1.1, 0);
        }
    }
    if (marke.left() > links + wort) {
        blatttext(maler_, {links, oben, wort, aushang_zeile_spalten - 6}, Qt::AlignLeft, aushangtext(t_.legende),
                  {aushang_spalte, false, stil::schrift_leise});
    }
}

void Tabellenzeichnung::zeile(std::size_t n, const QRectF& feld) {
    const bool sieger = n == 0 && !t_.balken.empty() && t_.balken.front().gesamt > 0;
    maler_.fillRect(feld, sieger ? aushang_gold : n % 2 == 1 ? aushang_streifen : stil::karte);
    double x = 0;
    for (std::size_t i = 0; i < t_.spalten.size(); ++i) {
        const wettkampfblatt::zelle& zelle = t_.zeilen[n][i];
        QRectF platz = mit_luft(x, feld.top(), breiten_[i], feld.height());
        x += breiten_[i];
        if (!zelle.zusatz.empty()) {
            const double rand = feld.height() * 0.06;
            const double mitte = feld.height() * 0.56;
            blatttext(maler_, platz.adjusted(0, mitte, 0, -rand), ausrichtung(i), aushangtext(zelle.zusatz),
                      {mass_.zusatz, false, stil::schrift_leise});
            platz.adjust(0, rand, 0, mitte - feld.height());
        }
        blatttext(maler_, platz, ausrichtung(i), aushangtext(zelle.text),
                  {mass_.schrift, i == 0 || zusatz_ || (ist_name(i) && t_.spalten[i].spur == 0), stil::schrift});
    }
    maler_.setPen(QPen(stil::linie, 2));
    maler_.drawLine(feld.bottomLeft(), feld.bottomRight());
    if (!t_.balken.empty()) {
        const QRectF balken(balken_links_ + aushang_luft, feld.top() + feld.height() * 0.15,
                            breite_ - balken_links_ - aushang_luft, feld.height() * 0.7);
        balken_malen(maler_, balken, t_.balken[n], blatt_.farben,
                     {laengster_balken(t_.balken), schrift_mit(mass_.schrift * 0.8, false), stil::schrift});
    }
}

void seitenkopf(QPainter& maler, const wettkampfblatt& blatt, double breite, int nummer) {
    const double links = 44;
    const QString titel = aushangtext(blatt.titel);
    const QString kopf = aushangtext(blatt.kopf);
    if (nummer > 0) {
        blatttext(maler, {aushang_luft / 2, 0, breite * 0.5, 70}, Qt::AlignLeft, titel,
                  {aushang_kopf, true, stil::schrift});
        blatttext(maler, {breite * 0.5, 0, breite * 0.5, 70}, Qt::AlignRight, kopf,
                  {aushang_spalte, false, stil::schrift_leise});
        return;
    }
    const double hoch = aushang_titel * 1.25;
    maler.fillRect(QRectF(0, 6, 14, hoch + aushang_kopf * 1.4 - 12), stil::akzent);
    blatttext(maler, {links, 0, breite - links, hoch}, Qt::AlignLeft, titel, {aushang_titel, true, stil::schrift});
    blatttext(maler, {links, hoch, breite - links, aushang_kopf * 1.4}, Qt::AlignLeft, kopf,
              {aushang_kopf, false, stil::schrift_leise});
}

void seitenfuss(QPainter& maler, const wettkampfblatt& blatt, const QSizeF& groesse, int nummer, std::size_t anzahl) {
    const QRectF feld(0, groesse.height() - aushang_zeile_fuss, groesse.width(), aushang_zeile_fuss);
    blatttext(maler, feld, Qt::AlignLeft, aushangtext(std::string(programm_name)),
              {aushang_fuss, false, stil::schrift_leise});
    blatttext(maler, feld, Qt::AlignRight,
              QString("%1 %2 / %3").arg(aushangtext(blatt.seite)).arg(nummer + 1).arg(anzahl),
              {aushang_fuss, false, stil::schrift_leise});
}

void aushangseite_zeichnen(QPainter& maler, const wettkampfblatt& blatt, const QSizeF& groesse, int nummer) {
    const auto seiten = seiten_aufteilen(blatt, groesse.height());
    seitenkopf(maler, blatt, groesse.width(), nummer);
    for (const tabellenstueck& stueck : seiten.at(static_cast<std::size_t>(nummer))) {
        Tabellenzeichnung(maler, blatt, blatt.tabellen[stueck.tabelle], groesse.width()).zeichnen(stueck);
    }
    seitenfuss(maler, blatt, groesse, nummer, seiten.size());
}

}  // namespace

double unterkante(const wettkampfblatt& blatt, const tabellenstueck& stueck) {
    return stueck.oben + stueckhoehe(blatt.tabellen[stueck.tabelle], stueck.bis - stueck.von);
}

std::vector<std::vector<tabellenstueck>> seiten_aufteilen(const wettkampfblatt& blatt, double hoehe) {
    const double unten = hoehe - aushang_zeile_fuss - aushang_abstand / 2;
    std::vector<std::vector<tabellenstueck>> seiten(1);
    double y = kopf_erste;
    const auto umblaettern = [&] {
        seiten.emplace_back();
        y = kopf_weitere;
    };
    for (std::size_t nummer = 0; nummer < blatt.tabellen.size(); ++nummer) {
        const wettkampfblatt::tabelle& t = blatt.tabellen[nummer];
        const std::size_t zeilen = t.zeilen.size();
        // a table that has room on one page is not torn, and none begins with a row or two
        const bool passt_allein = kopf_weitere + stueckhoehe(t, zeilen) <= unten;
        const double anfang = stueckhoehe(t, passt_allein ? zeilen : std::min(zeilen, zeilen_am_stueck));
        if (!seiten.back().empty() && y + anfang > unten) {
            umblaettern();
        }
        for (std::size_t von = 0; von < zeilen;) {
            const double platz = (unten - y - kopfhoehe) / mass_von(t).hoehe;
            const std::size_t bis =
                std::min(zeilen, von + std::max(static_cast<std::size_t>(std::max(platz, 0.0)), std::size_t{1}));
            seiten.back().push_back({nummer, von, bis, y});
            y += stueckhoehe(t, bis - von) + aushang_abstand;
            von = bis;
            if (von < zeilen) {
                umblaettern();
            }
        }
    }
    return seiten;
}

blattseiten wettkampfseiten(wettkampfblatt blatt) {
    const QString titel = aushangtext(blatt.titel);
    const auto geteilt = std::make_shared<const wettkampfblatt>(std::move(blatt));
    return {titel,
            [geteilt](const QSizeF& groesse) {
                return static_cast<int>(seiten_aufteilen(*geteilt, groesse.height()).size());
            },
            [geteilt](QPainter& maler, const QSizeF& groesse, int nummer) {
                aushangseite_zeichnen(maler, *geteilt, groesse, nummer);
            }};
}

}  // namespace tarvel::ui
