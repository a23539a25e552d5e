#include "ui/spurzeilen.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QListView>
#include <algorithm>

namespace tarvel::ui {

Spurzeilen::Spurzeilen(form1& logik, QWidget* gruppe) : QObject(gruppe), logik_(logik), gruppe_(gruppe) {
    new Zugziel(
        gruppe, [this](const QPoint& hier, const Zuglast& last) { return ort(hier, last); },
        [this](const QPoint& hier, const Zuglast& last) { nehmen(hier, last); });
}

void Spurzeilen::aufnehmen(int spur, const Zeile& zeile) {
    zeilen_.at(feld_index(spur)) = zeile;
    for (QWidget* griff : zeile.griffe) {
        new Zugquelle(griff, [spur](const QPoint&) {
            Zuglast last;
            last.spur = spur;
            return last;
        });
    }
    for (QWidget* feld : zeile.felder) {
        feld->installEventFilter(this);
        feld->setAcceptDrops(false);  // else its path is typed into a name
        for (auto* eingabe : feld->findChildren<QLineEdit*>()) {
            eingabe->setAcceptDrops(false);
        }
    }
}

void Spurzeilen::liste_verbinden(QListView* liste) {
    liste_ = liste;
    liste->installEventFilter(this);
    new Zugquelle(liste->viewport(), [liste](const QPoint& hier) {
        Zuglast last;
        last.fahrer = liste->indexAt(hier).data().toString();
        return last;
    });
}

QRect Spurzeilen::flaeche_von(const std::vector<QWidget*>& widgets) const {
    QRect alles;
    for (const QWidget* widget : widgets) {
        if (widget->isVisible()) {
            alles |= QRect(widget->mapTo(gruppe_, QPoint()), widget->size());
        }
    }
    return alles;
}

QRect Spurzeilen::zeile_von(int spur) const {
    const Zeile& zeile = zeilen_.at(feld_index(spur));
    QRect alles = flaeche_von(zeile.griffe) | flaeche_von(zeile.felder);
    alles.setLeft(0);
    alles.setRight(gruppe_->width());
    return alles;
}

int Spurzeilen::spur_bei(const QPoint& hier) const {
    const auto* const gefunden =
        std::find_if(alle_spuren.begin(), alle_spuren.end(), [&](int spur) { return zeile_von(spur).contains(hier); });
    return gefunden == alle_spuren.end() ? 0 : *gefunden;
}

QRect Spurzeilen::ort(const QPoint& hier, const Zuglast& last) const {
    const int spur = spur_bei(hier);
    if (spur == 0) {
        return {};
    }
    if (!last.datei.empty()) {
        const Zeile& zeile = zeilen_.at(feld_index(spur));
        const QRect fahrzeug = flaeche_von(zeile.fahrzeug);
        return fahrzeug.contains(hier) ? fahrzeug : flaeche_von(zeile.fahrer);
    }
    const bool geht = logik_.spur_frei(spur) && (last.spur == 0 || (last.spur != spur && logik_.spur_frei(last.spur)));
    return geht ? zeile_von(spur) : QRect();
}

void Spurzeilen::nehmen(const QPoint& hier, const Zuglast& last) {
    const int spur = spur_bei(hier);
    if (spur == 0) {
        return;
    }
    const std::size_t i = feld_index(spur);
    if (last.spur != 0) {
        logik_.spuren_tauschen(last.spur, spur);
    } else if (!last.fahrer.isEmpty()) {
        logik_.fahrer_auf_spur(last.fahrer.toStdString(), spur);
    } else if (flaeche_von(zeilen_.at(i).fahrzeug).contains(hier)) {
        logik_.fahrzeugbild_ablegen(logik_.auto_.at(i).text(), last.datei);
    } else {
        logik_.fahrerbild_ablegen(logik_.fahrer.at(i).text(), last.datei);
    }
}

bool Spurzeilen::schieben(QObject* feld, int richtung) {
    for (const int spur : alle_spuren) {
        const std::vector<QWidget*>& felder = zeilen_.at(feld_index(spur)).felder;
        const auto hier = std::find(felder.begin(), felder.end(), feld);
        if (hier == felder.end()) {
            continue;
        }
        if (const int ziel = logik_.spur_schieben(spur, richtung); ziel != 0) {
            const std::size_t i = feld_index(ziel);
            const std::array<steuerelement*, 4> dort{&logik_.spur.at(i), &logik_.lspur.at(i), &logik_.fahrer.at(i),
                                                     &logik_.auto_.at(i)};
            dort.at(static_cast<std::size_t>(hier - felder.begin()))->fokus_setzen();  // goes with the driver
        }
        return true;
    }
    return false;
}

bool Spurzeilen::eventFilter(QObject* ziel, QEvent* ereignis) {
    if (ereignis->type() != QEvent::KeyPress) {
        return QObject::eventFilter(ziel, ereignis);
    }
    const auto* taste = static_cast<QKeyEvent*>(ereignis);
    if (ziel == liste_) {
        const int ziffer = taste->text().size() == 1 ? taste->text().front().digitValue() : 0;
        if (ziffer >= 1 && ziffer <= spuren_max) {
            logik_.gewaehlten_auf_spur(ziffer);
            return true;
        }
    } else if (taste->modifiers().testFlag(Qt::ControlModifier) &&
               (taste->key() == Qt::Key_Up || taste->key() == Qt::Key_Down)) {
        return schieben(ziel, taste->key() == Qt::Key_Up ? -1 : 1);
    }
    return QObject::eventFilter(ziel, ereignis);
}

}  // namespace tarvel::ui
