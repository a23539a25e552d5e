#include "ui/rundenbild.h"

#include <QGraphicsLayout>
#include <QtCharts/QLineSeries>
#include <algorithm>
#include <array>
#include <cmath>

#include "core/texte.h"
#include "ui/stil.h"
#include "ui/teilung.h"

namespace tarvel::ui {
namespace {

constexpr std::size_t punkte_je_spur = 1500;  // more than a screen has columns of pixels
constexpr std::size_t symbole_je_spur = 100;
constexpr int dicht_ab = 120;    // laps from which thin lines are told apart better
constexpr int einzeln_bis = 50;  // laps up to which each has its dot
constexpr double zeit_striche = 6;
constexpr double rand_anteil = 0.06;  // of the time axis, above and below the laps

double sekunden(zeit_ms zeit) {
    return static_cast<double>(zeit) / 1000;
}

QPen stift(const QColor& farbe, double breite) {
    return {farbe, breite, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin};
}

}  // namespace

Rundenbild::Rundenbild() : symbole_(new Rundensymbole(*this)), legende_(new Rundenlegende(this)) {
    setBackgroundBrush(auf_.grund);
    setBackgroundPen(Qt::NoPen);
    setBackgroundRoundness(8);
    layout()->setContentsMargins(0, 0, 0, 0);
    legend()->hide();
    setLocalizeNumbers(true);
}

void Rundenbild::setFarben(const diagrammfarben& farben) {
    auf_ = farben;
    setBackgroundBrush(auf_.grund);
    symbole_->setFarben(auf_);
    legende_->setFarben(auf_);
}

void Rundenbild::setInhalt(rundenbild_inhalt inhalt) {
    inhalt_ = std::move(inhalt);
    removeAllSeries();
    for (QAbstractAxis* achse : axes()) {
        removeAxis(achse);
        delete achse;
    }
    x_ = y_ = nullptr;
    bezug_ = nullptr;
    symbole_->setSymbole({}, nullptr);
    legende_->setEintraege({});
    const bool leer = letzte_runde(inhalt_.verlauf) == 0;
    symbole_->setHinweis(leer ? QString::fromStdString(inhalt_.wort.leer) : QString());
    if (leer) {
        return;
    }
    setLocale(inhalt_.trennzeichen.at(1) == "." ? QLocale::c() : QLocale(QLocale::German));
    achsen_bauen();
    std::vector<rundensymbol> symbole;
    for (const spur_verlauf& lauf : inhalt_.verlauf) {
        spur_bauen(lauf, symbole);
    }
    legende_bauen(symbole);
    // the most important ones lie on top, and get the best places for their times
    std::stable_sort(symbole.begin(), symbole.end(), [](const auto& a, const auto& b) { return a.was < b.was; });
    symbole_->setSymbole(std::move(symbole), bezug_);
    setGroesse(size());
}

void Rundenbild::achsen_bauen() {
    const zeitspanne zeiten = uebliche_zeiten(inhalt_.verlauf);
    const double von = sekunden(zeiten.von);
    const double bis = sekunden(zeiten.bis);
    const double spanne = std::max({bis - von, bis / 50, 0.05});
    const double schritt = teilung(spanne / zeit_striche);
    y_ = new QValueAxis;
    y_->setRange(std::max(0.0, std::floor((von - spanne * rand_anteil) / schritt) * schritt),
                 std::ceil((std::max(bis, von + spanne) + spanne * rand_anteil) / schritt) * schritt +
                     schritt / 1000);  // the last line
    y_->setLabelFormat(QString("%.%1f").arg(std::max(0, static_cast<int>(-std::floor(std::log10(schritt * 1.001))))));
    y_->setTitleText(QString::fromStdString(inhalt_.wort.achse_zeit));
    const double runden = letzte_runde(inhalt_.verlauf);
    x_ = new QValueAxis;
    x_->setRange(0.5, runden + std::max(0.5, runden * 0.01));
    x_->setLabelFormat("%.0f");
    x_->setTitleText(QString::fromStdString(inhalt_.wort.achse_runde));
    for (QValueAxis* achse : {x_, y_}) {
        achse->setTickType(QValueAxis::TicksDynamic);
        achse->setTickAnchor(0);
        achse->setLabelsColor(auf_.schrift);
        achse->setTitleBrush(auf_.leise);
        achse->setLinePenColor(auf_.leise);
        achse->setGridLineColor(auf_.gitter);
    }
    addAxis(x_, Qt::AlignBottom);
    addAxis(y_, Qt::AlignLeft);
}

QColor Rundenbild::spurfarbe(int spur) const {
    return stil::farbe_von(inhalt_.farben[spur]);
}

QPointF Rundenbild::wert(const verlaufsrunde& runde) const {
    return {static_cast<double>(runde.runde), std::clamp(sekunden(runde.zeit), y_->min(), y_->max())};
}

QString Rundenbild::zeit_text(zeit_ms zeit) const {
    constexpr zeit_ms minute = 60000;
    return QString::fromStdString(zeit_formatieren(zeit, zeit >= minute, inhalt_.trennzeichen));
}

void Rundenbild::spur_bauen(const spur_verlauf& lauf, std::vector<rundensymbol>& symbole) {
    const QColor farbe = spurfarbe(lauf.spur);
    const bool dicht = letzte_runde(inhalt_.verlauf) > dicht_ab;
    QList<QPointF> punkte;
    for (const verlaufsrunde& runde : ausgeduennt(lauf.runden, punkte_je_spur)) {
        punkte.append(wert(runde));
    }
    const auto linie = [&](const QPen& pen) {
        auto* reihe = new QLineSeries;
        reihe->setPen(pen);
        reihe->replace(punkte);
        addSeries(reihe);
        reihe->attachAxis(x_);
        reihe->attachAxis(y_);
        return reihe;
    };
    const double breite = dicht ? 1.4 : 2.6;
    if (const auto rand = rand_auf(auf_.grund, farbe)) {
        linie(stift(*rand, breite + (dicht ? 1.2 : 2)));
    }
    bezug_ = linie(stift(farbe, breite));

    std::vector<verlaufsrunde> pausen;
    std::vector<verlaufsrunde> lange;
    std::vector<verlaufsrunde> nachgetragene;
    for (const verlaufsrunde& runde : lauf.runden) {
        const bool lang = sekunden(runde.zeit) > y_->max();
        if (runde.runde == lauf.beste) {
            symbole.push_back({symbolform::beste, wert(runde), farbe, zeit_text(runde.zeit)});
        }
        if (runde.nachgetragen && !lang) {
            nachgetragene.push_back(runde);
        }
        if (lang) {
            lange.push_back(runde);
        } else if (runde.pause > 0) {
            pausen.push_back(runde);
        } else if (lauf.runden.size() <= einzeln_bis) {
            symbole.push_back({symbolform::punkt, wert(runde), farbe, {}});
        }
    }
    for (const verlaufsrunde& runde : ausgeduennt(pausen, symbole_je_spur)) {
        symbole.push_back({symbolform::pause, wert(runde), farbe, {}});
    }
    for (const verlaufsrunde& runde : ausgeduennt(nachgetragene, symbole_je_spur)) {
        const bool kurz = sekunden(runde.zeit) < y_->min();  // half of a lap, where its crossing was missed
        symbole.push_back({symbolform::nachgetragen, wert(runde), farbe, kurz ? zeit_text(runde.zeit) : QString()});
    }
    for (const verlaufsrunde& runde : ausgeduennt(lange, symbole_je_spur)) {
        symbole.push_back({symbolform::lang, wert(runde), farbe, zeit_text(runde.zeit)});
    }
}

void Rundenbild::legende_bauen(const std::vector<rundensymbol>& symbole) {
    std::vector<legendeneintrag> eintraege;
    for (const spur_verlauf& lauf : inhalt_.verlauf) {
        legendeneintrag eintrag{QString::fromStdString(lauf.fahrer), {}, spurfarbe(lauf.spur), {}};
        if (lauf.disqualifiziert || lauf.runden.empty()) {
            eintrag.zusatz = QString(" (%1)").arg(QString::fromStdString(
                lauf.disqualifiziert ? std::string(disqualifiziert_text) : inhalt_.wort.ohne_runden));
        }
        eintraege.push_back(eintrag);
    }
    const std::array<std::pair<symbolform, std::string>, 4> zeichen{
        {{symbolform::beste, inhalt_.wort.beste},
         {symbolform::nachgetragen, inhalt_.wort.nachgetragen},
         {symbolform::pause, inhalt_.wort.pause},
         {symbolform::lang, inhalt_.wort.lang}}};
    for (const auto& [was, wort] : zeichen) {
        if (std::any_of(symbole.begin(), symbole.end(), [f = was](const rundensymbol& s) { return s.was == f; })) {
            eintraege.push_back({QString::fromStdString(wort), {}, auf_.leise, was});
        }
    }
    legende_->setEintraege(std::move(eintraege));
}

void Rundenbild::setGroesse(const QSizeF& groesse, double schrift_max) {
    resize(groesse);
    if (groesse.isEmpty()) {
        return;
    }
    schrift_ = font();
    schrift_.setPixelSize(
        static_cast<int>(std::clamp(std::min(groesse.height() / 24, groesse.width() / 52), 10.0, schrift_max)));
    symbole_->setSchrift(schrift_);
    const int rand = schrift_.pixelSize() / 2;
    legende_->ordnen(groesse.width() - 2 * rand, schrift_);
    legende_->setPos(rand, groesse.height() - legende_->hoehe() - rand);
    setMargins(QMargins(rand, rand, 2 * rand, rand + static_cast<int>(legende_->hoehe())));
    if (x_ == nullptr) {
        return;
    }
    for (QValueAxis* achse : {x_, y_}) {
        achse->setLabelsFont(schrift_);
        achse->setTitleFont(schrift_);
    }
    const double beschriftungen = std::max(2.0, groesse.width() / (schrift_.pixelSize() * 5));
    x_->setTickInterval(std::max(1.0, teilung(x_->max() / beschriftungen)));
    const double hoehe = groesse.height() - legende_->hoehe() - 4 * schrift_.pixelSize();
    const double striche = std::clamp(hoehe / (2.5 * schrift_.pixelSize()), 2.0, zeit_striche + 1);
    y_->setTickInterval(teilung((y_->max() - y_->min()) / striche));
    layout()->activate();
}

QString Rundenbild::runde_bei(const QPointF& ort) {
    double naechste = 2.0 * schrift_.pixelSize();
    QString text;
    for (const spur_verlauf& lauf : inhalt_.verlauf) {
        for (const verlaufsrunde& runde : lauf.runden) {
            const double abstand = QLineF(ort, mapToPosition(wert(runde), bezug_)).length();
            if (abstand < naechste) {
                naechste = abstand;
                text = QString("%1\n%2 %3: %4")
                           .arg(QString::fromStdString(lauf.fahrer), QString::fromStdString(inhalt_.wort.achse_runde),
                                QString::number(runde.runde), zeit_text(runde.zeit));
                if (runde.nachgetragen) {
                    text += "\n" + QString::fromStdString(inhalt_.wort.nachgetragen);
                }
                if (runde.pause > 0) {
                    text += QString("\n%1: %2")
                                .arg(QString::fromStdString(inhalt_.wort.pause),
                                     QString::fromStdString(zeit_formatieren(runde.pause, true, inhalt_.trennzeichen)));
                }
            }
        }
    }
    return text;
}

QString Rundenbild::beschreibung() const {
    QStringList saetze;
    for (const spur_verlauf& lauf : inhalt_.verlauf) {
        const auto beste = std::find_if(lauf.runden.begin(), lauf.runden.end(),
                                        [&lauf](const verlaufsrunde& runde) { return runde.runde == lauf.beste; });
        if (beste != lauf.runden.end()) {
            saetze << QString("%1: %2 %3")
                          .arg(QString::fromStdString(lauf.fahrer), QString::fromStdString(inhalt_.wort.beste),
                               zeit_text(beste->zeit));
        }
    }
    return saetze.isEmpty() ? QString::fromStdString(inhalt_.wort.leer) : saetze.join("; ");
}

}  // namespace tarvel::ui
